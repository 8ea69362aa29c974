// The tab in Qt's own dialog, in front of a real server: what a person chooses there by the panel's
// own views is what CUPS' filters are told.

#include "support/cups_daemon.h"
#include "support/ppd_text.h"
#include "support/run_program.h"

#include "pde-qt/print_panel_tab.h"
#include "platform/views/modal_window.h"
#include "platform/views/popup_view.h"

#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

constexpr auto kCupsOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

enum { kColor, kBlack };             // items of the list of color modes
enum { kDraft, kNormal, kFineMode }; // and of the output modes

/// A server with a printer for all options, one for fewer, and one without the panel.
class PdeQt : public testing::Test {
protected:
    static void SetUpTestSuite() { // libcups looks once where a person's lpoptions are
        static const QTemporaryDir home;
        qputenv("HOME", home.path().toUtf8());
    }
    void SetUp() override {
        ASSERT_TRUE(cups.start() && cups.addQueue("One", samplePath("velmora-mvo-530.ppd")) &&
                    cups.addQueue("Few", samplePath("velmora-mvo-110.ppd")) &&
                    cups.addQueue("Plain", samplePath("velmora-plain.ppd")))
            << cups.log().constData();
        server.emplace(cups.address());
    }
    /// The options of the latest job of the queue "One", as a filter was told, without others'.
    QString told(const QStringList &names) {
        EXPECT_TRUE(cups.waitForJobs("One"));
        const QString log = QString::fromUtf8(cups.log());
        QStringList options = log.mid(log.lastIndexOf("argv[5]=\"")).section('"', 1, 1).split(' ');
        options.removeIf([&](const auto &o) { return !names.contains(o.section('=', 0, 0)); });
        options.sort();
        return options.join(' ');
    }

    CupsDaemon cups;
    std::optional<ServerInUse> server;
};

/// A program with its dialog, in the hands of a person.
struct Person {
    Person() { printer->setPrinterName("One"), makeDialog(); }
    void makeDialog() {
        dialog = std::make_unique<QPrintDialog>(printer.get());
        dialog->setOptionTabs({new QWidget, tab = new PrintPanelTab(dialog.get())});
    }
    /// Opens the dialog and comes to the tab.
    void open() {
        dialog->open();
        dialog->findChild<QTabWidget *>("tabs")->parentWidget()->show(); // as "Options" does
        dialog->findChild<QTabWidget *>("tabs")->setCurrentWidget(tab);
    }
    bool openPanel() { return open(), waitForPanel(); }
    bool waitForPanel() {
        return QTest::qWaitFor([this] { return hasPanel(); }, 30000);
    }
    PopupView *list(const char *name) { return tab->findChild<PopupView *>(name); }
    bool hasPanel() { return list("ColorModeList") && list("ColorModeList")->isVisible(); }
    int colorMode() { return list("ColorModeList")->indexOfSelectedItem(); }
    int outputMode() { return list("OutputModeList")->indexOfSelectedItem(); }
    void chooseColor(int item) { EXPECT_TRUE(list("ColorModeList")->chooseItem(item)); }
    void chooseOutput(int item) { EXPECT_TRUE(list("OutputModeList")->chooseItem(item)); }
    QComboBox *printers() { return dialog->findChild<QComboBox *>("printers"); }
    void pick(const QString &queue) { printers()->setCurrentText(queue); }
    /// Waits for what the tab says in the panel's place.
    bool hears(const QString &words) {
        auto *label = tab->findChild<QLabel *>("printPanelSentence");
        return QTest::qWaitFor([&] { return label->isVisible() && label->text() == words; }, 30000);
    }
    /// Makes a choice in Qt's own list of the printer's options, behind "Properties".
    void chooseInProperties(const QString &item) {
        QTimer::singleShot(0, dialog.get(), [&] {
            QWidget *properties = QApplication::activeModalWidget();
            for (auto *list : properties->findChildren<QComboBox *>())
                list->setCurrentIndex(qMax(list->currentIndex(), list->findText(item)));
            qobject_cast<QDialog *>(properties)->accept();
        });
        dialog->findChild<QAbstractButton *>("properties")->click();
    }
    QStringList options() { return printer->printEngine()->property(kCupsOptions).toStringList(); }
    /// Accepts the dialog. @return what the printer has of both modes then
    QString accept() {
        dialog->accept();
        static const QRegularExpression mode("QZ(?:Color|Output)Mode,(\\w+)");
        QString modes;
        for (const auto &match : mode.globalMatch(options().join(',')))
            modes += match.captured(1) + ' ';
        return modes.trimmed();
    }
    void print() { accept(), QPainter(printer.get()).drawText(100, 100, "page"); }

    std::unique_ptr<QPrinter> printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    std::unique_ptr<QPrintDialog> dialog;
    QPointer<PrintPanelTab> tab;
};

} // namespace

