#include "run_host.h"
#include "support/cups_daemon.h"
#include "support/ppd_text.h"

#include "host/bundle_loader.h"
#include "host/dialog/print_dialog.h"
#include "host/presets/preset_bar.h"
#include "platform/views/modal_window.h"
#include "platform/views/stepper_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace {

host::DialogSetup setupFor(const QTemporaryDir &folder) {
    host::DialogSetup setup;
    setup.plugin = host::loadBundle(BUNDLE_DIR);
    setup.document = host::readDocument(samplePath("sample.ps"));
    setup.store = host::PresetStore(folder.path());
    return setup;
}

template <class View>
View *find(QWidget &window, const char *name) {
    auto *view = window.findChild<View *>(name);
    EXPECT_TRUE(view) << name;
    return view;
}

/// Waits for what background work brings.
template <class Condition>
bool wait(Condition condition) {
    return QTest::qWaitFor(condition, 30000);
}

QPushButton *printButton(QWidget &dialog) {
    for (auto *button : dialog.findChildren<QPushButton *>())
        if (button->text() == "&Print")
            return button;
    return nullptr;
}

/// Picks a row of the list of printers, as a click does.
bool pick(QWidget &dialog, const QString &queue) {
    auto *list = find<QListView>(dialog, "queueList");
    for (int row = 0; row < list->model()->rowCount(); ++row)
        if (list->model()->index(row, 0).data().toString() == queue) {
            list->setCurrentIndex(list->model()->index(row, 0));
            return true;
        }
    return false;
}

/// What the list tells of a printer behind its name and state.
QString aboutOf(QWidget &dialog, const QString &queue) {
    const auto *model = find<QListView>(dialog, "queueList")->model();
    for (int row = 0; row < model->rowCount(); ++row)
        if (model->index(row, 0).data().toString() == queue)
            return model->index(row, 0).data(Qt::AccessibleDescriptionRole).toString();
    return {};
}

} // namespace

