#include "density_fixture.h"

#include "ppd/product_type.h"

namespace {

using Calls = QList<QPair<QString, QString>>;
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
    EXPECT_TRUE(host->calls.isEmpty()) << "a density is told at the save alone";
}

TEST_F(StepperTest, CommittedNumberReachesTheHostAtEverySave) {
    const auto save = [this](int value) {
        stepper->setExternalValueToData(&value, sizeof value, kValueTypeInteger);
        host->calls.clear();
        return stepper->SetValueToTicket(&host->settings, false);
    };
    build(density("0"));
    for (const int value : {3, 2, -3, -3}) {
        EXPECT_TRUE(save(value));
        EXPECT_EQ(host->calls, (Calls{{kKey, QString::number(value)}}));
    }
    EXPECT_FALSE(save(4) || save(-4));
    EXPECT_TRUE(host->calls.isEmpty());
    host->refuses = true;
    EXPECT_FALSE(save(1));
    build(ppdOption(kPPDColorDensityCyanLowKey, {"3", "2", "1", "0"}));
    EXPECT_FALSE(save(-1)) << "the option has no such choice";
    EXPECT_TRUE(host->calls.isEmpty());
}

TEST_F(StepperTest, RestoreDefaultShowsButDoesNotCommit) {
    build(density("1"));
    arrow->stepBy(-4);
    panel.SetValueFromUIToControl();
    panel.SetDefaultValueToUI();
    expectBothShow(1);
    panel.SetCurrentValueToUI();
    expectBothShow(-3);
}

TEST_F(StepperTest, MissingOptionSendsNothing) {
    CPPDChecker::Instance()->Init();
    build(density("0"));
    EXPECT_TRUE(CPPDChecker::Instance()->checks.at(kPPDColorDensityCyanLowKey));
    panel.InitializeUserPaneControl(nullptr, openPpdText("").get());
    EXPECT_FALSE(CPPDChecker::Instance()->checks.at(kPPDColorDensityCyanLowKey));
    EXPECT_FALSE(stepper->GetValueToPreset());
    EXPECT_FALSE(stepper->SetValueToTicket(&host->settings, false));
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
    panel.RunTimeAddNewControl(std::move(black));
    start();
    MainPanel main;
    QVariantMap rows;
    const auto titles = [&] {
        QStringList order;
        panel.GetSummaryText(&rows, &order);
        return order;
    };
    EXPECT_EQ(titles(), QStringList{}) << "no main panel";
    panel.SetParenetPane(&main);
    EXPECT_EQ(titles(), (QStringList{"1234567890123456789012", "K"}));
    EXPECT_EQ(rows.value("1234567890123456789012"),
              QString::fromUtf8("123456789012345678901\xC3\xA4"));
    main.colour = false;
    EXPECT_EQ(titles(), QStringList{"K"});
    main.balance = false;
    EXPECT_EQ(titles(), QStringList{});
}

TEST_F(PanelTest, PlainStepperKeepsItsNumberInThePrintSettings) {
    open("");
    const CtrlAccessInfo access{.ticketKey = "stepper.key"};
    LittleArrayIniData record{.defaultValue = 4, .minValue = -20, .maxValue = 20};
    auto *arrow = view<StepperView>(1);
    LittleArrayKRVImageOptions stepper;
    stepper.LittleArrayControl(arrow, &record, nullptr, &access, kControlUserCurrent, "Width");
    stepper.SetParenetPanel(&panel);
    stepper.InitializeCtrl(nullptr, nullptr);
    EXPECT_FALSE(stepper.GetValueToPreset());
    host->settings.set("stepper.key", "-12mm", false);
    EXPECT_TRUE(stepper.GetValueToPreset());
    EXPECT_TRUE(stepper.SetDefaultValueToUI());
    EXPECT_EQ(arrow->intValue(), -12) << "the view waits for an update";
    QVariantMap rows;
    QStringList order;
    stepper.GetSummaryText(&rows, &order);
    EXPECT_EQ(rows.value("Width"), "-1.2");
    const int outside = 21;
    EXPECT_TRUE(stepper.SetValueToTicket(&host->settings, false));
    stepper.setExternalValueToData(&outside, sizeof outside, kValueTypeInteger);
    EXPECT_FALSE(stepper.SetValueToTicket(&host->settings, false));
    EXPECT_EQ(host->settings.find("stepper.key")->value, "-12");
}

} // namespace
