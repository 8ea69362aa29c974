#include "run_host.h"
#include "support/ppd_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

void PrintTo(const QJsonValue &value, std::ostream *out) {
    *out << QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).constData();
}

namespace {

/// A field of the view with a tag, in a state.
QJsonValue view(const QJsonObject &state, int tag, const char *field) {
    for (const QJsonValue &view : state["views"].toArray())
        if (view["tag"].toInt() == tag)
            return view[field];
    return QJsonValue::Undefined;
}

} // namespace

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
