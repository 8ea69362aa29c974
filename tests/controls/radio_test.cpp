#include "panel_fixture.h"

#include "controls/radio_family.h"
#include "platform/views/radio_view.h"

namespace {

constexpr int kBasicTag = 1041, kAdvancedTag = 1042, kATag = 11, kBTag = 12;

// Each button updates its partner; Basic off hides a, Advanced off disables b.
const CtrlTag kBasic[] = {&kBasicTag, nullptr};
const CtrlTag kAdvanced[] = {&kAdvancedTag, nullptr};
const CtrlTag kA[] = {&kATag, nullptr};
const CtrlTag kB[] = {&kBTag, nullptr};
const CtrlTagList kBasicRows[] = {kBasic, nullptr}, kAdvancedRows[] = {kAdvanced, nullptr};
const CtrlTagList kARows[] = {kA, nullptr, nullptr}, kBRows[] = {kB, nullptr, nullptr};
const CtrlConstrainTable kToBasic{kBasicRows}, kToAdvanced{kAdvancedRows};
const CtrlConstrainTable kOffA{kARows}, kOffB{kBRows};
const CtrlConstrainInfo kBasicInfo{.hideTable = &kOffA, .updateTable = &kToAdvanced};
const CtrlConstrainInfo kAdvancedInfo{.disableTable = &kOffB, .updateTable = &kToBasic};
const CtrlAccessInfo kBasicAccess{.ticketKey = "basic.key"};
const CtrlAccessInfo kAdvancedAccess{.ticketKey = "advanced.key"};

class RadioTest : public PanelTest {
protected:
    void SetUp() override {
        open("");
        group.RadioGroup();
        basicView = view<RadioView>(kBasicTag);
        basic = add(basicView, &basicRecord, &kBasicInfo, &kBasicAccess);
        advancedView = view<RadioView>(kAdvancedTag);
        advanced = add(advancedView, &advancedRecord, &kAdvancedInfo, &kAdvancedAccess);
        a = recorder(kATag, "a");
        b = recorder(kBTag, "b");
    }
    GRadioButtonKRV *add(RadioView *view, RadioButtonIniData *record,
                         const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access) {
        auto made = std::make_unique<GRadioButtonKRV>();
        made->RadioButton(view, record, constrain, access, kControlUserCurrent);
        group.RunTimeAddNewControl(made.get());
        return keep(std::move(made));
    }
    /// "basic" or "advanced", whichever alone is on, then the counts of a and b.
    QString state() {
        EXPECT_NE(basic->IsChecked(), advanced->IsChecked());
        return QStringLiteral("%1: %2 %3")
            .arg(basic->IsChecked() ? "basic" : "advanced")
            .arg(a->hideCount())
            .arg(b->constrainCount());
    }

    RadioButtonIniData basicRecord{.startValue = 1, .defaultValue = 1, .titleKey = "Basic"};
    RadioButtonIniData advancedRecord{.titleKey = "Advanced"};
    RadioGroupKRVImageOptions group;
    RadioView *basicView = nullptr, *advancedView = nullptr;
    GRadioButtonKRV *basic = nullptr, *advanced = nullptr;
    RecordingControl *a = nullptr, *b = nullptr;
};

TEST_F(RadioTest, PairStaysConsistentOnEverySystemVersion) {
    // The view of the partner may be off before Update comes; its constraints are released from
    // system version 0x1080 on alone.
    for (const auto &[release, partnerOffBefore] :
         {std::pair("11.0.0", "advanced: 0 0"), {"12.0.0", "advanced: 1 0"}}) {
        SCOPED_TRACE(release);
        setKernelRelease(release);
        panel.ResetControlStatus();
        start();
        EXPECT_EQ(state(), "basic: 0 1");
        for (int round = 0; round < 2; ++round) {
            log.clear();
            advancedView->click();
            EXPECT_EQ(state(), "advanced: 1 0");
            EXPECT_EQ(log, QStringList({"hide a", "enable b"})) << "the partner's walk comes first";
            EXPECT_EQ(basic->GetValueFromUIDataBlk()->word(), 0);
            advancedView->click();
            EXPECT_EQ(log.size(), 2) << "the button that is on";
            basicView->click();
            EXPECT_EQ(state(), "basic: 0 1");
        }
        basicView->setIntValue(0);
        advancedView->click();
        EXPECT_EQ(state(), partnerOffBefore);
    }
}

TEST_F(RadioTest, ValuesGoThroughTheTicket) {
    host->settings.set("basic.key", "0", false);
    host->settings.set("advanced.key", "1", false);
    start();
    EXPECT_EQ(group.GetcurRadio(), 1);
    EXPECT_EQ(state(), "advanced: 1 0");
    basicView->click();
    panel.SetValueFromUIToControl();
    panel.SetValueToTicket(&host->settings, false);
    EXPECT_EQ(host->settings.find("basic.key")->value, "1");
    EXPECT_EQ(host->settings.find("advanced.key")->value, "0");
    host->settings.set("advanced.key", "1", false);
    EXPECT_TRUE(advanced->GetValueToPreset());
    EXPECT_TRUE(advanced->IsChecked()) << "the view follows at once";
}

TEST_F(RadioTest, GroupKnowsItsCurrentButton) {
    EXPECT_EQ(group.GetcurRadio(), -1);
    advanced->SimulationUIEventHandler();
    EXPECT_EQ(group.GetcurRadio(), 0) << "the first button counts as current when none was";
    group.SetcurRadio(2);
    EXPECT_EQ(group.GetcurRadio(), 0) << "there is no such button";
    const int32_t on = 1;
    basic->Disable();
    EXPECT_FALSE(basic->SetExternalValueToUI(&on, sizeof on)) << "disabled, and set all the same";
    EXPECT_TRUE(basic->IsChecked());
    EXPECT_EQ(group.GetcurRadio(), 0);

    advanced->SetExternalValueToUI(&on, sizeof on);
    EXPECT_FALSE(advanced->InitializeConstrains());
    const int32_t off = 0;
    advanced->SetExternalValueToUI(&off, sizeof off);
    EXPECT_TRUE(advanced->InitializeConstrains());
    EXPECT_EQ(b->constrainCount(), 1);

    basic->SetCtrlGrp(nullptr);
    basic->Update();
    EXPECT_TRUE(basic->IsChecked()) << "without a group it stays as it is";
}

} // namespace
