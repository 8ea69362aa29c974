#include "run_host.h"
#include "settings_ppd.h"
#include "support/cups_daemon.h"
#include "support/ppd_text.h"

#include "host/presets/preset_store.h"
#include "host/serve/custom_choice.h"
#include "host/settings/ppd_texts.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

#include <sys/stat.h>

namespace {

QJsonValue jsonOf(const QByteArray &text) {
    return QJsonDocument::fromJson('[' + text + ']').array().at(0);
}
QByteArray textOf(const QJsonValue &value) {
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

/// What stands under "queues.0.name", or for "queues.name=Q.state" under the element whose member
/// is so.
QJsonValue at(QJsonValue value, const QString &path) {
    for (const QString &step : path.split(u'.')) {
        bool isIndex = false;
        const int index = step.toInt(&isIndex);
        if (isIndex) {
            value = value[index];
        } else if (step.contains(u'=')) {
            QJsonValue found(QJsonValue::Undefined);
            for (const QJsonValue element : value.toArray())
                if (element[step.section(u'=', 0, 0)].toString() == step.section(u'=', 1))
                    found = element;
            value = found;
        } else {
            value = value[step];
        }
    }
    return value;
}

/// A running `pde-host serve`, and all that was said.
class Serve {
public:
    Serve(const QString &folder, const QStringList &environment) {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (const QString &variable :
             environment + QStringList{"HOME=" + folder, "XDG_CONFIG_HOME=" + folder})
            variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
        m_process.setProcessEnvironment(variables);
        m_process.setWorkingDirectory(folder);
        m_process.start(QStringLiteral(HOST_PROGRAM), {"serve"});
    }
    ~Serve() { end(); }

    /// @return the answer; nothing if none comes in a minute
    QJsonObject ask(const QByteArray &line) {
        m_process.write(line + '\n');
        QElapsedTimer timer;
        timer.start();
        while (!m_process.canReadLine() && timer.elapsed() < 60000 &&
               m_process.waitForReadyRead(1000 * 60)) {
        }
        const QByteArray answer = m_process.readLine();
        said += answer;
        const QJsonObject object = QJsonDocument::fromJson(answer).object();
        const QJsonDocument request = QJsonDocument::fromJson(line);
        transcript +=
            '[' +
            (request.isObject() ? request.toJson(QJsonDocument::Compact) : QByteArray("null")) +
            ',' + answer.trimmed() + "]\n";
        return object;
    }
    /// Ends the input. @return the exit code
    int end() {
        m_process.closeWriteChannel();
        return m_process.waitForFinished(30000) ? m_process.exitCode() : -1;
    }
    QByteArray complaints() { return m_process.readAllStandardError(); }

    QByteArray said, transcript;

private:
    QProcess m_process;
};

/// A request, and what its answer must hold: JSON by path.
struct Exchange {
    QByteArray request;
    QList<std::pair<const char *, QByteArray>> holds;
};

/// A server with an office's queue that has the panel, a plain one, and one with custom values of
/// every kind; presets and options of a person.
class ServeTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        cups = std::make_unique<CupsDaemon>();
        ASSERT_TRUE(cups->start()) << cups->log().constData();
        ASSERT_TRUE(cups->addQueue("Queue", samplePath("velmora-mvo-540.ppd")));
        ASSERT_TRUE(cups->addQueue("Plain", samplePath("velmora-plain.ppd")));
        ASSERT_TRUE(cups->addQueue("Sets", writeFile(cups->folder(), "s.ppd", settingsPpd())));
        ASSERT_TRUE(cups->command("lpadmin", {"-p", "Plain", "-L", "Room 5", "-D", "Old one"}));
        ASSERT_TRUE(cups->command("cupsreject", {"-r", "being moved", "Plain"}));
        ASSERT_TRUE(cups->command("lpadmin", {"-d", "Queue"}));
        person = std::make_unique<QTemporaryDir>();
        QDir(person->path()).mkdir(".cups");
        writeFile(person->path(), ".cups/lpoptions",
                  "Dest Queue/both Duplex=DuplexNoTumble MediaType=Custom.4711\n");
        writeFile(person->path(), "good.ps", kSmallDocument);
        mkfifo(person->filePath("fifo").toLocal8Bit().constData(), 0600);
        host::PresetStore store(person->filePath("image-options"));
        host::Preset preset;
        preset.name = "Secret draft";
        preset.queue = "Queue";
        preset.choices = {{"QZOutputMode", {"Draft"}}, {"Gone", {"X"}}};
        preset.enterAgain = QStringList{"VLJobPIN"};
        preset.settings = {{"a.key", {"kept", true}}};
        store.save(preset);
    }
    static void TearDownTestSuite() {
        cups.reset();
        person.reset();
    }

