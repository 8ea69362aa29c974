#include "run_host.h"
#include "support/cups_daemon.h"
#include "support/ppd_text.h"

#include "host/host_error.h"
#include "host/presets/applied_preset.h"
#include "host/presets/preset_store.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

#include <sys/stat.h>

using host::Preset;
using host::PresetStore;
using Outcome = host::PresetStore::Outcome;
using Existing = host::PresetStore::Existing;

namespace {

Preset named(const QString &name, const QString &queue = "Queue") {
    Preset preset;
    preset.name = name;
    preset.queue = queue;
    preset.choices = {{"PageSize", {"A4"}}, {"Finish", {"Staple", "Punch"}}};
    preset.jobOptions = {{"copies", "2"}};
    preset.settings = {{"a.key", {"two\nlines \"ü\"", true}}};
    return preset;
}

QStringList namesIn(const PresetStore &store, const QString &queue) {
    QStringList names;
    for (const host::PresetRow &row : store.list(queue))
        names.append(row.name);
    return names;
}

/// What an operation complains of; null if it succeeds.
template <typename Do>
QString complaint(const Do &act) {
    try {
        act();
        return {};
    } catch (const host::HostError &error) {
        return error.text();
    }
}

/// A queue with everything that a preset has to think of.
PpdPtr openQueue(const QByteArray &types = "Plain", bool custom = true) {
    QByteArray text =
        "*OpenGroup: InstallableOptions/Installed\n" + ppdOption("Tray", {"False", "True"}) +
        "*CloseGroup: InstallableOptions\n"
        "*VariablePaperSize: True\n*MaxMediaWidth: \"900\"\n*MaxMediaHeight: \"900\"\n";
    QList<QByteArray> sorts = types.split(',');
    text += ppdOption("MediaType", sorts, {}, "Paper Type") +
            ppdOption("PageSize", {"A4", "Letter"}, {}, "Paper Size") +
            "*PaperDimension A4: \"595 842\"\n*ImageableArea A4: \"0 0 595 842\"\n"
            "*PaperDimension Letter: \"612 792\"\n*ImageableArea Letter: \"0 0 612 792\"\n" +
            ppdOption("Finish", {"Staple", "Punch", "Fold"})
                .replace("PickOne", "PickMany")
                .replace("*DefaultFinish: Staple\n", "") +
            ppdOption("Level", {"Low"}, {}, "Ink") + ppdOption("Mark", {"None"}) +
            ppdOption("Pin", {"None"}, {}, "Secured") + ppdOption("Owner", {"None"}, {}, "Mailbox");
    if (custom)
        text += "*CustomPageSize True: \"pop\"\n*ParamCustomPageSize Width: 1 points 10 900\n"
                "*ParamCustomPageSize Height: 2 points 10 900\n"
                "*CustomLevel True: \"pop\"\n*ParamCustomLevel Level: 1 int 0 99\n"
                "*CustomMark True: \"pop\"\n*ParamCustomMark Text: 1 string 0 40\n"
                "*ParamCustomMark Size: 2 real 0.5 9\n"
                "*CustomPin True: \"pop\"\n*ParamCustomPin Code: 1 passcode 4 8\n"
                "*CustomOwner True: \"pop\"\n*ParamCustomOwner Name: 1 string 0 40\n"
                "*ParamCustomOwner Word: 2 password 0 8\n";
    return openPpdText(text);
}

void mark(const PpdPtr &ppd, const QList<QPair<QByteArray, QByteArray>> &marks) {
    for (const auto &[option, choice] : marks)
        ppdMarkOption(ppd.get(), option, choice);
}

QMap<QString, QStringList> choicesOf(const PpdPtr &ppd) {
    return host::presetOf(ppd.get(), "Queue", {}, {}).choices;
}

} // namespace

