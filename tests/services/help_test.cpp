#include "services/bundle_identity.h"
#include "services/help.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct HelpCache : testing::Test {
    QTemporaryDir folder;
    const QString path = folder.filePath("Library/Preferences/com.apple.help.plist");

    HelpCache() { qputenv("HOME", folder.path().toLocal8Bit()); }

    static void write(const QString &path, const QByteArray &content) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// The list after the book was taken out of it.
    QByteArray without(const QString &identifier, const QByteArray &list) const {
        write(path, list);
        RemoveHelpCacheForBundleID(identifier);
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

// The book one, with an "url" to fill in, and the book two.
const QString kList =
    R"(<plist version="1.0"><dict><key>RegisteredBooks</key><dict><key>one</key><array><dict>
       <key>url</key><string>%1</string></dict></array><key>two</key><array/></dict>
       <key>RegistrationOrder</key><array><string>one</string><string>two</string>
       <string>one</string></array></dict></plist>)";
/// The same with the url "/one/en.lproj" as a binary list, in Base64.
const char kBinaryList[] =
    "YnBsaXN0MDDSAQIDC18QD1JlZ2lzdGVyZWRCb29rc18QEVJlZ2lzdHJhdGlvbk9yZGVy0gQFBgpTb25lU3R3b6EH0QgJ"
    "U3VybF0vb25lL2VuLmxwcm9qoKMEBQQIDR8zODxAQkVJV1gAAAAAAAABAQAAAAAAAAAMAAAAAAAAAAAAAAAAAAAAXA==";

TEST_F(HelpCache, TakesALocalisedBookOutAndLeavesEveryOtherFile) {
    const QByteArray xml = kList.arg("file:///one/en.lproj/index.htm").toUtf8();
    for (const QByteArray &content : {xml, QByteArray::fromBase64(kBinaryList)}) {
        const QByteArray written = without("one", content).simplified().replace("> <", "><");
        EXPECT_TRUE(written.startsWith("<?xml") && !written.contains("<key>one</key>"));
        EXPECT_TRUE(written.contains("<key>two</key>"));
        EXPECT_TRUE(written.contains("<array><string>two</string><string>one</string></array>"));
    }
    using Row = std::pair<QString, QByteArray>;
    for (const auto &[identifier, content] :
         {Row("one", kList.toUtf8()), Row({}, xml), Row("ONE", xml), Row("one", "no list")})
        EXPECT_EQ(without(identifier, content), content);
}

TEST_F(HelpCache, OpensPagesOfTheRegisteredBook) {
    EXPECT_EQ(RegisterMyHelpBook(), -43); // the bundle isn't open yet
    // Without a strings table each title is "no translation": here that is the book's name.
    write(folder.filePath("Info.json"),
          R"({"CFBundleIdentifier": "com.velmora.k27.pde.ImageOptions",
              "CFBundleHelpBookName": "no translation"})");
    const auto bundle = Bundle::open(folder.path());
    EXPECT_EQ(RegisterMyHelpBook(), -43); // no help book in the bundle
    write(folder.filePath("Resources/Help/X.htm"), "<html><body>X</body></html>");
    EXPECT_EQ(RegisterMyHelpBook(), 0);
    EXPECT_EQ(GotoHelpPage(bundle.get(), "X.htm", {}, "Help Viewer Title for Image Options"), 0);
}

} // namespace
