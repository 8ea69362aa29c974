#include "host/background.h"

#include <QEventLoop>
#include <QThread>

#include <gtest/gtest.h>

TEST(Background, AnswersOnTheAskersThreadUnlessItIsGone) {
    QObject asker;
    auto *gone = new QObject;
    QEventLoop loop;
    QStringList answers;
    const auto here = QThread::currentThread();
    const auto note = [&](const QString &what) {
        EXPECT_EQ(QThread::currentThread(), here);
        answers += what;
        if (answers.size() == 2)
            loop.quit();
    };
    const auto work = [here] {
        return QString(QThread::currentThread() == here ? "here" : "away");
    };
    host::inBackground(gone, work, [](const QString &) { ADD_FAILURE(); }, {});
    delete gone;
    host::inBackground(&asker, work, note, {});
    host::inBackground(
        &asker, []() -> int { throw host::HostError("queue", "is silent"); },
        [](int) { ADD_FAILURE(); }, note);
    loop.exec();
    answers.sort();
    EXPECT_EQ(answers, QStringList({"away", "queue: is silent"}));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}
