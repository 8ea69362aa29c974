// Modules and panels over their whole life.

#include "support/ppd_text.h"
#include "support/run_program.h"

#include "host/bundle_loader.h"
#include "host/panel_stage.h"
#include "platform/views/modal_window.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
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

/// A host by another author gets the same choices as ours.
TEST(SmallHost, PrintsWhatOursPrints) {
    const QTemporaryDir folder;
    for (const char *name : {"velmora-mvo-530", "sorvani-sv500"}) {
        const QString ppd = samplePath(QString(name) + ".ppd");
        const ProgramRun small = runProgram(QFileInfo(HOST_PROGRAM).dir().filePath("small_host"),
                                            {BUNDLE_DIR, ppd, "--once"}, folder.path());
        EXPECT_EQ(small.exitCode, 0) << small.err.constData();
        const ProgramRun ours =
            runProgram(HOST_PROGRAM,
                       {"print", "--shown", "--ppd", ppd, "--to", "x.ps", samplePath("sample.ps")},
                       folder.path());
        EXPECT_EQ(ours.exitCode, 0);
        const QByteArray job = readFile(folder.filePath("x.ps"));
        for (const QByteArray &line : small.out.split('\n')) {
            const QByteArray feature = "%%BeginFeature: *" + QByteArray(line).replace('=', ' ');
            EXPECT_TRUE(!line.startsWith("QZ") || job.contains(feature)) << line.constData();
        }
        QFile::remove(folder.filePath("x.ps"));
    }
}

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
    EXPECT_LT(temporary(), left + 100); // other tests have some, too
#ifdef __SANITIZE_ADDRESS__
    constexpr bool keepsFreed = true; // the sanitizer does
#else
    constexpr bool keepsFreed = false;
#endif
    const long more = (pages() - memory) * sysconf(_SC_PAGESIZE);
    EXPECT_TRUE(keepsFreed || more < 4 << 20) << more << " bytes more";
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
