#include "services/bundle_identity.h"
#include "services/help.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <plist/plist.h>

namespace {

void write(const QString &path, const QByteArray &content) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray read(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class HelpCache : public testing::Test {
protected:
    void SetUp() override { qputenv("HOME", m_home.path().toLocal8Bit()); }
    void TearDown() override { qputenv("HOME", m_oldHome); }

    QString path() const { return m_home.filePath("Library/Preferences/com.apple.help.plist"); }

    /// The list with the books one and two and the given "url" of one.
    static QByteArray list(const QByteArray &oneUrl) {
        return "<plist version=\"1.0\"><dict><key>RegisteredBooks</key><dict>"
               "<key>one</key><array><dict><key>url</key><string>" +
               oneUrl +
               "</string></dict></array><key>two</key><array/></dict>"
               "<key>RegistrationOrder</key><array><string>one</string><string>two</string>"
               "<string>one</string></array></dict></plist>";
    }

    QTemporaryDir m_home;
    QByteArray m_oldHome = qgetenv("HOME");
};

TEST_F(HelpCache, TakesALocalisedBookOut) {
    const QByteArray xml = list("file:///one/en.lproj/index.htm");
    plist_t root = nullptr;
    plist_from_memory(xml.constData(), xml.size(), &root);
    plist_dict_set_item(root, "uid", plist_new_uid(7)); // no kind of an XML property list
    char *binary = nullptr;
    uint32_t length = 0;
    plist_to_bin(root, &binary, &length);
    for (const QByteArray &content : {xml, QByteArray(binary, length)}) {
        write(path(), content);
        testing::internal::CaptureStderr();
        RemoveHelpCacheForBundleID("one");
        const std::string log = testing::internal::GetCapturedStderr();
        EXPECT_EQ(log.find("Illegal Property List.") != std::string::npos, content != xml) << log;
        const QByteArray written = read(path()).simplified().replace("> <", "><");
        EXPECT_TRUE(written.startsWith("<?xml"));
        EXPECT_FALSE(written.contains("<key>one</key>"));
        EXPECT_TRUE(written.contains("<key>two</key>"));
        EXPECT_TRUE(written.contains("<array><string>two</string><string>one</string></array>"))
            << "the first mention alone goes: " << written.toStdString();
    }
    plist_to_bin_free(binary);
    plist_free(root);
}

TEST_F(HelpCache, LeavesEveryOtherFileAsItIs) {
    const QByteArray good = list("file:///one/en.lproj");
    const std::pair<QByteArray, QString> rows[] = {
        {list("file:///one/index.htm"), "one"},
        {good, QString()},
        {good, "ONE"},
        {"<plist version=\"1.0\"><array><string>one</string></array></plist>", "one"},
        {"no list", "one"},
        {"", "one"}};
    for (const auto &[content, identifier] : rows) {
        write(path(), content);
        RemoveHelpCacheForBundleID(identifier);
        EXPECT_EQ(read(path()), content);
    }
    QFile::remove(path());
    RemoveHelpCacheForBundleID("one");
    EXPECT_FALSE(QFile::exists(path()));
}

TEST(Help, OpensPagesOfTheRegisteredBook) {
    EXPECT_EQ(RegisterMyHelpBook(), -43) << "the bundle isn't open yet";
    QTemporaryDir directory;
    // Without a strings table each title is "no translation": here that is the book's name.
    write(directory.filePath("Info.json"),
          R"({"CFBundleIdentifier": "com.velmora.k27.pde.ImageOptions",
              "CFBundleHelpBookName": "no translation"})");
    const auto bundle = Bundle::open(directory.path());
    ASSERT_TRUE(bundle);
    EXPECT_EQ(GetAppBundleRef(), bundle);
    EXPECT_EQ(RegisterMyHelpBook(), -43) << "no help book in the bundle";
    write(directory.filePath("Resources/Help/Graphics_X.htm"), "<html><body>X</body></html>");
    EXPECT_EQ(RegisterMyHelpBook(), 0);

    const QString key = "Help Viewer Title for Image Options";
    EXPECT_EQ(GotoHelpPage(bundle.get(), "Graphics_X.htm", QString(), key), 0);
    EXPECT_EQ(GotoHelpPage(bundle.get(), "Graphics_Y.htm", QString(), key), -43);
    EXPECT_EQ(GotoHelpPage(nullptr, "Graphics_X.htm", QString(), key), -43);
    GotoHelpPage(nullptr, "Graphics_X.htm", QString());
    RegisterHelpBook(nullptr);
}

} // namespace
