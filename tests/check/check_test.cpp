// What the maker of a PPD is told, each rule by a fault that is planted in a sample.

#include "support/ppd_text.h"
#include "support/run_program.h"

#include "check/findings.h"

#include <QDir>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QList<check::Finding> findingsIn(const QByteArray &text) {
    static const std::shared_ptr<Bundle> bundle = Bundle::open(QStringLiteral(BUNDLE_DIR));
    const PpdFile file = parsePpdFile(text);
    EXPECT_TRUE(file.ppd) << file.reason.toStdString();
    return file.ppd ? check::findingsOf(file, *bundle) : QList<check::Finding>();
}

struct Planted {
    const char *rule;
    QByteArray good, bad;   ///< the first such text of the sample, and what stands there instead
    QByteArray blamed = {}; ///< what the line that is told begins with; else what is planted
};

const Planted kPlanted[] = {
    {"no-default", "*DefaultQZEngineScreen", "*DefaultNoSuchOption", "*OpenUI *QZEngineScreen"},
    {"default-missing", "*DefaultDuplex: None", "*DefaultDuplex: Nothing"},
    {"product-type", "*OpenUI *QZColorTemperature/", "*OpenUI *QZColorTemperatures/",
     "*QZXImageOptionsSettings"},
    {"constraint-case", "*UIConstraints: *InputSlot ManualFeed *Duplex",
     "*UIConstraints: *inputslot ManualFeed *Duplex"},
    {"constraint-case", "*UIConstraints: *InputSlot ManualFeed *Duplex",
     "*UIConstraints: *InputSlot manualfeed *Duplex"},
    {"constraint-one-way", "*UIConstraints: *Duplex *InputSlot ManualFeed\n", "",
     "*UIConstraints: *InputSlot ManualFeed *Duplex"},
    {"constraint-unknown", "*UIConstraints: *InputSlot ManualFeed *Duplex",
     "*UIConstraints: *InputSlot ManualFeed *Stapler"},
    {"constraint-unknown", "*UIConstraints: *InputSlot ManualFeed *Duplex",
     "*UIConstraints: *InputSlot Nowhere *Duplex"},
    {"check-box-choices", "*QZBlackOverprint True/", "*QZBlackOverprint Yes/",
     "*OpenUI *QZBlackOverprint"},
    {"density-number", "*QZColorDensityCyanLow 2/", "*QZColorDensityCyanLow Two/"},
    {"density-order", "*QZColorDensityCyanLow 2/", "*QZColorDensityCyanLow 7/"},
    {"rgb-none", "*QZRGBCorrection None/", "*QZRGBCorrection Nil/", "*OpenUI *QZRGBCorrection"},
    {"rgb-default", "*DefaultQZRGBCorrection: Colorimetric", "*DefaultQZRGBCorrection: None",
     "*OpenUI *QZRGBCorrection"},
    {"label-encoding", "*QZColorMode Color/Color",
     "*QZColorMode Color/Gr\xff"
     "n"},
    {"label-cut", "*QZColorMode Color/Color", "*QZColorMode Color/" + QByteArray(100, 'W')},
    {"label-clipped", "*OpenUI *QZColorMode/Color Mode",
     "*OpenUI *QZColorMode/The Colors That Will Be Used for This Job"},
    {"cache-missing", "*FormatVersion", "*QZXCDFSetting: \"/nowhere\"\n*FormatVersion",
     "*QZXCDFSetting"},
    {"layout-missing", "\"Default00-MVO530\"", "\"Default77-MVO530\"", "*QZXImageOptionsSettings"},
    {"help-missing", "\"Default00-MVO530\"", "\"Default00-MVO777\"", "*QZXImageOptionsSettings"},
    {"mailbox-mode", "*QZXImageOptionsSettings",
     "*QZXMailBoxSettings: \"AutoNothing\"\n*QZXImageOptionsSettings", "*QZXMailBoxSettings"},
    {"strings-missing", "*QZXImageOptionsSettings",
     "*QZLocalizableFileIndex: \"99\"\n*QZXImageOptionsSettings", "*QZLocalizableFileIndex"},
};

} // namespace

TEST(Check, EachPlantedFaultIsFoundAlone) {
    const QByteArray sample =
        readFile(samplePath("velmora-mvo-530.ppd")).replace("ISOLatin1", "UTF-8");
    EXPECT_TRUE(findingsIn(sample).isEmpty());
    for (const Planted &fault : kPlanted) {
        SCOPED_TRACE(std::string(fault.rule) + ": " + fault.bad.constData());
        QByteArray text = sample;
        const qsizetype at = text.indexOf(fault.good);
        ASSERT_GE(at, 0);
        text.replace(at, fault.good.size(), fault.bad);
        const QList<QByteArray> lines = text.split('\n');
        bool isFound = false;
        for (const check::Finding &finding : findingsIn(text))
            if (qstrcmp(finding.rule, fault.rule) == 0) {
                const QByteArray line = lines.value(finding.line - 1);
                isFound |= line.startsWith(fault.blamed.isEmpty() ? fault.bad : fault.blamed);
                EXPECT_FALSE(finding.text.isEmpty() || finding.remedy.isEmpty());
            }
        EXPECT_TRUE(isFound);
    }
}

TEST(Check, TellsByLineJsonAndExitCode) {
    const QTemporaryDir folder;
    const auto run = [&](const QStringList &arguments) {
        return runProgram(HOST_PROGRAM, QStringList{"inspect", "--check"} + arguments,
                          folder.path());
    };
    for (const QString &name : QDir(SAMPLES_DIR).entryList({"*.ppd"}))
        EXPECT_EQ(run({samplePath(name)}).exitCode, 0) << name.toStdString();
    writeFile(folder.path(), "bad.ppd",
              readFile(samplePath("velmora-mvo-530.ppd")).replace("*DefaultDuplex: None", "*%"));
    const ProgramRun text = run({"bad.ppd"});
    EXPECT_EQ(text.exitCode, 1);
    EXPECT_TRUE(text.out.contains(": problem: Duplex has no default.")) << text.out.constData();
    const ProgramRun json = run({"bad.ppd", "--json"});
    EXPECT_EQ(json.exitCode, 1);
    EXPECT_EQ(QJsonDocument::fromJson(json.out)["findings"][0]["rule"].toString(), "no-default");
    const ProgramRun none = run({"none.ppd"});
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_EQ(none.err, "pde-host: none.ppd: No such file or directory\n");
}