    void exchange(Serve &serve, const QList<Exchange> &exchanges) {
        for (const Exchange &e : exchanges) {
            const QJsonObject answer = serve.ask(e.request.simplified());
            for (const auto &[path, expected] : e.holds)
                EXPECT_EQ(textOf(at(answer, path)), textOf(jsonOf(expected)))
                    << e.request.constData() << "\n"
                    << path << " of " << QJsonDocument(answer).toJson().left(3000).constData();
        }
    }

    static std::unique_ptr<CupsDaemon> cups;
    static std::unique_ptr<QTemporaryDir> person;
};
std::unique_ptr<CupsDaemon> ServeTest::cups;
std::unique_ptr<QTemporaryDir> ServeTest::person;

} // namespace

TEST_F(ServeTest, TellsChecksPrintsAndFollows) {
    Serve serve(person->path(), cups->environment());
    const QByteArray forbidden =
        R"("choices":{"InputSlot":"ManualFeed","Duplex":"DuplexNoTumble"})";
    const QByteArray secret =
        R"("preset":"Secret draft","choices":{"VLJobPIN":{"PIN":"4711"},"VLAccount":"Custom.Dept 9"})";
    exchange(
        serve,
        {
            {R"({"do":"list","seconds":20})",
             {{"ok", "true"},
              {"queues.name=Queue.default", "true"},
              {"queues.name=Queue.state", R"("idle")"},
              {"queues.name=Queue.accepting", "true"},
              {"queues.name=Plain.location", R"("Room 5")"},
              {"queues.name=Plain.description", R"("Old one")"},
              {"queues.name=Plain.accepting", "false"},
              {"queues.name=Plain.stateText", R"("Idle, takes no jobs: being moved")"}}},
            {R"({"do":"queue","queue":"Queue","instance":"both","options":{},"settings":{}})",
             {{"panel", R"("Image Options")"},
              {"groups.0.options.option=Duplex.default", R"("None")"},
              {"groups.0.options.option=Duplex.marked", R"(["DuplexNoTumble"])"},
              {"groups.0.options.option=InputSlot.choices.choice=ManualFeed.why",
               R"("Not available with Two-Sided Printing: Long Edge")"},
              {"groups.0.options.option=InputSlot.choices.choice=Tray1.why", "null"},
              {"groups.group=VLJob.options.option=VLJobPIN.parameters.0.type", R"("passcode")"},
              {"settings.setting=sides.option", R"("Duplex")"},
              {"notes.0", R"("MediaType: “••••” can't be used with this printer")"},
              {"settings.setting=copies.of", R"("cups")"},
              {"presets", R"([{"name":"Secret draft","problem":null}])"},
              {"instances", R"(["both"])"}}},
            {R"({"do":"queue","queue":"Queue","preset":"Secret draft","seconds":20})",
             {{"groups.group=QZImage.options.option=QZOutputMode.marked", R"(["Draft"])"},
              {"problems.0.option", R"("VLJobPIN")"}}},
            {R"({"do":"queue","queue":"Sets","choices":{"PageSize":"Custom.300x400"}})",
             {{"panel", "null"},
              {"groups.0.options.option=PageSize.parameters.0.value", "300"},
              {"groups.0.options.option=Finish.kind", R"("many")"}}},
            {R"({"do":"check","queue":"Queue","seconds":20})", {{"fits", "true"}}},
            {R"({"do":"check","queue":"Queue","instance":"both","choices":{"InputSlot":"ManualFeed"}})",
             {{"fits", "false"},
              {"conflicts.0.text",
               R"("Paper Source: Manual Feed and Two-Sided Printing: Long Edge")"},
              {"resolution", R"([{"option":"Duplex","choice":"None",
                                  "text":"Two-Sided Printing: Long Edge → Off"}])"}}},
            {R"({"do":"check","queue":"Queue","preset":"Secret draft","options":{"x":true},
                 "settings":{"a.key":"other"}})",
             {{"problems.0.option", R"("VLJobPIN")"},
              {"problems.0.problem", R"("missingValue")"},
              {"problems.1.problem", R"("locked")"},
              {"notes.0",
               R"("“Gone” is no longer a setting of this printer; the preset has “X”")"}}},
            {R"({"do":"print","queue":"Queue","document":"good.ps",)" + forbidden + '}',
             {{"ok", "false"}, {"conflicts.0.parties.1.choice", R"("DuplexNoTumble")"}}},
            {R"({"do":"print","queue":"Queue","document":"good.ps","anyway":true,)" + forbidden +
                 '}',
             {{"job", "1"}}},
            {R"({"do":"job","job":1,"wait":"finished","seconds":50})",
             {{"state", R"("completed")"}, {"finished", "true"}}},
            {R"({"do":"print","queue":"Queue","document":"good.ps","title":"A \"title\"",
                 "settings":{"b.key":1},"seconds":50,)" +
                 secret + '}',
             {{"job", "2"}}},
            {R"({"do":"job","job":2,"wait":"finished","seconds":50})", {{"finished", "true"}}},
            {R"({"do":"print","queue":"Queue","document":"good.ps","instance":"both",
                 "options":{"job-hold-until":"indefinite"}})",
             {{"job", "3"}}},
            {R"({"do":"job","job":3})", {{"state", R"("pending-held")"}, {"changed", "undefined"}}},
            {R"({"do":"job","job":3,"wait":"change","seconds":0.3})", {{"changed", "false"}}},
            {R"({"do":"job","job":3,"wait":"change","known":"pending","seconds":50})",
             {{"changed", "true"}, {"state", R"("pending-held")"}}},
            {R"({"do":"cancel","job":3,"seconds":20})", {{"ok", "true"}}},
            {R"({"do":"job","job":3,"wait":"finished"})", {{"state", R"("canceled")"}}},
            {R"({"do":"cancel","job":3})", {{"ok", "false"}}},
            {R"({"do":"job","job":999})", {{"ok", "false"}}},
            {R"({"do":"print","queue":"Plain","document":"good.ps"})", {{"ok", "false"}}},
            // A PIN that isn't said to be a value of one's own, one that doesn't fit, and none.
            {R"({"do":"check","queue":"Queue","choices":{"VLJobPIN":"4711","Nonsense":"4711"}})",
             {{"problems.option=VLJobPIN.problem", R"("unknownChoice")"},
              {"problems.option=Nonsense.problem", R"("unknownOption")"}}},
            {R"({"do":"print","queue":"Queue","document":"good.ps","anyway":true,
                 "choices":{"VLJobPIN":"Custom.47114711x"}})",
             {{"problems.0.problem", R"("badValue")"}}},
            {R"({"do":"print","queue":"Queue","document":"good.ps","choices":{"VLJobPIN":"Custom"}})",
             {{"why", R"("VLJobPIN: “PIN” is missing.")"}}},
            {R"({"do":"check","queue":"Queue","choices":{"duplex":"None","Duplex":"None","copies":0},
                 "options":{"x y":"4711","brace":"{4711","job-priority":"7"}})",
             {{"problems.option=duplex.problem", R"("givenTwice")"},
              {"problems.option=copies.problem", R"("badValue")"},
              {"problems.option=x y.problem", R"("notSendable")"},
              {"problems.option=brace.problem", R"("notSendable")"},
              {"problems.option=job-priority", "undefined"}}},
        });
    EXPECT_EQ(serve.end(), 0);
    EXPECT_EQ(serve.complaints(), "");
    EXPECT_FALSE(serve.said.contains("4711")) << "a PIN is told";
    EXPECT_FALSE(serve.said.contains("Dept 9")) << "an account is told";
    // All of it has reached the server.
    const QByteArray log = cups->log();
    for (const char *sent : {"VLJobPIN=Custom.4711", "VLAccount=Custom.Dept", "QZOutputMode=Draft",
                             "b.key=1", "a.key=kept"})
        EXPECT_TRUE(log.contains(sent)) << sent;

    const QString transcript = writeFile(person->path(), "transcript", serve.transcript);
    const ProgramRun run = runProgram("python3",
                                      {SOURCE_DIR "/tests/host/check_answers.py",
                                       SOURCE_DIR "/docs/serve.schema.json", transcript},
                                      ".");
    EXPECT_EQ(run.exitCode, 0) << run.out.constData() << run.err.constData();
}

