#include "plugin_fixture.h"

#include "ppd/conflicts.h"
#include "ppd/constraint_cache.h"
#include "ppd/constraint_table.h"
#include "ppd/entries.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <fstream>

namespace {

QStringList sampleNames() {
    return QDir(samplePath("")).entryList({"*.ppd"}, QDir::Files);
}

using SampleQueuesTest = PluginTest;

TEST_F(SampleQueuesTest, LibcupsAcceptsEach) {
    for (const QString &sample : sampleNames()) {
        QProcess check;
        check.start("cupstestppd", {"-W", "none", samplePath(sample)});
        ASSERT_TRUE(check.waitForFinished());
        EXPECT_EQ(check.exitCode(), 0) << check.readAllStandardOutput().toStdString();
        EXPECT_EQ(ppdConflicts(openSample(sample).get()), 0) << sample.toStdString();
    }
    EXPECT_EQ(openSample("velmora-mvo-590.ppd")->num_consts, 5000);
}

TEST_F(SampleQueuesTest, CacheGivesTheConflictsOfThePpd) {
    const auto tableOf = [this](const QString &sample) {
        const PpdPtr ppd = openSample(sample);
        const std::unique_ptr<PDEPanel> panel = std::move(panels(ppd.get()).at(0));
        panel->supportedPPDOptionKeys();
        return entries(*dynamic_cast<ImageOptionsPDEk27 &>(*panel).Getxppd());
    };
    const std::string fresh = tableOf("velmora-mvo-530.ppd");
    EXPECT_FALSE(fresh.empty());
    EXPECT_EQ(tableOf("velmora-mvo-530-cached.ppd"), fresh);

    const QTemporaryDir folder;
    const QString cache = folder.filePath("written.cdf");
    for (const QString &sample : sampleNames()) {
        const PpdPtr ppd = openSample(sample);
        ASSERT_EQ(QProcess::execute(QFileInfo(HOST_PROGRAM).dir().filePath("cdf-tool"),
                                    {"write", samplePath(sample), "-o", cache}),
                  0);
        hash_multimap read, made;
        std::string section = strImageOptionPDETiger;
        CQuickXPPD reader(&read, &section);
        std::ifstream(cache.toStdString()) >> reader;
        xSetxppd(ppd.get(), &made);
        EXPECT_EQ(entries(read), entries(made)) << sample.toStdString();
    }
}

} // namespace