TEST(PresetStore, AnyNameOfAQueueOrPresetKeepsItsOwnFile) {
    QTemporaryDir folder;
    PresetStore store(folder.filePath("deep/er"));
    // clang-format off
    const QStringList names{"a", "A", "a/b", ".", "..", ".hidden", "con", "50% ~x", "a%2Fb", "ü 写真",
                            QString(150, u'写'), QString(149, u'写') + u'真', QString(200, u'x')};
    // clang-format on
    for (const QString &queue : names)
        for (const QString &name : names)
            ASSERT_EQ(store.save(named(name, queue)), Outcome::Done) << name.toStdString();
    QStringList sorted = names, queues = store.queues();
    sorted.sort();
    queues.sort();
    EXPECT_EQ(queues, sorted);
    for (const QString &queue : names) {
        QStringList kept = namesIn(store, queue);
        kept.sort();
        EXPECT_EQ(kept, sorted) << queue.toStdString();
        const Preset preset = store.load(queue, names[10]);
        EXPECT_TRUE(preset.setsSameAs(named({})));
        EXPECT_EQ(preset.name, names[10]);
    }
    for (const QString &name : names)
        store.remove(names[3], name);
    EXPECT_EQ(store.queues().size(), names.size() - 1);
    for (const QString &bad : {QString(), QString(" "), QString("a\nb"), QString(201, u'x')})
        EXPECT_FALSE(complaint([&] { store.save(named(bad)); }).isNull()) << bad.toStdString();
}

TEST(PresetStore, NothingIsReplacedUnasked) {
    QTemporaryDir folder;
    PresetStore store(folder.path());
    Preset other = named("b");
    other.choices.clear();
    store.save(named("a10"));
    store.save(other);
    EXPECT_EQ(store.save(named("b")), Outcome::Exists);
    EXPECT_EQ(store.rename("Queue", "a10", "b"), Outcome::Exists);
    EXPECT_TRUE(store.load("Queue", "b").setsSameAs(other));
    EXPECT_EQ(store.rename("Queue", "a10", "C/9"), Outcome::Done);
    EXPECT_EQ(store.save(named("B10")), Outcome::Done);
    EXPECT_EQ(namesIn(store, "Queue"), (QStringList{"b", "B10", "C/9"}));
    EXPECT_EQ(store.save(named("b"), Existing::Replace), Outcome::Done);
    EXPECT_TRUE(store.load("Queue", "b").setsSameAs(named("b")));

    store.exportFile("Queue", "C/9", folder.filePath("out.json"));
    EXPECT_EQ(store.importFile(folder.filePath("out.json"), "Queue").outcome, Outcome::Exists);
    const PresetStore::Imported imported = store.importFile(folder.filePath("out.json"), "Other");
    EXPECT_EQ(imported.fromQueue, "Queue");
    EXPECT_TRUE(store.load("Other", "C/9").setsSameAs(named({})));
    EXPECT_TRUE(complaint([&] { store.load("Queue", "a10"); }).contains("has no preset"));
    EXPECT_TRUE(complaint([&] { store.save(named("x", QString("q"))); }).isNull());
}

/// Writers at the same time, each with a store of its own, as processes are.
TEST(PresetStore, WritersAtOnceLoseNothing) {
    QTemporaryDir folder;
    constexpr int kWriters = 6, kRounds = 8;
    std::atomic<int> done = 0;
    std::vector<std::thread> writers;
    for (int writer = 0; writer < kWriters; ++writer)
        writers.emplace_back([&, writer] {
            PresetStore store(folder.path());
            const auto insist = [](const auto &act) { // a slow machine keeps others waiting
                while (complaint(act).contains("in use"))
                    ;
            };
            for (int i = 0; i < kRounds; ++i) {
                insist([&] { done += store.save(named(QString::number(i))) == Outcome::Done; });
                insist([&] { store.save(named(QString("%1 of %2").arg(i).arg(writer))); });
                insist([&] { store.noteRecentQueue(QString::number(writer)); });
            }
        });
    for (std::thread &writer : writers)
        writer.join();
    EXPECT_EQ(done, kRounds) << "each shared name has one maker";
    EXPECT_EQ(PresetStore(folder.path()).list("Queue").size(), kRounds * (kWriters + 1));
    EXPECT_EQ(PresetStore(folder.path()).recentQueues().size(), kWriters);
}

TEST(PresetStore, RemembersSettingsAndQueues) {
    QTemporaryDir folder;
    PresetStore store(folder.path());
    EXPECT_FALSE(store.lastUsed("a/b"));
    store.setLastUsed("a/b", named({}, "elsewhere"));
    ASSERT_TRUE(store.lastUsed("a/b"));
    EXPECT_TRUE(store.lastUsed("a/b")->setsSameAs(named({})));
    EXPECT_FALSE(store.hasLastUsed("a"));
    store.setLastUsed("a/b", std::nullopt);
    EXPECT_FALSE(store.hasLastUsed("a/b"));

    for (int i = 0; i < 12; ++i)
        store.noteRecentQueue(QString::number(i));
    store.noteRecentQueue("5");
    EXPECT_EQ(store.recentQueues().join(' '), "5 11 10 9 8 7 6 4 3 2");
    writeFile(folder.path(), "recent-queues.json", "[1, {}, \"x\", \"x\"");
    EXPECT_EQ(store.recentQueues(), QStringList());
}

