// Makes the pictures of the print dialog for docs/. Each shows the dialog on the queues of a server
// of its own, in one guise.
//
//     pictures FOLDER          all of them
//     QT_SCALE_FACTOR=2 pictures FOLDER NAME    one, under another name: scale is the program's

#include "support/cups_daemon.h"
#include "support/ppd_text.h"

#include "host/bundle_loader.h"
#include "host/dialog/print_dialog.h"
#include "host/language.h"
#include "platform/bundle.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <cstdio>
#include <functional>
#include <tuple>

namespace {

using Act = std::function<void(QDialog &)>;

struct Picture {
    const char *name;
    Act act = {};                ///< what a person does first
    const char *language = "en"; ///< or a compiled table's path
    bool isRightToLeft = false;
    bool isDark = false;
    double letters = 1;
    bool isTop = false; ///< of the window that stands before the dialog
};

template <class View>
View &view(QDialog &dialog, const char *name) {
    auto *found = dialog.findChild<View *>(name);
    if (!found)
        qFatal("no view %s", name);
    return *found;
}

void choose(QDialog &dialog, const char *menu, int index) {
    auto &box = view<QComboBox>(dialog, menu);
    box.setCurrentIndex(index);
    emit box.activated(index);
}

Act tab(int index) {
    return [index](QDialog &dialog) { view<QTabWidget>(dialog, "pages").setCurrentIndex(index); };
}

void chooseConflict(QDialog &dialog) {
    choose(dialog, "sides", 1);
    choose(dialog, "paperType", 2);
}

void typeValues(QDialog &dialog) {
    choose(dialog, "paperSize", 3);
    choose(dialog, "option.VLJobPIN", 1);
}

void clickPrint(QDialog &dialog) {
    for (auto *button : dialog.findChildren<QPushButton *>())
        if (button->isDefault() && button->isVisible())
            return button->click();
}

void print(QDialog &dialog) {
    clickPrint(dialog);
    std::ignore = QTest::qWaitFor(
        [&] { return view<QLabel>(dialog, "jobState").text() == "Printed."; }, 20000);
}

const Picture kPictures[] = {
    {"dialog"},
    {"dialog-panel", tab(1)},
    {"dialog-summary",
     [](QDialog &dialog) {
         choose(dialog, "numberUp", 2);
         view<QSpinBox>(dialog, "copies").setValue(3);
         tab(2)(dialog);
     }},
    {"dialog-typed", typeValues},
    {"dialog-conflict", chooseConflict},
    {"dialog-resolve",
     [](QDialog &dialog) {
         chooseConflict(dialog);
         QTimer::singleShot(0, &dialog, [&] { clickPrint(dialog); });
     },
     "en", false, false, 1, true},
    {"dialog-job", print},
    {"dialog-german", {}, "de"},
    {"dialog-japanese", {}, "ja"},
    {"dialog-long-texts", {}, LONG_TEXTS},
    {"dialog-right-to-left", {}, "en", true},
    {"dialog-dark", {}, "en", false, true},
    {"dialog-large-letters", {}, "en", false, false, 1.6},
};

QPalette darkPalette() {
    QPalette palette;
    const QColor ground(53, 53, 53), field(35, 35, 35), light(230, 230, 230);
    for (const auto role : {QPalette::Window, QPalette::Button, QPalette::ToolTipBase})
        palette.setColor(role, ground);
    for (const auto role : {QPalette::Base, QPalette::AlternateBase})
        palette.setColor(role, field);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, light);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    palette.setColor(QPalette::Highlight, QColor(42, 110, 180));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

bool make(const Picture &picture, const QString &to, const CupsDaemon &cups) {
    const QFont usualFont = QApplication::font();
    const QPalette usualPalette = QApplication::palette();
    const QString language = QString::fromUtf8(picture.language);
    QTranslator table;
    if (language.endsWith(".qm") && table.load(language))
        QCoreApplication::installTranslator(&table);
    else
        Bundle::setLanguages({language});
    const host::Language words;
    QFont font = usualFont;
    font.setPointSizeF(font.pointSizeF() * picture.letters);
    QApplication::setFont(font);
    if (picture.isDark)
        QApplication::setPalette(darkPalette());
    QApplication::setLayoutDirection(picture.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    bool isMade = false;
    {
        const ServerInUse server(cups.address());
        const QTemporaryDir folder;
        host::DialogSetup setup;
        setup.plugin = host::loadBundle(BUNDLE_DIR);
        setup.document = host::readDocument(samplePath("sample.ps"));
        setup.store = host::PresetStore(folder.path());
        setup.queue = "Office";
        host::PrintDialog dialog(std::move(setup));
        dialog.resize(dialog.sizeHint());
        dialog.show();
        const auto *tabs = dialog.findChild<QTabWidget *>("pages");
        std::ignore = QTest::qWaitFor([&] { return tabs->isTabVisible(1); }, 10000);
        QTest::qWait(1500); // for the preview, and what is told of the other printers
        if (picture.act)
            picture.act(dialog);
        const auto grab = [&] {
            QWidget *top = picture.isTop ? QApplication::activeModalWidget() : &dialog;
            isMade = top && top->grab().save(to);
            if (top && top != &dialog)
                top->close(); // it runs an event loop of its own
        };
        QTimer::singleShot(1000, &dialog, grab);
        QTest::qWait(1200);
    }
    QCoreApplication::removeTranslator(&table);
    Bundle::setLanguages({});
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setPalette(usualPalette);
    QApplication::setFont(usualFont);
    return isMade;
}

bool addQueues(CupsDaemon &cups) {
    return cups.start() && cups.addQueue("Office", samplePath("velmora-mvo-540.ppd")) &&
           cups.addQueue("Reception", samplePath("velmora-mvo-110.ppd")) &&
           cups.addQueue("Storage", samplePath("velmora-plain.ppd")) &&
           cups.addQueue("Studio", samplePath("sorvani-sv500.ppd")) &&
           cups.command("lpadmin", {"-p", "Office", "-L", "2nd floor"}) &&
           cups.command("lpadmin", {"-p", "Studio", "-D", "Proofs"}) &&
           cups.command("cupsdisable", {"-r", "the toner is on its way", "Reception"}) &&
           cups.command("cupsreject", {"-r", "moves to another room", "Storage"}) &&
           cups.command("lpadmin", {"-d", "Office"});
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("usage: pictures FOLDER [NAME]\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create("fusion"));
    CupsDaemon cups;
    if (!addQueues(cups)) {
        std::fputs("the server doesn't start\n", stderr);
        return 1;
    }
    const QDir folder(arguments[1]);
    if (arguments.size() > 2)
        return make(kPictures[0], folder.filePath(arguments[2] + ".png"), cups) ? 0 : 1;
    for (const Picture &picture : kPictures)
        if (!make(picture, folder.filePath(QString(picture.name) + ".png"), cups)) {
            std::fprintf(stderr, "%s can't be made\n", picture.name);
            return 1;
        }
    return 0;
}
