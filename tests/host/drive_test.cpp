#include "run_host.h"
#include "support/ppd_text.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

void PrintTo(const QJsonValue &value, std::ostream *out) {
    *out << QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).constData();
}

namespace {

struct Command {
    QByteArray line;
    bool ok;
    const char *why = ""; ///< part of the reason of a refusal
};

/// Sends all commands at once, so that those behind an act that opens a window already wait when it
/// does, and checks the answers. @return the answers
QList<QJsonObject> drive(const QList<Command> &commands, const QTemporaryDir &folder,
                         const QStringList &more = {}, const char *queue = "velmora-mvo-530.ppd") {
    QByteArray input;
    for (const Command &command : commands)
        input += command.line + '\n';
    const HostRun run =
        runHost(QStringList{"drive", "--ppd", samplePath(queue)} + more, folder.path(), input);
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    const QList<QByteArray> lines = run.out.trimmed().split('\n');
    EXPECT_EQ(lines.size(), commands.size()) << run.out.left(4000).constData();
    QList<QJsonObject> answers;
    for (qsizetype i = 0; i < commands.size(); ++i) {
        answers.append(QJsonDocument::fromJson(lines.value(i)).object());
        const QString why = answers[i]["why"].toString();
        EXPECT_EQ(answers[i]["ok"].toBool(), commands[i].ok)
            << commands[i].line.constData() << lines.value(i).constData();
        EXPECT_TRUE(why.contains(commands[i].why))
            << commands[i].line.constData() << lines.value(i).constData();
    }
    return answers;
}

/// A field of the view with a tag, in a state.
QJsonValue view(const QJsonObject &state, int tag, const char *field) {
    for (const QJsonValue &view : state["views"].toArray())
        if (view["tag"].toInt() == tag)
            return view[field];
    return QJsonValue::Undefined;
}

bool wasCalled(const QJsonObject &state, const char *option, const char *choice) {
    return state["calls"].toArray().contains(QJsonArray{option, choice});
}

} // namespace

TEST(Drive, RefusesWhatAPersonCouldNotDo) {
    QTemporaryDir folder;
    const QByteArray shot = folder.filePath("no/x.png").toUtf8();
    drive({{"{\"do\":\"state\"}", true},
           {"", false, "no JSON"},
           {"{\"do\":", false, "no JSON"},
           {"[1]", false, "no JSON object"},
           {"{}", false, "\"do\" is missing"},
           {"{\"do\":\"dance\"}", false, "no command \"dance\""},
           {"{\"do\":\"click\",\"tag\":1042}", false, "isn't open"},
           {"{\"do\":\"save\"}", false, "isn't open"},
           {"{\"do\":\"open\"}", true},
           {"{\"do\":\"open\"}", false, "open already"},
           {"{\"do\":\"select\",\"tag\":101}", false, "\"index\" must be a whole number"},
           {"{\"do\":\"select\",\"tag\":101,\"index\":0.5}", false, "whole number"},
           {"{\"do\":\"select\",\"index\":0}", false, "needs \"tag\""},
           {"{\"do\":\"select\",\"tag\":101,\"index\":2}", false, "outside the menu of 2"},
           {"{\"do\":\"select\",\"tag\":101,\"index\":-1}", false, "outside the menu"},
           {"{\"do\":\"select\",\"tag\":9999,\"index\":0}", false, "no such view"},
           {"{\"do\":\"select\",\"tag\":102,\"index\":0}", false, "kind \"slider\""},
           {"{\"do\":\"slide\",\"tag\":102,\"to\":4}", false, "outside -3 to 3"},
           {"{\"do\":\"alert\"}", false, "no alert"},
           {"{\"do\":\"mark\",\"option\":\"QZColorMode\",\"choice\":\"Pink\"}", false, "Pink"},
           {"{\"do\":\"setting\",\"key\":\"\",\"value\":\"x\"}", false, "key"},
           {"{\"do\":\"shot\",\"to\":\"" + shot + "\"}", false, "No such file"},
           {"{\"do\":\"close\"}", true},
           {"{\"do\":\"close\"}", false, "isn't open"}},
          folder);
}