TEST(Preset, RefusesWhatIsNone) {
    const QByteArray good = host::presetText(named("Good"));
    const struct {
        QByteArray text;
        const char *reason;
    } cases[] = {
        {"", "isn't a preset"},
        {"[1]", "isn't a preset"},
        {"{\"name\": \"x\"}", "isn't a preset"},
        {good.chopped(4), "line 2"},
        {QByteArray(good).replace("Good", "Go\xff"), "isn't a preset: line"},
        {QByteArray(good).replace("Good", "a\\u0000b"), "“name” has a character"},
        {QByteArray(good).replace("Good", "a\\ud800b"), "“name” has a character"},
        {QByteArray(good).replace("Good", "a\\nb"), "the name has a character"},
        {QByteArray(good).replace("\"version\": 1", "\"version\": 2"), "newer version"},
        {QByteArray(good).replace("\"version\": 1", "\"version\": 0.5"), "“version”"},
        {QByteArray(good).replace("\"version\": 1", "\"version\": \"1\""), "“version”"},
        {QByteArray(good).replace("\"queue\"", "\"qeue\""), "unknown key “qeue”"},
        {QByteArray(good).replace("\"queue\"", "\"name\""), "has a key twice"},
        {QByteArray(good).replace("\"locked\"", "\"a:\\\":\":1,\"locked\""), "“a.key”"},
        {QByteArray(good).replace("\"copies\": \"2\"", "\"copies\": 2"), "“copies”"},
        {QByteArray(good).replace("\"copies\"", "\"\""), "“jobOptions” has an empty key"},
        {QByteArray(good).replace("\"A4\"", "{}"), "“PageSize”"},
        {QByteArray(good).replace("\"Staple\"", "[]"), "“Finish”"},
        {"{\"a\":" + QByteArray(5000, '[') + QByteArray(5000, ']') + "}", "isn't a preset"},
        {good + QByteArray(host::kGreatestPresetFile, ' '), "is larger than 1 MB"},
    };
    for (const auto &c : cases) {
        QString reason;
        EXPECT_FALSE(host::parsePreset(c.text, &reason)) << c.text.left(500).constData();
        EXPECT_TRUE(reason.contains(c.reason)) << c.reason << " / " << reason.toStdString();
    }
    QString reason;
    const auto read = host::parsePreset(good, &reason);
    ASSERT_TRUE(read) << reason.toStdString();
    EXPECT_EQ(host::presetText(*read), good);
}

TEST(PresetStore, DamagedFilesAreListedAndHideNoOther) {
    QTemporaryDir folder;
    PresetStore store(folder.path());
    store.save(named("good"));
    const QString queue = folder.filePath("presets/Queue");
    const QByteArray future =
        host::presetText(named("newer")).replace("\"version\": 1", "\"version\": 7");
    writeFile(queue, "newer.json", future);
    writeFile(queue, "by hand v1.2.json", host::presetText(named("else")));
    writeFile(queue, "bad%FF.json", "{");
    writeFile(queue, "none~0123.json", "{");
    mkfifo(QFile::encodeName(queue + "/pipe.json").constData(), 0600);
    QFile::link("/nowhere", queue + "/link.json");
    EXPECT_EQ(namesIn(store, "Queue"), (QStringList{"bad%FF", "by hand v1.2", "good", "link",
                                                    "newer", "none~0123", "pipe"}));
    for (const host::PresetRow &row : store.list("Queue"))
        EXPECT_EQ(row.problem.isNull(), row.name == "good" || row.name == "by hand v1.2")
            << row.name.toStdString() << ": " << row.problem.toStdString();
    EXPECT_TRUE(store.load("Queue", "by hand v1.2").setsSameAs(named({})));
    EXPECT_FALSE(complaint([&] { store.rename("Queue", "newer", "x"); }).isNull());
    EXPECT_EQ(store.save(named("newer")), Outcome::Exists);
    EXPECT_EQ(readFile(queue + "/newer.json"), future);
    for (const char *name : {"bad%FF", "none~0123", "pipe", "link", "by hand v1.2"})
        store.remove("Queue", name);
    EXPECT_EQ(namesIn(store, "Queue"), (QStringList{"good", "newer"}));
}

