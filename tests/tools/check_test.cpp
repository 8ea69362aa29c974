#include "run_tool.h"

#include <QDir>

namespace {

/// A cache of the small PPD with one section.
const QByteArray kCache = "S\n" + ToolTest::kEntries + ToolTest::kStamp;

QByteArray changed(const QByteArray &before, const QByteArray &after) {
    EXPECT_TRUE(kCache.contains(before)) << before.constData();
    return QByteArray(kCache).replace(before, after);
}

} // namespace

TEST_F(ToolTest, CheckPassesForEachSample) {
    const QStringList samples = QDir(QStringLiteral(SAMPLES_DIR)).entryList({"*.ppd"});
    EXPECT_GE(samples.size(), 10);
    for (const QString &sample : samples) {
        EXPECT_EQ(run({"write", samplePath(sample), "-o", "a.cdf"}).exitCode, 0);
        const Run checked = run({"check", "a.cdf", "--ppd", samplePath(sample)});
        EXPECT_EQ(checked.exitCode, 0) << sample.toStdString() << checked.err.constData();
        EXPECT_EQ(checked.out.count(", equal\n"), 3) << checked.out.constData();
        EXPECT_EQ(run({"list", "a.cdf", "--ppd", samplePath(sample)}).out.count(" in the PPD"), 0);
    }
    QByteArray renamed = read("a.cdf"); // the panel would find nothing in it
    write("a.cdf", renamed.replace("ImageOptionPDET", "ImageOptionPDEt"));
    const Run damaged = run({"check", "a.cdf", "--ppd", samplePath(samples.last())});
    EXPECT_EQ(damaged.exitCode, 1);
    EXPECT_TRUE(damaged.out.contains("section ImageOptionPDETiger is missing\n"));
    const QString kept = samplePath("velmora-mvo-530.cdf");
    EXPECT_EQ(run({"check", kept, "--ppd", samplePath("velmora-mvo-530-cached.ppd")}).exitCode, 0);
    EXPECT_EQ(run({"check", kept, "--ppd", samplePath("velmora-mvo-110.ppd")}).exitCode, 1);
}

TEST_F(ToolTest, CheckTellsWhatDiffers) {
    const QByteArray line = "section S: ", fresh = " in a fresh table\n",
                     equal = "section S: 4 entries, equal\n",
                     stamp = "stamp: \"*% Last Edit Date: today\", equal\n";
    const QByteArray unchecked = "; nothing behind that was checked\n";
    const QByteArray swapped = "S\nQZOutputMode:Q@0@0@1@QZColorMode:Y@0@1@1@QZOutputMode:P@0@0@01@"
                               "QZColorMode:Y@0@1@1@\n";
    struct Case {
        QByteArray cache, out;
        QStringList options = {};
    };
    // clang-format off
    const Case cases[] = {
        {kCache, equal + stamp},
        {swapped + kStamp, equal + stamp}, // in another order
        {changed("Y@0@1@1@QZColorMode:Y@0@1@1@", "Y@0@1@1@"), line + "Mode \"P label\" forbids Größe \"Y label\" [QZOutputMode:P, QZColorMode:Y]: once in the cache, 2 times" + fresh + stamp},
        {changed("QZOutputMode:P@0@0@1@", ""), line + "Größe \"X label\" forbids Mode \"P label\" [QZColorMode:X, QZOutputMode:P]: not in the cache, once" + fresh + stamp},
        {changed("P@0@0@1@", "P@0@0@1@QZOutputMode:P@7@0@1@"), line + "group 7, option 0, choice 1 (outside the PPD) forbids Mode \"P label\" [QZOutputMode:P]: once in the cache, not" + fresh + stamp},
        {changed("P@0@0@1@", "P@0@0@1@QZOutputMode:P@0@0@65537@"), line + "\"0@0@65537\" (no three numbers) forbids Mode \"P label\" [QZOutputMode:P]: once in the cache, not" + fresh + stamp},
        {changed("today", "yesterday"), equal + "stamp: \"*% Last Edit Date: yesterday\" in the cache, \"*% Last Edit Date: today\" in the PPD\n"},
        {changed(kStamp, ""), equal + "stamp: none in the cache, \"*% Last Edit Date: today\" in the PPD\n"},
        {changed("S\n", "S\n" + kEntries + "S\n"), equal + "section S: stands twice; the panel reads the first one\n" + stamp},
        {kCache, equal + "section T is missing\n" + stamp, {"--section", "S", "--section", "T"}},
        {"PrintFeature\nA:b@0@0@0@\n" + kCache, equal + stamp, {"--section", "S"}},
        {changed("Q@0@0@1@\n" + kStamp, "Q@0@0"), "section S, entry 4 breaks off" + unchecked},
        {changed("Q@0@0@1@\n", "Q@0@0@1@\r\n"), "section S, entry 5 has a line end in the middle" + unchecked},
        {changed(kStamp, "Panth"), equal + "breaks off or goes wrong in the name of a section" + unchecked},
    };
    // clang-format on
    for (const auto &c : cases) {
        write("a.cdf", c.cache);
        const QStringList options = c.options.isEmpty() ? QStringList{"--section", "S"} : c.options;
        const Run checked = run(QStringList{"check", "a.cdf", "--ppd", "a.ppd"} + options);
        const bool same = c.out.count('\n') == c.out.count(", equal\n");
        EXPECT_EQ(checked.exitCode, same ? 0 : 1) << c.out.constData();
        EXPECT_EQ(checked.out, c.out);
        EXPECT_EQ(checked.err, "");
    }
}
