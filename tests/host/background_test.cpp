#include "host/background.h"

#include <gtest/gtest.h>

TEST(Background, AnAskerThatIsGoneIsToldNothing) {
    auto *asker = new QObject;
    bool answered = false;
    for (int i = 0; i < 2; ++i)
        host::inBackground(
            asker,
            [i] {
                if (i)
                    throw host::HostError("queue", "is silent");
                return i;
            },
            [&](int) { answered = true; }, [&](const QString &) { answered = true; });
    QThreadPool::globalInstance()->waitForDone();
    delete asker; // both answers are on their way
    QCoreApplication::processEvents();
    EXPECT_FALSE(answered);
}