TEST(AppliedPreset, WhatStoodComesBack) {
    const PpdPtr from = openQueue("Plain,Glossy"), to = openQueue("Plain,Glossy");
    ASSERT_TRUE(from && to);
    mark(from, {{"Tray", "True"},
                {"MediaType", "Glossy"},
                {"PageSize", "Custom.283.5x300"},
                {"Finish", "Staple"},
                {"Finish", "Fold"},
                {"Level", "Custom.42"},
                {"Mark", "{Text='it\\'s a \"b\" {c}' Size=1.25}"}});
    mark(to, {{"Finish", "Punch"}});
    PrintSettings settings, applied;
    settings.set("a.key", "v", true);
    const Preset preset = host::presetOf(from.get(), "Queue", settings, {{"copies", "3"}});
    EXPECT_FALSE(preset.choices.contains("Tray")) << "the device's equipment";
    EXPECT_EQ(host::applyPreset(preset, to.get(), applied), QStringList());
    EXPECT_EQ(choicesOf(to), choicesOf(from));
    EXPECT_TRUE(ppdIsMarked(to.get(), "Tray", "False"));
    EXPECT_FALSE(ppdIsMarked(to.get(), "Finish", "Punch"));
    EXPECT_EQ(
        ppdFindCustomParam(ppdFindCustomOption(to.get(), "Mark"), "Text")->current.custom_string,
        std::string("it's a \"b\" {c}"));
    EXPECT_TRUE(applied.find("a.key")->locked);
    EXPECT_EQ(host::applyPreset(preset, to.get(), applied), QStringList()) << "once more";
}

TEST(AppliedPreset, TellsWhatIsGoneAndAppliesTheRest) {
    const PpdPtr ppd = openQueue();
    ASSERT_TRUE(ppd);
    PrintSettings settings;
    settings.set("locked", "old", true);
    Preset preset;
    preset.choices = {{"MediaType", {"Glossy"}},      {"Stapler", {"Left"}},
                      {"pagesize", {"letter"}},       {"Level", {"Custom.500"}},
                      {"Mark", {"{Text=x Size=99}"}}, {"Finish", {"Fold", "Glue"}}};
    preset.settings = {{"locked", {"new", false}}, {"free", {"new", false}}};
    mark(ppd, {{"Level", "Custom.7"}});
    EXPECT_EQ(host::applyPreset(preset, ppd.get(), settings).join('\n').toStdString(),
              "Paper Type: “Glossy” is no longer there\n"
              "Finish title: “Glue” is no longer there\n"
              "Ink: “Custom.500” is outside of what this printer takes\n"
              "Mark title: “{Text=x Size=99}” is outside of what this printer takes\n"
              "“Stapler” is no longer a setting of this printer; the preset has “Left”\n"
              "locked: is locked and stays “old”");
    EXPECT_TRUE(ppdIsMarked(ppd.get(), "PageSize", "Letter"));
    EXPECT_TRUE(ppdIsMarked(ppd.get(), "Mark", "None"));
    EXPECT_EQ(choicesOf(ppd)["Level"], QStringList("Custom.7"));
    EXPECT_EQ(choicesOf(ppd)["Finish"], QStringList("Fold"));
    EXPECT_EQ(settings.find("free")->value, "new");

    const PpdPtr plain = openQueue("Plain", false);
    preset.choices = {{"Level", {"Custom.5"}}, {"PageSize", {"Custom.9x9"}}};
    EXPECT_EQ(host::applyPreset(preset, plain.get(), settings).size(), 3);
    EXPECT_EQ(host::applyPreset(preset, nullptr, settings).size(), 3) << "no PPD at all";
}

