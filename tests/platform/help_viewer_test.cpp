#include "platform/help_viewer.h"
#include "temporary_bundle.h"

#include <QWidget>

struct HelpViewer : testing::Test {
    const TemporaryBundle folder{
        R"({"CFBundleIdentifier": "test.help", "CFBundleHelpBookName": "Book",
            "HelpBookTitles": {"de": "Buch", "en": "Book"}})"};
    const std::shared_ptr<Bundle> bundle = Bundle::open(folder.path());
    QFile list{helpViewerPreferencePath()};
    HelpViewer() { list.remove(); }
    ~HelpViewer() override {
        Bundle::setLanguages({});
        helpViewerWindow()->close();
        list.remove();
    }
};

TEST_F(HelpViewer, ShowsPagesOfRegisteredBooksAlone) {
    EXPECT_EQ(-43, AHRegisterHelpBook(*bundle)); // no Help folder yet
    for (const char *file : {"Help/b.htm", "Help/a.htm", "de/Help/b.htm"})
        folder.write(QString("Resources/") + file, "<p>text<a name=\"down\"></a>");
    EXPECT_EQ(-43, AHGotoPage("Book", "b.htm", {}));
    EXPECT_EQ(0, AHRegisterHelpBook(*bundle));
    // clang-format off
    const std::tuple<QString, QString, QString, QString, int32_t, QString> cases[] = {
        {"en", "Book", "b.htm", {}, 0, "Help/b.htm"}, {"de", "Buch", "b.htm", {}, 0, "de/Help/b.htm"},
        {"en", "Buch", {}, {}, 0, "Help/a.htm"}, {"en", "Book", "b.htm", "down", 0, "Help/b.htm#down"},
        {"en", "Book", "../../Info.json", {}, -43, "Help/b.htm#down"},
        {"en", "Other", "b.htm", {}, -43, "Help/b.htm#down"}};
    // clang-format on
    for (const auto &[language, book, page, anchor, status, shown] : cases) {
        Bundle::setLanguages({language});
        EXPECT_EQ(status, AHGotoPage(book, page, anchor));
        EXPECT_EQ("file://" + folder.path("Resources/" + shown), helpViewerPage().toString());
    }
    EXPECT_TRUE(helpViewerWindow()->isVisible() && !helpViewerWindow()->parentWidget());
}

TEST_F(HelpViewer, KeepsWhatOthersPutIntoTheList) {
    folder.write("Resources/Help/index.htm", "x");
    ASSERT_TRUE(list.open(QIODevice::ReadWrite));
    list.write("<plist version=\"1.0\"><dict><key>Other</key><string>kept</string>"
               "<key>RegistrationOrder</key><array><string>first</string></array>"
               "<key>RegisteredBooks</key><string>of the wrong kind</string></dict></plist>");
    list.close();
    for (int again = 0; again < 2; ++again)
        EXPECT_EQ(0, AHRegisterHelpBook(*bundle));
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    const QByteArray text = list.readAll();
    EXPECT_TRUE(text.contains("<string>kept</string>"));
    EXPECT_LT(text.indexOf("<string>first<"), text.indexOf("<string>test.help<"));
    EXPECT_EQ(text.indexOf("<string>test.help<"), text.lastIndexOf("<string>test.help<"));
    EXPECT_EQ(0, AHGotoPage("Book", {}, {}));
}

TEST_F(HelpViewer, LeavesAFileAloneThatIsNoList) {
    folder.write("Resources/Help/index.htm", "x");
    ASSERT_TRUE(list.open(QIODevice::ReadWrite));
    list.write("somebody's notes");
    list.close();
    EXPECT_EQ(0, AHRegisterHelpBook(*bundle));
    EXPECT_EQ(0, AHGotoPage("Book", {}, {})); // from memory
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    EXPECT_EQ(list.readAll(), "somebody's notes");
    list.remove();
    EXPECT_EQ(0, AHRegisterHelpBook(*bundle)); // and written as soon as that is possible
    EXPECT_TRUE(list.exists());
}
