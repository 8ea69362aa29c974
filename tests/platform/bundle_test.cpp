#include "temporary_bundle.h"

namespace {

struct Languages {
    explicit Languages(const QStringList &codes) { Bundle::setLanguages(codes); }
    ~Languages() { Bundle::setLanguages({}); }
};

TEST(Bundle, RefusesWhatIsNoneWithOneLine) {
    const struct {
        const char *info;
        const char *reason;
    } cases[] = {
        {"{", "Info.json: "},
        {"[1]", "CFBundleIdentifier"},
        {R"({"CFBundleVersion": "1"})", "CFBundleIdentifier"},
    };
    for (const auto &row : cases) {
        const TemporaryBundle folder(row.info);
        QString error;
        EXPECT_FALSE(Bundle::open(folder.path(), &error)) << row.info;
        EXPECT_TRUE(error.startsWith(folder.path()) && error.contains(row.reason) &&
                    !error.contains('\n'))
            << error.toStdString();
    }
    QString error;
    EXPECT_FALSE(Bundle::open("/no/such/folder", &error));
    EXPECT_EQ("/no/such/folder: no such folder", error);
}

TEST(Bundle, IsOneObjectWhileItIsOpen) {
    const TemporaryBundle folder(
        R"({"CFBundleIdentifier": "test.one", "CFBundleVersion": "1 Build 2"})");
    auto bundle = Bundle::open(folder.path() + "/");
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle, Bundle::open(folder.path("../") + QDir(folder.path()).dirName()));
    EXPECT_EQ(bundle, Bundle::withIdentifier("test.one"));
    EXPECT_EQ(folder.path(), bundle->directory());
    EXPECT_EQ("1 Build 2", bundle->infoValue("CFBundleVersion").toString());
    EXPECT_FALSE(bundle->infoValue("Other").isValid());
    bundle.reset();
    EXPECT_FALSE(Bundle::withIdentifier("test.one"));
}

TEST(Bundle, FindsResourcesOfTheBestLanguageAndNothingOutside) {
    const TemporaryBundle folder(R"({"CFBundleIdentifier": "test.resources"})");
    for (const char *file :
         {"Resources/Panel.ui", "Resources/Help/a.htm", "Resources/de/Help/a.htm",
          "Resources/zh.lproj/Help/a.htm", "Resources/Folder.ui/x", "outside.txt"})
        folder.write(file, "x");
    const auto bundle = Bundle::open(folder.path());
    const struct {
        const char *language, *name, *type, *subdirectory, *found;
    } cases[] = {
        {"en", "Panel", "nib", "", "Resources/Panel.ui"},
        {"de_AT", "a", "htm", "Help", "Resources/de/Help/a.htm"},
        {"zh-Hans-CN", "a.htm", "", "Help", "Resources/zh.lproj/Help/a.htm"},
        {"fr", "a", "htm", "Help", "Resources/Help/a.htm"},
        {"de", "b", "htm", "Help", ""},
        {"de", "Folder", "nib", "", ""},
        {"de", "../outside", "txt", "", ""},
        {"de", "outside", "txt", "Help/../..", ""},
        {"de", "", "", "", ""},
    };
    for (const auto &row : cases) {
        const Languages languages({row.language});
        const QString found = bundle->resourcePath(row.name, row.type, row.subdirectory);
        EXPECT_EQ(*row.found ? folder.path(row.found) : QString(), found) << row.name;
        EXPECT_EQ(*row.found == '\0', found.isNull()) << row.name;
    }
}

TEST(Bundle, LooksTextsUpInTheBestLanguageThatHasTheTable) {
    const TemporaryBundle folder(R"({"CFBundleIdentifier": "test.strings"})");
    folder.writeTable("Localizable_en", "Title", "English");
    folder.writeTable("Localizable_de", "Title", "Käse &amp; Brot");
    folder.writeTable("Localizable01_en", "Title", "Second");
    folder.write("Resources/Localizable_fr.qm", "no table at all");
    const auto bundle = Bundle::open(folder.path());
    const struct {
        QStringList languages;
        QString key, table, text;
    } cases[] = {
        {{"de"}, "Title", {}, "Käse & Brot"},       {{"de_CH"}, "Title", "", "Käse & Brot"},
        {{"ja", "de"}, "Title", {}, "Käse & Brot"}, {{"ja"}, "Title", {}, "English"},
        {{"fr"}, "Title", {}, "English"},           {{"de"}, "Title", "Localizable01", "Second"},
        {{"de"}, "Other", {}, "fallback"},          {{"de"}, {}, {}, "fallback"},
        {{"de"}, "Title", "Missing", "fallback"},   {{"de"}, "Title", "../Localizable", "fallback"},
    };
    for (const auto &row : cases) {
        const Languages languages(row.languages);
        EXPECT_EQ(row.text, bundle->localizedString(row.key, "fallback", row.table))
            << row.languages.join(' ').toStdString() << ' ' << row.table.toStdString();
    }
    EXPECT_TRUE(bundle->localizedString("Other", {}).isNull());
}

} // namespace