TEST_F(PdeQt, TheJobHasWhatWasChosenAndASecondOneToo) {
    // Of the panel, chosen and not; of Qt's dialog; of the program; of nobody.
    const QStringList names{"QZColorMode", "QZBrightness", "number-up", "own", "InputSlot"};
    Person person;
    QObject::connect(person.dialog.get(), qOverload<QPrinter *>(&QPrintDialog::accepted), [&] {
        const QStringList own = person.options() + QStringList{"own", "1"};
        person.printer->printEngine()->setProperty(kCupsOptions, own);
    });
    ASSERT_TRUE(person.openPanel());
    person.chooseColor(kBlack);
    person.print();
    EXPECT_EQ(told(names), "QZBrightness=0 QZColorMode=Black number-up=1 own=1");
    EXPECT_TRUE(readFile(cups.outputOf("One")).contains("%%BeginFeature: *QZColorMode Black"));

    ASSERT_TRUE(person.openPanel());
    person.chooseColor(kColor);
    person.chooseOutput(kDraft);
    person.print();
    EXPECT_EQ(told({"QZColorMode", "QZOutputMode"}), "QZColorMode=Color QZOutputMode=Draft");

    person.makeDialog();
    ASSERT_TRUE(person.openPanel());
    EXPECT_EQ(person.outputMode(), kDraft) << "the printer remembers";
    person.pick("Few");
    ASSERT_TRUE(person.waitForPanel());
    EXPECT_EQ(person.outputMode(), kNormal) << "what was chosen is another printer's";
}

TEST_F(PdeQt, EachPrinterKeepsItsChoices) {
    ASSERT_TRUE(cups.command("lpoptions", {"-p", "One/draft", "-o", "QZOutputMode=Draft"}));
    Person person;
    ASSERT_TRUE(person.openPanel());
    person.chooseOutput(kFineMode);
    person.pick("Plain");
    EXPECT_TRUE(person.hears("This printer has no image options."));
    person.pick("Few");
    ASSERT_TRUE(person.waitForPanel());
    person.chooseColor(kBlack);
    person.pick("One/draft");
    ASSERT_TRUE(person.waitForPanel());
    EXPECT_EQ(person.outputMode(), kDraft) << "the person's own default";
    person.printers()->setCurrentIndex(person.printers()->count() - 1);
    EXPECT_TRUE(person.hears("A file has no image options."));
    person.pick("One");
    EXPECT_TRUE(person.hasPanel()) << "which is known by now";
    EXPECT_EQ(person.outputMode(), kFineMode);
    person.dialog->reject();
    EXPECT_EQ(person.options(), QStringList()) << "Cancel writes nothing";

    for (const auto &[queue, modes] :
         {std::pair("One", "Color Fine"), {"Few", "Black Normal"}, {"Plain", ""}}) {
        person.open();
        person.pick(queue);
        EXPECT_EQ(person.accept(), modes) << queue;
    }
}

/// What a person does in Qt's list of options counts, unless they did something else in the panel.
TEST_F(PdeQt, ChoicesInPropertiesAreTaken) {
    Person person;
    ASSERT_TRUE(person.openPanel());
    person.chooseInProperties("Super Fine");
    person.chooseInProperties("Black and White");
    person.chooseOutput(kDraft);
    EXPECT_EQ(person.accept(), "Black Draft");
    ASSERT_TRUE(person.openPanel());
    EXPECT_EQ(person.colorMode(), kBlack) << "the panel shows what was printed";
    person.chooseColor(kColor);
    EXPECT_EQ(person.accept(), "Color Draft") << "though Qt's list still says otherwise";
}

TEST_F(PdeQt, TellsOfAServerThatIsGoneAndTriesAgain) {
    Person person;
    ASSERT_TRUE(person.openPanel());
    person.chooseColor(kBlack);
    cups.stop();
    person.pick("Few");
    auto *retry = person.tab->findChild<QPushButton *>("printPanelRetry");
    EXPECT_TRUE(person.hears("The printer's options can't be shown."));
    EXPECT_TRUE(person.tab->findChild<QLabel *>("printPanelReason")->text().contains("CUPS"));
    ASSERT_TRUE(retry->isVisible() && cups.start());
    retry->click();
    EXPECT_TRUE(person.waitForPanel());
    person.pick("One");
    EXPECT_EQ(person.accept(), "Black Normal");

    person.open();
    cups.stop();
    person.pick("Few"); // which Qt gives up for a file
    EXPECT_EQ(person.accept(), "");
}

/// Nothing is touched that is gone; the sanitizers tell.
TEST_F(PdeQt, EndsInAnyOrder) {
    Person().dialog->open(); // and is asking
    Person tabFirst, printerFirst, underAWindow;
    ASSERT_TRUE(tabFirst.openPanel());
    delete tabFirst.tab;
    EXPECT_EQ(tabFirst.accept(), "");

    ASSERT_TRUE(printerFirst.openPanel());
    printerFirst.dialog->accept();
    printerFirst.printer.reset();

    ASSERT_TRUE(underAWindow.openPanel());
    QTimer::singleShot(0, [&] {
        ASSERT_TRUE(ModalWindow::current());
        underAWindow.pick("Plain");
        EXPECT_TRUE(underAWindow.hasPanel()) << "it isn't closed under its window";
        underAWindow.dialog.reset();
    });
    underAWindow.tab->findChild<QAbstractButton *>("colorbalanceButtonCtrl")->click();
    EXPECT_FALSE(ModalWindow::current());
    QTest::qWait(300); // what was put off
}

TEST_F(PdeQt, AnotherAuthorsProgramPrints) {
    for (const auto &[queue, code] : {std::pair("One", 0), {"Plain", 1}}) // which has no panel
        EXPECT_EQ(
            runProgram(EXAMPLE, {"--once", queue}, cups.folder(), {}, cups.environment()).exitCode,
            code);
    EXPECT_EQ(told({"QZColorMode"}), "QZColorMode=Color");
}