/// The job is the one that `print` makes, by the panel's own road.
TEST_F(ServeTest, PrintsAsTheCommandLineDoes) {
    const QStringList choices{"QZColorMode=Black", "Duplex=DuplexTumble", "QZBrightness=2"};
    QStringList arguments{"print", "--queue", "Queue"};
    QJsonObject object;
    for (const QString &choice : choices) {
        arguments += {"-o", choice};
        object.insert(choice.section(u'=', 0, 0), choice.section(u'=', 1));
    }
    QStringList printed[2];
    for (const bool serves : {false, true}) {
        QFile::remove(cups->outputOf("Queue"));
        if (serves) {
            Serve serve(person->path(), cups->environment());
            const QJsonObject request{{"do", "print"},
                                      {"queue", "Queue"},
                                      {"document", samplePath("sample.pdf")},
                                      {"choices", object}};
            EXPECT_EQ(serve.ask(QJsonDocument(request).toJson(QJsonDocument::Compact))["ok"], true);
        } else {
            const HostRun run = runHost(arguments + QStringList{samplePath("sample.pdf")},
                                        person->path(), {}, cups->environment());
            ASSERT_EQ(run.exitCode, 0) << run.err.constData();
        }
        ASSERT_TRUE(cups->waitForJobs("Queue"));
        printed[serves] = printedFeatures(readFile(cups->outputOf("Queue")));
    }
    EXPECT_TRUE(printed[1].contains("*QZBrightness 2"));
    EXPECT_EQ(printed[0].join('\n').toStdString(), printed[1].join('\n').toStdString());
}

