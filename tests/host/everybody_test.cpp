#include "run_host.h"
#include "support/ppd_text.h"

#include "host/bundle_loader.h"
#include "host/dialog/print_dialog.h"
#include "host/language.h"
#include "platform/bundle.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QProcess>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <gtest/gtest.h>

// The dialog, for everybody: in each language, from right to left, with large letters.

namespace {

struct Guise {
    const char *name;
    const char *language; ///< null for the made-up one
    const char *firstPage;
    bool isRightToLeft = false;
    double letters = 1; ///< their size
};

/// A view as a person would find it in a failure.
std::string nameOf(const QWidget &view) {
    QString text = view.objectName();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&view))
        text += u' ' + button->text();
    else if (const auto *label = qobject_cast<const QLabel *>(&view))
        text += u' ' + label->text();
    return view.metaObject()->className() + std::string(" ") + text.toStdString();
}

QString captionOf(const QWidget &view) {
    if (const auto *button = qobject_cast<const QAbstractButton *>(&view))
        return button->text();
    if (const auto *group = qobject_cast<const QGroupBox *>(&view))
        return group->title();
    const auto *label = qobject_cast<const QLabel *>(&view);
    return label && label->buddy() ? label->text() : QString();
}

class ForEverybody : public testing::TestWithParam<Guise> {
protected:
    void SetUp() override {
        const Guise &guise = GetParam();
        Bundle::setLanguages({guise.language ? guise.language : "en"});
        m_language.emplace();
        if (!guise.language)
            makeUpLanguage();
        QApplication::setLayoutDirection(guise.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        QFont font = m_font;
        font.setPointSizeF(font.pointSizeF() * guise.letters);
        QApplication::setFont(font);

        host::DialogSetup setup;
        setup.plugin = host::loadBundle(BUNDLE_DIR);
        setup.document = host::readDocument(samplePath("sample.ps"));
        setup.store = host::PresetStore(m_folder.path());
        setup.file = host::openPpdFile(samplePath("velmora-mvo-540.ppd"));
        m_dialog.emplace(std::move(setup));
        m_dialog->resize(m_dialog->sizeHint());
        m_dialog->show();
        m_tabs = m_dialog->findChild<QTabWidget *>("pages");
        const auto *retry = m_dialog->findChild<QWidget *>("retry");
        ASSERT_TRUE(QTest::qWaitFor([&] { return retry->isVisible(); }, 30000)); // without a server
    }
    void TearDown() override {
        m_dialog.reset();
        QApplication::setFont(m_font);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        m_language.reset();
        Bundle::setLanguages({});
    }

    /// Texts half as long again, with marked letters.
    void makeUpLanguage() {
        const ProgramRun made =
            runProgram(SOURCE_DIR "/scripts/pseudo-language",
                       {SOURCE_DIR "/host/translations/pde-host_de.ts"}, m_folder.path());
        ASSERT_EQ(made.exitCode, 0) << made.err.constData();
        QFile table(m_folder.filePath("longer.ts"));
        ASSERT_TRUE(table.open(QIODevice::WriteOnly) && table.write(made.out) > 0);
        table.close();
        const QString compiled = m_folder.filePath("longer.qm");
        ASSERT_EQ(
            QProcess::execute(LRELEASE_PROGRAM, {"-silent", table.fileName(), "-qm", compiled}), 0);
        ASSERT_TRUE(m_longer.load(compiled));
        QCoreApplication::installTranslator(&m_longer);
    }

    QList<QWidget *> seen() const {
        QList<QWidget *> views;
        for (QWidget *view : m_dialog->findChildren<QWidget *>())
            if (view->isVisible() && view->window() == &*m_dialog)
                views.append(view);
        return views;
    }

    /// The views that have less room than they need.
    std::string clipped() const {
        std::string names;
        for (const QWidget *view : seen()) {
            const auto *label = qobject_cast<const QLabel *>(view);
            const bool isText =
                (label && !label->wordWrap()) || qobject_cast<const QAbstractButton *>(view);
            const QSize least = view->minimumSizeHint();
            if (isText && view->objectName() != "documentName" &&
                (view->width() < least.width() || view->height() < least.height()))
                names += nameOf(*view) + "; ";
        }
        return names;
    }

    QTemporaryDir m_folder;
    const QFont m_font = QApplication::font();
    QTranslator m_longer;
    std::optional<host::Language> m_language;
    std::optional<host::PrintDialog> m_dialog;
    QTabWidget *m_tabs = nullptr;
};

} // namespace

TEST_P(ForEverybody, EachPageIsReachedReadAndHeard) {
    ASSERT_EQ(m_tabs->count(), 3);
    EXPECT_EQ(m_tabs->tabText(0).toStdString(), GetParam().firstPage);
    for (int page = 0; page < m_tabs->count(); ++page) {
        m_tabs->setCurrentIndex(page);
        QTest::qWait(20);
        SCOPED_TRACE(m_tabs->tabText(page).toStdString());

        QHash<QString, std::string> letters;
        for (const QWidget *view : seen()) {
            // One key, one view.
            if (const QString letter = QKeySequence::mnemonic(captionOf(*view)).toString();
                !letter.isEmpty()) {
                EXPECT_FALSE(letters.contains(letter))
                    << letter.toStdString() << ": " << letters.value(letter) << ", "
                    << nameOf(*view);
                letters.insert(letter, nameOf(*view));
            }
        }
        // Nothing is clipped, once views that have come have their places.
        EXPECT_TRUE(QTest::qWaitFor([this] { return clipped().empty(); }, 5000)) << clipped();

        // Each view that acts has a name for a screen reader, and its value isn't that name.
        QList<const QWidget *> reached; // by the key itself, from the first view on
        m_dialog->activateWindow();
        m_dialog->findChild<QWidget *>("openDocument")->setFocus();
        do {
            reached.append(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != reached.first() && reached.size() < 200);
        const auto *buttons = m_dialog->findChild<QWidget *>("buttons");
        ASSERT_GT(reached.size(), 4);
        for (qsizetype i = 0; i < reached.size(); ++i) // "Print" and "Cancel" come last
            EXPECT_EQ(buttons->isAncestorOf(reached[i]), i >= reached.size() - 2)
                << nameOf(*reached[i]);
        for (QWidget *acting : seen()) {
            if (!acting->isEnabled() || !(acting->focusPolicy() & Qt::TabFocus) ||
                acting->focusProxy())
                continue;
            EXPECT_TRUE(reached.contains(acting)) << "no key leads to " << nameOf(*acting);
            QAccessibleInterface *told = QAccessible::queryAccessibleInterface(acting);
            ASSERT_TRUE(told) << nameOf(*acting);
            const QString name = told->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << nameOf(*acting);
            if (qobject_cast<QComboBox *>(acting)) {
                EXPECT_FALSE(told->text(QAccessible::Value).isEmpty()) << nameOf(*acting);
                EXPECT_NE(name.toStdString(), told->text(QAccessible::Value).toStdString())
                    << nameOf(*acting);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Guises, ForEverybody,
    testing::Values(Guise{"English", "en", "General"}, Guise{"German", "de", "Allgemein"},
                    Guise{"French", "fr", "Général"}, Guise{"Japanese", "ja", "一般"},
                    Guise{"Chinese", "zh_CN", "常规"}, Guise{"LongTexts", nullptr, "Géñérål~~~~"},
                    Guise{"RightToLeft", "en", "General", true},
                    Guise{"LargeLetters", "de", "Allgemein", false, 1.8}),
    [](const auto &info) { return std::string(info.param.name); });
