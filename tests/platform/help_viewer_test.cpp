#include "platform/help_viewer.h"
#include "temporary_bundle.h"

#include <QTextBrowser>

namespace {

QByteArray listText() {
    QFile file(helpViewerPreferencePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(HelpViewer, ShowsPagesOfRegisteredBooksAlone) {
    QFile::remove(helpViewerPreferencePath());
    const TemporaryBundle folder(
        R"({"CFBundleIdentifier": "test.help", "CFBundleHelpBookName": "Book",
                                     "HelpBookTitles": {"de": "Buch", "en": "Book"}})");
    const auto bundle = Bundle::open(folder.path());
    EXPECT_EQ(-43, AHRegisterHelpBook(*bundle)); // no Help folder yet
    folder.write("Resources/Help/b.htm", "<title>B</title><p>b<a name=\"down\"></a>");
    folder.write("Resources/Help/a.htm", "<p>a</p>");
    folder.write("Resources/de/Help/b.htm", "<p>deutsch</p>");
    EXPECT_EQ(-43, AHGotoPage("Book", "b.htm", {}));
    EXPECT_EQ(0, AHRegisterHelpBook(*bundle));
    const QByteArray once = listText();
    EXPECT_EQ(0, AHRegisterHelpBook(*bundle));
    EXPECT_EQ(once, listText());

    const struct {
        const char *language;
        QString book, page, anchor;
        int32_t status;
        const char *shown;
    } cases[] = {
        {"en", "Book", "b.htm", {}, 0, "Resources/Help/b.htm"},
        {"de", "Buch", "b.htm", {}, 0, "Resources/de/Help/b.htm"},
        {"en", "Buch", {}, {}, 0, "Resources/Help/a.htm"},
        {"en", "Book", "b.htm", "down", 0, "Resources/Help/b.htm#down"},
        {"en", "Book", "c.htm", {}, -43, "Resources/Help/b.htm#down"},
        {"en", "Book", "../../Info.json", {}, -43, "Resources/Help/b.htm#down"},
        {"en", "Other", "b.htm", {}, -43, "Resources/Help/b.htm#down"},
    };
    for (const auto &row : cases) {
        Bundle::setLanguages({row.language});
        EXPECT_EQ(row.status, AHGotoPage(row.book, row.page, row.anchor));
        EXPECT_EQ("file://" + folder.path(row.shown), helpViewerPage().toString());
    }
    Bundle::setLanguages({});
    ASSERT_TRUE(helpViewerWindow());
    EXPECT_TRUE(helpViewerWindow()->isVisible() && !helpViewerWindow()->parentWidget());
    EXPECT_TRUE(helpViewerWindow()->windowTitle().contains("Book"));
    auto *page = helpViewerWindow()->findChild<QTextBrowser *>("helpPage");
    ASSERT_TRUE(page && page->isBackwardAvailable());
    helpViewerWindow()->close();
}

TEST(HelpViewer, KeepsWhatOthersPutIntoTheList) {
    const TemporaryBundle folder(
        R"({"CFBundleIdentifier": "test.help2", "CFBundleHelpBookName": "Two"})");
    folder.write("Resources/Help/index.htm", "x");
    QFile file(helpViewerPreferencePath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<plist version=\"1.0\"><dict><key>Other</key><string>kept</string>"
               "<key>RegistrationOrder</key><array><string>first</string></array>"
               "<key>RegisteredBooks</key><string>of the wrong kind</string></dict></plist>");
    file.close();
    EXPECT_EQ(0, AHRegisterHelpBook(*Bundle::open(folder.path())));
    EXPECT_TRUE(listText().contains("<string>kept</string>"));
    EXPECT_LT(listText().indexOf("<string>first<"), listText().indexOf("<string>test.help2<"));
    EXPECT_EQ(0, AHGotoPage("Two", {}, {}));
    helpViewerWindow()->close();
    QFile::remove(helpViewerPreferencePath());
}

} // namespace