TEST(AppliedPreset, KeepsNoPassword) {
    const PpdPtr ppd = openQueue();
    ASSERT_TRUE(ppd);
    mark(ppd, {{"Pin", "Custom.4711"}, {"Owner", "{Name='A B' Word=4711}"}});
    PrintSettings settings;
    settings.set("some.Password", "4711", false);
    const Preset preset =
        host::presetOf(ppd.get(), "Queue", settings, {{"job-password", "4711"}, {"copies", "2"}});
    EXPECT_FALSE(host::presetText(preset).contains("4711")) << host::presetText(preset).constData();
    EXPECT_EQ(preset.jobOptions.keys(), QStringList("copies"));
    EXPECT_EQ(host::applyPreset(preset, ppd.get(), settings).size(), 2)
        << "the PPD's own still stand";

    const PpdPtr fresh = openQueue();
    const QStringList problems = host::applyPreset(preset, fresh.get(), settings);
    EXPECT_EQ(problems.join('\n').toStdString(),
              "Secured: passwords aren't kept in presets; enter it again\n"
              "Mailbox: passwords aren't kept in presets; enter it again\n"
              "job-password: passwords aren't kept in presets; enter it again\n"
              "some.Password: passwords aren't kept in presets; enter it again");
    EXPECT_TRUE(ppdIsMarked(fresh.get(), "Pin", "None"));
    EXPECT_EQ(choicesOf(fresh)["Owner"], QStringList("{Name='A B'}"));
}

TEST(PresetCommands, PrintAndList) {
    CupsDaemon cups;
    ASSERT_TRUE(cups.start() && cups.addQueue("Queue", samplePath("velmora-mvo-530.ppd")));
    const QStringList environment =
        cups.environment() + QStringList{"XDG_CONFIG_HOME=" + cups.folder() + "/config"};
    PresetStore store(cups.folder() + "/config/image-options");
    Preset preset = named("My Draft");
    preset.choices = {{"QZColorMode", {"Black"}}, {"QZOutputMode", {"Draft"}}, {"Gone", {"X"}}};
    preset.settings["a.key"].value = "one line"; // more can't be sent
    store.save(preset);
    preset.queue = "velmora-mvo-530";
    store.save(preset);
    writeFile(cups.folder() + "/config/image-options/presets/Queue", "bad.json", "{}");
    const QString document = samplePath("sample.ps"), ppd = samplePath("velmora-mvo-530.ppd");

    struct Case {
        QStringList arguments;
        int exitCode;
        QByteArray out, err;
    };
    const QByteArray gone =
        "pde-host: My Draft: “Gone” is no longer a setting of this printer; the preset has “X”\n";
    const QByteArray unused = "pde-host: copies: isn't used in a job that goes to a file\n";
    const QByteArray usage =
        "pde-host: --queue: needs --presets (pde-host --help tells the usage)\n";
    const QByteArray all =
        "Queue\tbad\tisn't a preset\nQueue\tMy Draft\nvelmora-mvo-530\tMy Draft\n";
    const QByteArray none = "pde-host: --preset: my draft: “Queue” has no preset of this name\n";
    // clang-format off
    const Case cases[] = {
        {{"list", "--presets"}, 0, all, ""},
        {{"list", "--presets", "--queue", "velmora-mvo-530"}, 0, "velmora-mvo-530\tMy Draft\n", ""},
        {{"list", "--presets", "--queue", "None"}, 0, "", ""},
        {{"list", "--queue", "Queue"}, 2, "", usage},
        {{"print", "--queue", "Queue", "--preset", "my draft", document}, 2, "", none},
        {{"print", "--queue", "Queue", "--preset", "bad", document}, 2, "", "pde-host: --preset: bad: isn't a preset\n"},
        {{"print", "--ppd", ppd, "--to", "job.ps", "--ticket", "t.json", "--preset", "My Draft", "-o", "QZColorMode=Color", "--setting", "a.key=mine", document}, 0, "", gone + unused},
        {{"print", "--queue", "Queue", "--preset", "My Draft", document}, 0, "Queue-1\n", gone},
    };
    // clang-format on
    for (const auto &c : cases) {
        const HostRun run = runHost(c.arguments, cups.folder(), {}, environment);
        const std::string what = c.arguments.join(' ').toStdString();
        EXPECT_EQ(run.exitCode, c.exitCode) << what;
        EXPECT_EQ(run.out, c.out) << what;
        EXPECT_EQ(run.err, c.err) << what;
    }
    const QByteArray job = readFile(cups.folder() + "/job.ps");
    EXPECT_TRUE(job.contains("*QZColorMode Color")) << "-o wins";
    EXPECT_TRUE(job.contains("*QZOutputMode Draft"));
    EXPECT_TRUE(readFile(cups.folder() + "/t.json").contains("\"a.key\": \"mine\""));
    ASSERT_TRUE(cups.waitForJobs("Queue"));
    EXPECT_TRUE(readFile(cups.outputOf("Queue")).contains("*QZColorMode Black"));
    EXPECT_TRUE(cups.log().contains("argv[4]=\"2\"")) << "two copies";
}
