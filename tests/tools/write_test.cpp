#include "run_tool.h"

#include <QProcess>
#include <QtEndian>

#include <csignal>

#include <sys/stat.h>

namespace {

const QByteArray kBoth =
    "ImageOptionPDETiger\n" + ToolTest::kEntries + "ImageOptionPDEPanther\n" + ToolTest::kEntries;

} // namespace

/// Whatever the PPD's line ends and packing, the stamp is its line.
TEST_F(ToolTest, WritesTheSameForEveryFormOfThePpd) {
    write("crlf.ppd", QByteArray(kPpd).replace("\n", "\r\n"));
    write("cr.ppd", QByteArray(kPpd).replace("\n", "\r"));
    write("packed.ppd", kPpd);
    ASSERT_EQ(QProcess::execute("gzip", {folder.filePath("packed.ppd")}), 0);
    for (const char *ppd : {"a.ppd", "crlf.ppd", "cr.ppd", "packed.ppd.gz"}) {
        const Run written = run({"write", ppd, "-o", "out.cdf"});
        EXPECT_EQ(written.exitCode, 0) << ppd;
        EXPECT_EQ(written.out + written.err, "") << ppd;
        EXPECT_EQ(read("out.cdf"), kBoth + kStamp) << ppd;
    }
}

TEST_F(ToolTest, WritesTheSectionsAndKeysThatAreAskedFor) {
    write("keys", "# ours\r\n\r\n*QZOutputMode\r\n");
    write("other", "Other\n");
    write("none.ppd", QByteArray(kPpd).replace(kStamp, "*% nothing"));
    const struct {
        QStringList arguments;
        QByteArray file, remark;
    } cases[] = {
        {{"a.ppd", "--section", "One", "--section=Two"},
         "One\n" + kEntries + "Two\n" + kEntries + kStamp,
         ""},
        {{"a.ppd", "--section", "S", "--keys", "keys"}, "S\n" + kEntries + kStamp, ""},
        {{"a.ppd", "--section", "S", "--keys", "other"}, "S\n\n" + kStamp, ""},
        {{"none.ppd", "--section", "S"},
         "S\n" + kEntries,
         "cdf-tool: none.ppd: no \"*% Last Edit Date:\" line, the cache has no stamp\n"},
        {{"a.ppd", "--section", "S", "--progress"},
         "S\n" + kEntries + kStamp,
         "cdf-tool: writing: 0 %\ncdf-tool: writing: 100 %\n"},
    };
    for (const auto &c : cases) {
        const Run written = run(QStringList{"write", "-o", "out.cdf"} + c.arguments);
        EXPECT_EQ(written.exitCode, 0) << c.arguments.join(' ').toStdString();
        EXPECT_EQ(read("out.cdf"), c.file);
        EXPECT_EQ(written.err, c.remark);
    }
    EXPECT_TRUE(run({"--help"}).out.startsWith("usage:\n"));
}