/// Each bad line has its answer, and the one behind it is answered as ever.
TEST_F(ServeTest, BadLinesAreAnswered) {
    const struct {
        QByteArray line, why;
    } cases[] = {
        {"", "no JSON: "},
        {"{\"do\":", "no JSON: "},
        {"\xff\xfe{}", "no JSON: "},
        {QByteArray(100000, '['), "no JSON: "},
        {QByteArray(3 << 20, 'x'), "the line has more than 1048576 bytes"},
        {"[1]", "no JSON object"},
        {"{}", "\"do\" is missing"},
        {R"({"do":7})", "\"do\" is missing"},
        {R"({"do":"open"})", "there is no such command"},
        {R"({"do":"list","seconds":0})", "\"seconds\" must be a number"},
        {R"({"do":"list","seconds":1e300})", "\"seconds\" must be a number"},
        {R"({"do":"list","queue":"Queue"})", "\"list\" has no \"queue\""},
        {R"({"do":"check"})", "\"check\" needs \"queue\""},
        {R"({"do":"check","queue":["Queue"]})", "\"queue\" must be a text"},
        {R"({"do":"check","queue":"Queue","choices":[]})", "\"choices\" must be an object"},
        {R"({"do":"check","queue":"Queue","choices":{"a\u0000":"b"}})", "a text has a zero"},
        {R"({"do":"check","queue":"Queue","choices":{"a":{"b":"\ud800"}}})", "a text has a zero"},
        {R"({"do":"check","queue":"Queue","preset":"a","instance":"b"})", "\"preset\" and"},
        {R"({"do":"check","queue":"Queue","preset":"../../x"})", "../../x: “Queue” has no preset"},
        {R"({"do":"check","queue":"Queue","instance":"none"})", "none: “Queue” has no instance"},
        {R"({"do":"check","queue":"None"})", "None: no such queue"},
        {R"({"do":"check","queue":"../admin"})", "../admin: no such queue"},
        {R"({"do":"print","queue":"Queue","document":"fifo"})", "fifo: is not a regular file"},
        {R"({"do":"print","queue":"Queue","document":"."})", ".: is a directory"},
        {R"({"do":"print","queue":"Queue","document":"no.ps"})", "no.ps: No such file"},
        {R"({"do":"print","queue":"Queue","document":"s\n.ps","anyway":1})", "\"anyway\" must be"},
        {R"({"do":"job","job":1.5})", "\"job\" must be a whole number"},
        {R"({"do":"job","job":1,"wait":"soon"})", "\"wait\" must be"},
        {R"({"do":"job","job":1,"known":"held"})", "\"known\" needs \"wait\""},
    };
    Serve serve(person->path(), cups->environment());
    for (const auto &c : cases) {
        const QJsonObject answer = serve.ask(c.line);
        EXPECT_EQ(answer["ok"], QJsonValue(false)) << c.line.left(80).constData();
        EXPECT_TRUE(answer["why"].toString().startsWith(QString::fromUtf8(c.why)))
            << c.line.left(80).constData() << "\n"
            << answer["why"].toString().toStdString();
    }
    EXPECT_EQ(serve.ask(R"({"do":"check","queue":"Queue"})")["fits"], QJsonValue(true));
    EXPECT_EQ(serve.end(), 0);
    EXPECT_EQ(runProgram("sh", {"-c", HOST_PROGRAM " serve <&-"}, ".").exitCode, 0);
}

