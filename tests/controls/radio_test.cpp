#include "panel_fixture.h"
#include "text_bundle.h"

#include "controls/radio_family.h"
#include "platform/kernel_release.h"
#include "platform/views/radio_view.h"

namespace {

constexpr int kBasicTag = 1041, kAdvancedTag = 1042, kATag = 11, kBTag = 12;

// Each button updates its partner; Basic off hides a, Advanced off disables b.
const CtrlTag kBasic[] = {&kBasicTag, nullptr};
const CtrlTag kAdvanced[] = {&kAdvancedTag, nullptr};
const CtrlTag kA[] = {&kATag, nullptr};
const CtrlTag kB[] = {&kBTag, nullptr};
const CtrlTagList kBasicRows[] = {kBasic, nullptr};
const CtrlTagList kAdvancedRows[] = {kAdvanced, nullptr};
const CtrlTagList kARows[] = {kA, nullptr, nullptr};
const CtrlTagList kBRows[] = {kB, nullptr, nullptr};
const CtrlConstrainTable kToBasic{kBasicRows}, kToAdvanced{kAdvancedRows}, kOffA{kARows},
    kOffB{kBRows};
const CtrlConstrainInfo kBasicInfo{.hideTable = &kOffA, .updateTable = &kToAdvanced};
const CtrlConstrainInfo kAdvancedInfo{.disableTable = &kOffB, .updateTable = &kToBasic};
const CtrlAccessInfo kBasicAccess{.ticketKey = "basic.key"};
const CtrlAccessInfo kAdvancedAccess{.ticketKey = "advanced.key"};

class RadioTest : public PanelTest {
protected:
    void SetUp() override {
        open("");
        group.RadioGroup();
        basic = add(kBasicTag, &basicRecord, &kBasicInfo, &kBasicAccess);
        advanced = add(kAdvancedTag, &advancedRecord, &kAdvancedInfo, &kAdvancedAccess);
        recorder(kATag, "a");
        recorder(kBTag, "b");
    }
    void TearDown() override { setKernelRelease("19.6.0"); }
    GRadioButtonKRV *add(int tag, RadioButtonIniData *record, const CtrlConstrainInfo *constrain,
                         const CtrlAccessInfo *access) {
        auto control = std::make_unique<GRadioButtonKRV>();
        control->RadioButton(view<RadioView>(tag), record, constrain, access, kControlUserCurrent);
        GRadioButtonKRV *kept = control.get();
        panel.RunTimeAddNewControl(std::move(control));
        group.RunTimeAddNewControl(kept);
        return kept;
    }
    void startPanel() {
        panel.InitializeUserPane(bundle.get(), ppd.get());
        panel.SetUIDataToIniData();
        panel.GetValueFromPreset();
        panel.SetCurrentValueToUI();
    }
    static RadioView *button(BaseControlKRVImageOptions *control) {
        return qobject_cast<RadioView *>(control->GetControlPtr());
    }
    QString counts() {
        return QStringLiteral("a %1 b %2")
            .arg(panel.GetPanelControl(&kATag)->hideCount())
            .arg(panel.GetPanelControl(&kBTag)->constrainCount());
    }