TEST(Drive, UserActsReachMarksAndComeBackFromOtherPanels) {
    QTemporaryDir folder;
    const QByteArray shot = folder.filePath("panel.png").toUtf8();
    const auto answers =
        drive({{"{\"do\":\"open\"}", true},
               {"{\"do\":\"state\"}", true},
               {"{\"do\":\"select\",\"tag\":101,\"index\":0}", true},
               {"{\"do\":\"slide\",\"tag\":102,\"to\":-2}", true},
               {"{\"do\":\"state\"}", true},
               {"{\"do\":\"mark\",\"option\":\"QZColorMode\",\"choice\":\"Black\"}", true},
               {"{\"do\":\"setting\",\"key\":\"k\",\"value\":\"v\"}", true},
               {"{\"do\":\"willShow\"}", true},
               {"{\"do\":\"state\"}", true},
               {"{\"do\":\"summary\"}", true},
               {"{\"do\":\"shot\",\"to\":\"" + shot + "\"}", true}},
              folder, {"-o", "QZColorMode=Black", "--language", "en"});
    EXPECT_EQ(answers[0]["kind"], "com.velmora.k27.pde.ImageOptionsKind");
    EXPECT_EQ(answers[0]["keys"].toArray().size(), 26);
    EXPECT_EQ(view(answers[1], 101, "value"), 1) << "marked before the panel opened";
    EXPECT_EQ(view(answers[1], 101, "items")[1]["title"], "Black and White");
    EXPECT_TRUE(wasCalled(answers[4], "QZColorMode", "Color"));
    EXPECT_EQ(answers[4]["marks"]["QZColorMode"], "Color");
    EXPECT_EQ(view(answers[4], 102, "value"), -2);
    EXPECT_EQ(answers[8]["marks"]["QZBrightness"], "-2") << "saved before the other panel came";
    EXPECT_EQ(answers[8]["ticket"]["k"], "v");
    EXPECT_EQ(view(answers[8], 101, "text"), "Black and White") << "the other panel's mark";
    for (const QJsonValue &title : answers[9]["order"].toArray())
        EXPECT_FALSE(answers[9]["values"][title.toString()].isUndefined());
    EXPECT_GT(QFileInfo(folder.filePath("panel.png")).size(), 1000);
}

TEST(Drive, QueueWithoutPanel) {
    QTemporaryDir folder;
    const auto answers =
        drive({{"{\"do\":\"open\"}", true}, {"{\"do\":\"save\"}", false, "isn't open"}}, folder, {},
              "velmora-plain.ppd");
    EXPECT_EQ(answers[0]["panel"], false);
}

/// The roads of a panel that is shown and of one that isn't end with the same job.
TEST(Print, BothRoadsGiveTheSame) {
    QTemporaryDir folder;
    QByteArray jobs[2], tickets[2];
    for (const bool shown : {false, true}) {
        QStringList arguments{"print",     "--ppd",          samplePath("velmora-mvo-530.ppd"),
                              "-o",        "QZBrightness=2", "--to",
                              "sample.ps", "--ticket",       "t.json"};
        if (shown)
            arguments += {"--shown", "--summary", "s.json", "--shot", "s.png", "--language", "en"};
        const HostRun run =
            runHost(arguments + QStringList{samplePath("sample.pdf")}, folder.path());
        ASSERT_EQ(run.exitCode, 0) << run.err.constData();
        EXPECT_EQ(run.err, "");
        jobs[shown] = readFile(folder.filePath("sample.ps"));
        tickets[shown] = readFile(folder.filePath("t.json"));
    }
    EXPECT_TRUE(jobs[0].contains("%%BeginFeature: *QZBrightness 2\n"));
    EXPECT_EQ(jobs[0], jobs[1]);
    EXPECT_EQ(tickets[0], tickets[1]);
    EXPECT_TRUE(readFile(folder.filePath("s.png")).startsWith("\x89PNG"));
    const QJsonObject summary =
        QJsonDocument::fromJson(readFile(folder.filePath("s.json"))).object();
    EXPECT_EQ(summary["values"]["Brightness"], "+2");
    EXPECT_TRUE(summary["order"].toArray().contains("Color Mode"));
}

