#include "run_host.h"
#include "support/ppd_text.h"

#include "host/command_line.h"
#include "host/host_error.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

TEST(CommandLine, ReadsEveryOption) {
    const host::CommandLine line = host::parseCommandLine(
        {"print",     "--queue", "Q",      "-o",   "A=B=C",      "--setting",
         "k=",        "--shown", "--to",   "x.ps", "--ticket",   "t",
         "--summary", "s",       "--shot", "p",    "--language", "de",
         "--bundle",  "b",       "-o",     "D=E",  "--",         "--odd.ps"});
    EXPECT_EQ(line.command, host::Command::Print);
    const QList<QPair<QString, QString>> marks{{"A", "B=C"}, {"D", "E"}}, settings{{"k", ""}};
    EXPECT_EQ(line.marks, marks);
    EXPECT_EQ(line.settings, settings);
    EXPECT_TRUE(line.shown);
    EXPECT_EQ((QStringList{line.queue, line.to, line.ticket, line.summary, line.shot, line.language,
                           line.bundle, line.document}),
              (QStringList{"Q", "x.ps", "t", "s", "p", "de", "b", "--odd.ps"}));
    EXPECT_TRUE(line.ppd.isNull());
}

/// Each bad input leaves one line on standard error, exit code 2, and no file.
TEST(CommandLine, BadInput) {
    QTemporaryDir folder;
    const QString ppd = samplePath("velmora-mvo-530.ppd");
    const QString document = writeFile(folder.path(), "good.ps", kSmallDocument);
    writeFile(folder.path(), "text.ps", "hello");
    writeFile(folder.path(), "none.ps", "");
    writeFile(folder.path(), "bad.pdf", "%PDF-1.4\nnothing more\n");
    writeFile(folder.path(), "broken.ppd", "*PPD-Adobe: \"4.3\"\nno asterisk\n");
    mkfifo(folder.filePath("fifo").toLocal8Bit().constData(), 0600);
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::System);

    const struct {
        QStringList arguments;
        QByteArray complaint; ///< what follows "pde-host: "
    } cases[] = {
        {{}, "command: is missing"},
        {{"prnt"}, "prnt: is no command"},
        {{"print", "--ppd", ppd}, "print: needs a DOCUMENT"},
        {{"print", document}, "print: needs --ppd FILE or --queue NAME"},
        {{"print", "--ppd"}, "--ppd: needs a value"},
        {{"print", "--ppd", ppd, "--ppd", ppd, document}, "--ppd: is given twice"},
        {{"print", "--ppd", ppd, "--queue", "q", document}, "--queue: can't be given together"},
        {{"print", "--ppd", ppd, "--frobnicate", document}, "--frobnicate: is no option"},
        {{"print", "--ppd", ppd, document, document}, "/"},
        {{"print", "--ppd", ppd, "--summary", "s", document}, "--summary: needs --shown"},
        {{"print", "--ppd", ppd, "-o", "noequals", document}, "-o noequals: is not of the form"},
        {{"inspect", "--ppd", ppd, "-o", "A=B"}, "-o: is no option of this command"},
        {{"drive"}, "drive: needs --ppd FILE"},
        {{"print", "--ppd", ppd, "-o", "NoSuch=X", document},
         "-o NoSuch=X: the queue has no option"},
        {{"print", "--ppd", ppd, "-o", "PageSize=X", document}, "-o PageSize=X: the option has no"},
        {{"print", "--ppd", ppd, "no.ps"}, "no.ps: No such file"},
        {{"print", "--ppd", ppd, "none.ps"}, "none.ps: is empty"},
        {{"print", "--ppd", ppd, "text.ps"}, "text.ps: is neither PostScript nor PDF"},
        {{"print", "--ppd", ppd, "fifo"}, "fifo: is not a regular file"},
        {{"print", "--ppd", ppd, "."}, ".: is a directory"},
        {{"print", "--ppd", ppd, "bad.pdf"}, "bad.pdf: "},
        {{"print", "--ppd", "no.ppd", document}, "no.ppd: No such file"},
        {{"print", "--ppd", "fifo", document}, "fifo: is not a regular file"},
        {{"print", "--ppd", "broken.ppd", document}, "broken.ppd: line 2: Missing asterisk"},
        {{"inspect", "--ppd", "good.ps"}, "good.ps: line 1: Missing"},
        {{"print", "--ppd", ppd, "--bundle", "no.pde", document}, "no.pde: "},
        {{"print", "--ppd", ppd, "good.ps"}, "good.ps: exists; name the file"},
        {{"print", "--ppd", ppd, "--ticket", "t", "--to", "no/x.ps", document},
         "no/x.ps: can't be"},
        {{"print", "--ppd", ppd, "--to", "x.ps", "--ticket", "x.ps", document},
         "x.ps: is named for two"},
        {{"print", "--ppd", ppd, "--to", document, document}, document.toUtf8() + ": is read by"},
        {{"print", "--ppd", ppd, "--to", "x.ps", "--ticket", ".", document}, ".: is not a regular"},
        {{"dialog", "--ppd", ppd, "no.ps"}, "no.ps: No such file"},
        {{"inspect", "--ppd", ppd, "--language", "klingon"}, "--language klingon: is no"},
    };
    for (const auto &c : cases) {
        const HostRun run = runHost(c.arguments, folder.path());
        const std::string what = c.arguments.join(' ').toStdString();
        EXPECT_EQ(run.exitCode, 2) << what;
        EXPECT_TRUE(run.err.startsWith(QByteArray("pde-host: ") + c.complaint))
            << what << "\n"
            << run.err.constData();
        EXPECT_EQ(run.err.count('\n'), 1) << what << "\n" << run.err.constData();
        EXPECT_EQ(run.out, "") << what;
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System), before);
}

TEST(CommandLine, DialogWithoutDisplayIsOneLine) {
    for (const char *display : {"DISPLAY=", "DISPLAY=:4711"}) {
        const HostRun run = runHost({"dialog", "--ppd", samplePath("velmora-mvo-530.ppd")}, ".", {},
                                    {display, "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM="});
        EXPECT_EQ(run.exitCode, 2) << display;
        EXPECT_TRUE(run.err.startsWith("pde-host: display: ")) << run.err.constData();
        EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
    }
}
