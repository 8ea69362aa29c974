#include "run_tool.h"

TEST_F(ToolTest, ListsEntriesInWords) {
    const QByteArray cache = "S\nQZColorMode:Y@0@1@1@QZColorMode:Y@0@1@1@QZColorMode:Y@0@1@2@"
                             "QZOutputMode:p@0@0@1@QZOutputMode:P@0@9@1@@1@2@3@\n"
                             "E\x1b\n\nT\nA:b@0@x@65536@\n";
    write("a.cdf", cache + kStamp);
    write("short.cdf", cache);
    write("cut.cdf", "S\nQZColorMode:Y@0@1@1@QZColorMode:Y@0@1");
    const struct {
        QStringList arguments;
        QByteArray out;
        QByteArray err = {};
    } cases[] = {
        {{"a.cdf"},
         "section S\n"
         "  group 0, option 1, choice 1 forbids QZColorMode:Y, 2 times\n"
         "  group 0, option 1, choice 2 forbids QZColorMode:Y\n"
         "  group 0, option 0, choice 1 forbids QZOutputMode:p\n"
         "  group 0, option 9, choice 1 forbids QZOutputMode:P\n"
         "  group 1, option 2, choice 3 forbids nothing (an entry without a key)\n"
         "  6 entries\n"
         "section E\\x1b\n"
         "  0 entries\n"
         "section T\n"
         "  \"0@x@65536\" (no three numbers) forbids A:b\n"
         "  1 entry\n"
         "stamp *% Last Edit Date: today\n"},
        {{"short.cdf", "--section", "S", "--ppd", "a.ppd"},
         "section S\n"
         "  Mode \"P label\" forbids Größe \"Y label\" [QZOutputMode:P, QZColorMode:Y], 2 times\n"
         "  Mode \"Q label\" forbids Größe \"Y label\" [QZOutputMode:Q, QZColorMode:Y]\n"
         "  Größe \"X label\" forbids QZOutputMode:p (not in the PPD) [QZColorMode:X]\n"
         "  group 0, option 9, choice 1 (outside the PPD) forbids Mode \"P label\" "
         "[QZOutputMode:P]\n"
         "  group 1, option 2, choice 3 (outside the PPD) forbids nothing (an entry without a "
         "key)\n"
         "  6 entries\n"
         "no stamp\n"},
        {{"a.cdf", "--section", "Z"}, "", "cdf-tool: a.cdf: has no section Z\n"},
        {{"cut.cdf"},
         "section S\n  group 0, option 1, choice 1 forbids QZColorMode:Y\n",
         "cdf-tool: cut.cdf: section S, entry 2 breaks off\n"},
    };
    for (const auto &c : cases) {
        const Run listed = run(QStringList("list") + c.arguments);
        EXPECT_EQ(listed.exitCode, c.err.isEmpty() ? 0 : 2);
        EXPECT_EQ(listed.out, c.out);
        EXPECT_EQ(listed.err, c.err);
    }
}