/// A server that says nothing, and one that is stopped under the program and comes back.
TEST_F(ServeTest, NoServerHoldsItUp) {
    QTcpServer silent;
    ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
    const QByteArray requests[] = {
        R"({"do":"list","seconds":0.5})",
        R"({"do":"queue","queue":"Queue","seconds":0.5})",
        R"({"do":"print","queue":"Queue","document":"good.ps","seconds":0.5})",
        R"({"do":"job","job":1,"seconds":0.5})",
    };
    QElapsedTimer timer;
    timer.start();
    {
        Serve serve(person->path(),
                    {"CUPS_SERVER=127.0.0.1:" + QString::number(silent.serverPort())});
        for (const QByteArray &request : requests)
            EXPECT_EQ(serve.ask(request)["ok"], QJsonValue(false)) << request.constData();
    }
    EXPECT_LT(timer.elapsed(), 10000);

    Serve serve(person->path(), cups->environment());
    EXPECT_EQ(serve.ask(requests[0])["ok"], QJsonValue(true));
    cups->stop();
    for (const QByteArray &request : requests) {
        const QJsonObject answer = serve.ask(request);
        EXPECT_TRUE(answer["why"].toString().contains("no CUPS server answers"))
            << answer["why"].toString().toStdString();
    }
    ASSERT_TRUE(cups->start());
    EXPECT_EQ(serve.ask(requests[0])["ok"], QJsonValue(true));
}

