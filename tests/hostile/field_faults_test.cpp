// Faults that print systems have really had, replayed on ours.

#include "support/ppd_text.h"
#include "support/run_program.h"

#include "host/conflicts/resolution.h"
#include "host/cups_server.h"
#include "host/queues/queue_info.h"
#include "host/settings/job_options.h"
#include "host/settings/job_settings.h"
#include "platform/ppd_file.h"
#include "platform/ppd_marks.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

ProgramRun print(const QStringList &arguments, const QString &folder,
                 const QStringList &more = {}) {
    return runProgram(HOST_PROGRAM,
                      QStringList{"print", "--ppd", samplePath("velmora-mvo-540.ppd")} + arguments,
                      folder, {}, more);
}

/// A ring of options, each of whose first choices forbids the next one's, and a resolver that leads
/// round and round.
QByteArray ring(int count) {
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        const QByteArray name = "R" + QByteArray::number(i);
        text += ppdOption(name, {"A", "B"}) + "*UIConstraints: *" + name + " A *R" +
                QByteArray::number((i + 1) % count) + " A\n*UIConstraints: *" + name + " B *R" +
                QByteArray::number((i + 1) % count) + " B\n";
    }
    return text;
}

const struct Fault {
    const char *name;
    void (*replay)(const QString &folder);
} kFaults[] = {
    {"LineFeedInAServersText",
     [](auto &) {
         EXPECT_EQ(host::safeLine("Office\n*cupsFilter: \"x 0 /bin/sh\"\r\x1b[2J")
                       .count(QRegularExpression("[\\x00-\\x1f]")),
                   0);
     }},
    {"LineFeedInAJobOption",
     [](auto &folder) {
         for (const char *value : {"a\nb", "a\rsides=two-sided", "a\x0bx=y"})
             EXPECT_FALSE(host::sendingProblem("key", value).isNull());
         const ProgramRun run = print(
             {"-o", "VLAccount=Custom.a\nb", "--to", "x.ps", samplePath("sample.ps")}, folder);
         EXPECT_EQ(run.exitCode, 2);
         EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
     }},
    {"BraceThatTakesOtherOptionsAlong",
     [](auto &) {
         for (const char *value : {"{", ",{", "{{A=1}", ",,{x"})
             EXPECT_FALSE(host::sendingProblem("key", value).isNull()) << value;
         EXPECT_TRUE(host::sendingProblem("key", "{A=1 B='two words'}").isNull());
     }},
    {"VeryManyOptions",
     [](auto &) {
         host::OptionList options;
         for (int i = 0; i < 5000; ++i)
             options.append({"key" + QString::number(i), QString(200, u'v')});
         const PpdPtr ppd = openSample("velmora-mvo-540.ppd");
         host::JobSettings job(ppd.get());
         EXPECT_EQ(job.takeOptions(options).size(), options.size());
         EXPECT_GE(host::jobOptionsToSend(ppd.get(), nullptr, options).size(), options.size());
     }},
    {"ShellInAFilesName",
     [](auto &folder) {
         for (const char *name : {"a; touch stolen", "$(touch stolen).pdf", "`touch stolen`.pdf",
                                  "-dSAFER=no.pdf", "| touch stolen.pdf", "%pipe%touch stolen"}) {
             ASSERT_TRUE(QFile::copy(samplePath("sample.pdf"), folder + '/' + name));
             const ProgramRun run = print({"--to", "x.ps", "./" + QString(name)}, folder);
             EXPECT_EQ(run.exitCode, 0) << name << run.err.constData();
             QFile::remove(folder + "/x.ps");
         }
         EXPECT_FALSE(QFile::exists(folder + "/stolen"));
     }},
    {"ShellInAKeyword",
     [](auto &folder) {
         const QByteArray text = readFile(samplePath("velmora-mvo-530.ppd"));
         const QString ppd =
             writeFile(folder, "x.ppd",
                       QByteArray(text).replace("*FormatVersion:",
                                                "*cupsFilter: \"application/pdf 0 "
                                                "$(touch stolen)\"\n*APPrinterUtilityPath: "
                                                "\"/bin/touch stolen\"\n*FormatVersion:"));
         const ProgramRun run = runProgram(
             HOST_PROGRAM,
             {"print", "--ppd", ppd, "--shown", "--to", "x.ps", samplePath("sample.ps")}, folder);
         EXPECT_EQ(run.exitCode, 0) << run.err.constData();
         EXPECT_FALSE(QFile::exists(folder + "/stolen"));
     }},
    {"OverlongPostScriptString",
     [](auto &) {
         const PpdFile file =
             parsePpdFile(readFile(samplePath("velmora-plain.ppd")) + "*JobPatchFile 1: \"" +
                          QByteArray(200000, '(') + "\"\n");
         EXPECT_TRUE(file.ppd || !file.reason.isEmpty());
     }},
    {"NumbersOutOfRange",
     [](auto &) {
         const PpdPtr ppd = openSample("velmora-mvo-540.ppd");
         host::JobSettings job(ppd.get());
         QStringList problems;
         const host::OptionList bad{{"copies", "-1"},
                                    {"copies", "99999999999999999999"},
                                    {"number-up", "4294967298"},
                                    {"page-ranges", "-1--1"},
                                    {"page-ranges", "99999999999-"},
                                    {"PageSize", "Custom.-1x-1"},
                                    {"PageSize", "Custom.1e39x1"},
                                    {"orientation-requested", "-3"}};
         job.takeOptions(bad, &problems);
         EXPECT_GE(problems.size(), bad.size() - 2) << problems.join('\n').toStdString();
         EXPECT_EQ(job.copies(), 1);
         EXPECT_TRUE(job.jobOptions().isEmpty());
     }},
    {"ConflictsWithoutASolution",
     [](auto &) {
         for (const int count : {3, 5, 61}) { // odd rings have none
             const PpdPtr ppd = openPpdText(ring(count));
             ASSERT_TRUE(ppd);
             const host::ConflictIndex index(ppd.get());
             EXPECT_FALSE(index.standing().isEmpty());
             host::proposal(index); // ends
         }
     }},
    {"ResolverThatLeadsRound",
     [](auto &) {
         const PpdPtr ppd = openPpdText(
             ppdOption("A", {"1", "2"}) + ppdOption("B", {"1", "2"}) +
             "*cupsUIConstraints Round: \"*A 1 *B 1\"\n*cupsUIResolver Round: \"*A 1 *B 1\"\n"
             "*cupsUIConstraints Other: \"*A 2 *B 2\"\n*cupsUIResolver Other: \"*A 2 *B 2\"\n");
         ASSERT_TRUE(ppd);
         const host::ConflictIndex index(ppd.get());
         for (const host::Change &change : host::proposal(index))
             markChoice(ppd.get(), change.option->keyword, change.to->choice);
         EXPECT_TRUE(index.standing().isEmpty()) << "one of the two is changed";
     }},
    {"TemporaryFileOfAnother",
     [](auto &folder) {
         writeFile(folder, "other", "precious");
         ASSERT_TRUE(QFile::link(folder + "/other", folder + "/x.ps"));
         const ProgramRun run = print({"--to", "x.ps", samplePath("sample.ps")}, folder);
         EXPECT_TRUE(readFile(folder + "/other") == "precious" || run.exitCode == 0);
         for (const QString &name : QDir(folder).entryList(QDir::Files))
             EXPECT_TRUE(name == "other" || name == "x.ps") << name.toStdString();
     }},
    {"NoRoomForTheFile",
     [](auto &folder) {
         const QTemporaryDir other;
         const QString document =
             writeFile(other.path(), "large.ps", "%!PS\n" + QByteArray("% ....\n").repeated(10000));
         const ProgramRun run = runProgram(
             "sh",
             {"-c", "trap '' XFSZ; ulimit -f 9; exec \"$0\" print --ppd \"$1\" --to x.ps \"$2\"",
              HOST_PROGRAM, samplePath("velmora-plain.ppd"), document},
             folder);
         EXPECT_EQ(run.exitCode, 2);
         EXPECT_TRUE(run.err.contains("x.ps: can't be written")) << run.err.constData();
         EXPECT_TRUE(QDir(folder).isEmpty()) << "no half-written file stays";
     }},
    {"NoHomeAndReadOnlySettings",
     [](auto &folder) {
         const ProgramRun run =
             print({"--shown", "--to", "x.ps", samplePath("sample.ps")}, folder,
                   {"HOME=/nonexistent", "XDG_CONFIG_HOME=/proc", "XDG_CACHE_HOME=/proc"});
         EXPECT_EQ(run.exitCode, 0) << run.err.constData();
         EXPECT_TRUE(QFile::exists(folder + "/x.ps"));
     }},
    {"NoDefaultDestination",
     [](auto &folder) {
         const ProgramRun run =
             runProgram(HOST_PROGRAM, {"print", "--queue", "Gone", samplePath("sample.ps")}, folder,
                        {}, {"CUPS_SERVER=/nonexistent/socket"});
         EXPECT_EQ(run.exitCode, 2);
         EXPECT_EQ(run.err.count('\n'), 1) << run.err.constData();
     }},
};

} // namespace

class FieldFault : public testing::TestWithParam<Fault> {};

TEST_P(FieldFault, DoesNotHappenHere) {
    const QTemporaryDir folder;
    GetParam().replay(folder.path());
}

INSTANTIATE_TEST_SUITE_P(Faults, FieldFault, testing::ValuesIn(kFaults),
                         [](const auto &info) { return std::string(info.param.name); });
