#include "density_fixture.h"

namespace {

const QString kKey = QString::fromLatin1(kPPDColorDensityCyanLowKey);

class StepperTest : public DensityTest {};

TEST_F(StepperTest, OpensWithTheMarkAndTellsTheHost) {
    build(density("-3"));
    EXPECT_EQ(record.defaultValue, -3);
    expectBothShow(-3);
    markChoice(ppd.get(), kPPDColorDensityCyanLowKey, "3");
    panel.Open();
    EXPECT_EQ(host->calls, (Calls{{kKey, "3"}}));
    panel.SetCurrentValueToUI();
    expectBothShow(3);
    host->refuses = true;
    EXPECT_FALSE(stepper->GetValueToPreset());
    EXPECT_EQ(stepper->GetValueFromControl()->word(), 0);
    stepper->ConvertFromPreferenceString("2");
    unmark(kPPDColorDensityCyanLowKey);
    EXPECT_TRUE(stepper->GetValueToPreset());
    EXPECT_EQ(stepper->GetValueFromControl()->word(), 0) << "without a mark it is 0";
}

TEST_F(StepperTest, ArrowWritesTheFieldAndBeepsAtTheLimitWithoutAnEvent) {
    build(density("2"));
    const int beeps = views::beepCount();
    arrow->stepBy(1);
    EXPECT_EQ(field->stringValue(), "3");
    arrow->stepBy(1);
    EXPECT_EQ(views::beepCount(), beeps + 1);
    EXPECT_EQ(log, QStringList{"update preview"});
    arrow->stepBy(-6);
    EXPECT_EQ(field->stringValue(), "-3");
    EXPECT_EQ(views::beepCount(), beeps + 1);
    const int beyond = -9;
    stepper->SetExternalValueToUI(&beyond, sizeof beyond);
    arrow->stepBy(-1);
    EXPECT_EQ(views::beepCount(), beeps + 2) << "the view stands at its end";
    EXPECT_TRUE(host->calls.isEmpty()) << "a density is told at the save alone";
}

TEST_F(StepperTest, CommittedNumberReachesTheHostAtEverySave) {
    const auto saves = [this](int value) {
        stepper->setExternalValueToData(&value, sizeof value, kValueTypeInteger);
        return save(stepper);
    };
    build(density("0"));
    for (const int value : {3, -3, -3}) {
        EXPECT_TRUE(saves(value));
        EXPECT_EQ(host->calls, (Calls{{kKey, QString::number(value)}}));
    }
    EXPECT_FALSE(saves(4) || saves(-4));
    host->refuses = true;
    EXPECT_FALSE(saves(1));
}

TEST_F(StepperTest, UncommittedNumbersAreGoneAtTheNextOpening) {
    build(density("2"));
    field->typeText("-3");
    panel.SetCurrentValueToUI();
    expectBothShow(2);
    field->typeText("-1");
    panel.SetValueFromUIToControl();
    arrow->stepBy(3);
    panel.SetCurrentValueToUI();
    expectBothShow(-1);
    panel.SetDefaultValueToUI();
    expectBothShow(2);
}

TEST_F(StepperTest, MissingOptionSendsNothing) {
    build(density("0"));
    EXPECT_TRUE(reported(kPPDColorDensityCyanLowKey));
    panel.InitializeUserPaneControl(nullptr, openPpdText("").get());
    EXPECT_FALSE(reported(kPPDColorDensityCyanLowKey));
    EXPECT_FALSE(stepper->GetValueToPreset() || save(stepper));
}

/// A main panel with answers of the test's choice.
class MainPanel : public BasePrintPanelKRVImageOptions {
public:
    bool IsColorModeAvailable() const override { return colour; }
    bool IsColorBalanceAdjustmentAvailable() const override { return balance; }
    bool colour = true, balance = true;
};

TEST_F(StepperTest, SummaryRowsAndTheirTexts) {
    build("*OpenUI *QZColorDensityCyanLow/1234567890123456789012\xC3\xA4z: PickOne\n"
          "*DefaultQZColorDensityCyanLow: -1\n*QZColorDensityCyanLow 0/None: \"\"\n"
          "*QZColorDensityCyanLow -1/123456789012345678901\xC3\xA4z: \"\"\n"
          "*CloseUI: *QZColorDensityCyanLow\n" +
          ppdOption("QZColorDensityBlackLow", {"1", "0", "-1"}, "0", "K"));
    LittleArrayIniData blackRecord{.minValue = -3, .maxValue = 3};
    auto black = std::make_unique<GBlackLittleArrayControlKRV>();
    black->PPDLittleArrayControl(view<StepperView>(3601), &blackRecord, "QZColorDensityBlackLow",
                                 nullptr, nullptr, kControlUserCurrent);
    keep(std::move(black));
    start();
    const QString cyan = "1234567890123456789012=123456789012345678901\u00e4", k = "K=0 label";
    MainPanel main;
    EXPECT_EQ(summary(), QStringList{}) << "no main panel";
    panel.SetParenetPane(&main);
    EXPECT_EQ(summary(), QStringList({cyan, k}));
    main.colour = false;
    EXPECT_EQ(summary(), QStringList{k});
    main.balance = false;
    EXPECT_EQ(summary(), QStringList{});
}

} // namespace