TEST_F(ServeTest, ExamplesPrint) {
    const QStringList environment =
        cups->environment() + QStringList{"PDE_HOST=" HOST_PROGRAM, "HOME=" + person->path()};
    const struct {
        QStringList arguments;
        int exitCode;
        QByteArray told;
    } cases[] = {
        {{"print_with_serve.sh", "Queue", "good.ps"}, 0, ": completed"},
        {{"print_with_serve.sh", "Queue", "no \"such\".ps"}, 1, "No such file"},
        {{"print_with_serve.py", "good.ps"}, 0, ": completed"},
        {{"print_with_serve.py", "good.ps", "InputSlot=ManualFeed", "Duplex=DuplexTumble"},
         0,
         "changed: Two-Sided Printing: Short Edge → Off"},
        {{"print_with_serve.py", "good.ps", "Queue", "Ink=3"}, 1, "Ink: This printer has no such"},
    };
    for (const auto &c : cases) {
        const ProgramRun run = runProgram(SOURCE_DIR "/examples/" + c.arguments[0],
                                          c.arguments.mid(1), person->path(), {}, environment);
        const std::string what = (c.arguments.join(' ') + '\n' + run.out + run.err).toStdString();
        EXPECT_EQ(run.exitCode, c.exitCode) << what;
        EXPECT_TRUE((run.out + run.err).contains(c.told)) << what;
    }
}

TEST(CustomChoice, IsMadeOfWhatAProgramGives) {
    const QTemporaryDir folder;
    const PpdPtr ppd(
        ppdOpenFile(writeFile(folder.path(), "s.ppd", settingsPpd()).toLocal8Bit().constData()));
    ASSERT_TRUE(ppd);
    const struct {
        const char *option;
        QByteArray given;
        const char *expected; ///< the choice, or what the reason ends with
    } cases[] = {
        {"PageSize", R"("Custom.300x400")", "Custom.300x400"},
        {"PageSize", R"("custom.4x5IN")", "Custom.288x360"},
        {"PageSize", R"({"Width":"10cm","height":400.5})", "Custom.283.46457x400.5"},
        {"PageSize", R"("Custom.300")", "each by its name."},
        {"PageSize", R"("Custom.300x4000")", "from 36 to 1,296 points."},
        {"PageSize", R"("Custom.nanx400")", "must be a number."},
        {"Ink", "\"Custom.4.5\"", "Custom.4.5"},
        {"Ink", R"({"Level":40})", "Custom.40"},
        {"Ink", R"({"Level":true})", "must be a number."},
        {"Ink", R"({"Level":[4]})", "such a value."},
        {"Ink", R"("Custom.4.5 ink")", "must be a number."},
        {"Pin", R"({"Code":"12a4"})", "takes digits only."},
        {"Pin", R"({"PIN":"1234"})", "value of such a name."},
        {"Mark", R"("{Text='it\\'s' Count=4}")", // what isn't given is at its nearest
         "{Text='it\\'s' Count=4 Place=10 Curve=0.1 Word=''}"},
        {"Mark", R"({"Text":"a\\b"})", "can't be printed."},
        {"Mark", R"("Custom.word")", "each by its name."},
        {"Mark", R"("{1234}")", "value of such a name."},
        {"Collate", R"("Custom.1")", "no values of one's own."},
    };
    for (const auto &c : cases) {
        QString why;
        const QString choice = host::customChoice(ppd.get(), *host::findOption(ppd.get(), c.option),
                                                  jsonOf(c.given), &why);
        EXPECT_TRUE(choice == c.expected || (choice.isNull() && why.endsWith(c.expected)))
            << c.given.constData() << ": " << choice.toStdString() << why.toStdString();
    }
}
