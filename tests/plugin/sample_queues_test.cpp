#include "plugin_fixture.h"

#include "ppd/constraint_table.h"
#include "ppd/ppd_query.h"
#include "ppd/product_type.h"

#include <QDir>
#include <QProcess>

#include <map>

namespace {

class SampleQueuesTest : public PluginTest {
protected:
    /// The panel of a sample, opened.
    std::unique_ptr<PDEPanel> openPanel(const QString &sample) {
        ppd = openSample(sample);
        auto made = panels(ppd.get());
        if (made.empty())
            return nullptr;
        made.front()->supportedPPDOptionKeys();
        made.front()->panelView();
        EXPECT_TRUE(made.front()->restoreValuesAndReturnError(nullptr)) << sample.toStdString();
        made.front()->willShow();
        return std::move(made.front());
    }

    PpdPtr ppd;
};

TEST_F(SampleQueuesTest, LibcupsAcceptsEach) {
    const QStringList samples = QDir(samplePath("")).entryList({"*.ppd"}, QDir::Files);
    ASSERT_GE(samples.size(), 6);
    for (const QString &sample : samples) {
        QProcess check;
        check.start("cupstestppd", {"-W", "filters", samplePath(sample)});
        ASSERT_TRUE(check.waitForFinished());
        EXPECT_EQ(check.exitCode(), 0) << check.readAllStandardOutput().toStdString();
    }
}

TEST_F(SampleQueuesTest, EachProductTypeHasItsQueue) {
    struct Row {
        const char *sample;
        int type; // 0: no panel
    };
    const Row rows[] = {
        {"velmora-mvo-110.ppd", 1}, {"velmora-mvo-220.ppd", 2},        {"velmora-mvo-420.ppd", 4},
        {"velmora-mvo-530.ppd", 5}, {"velmora-mvo-530-cached.ppd", 5}, {"velmora-plain.ppd", 0},
    };
    for (const Row &row : rows) {
        const std::unique_ptr<PDEPanel> panel = openPanel(row.sample);
        EXPECT_EQ(panel != nullptr, row.type != 0) << row.sample;
        if (!panel)
            continue;
        CPPDChecker *checker = CPPDChecker::Instance();
        checker->Init();
        for (const auto &[key, found] : std::map(checker->checks))
            checker->AddCheck(key.c_str(), CheckPPDKeyIsExist(ppd.get(), key.c_str()));
        EXPECT_TRUE(checker->RunCheck()) << row.sample;
        EXPECT_EQ(checker->productType, row.type) << row.sample;
    }
}

TEST_F(SampleQueuesTest, ColourModeForbidsAndHoldsDown) {
    const std::unique_ptr<PDEPanel> panel = openPanel("velmora-mvo-530.ppd");
    ASSERT_TRUE(panel);
    QWidget *root = panel->panelView();
    auto *mode = root->findChild<PopupView *>("ColorModeList");
    auto *type = root->findChild<PopupView *>("ImageTypeList");
    ASSERT_TRUE(mode && type);
    EXPECT_TRUE(views::isEnabled(type));
    ASSERT_TRUE(mode->chooseItem(1));
    EXPECT_EQ(host->marked("QZColorMode"), "Black");
    EXPECT_FALSE(views::isEnabled(type));
    EXPECT_FALSE(views::isEnabled(root->findChild<TextView *>("ImageTypeStaticText")));
    ASSERT_TRUE(mode->chooseItem(0));
    EXPECT_TRUE(views::isEnabled(type));
}

TEST_F(SampleQueuesTest, ScreenGoesBackOnAPersonsChangeOnly) {
    const std::unique_ptr<PDEPanel> panel = openPanel("velmora-mvo-530.ppd");
    ASSERT_TRUE(panel);
    auto *screen = panel->panelView()->findChild<PopupView *>("ScreenList");
    auto *output = panel->panelView()->findChild<PopupView *>("OutputModeList");
    ASSERT_TRUE(screen && output && screen->chooseItem(1));
    const QByteArray chosen = host->marked("QZEngineScreen");
    panel->saveValuesAndReturnError(nullptr);
    panel->restoreValuesAndReturnError(nullptr);
    panel->willShow();
    EXPECT_EQ(host->marked("QZEngineScreen"), chosen);
    EXPECT_EQ(screen->indexOfSelectedItem(), 1);
    ASSERT_TRUE(output->chooseItem(output->indexOfSelectedItem() == 0 ? 1 : 0));
    EXPECT_EQ(screen->indexOfSelectedItem(), 0);
    EXPECT_EQ(host->marked("QZEngineScreen"),
              ppdFindOption(ppd.get(), "QZEngineScreen")->defchoice);
}

TEST_F(SampleQueuesTest, CacheGivesTheConflictsOfThePpd) {
    const auto tableOf = [this](const QString &sample) {
        const std::unique_ptr<PDEPanel> panel = openPanel(sample);
        std::multimap<std::string, std::array<int, 3>> entries;
        if (panel)
            dynamic_cast<ImageOptionsPDEk27 &>(*panel).Getxppd()->forEach([&entries](
                                                                              std::string_view key,
                                                                              x_constraints at) {
                entries.insert({std::string(key), {at.groupIndex, at.optionIndex, at.choiceIndex}});
            });
        std::vector<std::pair<std::string, std::array<int, 3>>> sorted(entries.begin(),
                                                                       entries.end());
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    };
    const auto fresh = tableOf("velmora-mvo-530.ppd");
    EXPECT_FALSE(fresh.empty());
    EXPECT_EQ(tableOf("velmora-mvo-530-cached.ppd"), fresh);
}

TEST_F(SampleQueuesTest, SummaryFollowsTheSweep) {
    const std::unique_ptr<PDEPanel> panel = openPanel("velmora-mvo-530.ppd");
    ASSERT_TRUE(panel);
    const QVariantMap summary = panel->summaryInfo();
    const QStringList order = summary.value("Summary Display Order").toStringList();
    EXPECT_EQ(order.size() + 1, summary.size());
    EXPECT_EQ(order.first(), QString::fromUtf8(ppdFindOption(ppd.get(), "QZColorMode")->text));
    EXPECT_EQ(panel->summaryInfo(), summary);
    for (const QString &title : order)
        EXPECT_FALSE(summary.value(title).toString().isEmpty()) << title.toStdString();
}

} // namespace
