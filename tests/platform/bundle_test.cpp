#include "temporary_bundle.h"

struct BundleTest : testing::Test {
    const TemporaryBundle folder{R"({"CFBundleIdentifier": "test.one"})"};
    std::shared_ptr<Bundle> bundle = Bundle::open(folder.path() + "/");
    ~BundleTest() override { Bundle::setLanguages({}); }
};

TEST_F(BundleTest, IsOneObjectWhileItIsOpen) {
    QString error;
    for (const char *info : {"{", "[1]", R"({"CFBundleVersion": "1"})"}) {
        const TemporaryBundle wrong(info);
        EXPECT_FALSE(Bundle::open(wrong.path(), &error)) << info;
        EXPECT_TRUE(error.startsWith(wrong.path()) && !error.contains('\n')) << info;
    }
    EXPECT_EQ(bundle, Bundle::open(folder.path() + "/../" + QDir(folder.path()).dirName()));
    EXPECT_EQ(bundle, Bundle::withIdentifier("test.one"));
    bundle.reset();
    EXPECT_FALSE(Bundle::withIdentifier("test.one"));
}

TEST_F(BundleTest, FindsResourcesOfTheBestLanguageAndNothingOutside) {
    for (const char *file : {"Panel.ui", "Help/a.htm", "de/Help/a.htm", "zh.lproj/Help/a.htm",
                             "Folder.ui/x", "../outside.txt"})
        folder.write(QString("Resources/") + file, "x");
    // clang-format off
    const std::tuple<QString, QString, QString, QString, QString> cases[] = {
        {"en", "Panel", "nib", "", "Panel.ui"}, {"de_AT", "a", "htm", "Help", "de/Help/a.htm"},
        {"fr", "a", "htm", "Help", "Help/a.htm"},
        {"zh-Hans-CN", "a.htm", "", "Help", "zh.lproj/Help/a.htm"},
        {"de", "b", "htm", "Help", ""}, {"de", "Folder", "nib", "", ""}, {"de", "", "", "", ""},
        {"de", "../outside", "txt", "", ""}, {"de", "outside", "txt", "Help/../..", ""}};
    // clang-format on
    for (const auto &[language, name, type, subdirectory, found] : cases) {
        Bundle::setLanguages({language});
        EXPECT_EQ(found.isEmpty() ? QString() : folder.path("Resources/" + found),
                  bundle->resourcePath(name, type, subdirectory))
            << name.toStdString();
    }
}

TEST_F(BundleTest, LooksTextsUpInTheBestLanguageThatHasTheTable) {
    folder.writeTable("Localizable_en.qm", "English");
    folder.writeTable("Localizable_de.qm", "Käse &amp; Brot");
    folder.writeTable("Localizable01_en.qm", "Second");
    folder.writeTable("Localizable_zh_CN.qm", "Chinese");
    folder.write("Resources/Localizable_fr.qm", "no table at all");
    // clang-format off
    const std::tuple<QStringList, QString, QString, QString> cases[] = {
        {{"de_CH"}, "Title", {}, "Käse & Brot"}, {{"ja", "de"}, "Title", "", "Käse & Brot"},
        {{"ja"}, "Title", {}, "English"},        {{"fr"}, "Title", {}, "English"},
        {{"de"}, "Other", {}, "fallback"},       {{"de"}, "Title", "Localizable01", "Second"},
        {{"zh"}, "Title", {}, "Chinese"},        {{"zh-Hans-SG"}, "Title", {}, "Chinese"},
        {{"zh-Hant-TW"}, "Title", {}, "English"},
        {{"de"}, "Title", "../Localizable", "fallback"}};
    // clang-format on
    for (const auto &[languages, key, table, text] : cases) {
        Bundle::setLanguages(languages);
        EXPECT_EQ(text, bundle->localizedString(key, "fallback", table)) << text.toStdString();
    }
}
