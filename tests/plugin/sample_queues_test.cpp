#include "plugin_fixture.h"

#include "ppd/conflicts.h"
#include "ppd/constraint_cache.h"
#include "ppd/constraint_table.h"
#include "ppd/entries.h"
#include "ppd/panel_options.h"
#include "ppd/ppd_query.h"
#include "ppd/product_type.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <fstream>

namespace {

/// In what the queues of one type differ.
enum Variant { Overprint = 1, Invalidate = 2, EvenBrightness = 4, TrueFirst = 8, Mailbox = 16 };

int variantsOf(ppd_file_t *ppd) {
    const ppd_option_t *brightness = ppdFindOption(ppd, kPPDBrightnessKey);
    const ppd_option_t *balance = ppdFindOption(ppd, kPPDColorBalanceAdjustmentKey);
    int variants = 0;
    for (const auto &[variant, holds] : {
             std::pair(Overprint, CheckPPDKeyIsExist(ppd, kPPDBlackOverPrintKey)),
             std::pair(Invalidate, CheckPPDKeyIsExist(ppd, kQZInvalidateColorProfile)),
             std::pair(EvenBrightness, brightness && brightness->num_choices % 2 == 0),
             std::pair(TrueFirst, balance && !qstrcmp(balance->choices[0].choice, "True")),
             std::pair(Mailbox, ppdFindAttr_ALT(ppd, kQZMailboxSetting, nullptr) != nullptr),
         })
        variants |= holds ? variant : 0;
    return variants;
}

QStringList sampleNames() {
    return QDir(samplePath("")).entryList({"*.ppd"}, QDir::Files);
}

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
    for (const QString &sample : sampleNames()) {
        QProcess check;
        check.start("cupstestppd", {"-W", "none", samplePath(sample)});
        ASSERT_TRUE(check.waitForFinished());
        EXPECT_EQ(check.exitCode(), 0) << check.readAllStandardOutput().toStdString();
        EXPECT_EQ(ppdConflicts(openSample(sample).get()), 0) << sample.toStdString();
    }
}

TEST_F(SampleQueuesTest, EachProductTypeAndVariantHasItsQueue) {
    struct Row {
        QString sample;
        int type; // -1: none, and no panel
        int variants;
    };
    const Row rows[] = {
        {"sorvani-sv500.ppd", 5, Overprint | Invalidate},
        {"velmora-mvo-110.ppd", 1, EvenBrightness},
        {"velmora-mvo-220.ppd", 2, Invalidate | TrueFirst},
        {"velmora-mvo-420.ppd", 4, Mailbox},
        {"velmora-mvo-530-cached.ppd", 5, Overprint},
        {"velmora-mvo-530-de.ppd", 5, Overprint},
        {"velmora-mvo-530-ja.ppd", 5, Overprint},
        {"velmora-mvo-530.ppd", 5, Overprint},
        {"velmora-mvo-590.ppd", 5, Overprint},
        {"velmora-plain.ppd", -1, 0},
    };
    EXPECT_EQ(sampleNames().size(), std::ssize(rows));
    CPPDChecker *checker = CPPDChecker::Instance();
    for (const Row &row : rows) {
        SCOPED_TRACE(row.sample.toStdString());
        const std::unique_ptr<PDEPanel> panel = openPanel(row.sample);
        EXPECT_EQ(panel != nullptr, row.type != -1);
        checker->Init();
        for (const char *const *key = arrayAllKeys; *key; ++key)
            checker->AddCheck(*key, CheckPPDKeyIsExist(ppd.get(), *key));
        EXPECT_EQ(checker->RunCheck(), row.type != -1);
        EXPECT_EQ(checker->productType, row.type);
        EXPECT_EQ(variantsOf(ppd.get()), row.variants);
    }
}

TEST_F(SampleQueuesTest, LabelsOfEachEncodingArriveWhole) {
    struct Row {
        const char *sample, *option, *choice;
        QString title, label;
    };
    const Row rows[] = {
        {"velmora-mvo-530-de.ppd", "QZOutputMode", "Normal", "Ausgabequalität", "Für Büro"},
        {"velmora-mvo-530-de.ppd", "QZRGBImageType", "WebPage", "Bildart", "Webseite – „Online“"},
        {"velmora-mvo-530-ja.ppd", "QZRGBInputProfile", "Display", "RGBソースプロファイル",
         "表示装置"},
        {"velmora-mvo-530-ja.ppd", "QZRGBImageType", "Portrait", "画像の種類", "ポートレート"},
        {"velmora-mvo-530-ja.ppd", "QZRGBImageType", "Mixed", "画像の種類", "表 & グラフ"},
        {"velmora-mvo-530-ja.ppd", "QZEngineScreen", "Stochastic", "スクリーン", "高性能"},
    };
    for (const Row &row : rows) {
        ppd = openSample(row.sample);
        QString title;
        GetUITitleFromPPD(ppd.get(), row.option, title);
        EXPECT_EQ(title.toStdString(), row.title.toStdString());
        ChoiceRows choices;
        InitializeValueFromPPD(ppd.get(), nullptr, &choices, row.option);
        const int index = GetChoiceIndex(ppd.get(), row.option, row.choice);
        EXPECT_EQ(choices.value(index).label.toStdString(), row.label.toStdString());
    }
}

TEST_F(SampleQueuesTest, FiveThousandConstraintsLeaveChoices) {
    ppd = openSample("velmora-mvo-590.ppd");
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppd->num_consts, 5000);
    hash_multimap table;
    xSetxppd(ppd.get(), &table);
    const auto forbidden = [&](const char *key) {
        ChoiceRows rows;
        InitializeValueFromPPD(ppd.get(), &table, &rows, key);
        return std::pair(std::ranges::count_if(rows, &ChoiceRow::conflicted), rows.size());
    };
    for (const char *key : kPanelOptionKeys)
        EXPECT_EQ(forbidden(key).first, 0) << key;
    ppdMarkOption(ppd.get(), "QZRGBImageType", "Map");
    ppdMarkOption(ppd.get(), "QZColorDensityCyanLow", "3");
    for (const char *key : {"QZOutputMode", "QZBrightness", "QZEngineScreen", "QZRGBInputProfile",
                            "QZColorDensityBlackHigh"}) {
        const auto [without, all] = forbidden(key);
        EXPECT_GT(without, 0) << key;
        EXPECT_GE(all - without, 2) << key;
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
        return panel ? entries(*dynamic_cast<ImageOptionsPDEk27 &>(*panel).Getxppd()) : "no panel";
    };
    const std::string fresh = tableOf("velmora-mvo-530.ppd");
    EXPECT_FALSE(fresh.empty());
    EXPECT_EQ(tableOf("velmora-mvo-530-cached.ppd"), fresh);

    const QTemporaryDir folder;
    const QString cache = folder.filePath("written.cdf");
    for (const QString &sample : sampleNames()) {
        ppd = openSample(sample);
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