/// The window stands with a server that isn't there, prints nothing, and a person who looks around
/// finds the panel, its windows and the summary.
TEST(PrintDialog, ShowsPanelAndSummaryAndCancels) {
    const ServerInUse server("/nonexistent/socket");
    const QTemporaryDir folder;
    host::DialogSetup setup = setupFor(folder);
    setup.file = host::openPpdFile(samplePath("velmora-mvo-530.ppd"));
    host::PrintDialog dialog(std::move(setup));
    dialog.show();
    auto *tabs = find<QTabWidget>(dialog, "pages");
    ASSERT_TRUE(tabs->isTabVisible(1));
    tabs->setCurrentIndex(1);
    QTimer::singleShot(0, &dialog, [&] {
        ASSERT_TRUE(ModalWindow::current());
        dialog.reject();
        EXPECT_TRUE(dialog.isVisible()) << "a child window of the panel stood before the dialog";
        ModalWindow::current()->reject();
    });
    find<QPushButton>(dialog, "colorbalanceButtonCtrl")->click();
    tabs->setCurrentIndex(2);
    QPointer<QLabel> row;
    EXPECT_TRUE(wait([&] {
        for (auto *label : dialog.findChildren<QLabel *>())
            if (label->text() == "Color Mode")
                row = label;
        return !row.isNull();
    }));
    QTest::qWait(100);
    EXPECT_TRUE(row) << "the summary is made again and again, though nothing changes";
    EXPECT_TRUE(wait([&] { return !find<QPushButton>(dialog, "retry")->isHidden(); }));
    EXPECT_TRUE(printButton(dialog)->isEnabled());
    find<QDialogButtonBox>(dialog, "buttons")->button(QDialogButtonBox::Cancel)->click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

/// A person shifts a density, saves a preset, looks at another printer, comes back, and prints.
TEST(PrintDialog, KeepsChoicesOfEachPrinterAndPrintsThem) {
    CupsDaemon cups;
    ASSERT_TRUE(cups.start() && cups.addQueue("One", samplePath("velmora-mvo-530.ppd")) &&
                cups.addQueue("Two", samplePath("velmora-plain.ppd")))
        << cups.log().constData();
    const ServerInUse server(cups.address());
    const QTemporaryDir folder;
    host::DialogSetup setup = setupFor(folder);
    setup.queue = "One";
    {
        host::PrintDialog dialog(std::move(setup));
        dialog.show();
        auto *tabs = find<QTabWidget>(dialog, "pages");
        const auto ready = [&] { return printButton(dialog)->isEnabled(); };
        ASSERT_TRUE(wait(ready) && tabs->isTabVisible(1));
        EXPECT_TRUE(wait([&] {
            return aboutOf(dialog, "One").contains("with Image Options") &&
                   !aboutOf(dialog, "Two").contains("with");
        }));
        tabs->setCurrentIndex(1);
        QTimer::singleShot(0, &dialog, [] {
            ModalWindow *window = ModalWindow::current();
            ASSERT_TRUE(window);
            window->findChild<QAbstractButton *>("graphicWndAdjustCBCboxCtrl")->click();
            window->findChild<StepperView *>("gWndLowDCBLarrCtrl")->stepBy(2);
            window->findChild<QAbstractButton *>("graphicWndOKPushCtrl")->click();
        });
        find<QAbstractButton>(dialog, "colorbalanceButtonCtrl")->click();
        tabs->setCurrentIndex(0);
        auto *presets = find<host::PresetBar>(dialog, "presetBar");
        presets->saveAs("Dark");
        find<QSpinBox>(dialog, "copies")->setValue(2);
        auto *remember = find<QCheckBox>(dialog, "rememberSettings");
        remember->click();

        ASSERT_TRUE(wait([&] { return pick(dialog, "Two"); }) && wait(ready));
        EXPECT_FALSE(tabs->isTabVisible(1));
        EXPECT_FALSE(remember->isChecked());
        ASSERT_TRUE(pick(dialog, "One") && ready() && tabs->isTabVisible(1));
        EXPECT_EQ(find<QComboBox>(dialog, "presetList")->currentText(), "Dark (changed)");
        EXPECT_TRUE(remember->isChecked());
        ASSERT_TRUE(presets->choose("Dark"));
        QLabel *headline = find<QLabel>(dialog, "jobHeadline");
        printButton(dialog)->click();
        ASSERT_TRUE(wait([&] { return headline->text() == "The job One-1 was sent."; }))
            << headline->text().toStdString();
        EXPECT_TRUE(wait([&] { return find<QLabel>(dialog, "jobState")->text() == "Printed."; }));
        find<QPushButton>(dialog, "jobClose")->click();
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
    EXPECT_EQ(host::PresetStore(folder.path()).recentQueues(), QStringList{"One"});
    const QStringList printed = printedFeatures(readFile(cups.outputOf("One")));
    for (const char *feature : {"*QZColorBalanceAdjustment True", "*QZColorDensityBlackLow 2",
                                "*QZColorDensityCyanLow 0"})
        EXPECT_TRUE(printed.contains(feature)) << feature;
}

/// Without any printer a person can still make a file: for a plain PostScript printer.
TEST(PrintDialog, PrintsToAFileWithoutAServer) {
    const ServerInUse server("/nonexistent/socket");
    const QTemporaryDir folder;
    host::PrintDialog dialog(setupFor(folder));
    dialog.show();
    auto *paper = find<QComboBox>(dialog, "paperSize");
    const int letter = paper->findText("Letter");
    ASSERT_GE(letter, 0);
    paper->setCurrentIndex(letter);
    emit paper->activated(letter);
    find<QCheckBox>(dialog, "rememberSettings")->click();
    EXPECT_FALSE(find<QWidget>(dialog, "copies")->isEnabled()) << "a file has each page once";

    const QString target = folder.filePath("out.ps");
    QTimer chooser;
    QObject::connect(&chooser, &QTimer::timeout, [&] {
        if (auto *files = dialog.findChild<QFileDialog *>(); files && files->isVisible()) {
            chooser.stop();
            files->findChild<QLineEdit *>("fileNameEdit")->setText(target);
            files->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
        }
    });
    chooser.start(20);
    printButton(dialog)->click();
    QLabel *headline = find<QLabel>(dialog, "jobHeadline");
    ASSERT_TRUE(wait([&] { return headline->text() == "The file was written."; }))
        << headline->text().toStdString();
    EXPECT_EQ(printedFeatures(readFile(target)).join(' ').toStdString(),
              "*PageSize Letter *Duplex None");
    host::PrintDialog another(setupFor(folder));
    EXPECT_EQ(find<QComboBox>(another, "paperSize")->currentText(), "Letter");
}

/// The default printer comes by itself, unless the person is at work with another by then.
TEST(PrintDialog, AnAnswerThatIsLateTakesNothingAway) {
    CupsDaemon cups;
    ASSERT_TRUE(cups.start() && cups.addQueue("One", samplePath("velmora-plain.ppd")) &&
                cups.command("lpadmin", {"-d", "One"}))
        << cups.log().constData();
    const ServerInUse server(cups.address());
    for (const bool acts : {false, true}) {
        const QTemporaryDir folder;
        host::PrintDialog dialog(setupFor(folder));
        dialog.show();
        QTest::keyClick(find<QListView>(dialog, "queueList"), Qt::Key_Shift); // leads nowhere
        if (acts)
            QTest::keyClick(find<QComboBox>(dialog, "paperSize"), Qt::Key_Up);
        const auto *list = find<QListView>(dialog, "queueList");
        ASSERT_TRUE(wait([&] { return list->model()->rowCount() == 2; }));
        EXPECT_EQ(list->currentIndex().row(), acts ? 0 : 1);
    }
}