/// Each bad input leaves one line on standard error, exit code 2, and every file as it was.
TEST_F(ToolTest, BadInput) {
    write("old.cdf", "old");
    write("cut.ppd", kPpd.left(kPpd.indexOf("*CloseGroup")));
    write("torn.ppd", kPpd.chopped(3));
    write("text.ppd", "hello\n");
    write("at.ppd", QByteArray(kPpd).replace("*QZColorMode Y", "*QZColorMode Y@1"));
    // A gzipped file that was cut behind a block: nothing but the missing size shows it.
    QByteArray head("\x1f\x8b\x08\0\0\0\0\0\0\xff\0????", 15);
    qToLittleEndian(quint16(kPpd.size()), head.data() + 11);
    qToLittleEndian(quint16(~kPpd.size()), head.data() + 13);
    write("cut.gz", head + kPpd);
    write("keys", "QZColorMode\nwith blank\n");
    mkfifo(folder.filePath("fifo").toLocal8Bit().constData(), 0600);
    QFile::link("loop", folder.filePath("loop"));
    const QStringList before = files();
    QStringList elevenSections{"write", "a.ppd", "-o", "old.cdf"};
    for (int i = 0; i < 11; ++i)
        elevenSections += {"--section", QString::number(i)};

    const struct {
        QStringList arguments;
        QByteArray complaint; ///< what follows "cdf-tool: "
    } cases[] = {
        {{}, "command: is missing"},
        {{"wirte"}, "wirte: is no command"},
        {{"write", "-o", "old.cdf"}, "write: needs a PPD"},
        {{"write", "a.ppd"}, "write: needs -o FILE"},
        {{"check", "old.cdf"}, "check: needs --ppd PPD"},
        {{"list", "old.cdf", "-o", "b"}, "-o: is no option of this command"},
        {{"write", "a.ppd", "-o"}, "arguments: Missing value after '-o' ("},
        {{"list", "old.cdf", "--frob"}, "arguments: Unknown option 'frob' ("},
        {{"write", "a.ppd", "-o", "old.cdf", "--section", "a@b"}, "--section a@b: can't be"},
        {{"write", "a.ppd", "-o", "old.cdf", "--section", "A*% Last Edit Date:"}, "--section A*"},
        {{"write", "a.ppd", "-o", "old.cdf", "--section", QString(1024, 'a')}, "--section aaa"},
        {{"list", "old.cdf", "--section", "a", "--section", "a"}, "--section a: is given twice"},
        {elevenSections, "--section: is given more than 10 times"},
        {{"write", "no.ppd", "-o", "old.cdf"}, "no.ppd: No such file or directory"},
        {{"write", "fifo", "-o", "old.cdf"}, "fifo: is not a regular file"},
        {{"write", "text.ppd", "-o", "old.cdf"}, "text.ppd: line 1: Missing asterisk"},
        {{"write", "cut.ppd", "-o", "old.cdf"}, "cut.ppd: line 13: the group G isn't closed"},
        {{"write", "torn.ppd", "-o", "old.cdf"}, "torn.ppd: line 29: the last line has no end"},
        {{"write", "cut.gz", "-o", "old.cdf"}, "cut.gz: the gzipped file is cut off"},
        {{"write", "at.ppd", "-o", "old.cdf"}, "at.ppd: a constraint names an option or choice"},
        {{"write", "a.ppd", "-o", "old.cdf", "--keys", "keys"}, "keys: line 2: is no option's"},
        {{"write", "a.ppd", "-o", "./a.ppd"}, "./a.ppd: is read by this command"},
        {{"write", "a.ppd", "-o", "fifo"}, "fifo: is not a regular file"},
        {{"write", "a.ppd", "-o", "no/out"}, "no/out: No such file or directory"},
        {{"list", "loop"}, "loop: Too many levels of symbolic links"},
        {{"list", "two  blanks\033[2J"}, "two  blanks\\x1b[2J: No such file or directory"},
        {{"list", "fifo"}, "fifo: is not a regular file"},
        {{"list", "old.cdf"}, "old.cdf: doesn't begin with the name of a section"},
        {{"check", "text.ppd", "--ppd", "a.ppd"}, "text.ppd: section hello, entry 1 breaks off"},
    };
    for (const auto &c : cases) {
        const Run result = run(c.arguments);
        const std::string what = c.arguments.join(' ').toStdString();
        EXPECT_EQ(result.exitCode, 2) << what;
        EXPECT_TRUE(result.err.startsWith("cdf-tool: " + c.complaint)) << what << "\n"
                                                                       << result.err.constData();
        EXPECT_EQ(result.err.count('\n'), 1) << what << "\n" << result.err.constData();
        EXPECT_EQ(result.out, "") << what;
    }
    EXPECT_EQ(files(), before);
    EXPECT_EQ(read("old.cdf"), "old");
    EXPECT_EQ(read("a.ppd"), kPpd);
}

TEST_F(ToolTest, AStoppedWriteLeavesTheOldFileAlone) {
    QList<QByteArray> choices;
    for (int i = 0; i < 300; ++i)
        choices.append("C" + QByteArray::number(i));
    write("a.ppd", kPpd.left(kPpd.indexOf("*OpenGroup")) + ppdOption("QZColorMode", choices) +
                       ppdOption("QZOutputMode", choices) +
                       QByteArray("*UIConstraints: *QZColorMode *QZOutputMode\n").repeated(1000));
    write("out.cdf", "old");
    const QStringList before = files();
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.setReadChannel(QProcess::StandardError);
    process.start(CDF_TOOL, {"write", "a.ppd", "--progress", "-o", "out.cdf"});
    ASSERT_TRUE(process.waitForReadyRead(60000)); // the first line of progress
    ::kill(pid_t(process.processId()), SIGTERM);
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(process.exitCode(), SIGTERM);
    EXPECT_EQ(files(), before);
    EXPECT_EQ(read("out.cdf"), "old");
}