    RadioButtonIniData basicRecord{.startValue = 1, .defaultValue = 1, .titleKey = "Basic"};
    RadioButtonIniData advancedRecord{.titleKey = "Advanced"};
    const TextlessBundle bundle;
    RadioGroupKRVImageOptions group;
    GRadioButtonKRV *basic = nullptr;
    GRadioButtonKRV *advanced = nullptr;
};

TEST_F(RadioTest, PairStaysConsistentOnEverySystemVersion) {
    for (const char *release : {"11.0.0", "12.0.0", "19.6.0"}) {
        SCOPED_TRACE(release);
        setKernelRelease(release);
        panel.ResetControlStatus();
        startPanel();
        EXPECT_TRUE(basic->IsChecked() && !advanced->IsChecked());
        EXPECT_EQ(counts(), "a 0 b 1");
        for (int round = 0; round < 2; ++round) {
            log.clear();
            button(advanced)->click();
            EXPECT_TRUE(!basic->IsChecked() && advanced->IsChecked());
            EXPECT_EQ(counts(), "a 1 b 0");
            EXPECT_EQ(log, QStringList({"hide a", "enable b"})) << "the partner's walk comes first";
            EXPECT_EQ(basic->GetValueFromUIDataBlk()->word(), 0);
            button(advanced)->click();
            EXPECT_EQ(log.size(), 2) << "the button that is on";
            button(basic)->click();
            EXPECT_TRUE(basic->IsChecked() && !advanced->IsChecked());
            EXPECT_EQ(counts(), "a 0 b 1");
        }
    }
}

// The view of the partner may be off before Update comes; its constraints are released from system
// version 0x1080 on alone.
TEST_F(RadioTest, PartnerThatIsOffAlreadyIsReleasedOnCurrentSystems) {
    for (const auto &[release, expected] :
         {std::pair("11.0.0", "a 0 b 0"), {"12.0.0", "a 1 b 0"}}) {
        SCOPED_TRACE(release);
        setKernelRelease(release);
        panel.ResetControlStatus();
        startPanel();
        button(basic)->setIntValue(0);
        button(advanced)->click();
        EXPECT_EQ(counts(), expected);
    }
}

TEST_F(RadioTest, ValuesGoThroughTheTicket) {
    host->settings.set("basic.key", "0", false);
    host->settings.set("advanced.key", "1", false);
    startPanel();
    EXPECT_TRUE(advanced->IsChecked() && !basic->IsChecked());
    EXPECT_EQ(group.GetcurRadio(), 1);
    EXPECT_EQ(counts(), "a 1 b 0");
    EXPECT_EQ(button(basic)->title(), "no translation");
    button(basic)->click();
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
    EXPECT_FALSE(group.GetValueFromUI());
    advanced->SimulationUIEventHandler();
    EXPECT_EQ(group.GetcurRadio(), 0) << "the first button counts as current when none was";
    group.SetcurRadio(2);
    group.SetcurRadio(-1);
    EXPECT_EQ(group.GetcurRadio(), 0);
    EXPECT_EQ(advanced->GetRadioIndex(), 1);
    EXPECT_EQ(basic->GetAnotherRadioCtrlFromGroup(), advanced);
    EXPECT_EQ(advanced->GetAnotherRadioCtrlFromGroup(), basic);

    const int32_t on = 1;
    EXPECT_TRUE(advanced->setExternalValueToData(&on, sizeof on, kValueTypeText));
    EXPECT_EQ(group.GetcurRadio(), 1);
    basic->Disable();
    EXPECT_FALSE(basic->SetExternalValueToUI(&on, sizeof on)) << "disabled, and set all the same";
    EXPECT_TRUE(basic->IsChecked());
    EXPECT_EQ(group.GetcurRadio(), 0);
    EXPECT_FALSE(basic->SetExternalValueToUI(nullptr, 0));
}

TEST_F(RadioTest, ButtonWithoutAGroupStaysAsItIs) {
    basic->SetCtrlGrp(nullptr);
    startPanel();
    button(basic)->setIntValue(1);
    log.clear();
    basic->Update();
    EXPECT_TRUE(basic->IsChecked());
    EXPECT_EQ(basic->GetRadioIndex(), -1);
    EXPECT_FALSE(basic->GetAnotherRadioCtrlFromGroup());
    EXPECT_TRUE(log.isEmpty());
    RadioGroupKRVImageOptions unmade;
    EXPECT_EQ(unmade.RunTimeAddNewControl(basic), 0);
    EXPECT_TRUE(unmade.buttons().empty());
}

TEST_F(RadioTest, OffRowIsInForceFromTheStart) {
    EXPECT_FALSE(basic->InitializeConstrains()) << "no disable table";
    EXPECT_TRUE(advanced->InitializeConstrains());
    EXPECT_EQ(log, QStringList("disable b"));
    button(advanced)->setIntValue(1);
    EXPECT_FALSE(advanced->InitializeConstrains());
    EXPECT_EQ(log.size(), 1);
}

} // namespace
