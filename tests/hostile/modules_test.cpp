// Modules and panels over their whole life.

#include "support/ppd_text.h"
#include "support/run_program.h"

#include "host/bundle_loader.h"
#include "host/panel_stage.h"
#include "platform/views/modal_window.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <unistd.h>

struct Module {
    const char *name, *words;
};

class BadModule : public testing::TestWithParam<Module> {};

/// The program says why, in one line, and loads nothing.
TEST_P(BadModule, IsRefused) {
    const QTemporaryDir folder;
    const ProgramRun run =
        runProgram(HOST_PROGRAM,
                   {"inspect", "--ppd", samplePath("velmora-plain.ppd"), "--bundle",
                    QStringLiteral(MODULES_DIR "/%1.pde").arg(GetParam().name)},
                   folder.path());
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.err.contains(GetParam().words)) << run.err.constData();
    EXPECT_EQ(run.err.count('\n'), 1);
}

INSTANTIATE_TEST_SUITE_P(Modules, BadModule,
                         testing::Values(Module{"Version", "speaks version 9.0"},
                                         Module{"Stranger", "is no module of a print panel"},
                                         Module{"Throws", "failed: no luck today"},
                                         Module{"Undefined", "symbolThatNobodyHas"},
                                         Module{"None", "None.pde: "}),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(Module, LoadedTwiceIsTheSame) {
    EXPECT_EQ(host::loadBundle(BUNDLE_DIR), host::loadBundle(BUNDLE_DIR));
}

namespace {

host::PanelStage newStage() {
    return {host::openPpdFile(samplePath("velmora-mvo-530.ppd")), *host::loadBundle(BUNDLE_DIR)};
}

/// Memory in use, in pages of the machine.
long pages() {
    return readFile("/proc/self/statm").split(' ').value(1).toLong();
}

} // namespace

/// What is opened and closed a thousand times leaves nothing behind.
TEST(Panel, ComesAndGoesAThousandTimes) {
    const auto descriptors = [] {
        return QDir("/proc/self/fd").entryList(QDir::System | QDir::Files).size();
    };
    const auto temporary = [] { return QDir::temp().entryList({"*pde*", "*image*"}).size(); };
    qsizetype files = 0, left = 0;
    long memory = 0;
    for (int round = 0; round < 1000; ++round) {
        host::PanelStage stage = newStage();
        ASSERT_TRUE(stage.open());
        stage.session().noteUserAct();
        stage.session().print();
        stage.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (round == 200) { // caches are filled by now
            files = descriptors();
            left = temporary();
            memory = pages();
        }
    }
    EXPECT_EQ(descriptors(), files);
    EXPECT_EQ(temporary(), left);
#ifndef __SANITIZE_ADDRESS__ // which keeps what was freed
    EXPECT_LT((pages() - memory) * sysconf(_SC_PAGESIZE), 4 << 20) << "bytes more";
#endif
}

/// The dialog goes while a window of the panel runs: the window ends first.
TEST(Panel, IsClosedBehindItsWindow) {
    for (const char *opener : {"colorbalanceButtonCtrl", "imageAdjustmentButtonCtrl"}) {
        host::PanelStage stage = newStage();
        ASSERT_TRUE(stage.open());
        QTimer::singleShot(0, qApp, [] {
            if (ModalWindow *window = ModalWindow::current())
                window->reject();
        });
        stage.window()->findChild<QAbstractButton *>(opener)->click();
        EXPECT_FALSE(ModalWindow::current()) << opener;
        stage.close();
        EXPECT_FALSE(stage.isOpen());
    }
}