TEST(Inspect, PrintsTheOpenedPanel) {
    const HostRun run = runHost({"inspect", "--ppd", samplePath("velmora-mvo-530.ppd")}, ".");
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    const QJsonObject state = QJsonDocument::fromJson(run.out).object();
    EXPECT_EQ(state["panel"], true);
    EXPECT_EQ(view(state, 101, "kind"), "popup");
    EXPECT_EQ(view(state, 1041, "kind"), "radio");
}

TEST(Drive, ModalWindowIsServedWhileItStands) {
    QTemporaryDir folder;
    const QList<Command> commands{
        {"{\"do\":\"open\"}", true},
        {"{\"do\":\"click\",\"view\":\"colorbalanceButtonCtrl\"}", true},
        {"{\"do\":\"state\"}", true},
        {"{\"do\":\"save\"}", false, "is modal"},
        {"{\"do\":\"willShow\"}", false, "is modal"},
        {"{\"do\":\"summary\"}", false, "is modal"},
        {"{\"do\":\"select\",\"tag\":101,\"index\":1}", false, "is modal"},
        {"{\"do\":\"step\",\"tag\":3600,\"by\":1}", false, "disabled"},
        {"{\"do\":\"click\",\"tag\":3101}", true},
        {"{\"do\":\"step\",\"tag\":3601,\"by\":1}", false, "hidden"},
        {"{\"do\":\"type\",\"tag\":3500,\"text\":\"-2\"}", true},
        {"{\"do\":\"step\",\"tag\":3600,\"by\":-3}", true},
        {"{\"do\":\"state\"}", true},
        {"{\"do\":\"click\",\"tag\":3703}", true},
        {"{\"do\":\"state\"}", true},
        {"{\"do\":\"save\"}", true},
        {"{\"do\":\"state\"}", true},
        {"{\"do\":\"click\",\"tag\":110}", true},
        {"{\"do\":\"step\",\"tag\":3600,\"by\":6}", true},
        {"{\"do\":\"close\"}", true}, // presses Cancel
        {"{\"do\":\"state\"}", true},
        {"{\"do\":\"open\"}", true},
        {"{\"do\":\"state\"}", true},
        {"{\"do\":\"click\",\"tag\":110}", true}, // the input ends with the window open
    };
    const auto answers = drive(commands, folder);
    const QJsonValue title = answers[2]["window"];
    EXPECT_FALSE(title.isNull());
    EXPECT_EQ(view(answers[2], 3600, "window"), title);
    EXPECT_TRUE(view(answers[2], 101, "window").isNull());
    EXPECT_EQ(view(answers[2], 3600, "enabled"), false);
    EXPECT_EQ(view(answers[2], 3601, "hidden"), true);
    EXPECT_EQ(view(answers[12], 3600, "value"), -3);
    EXPECT_EQ(view(answers[12], 3500, "value"), "-3");
    EXPECT_EQ(answers[12]["beeps"], 1) << "the second step down met the end of the range";
    EXPECT_TRUE(answers[14]["window"].isNull());
    EXPECT_EQ(answers[14]["marks"]["QZColorDensityBlackLow"], "0")
        << "a density waits for the save";
    EXPECT_EQ(answers[16]["marks"]["QZColorDensityBlackLow"], "-3");
    EXPECT_TRUE(answers[20]["views"].toArray().isEmpty());
    EXPECT_EQ(answers[20]["marks"]["QZColorDensityBlackLow"], "-3") << "cancelled";
    EXPECT_EQ(view(answers[22], 3600, "value"), -3);
}
