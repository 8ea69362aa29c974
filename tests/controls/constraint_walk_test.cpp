#include "panel_fixture.h"

namespace {

constexpr int kListTag = 1, kATag = 11, kBTag = 12, kMissingTag = 99;

const CtrlTag kA[] = {&kATag, &kMissingTag, nullptr};
const CtrlTag kAB[] = {&kATag, &kBTag, nullptr};
const CtrlTagList kRows[] = {nullptr, kA, kAB, nullptr};
const CtrlConstrainTable kTable{kRows};
const CtrlConstrainInfo kDisableAndUpdate{.disableTable = &kTable, .updateTable = &kTable};
const CtrlConstrainInfo kHideOnly{.hideTable = &kTable};

const char *const kMenu[] = {"One", "Two", "Three", "Four", "Five", nullptr};

class ConstraintWalkTest : public PanelTest {
protected:
    PopupControlKRVImageOptions *list(int32_t iniValue, const CtrlConstrainInfo *info) {
        open("");
        record = {.defaultValue = 1, .iniValue = iniValue, .menuKeys = kMenu};
        auto control = std::make_unique<PopupControlKRVImageOptions>();
        control->CreateControl(view<PopupView>(kListTag), &record, info, nullptr,
                               kControlUserCurrent);
        PopupControlKRVImageOptions *kept = control.get();
        panel.RunTimeAddNewControl(std::move(control));
        recorder(kATag, "a");
        recorder(kBTag, "b");
        start();
        return kept;
    }
    void choose(BaseControlKRVImageOptions *control, int item) {
        log.clear();
        ASSERT_TRUE(qobject_cast<PopupView *>(control->GetControlPtr())->chooseItem(item));
    }

    PopupIniData record;
};

TEST_F(ConstraintWalkTest, DisablingReleasesTheOldRowFirst) {
    PopupControlKRVImageOptions *control = list(0, &kDisableAndUpdate);
    EXPECT_EQ(log, QStringList()) << "the first item has no row";
    struct Step {
        int item;
        QStringList told;
    };
    const Step steps[] = {
        {1, {"update a", "disable a"}},
        {2, {"update a", "update b", "enable a", "disable a", "disable b"}},
        {4, {"enable a", "enable b"}}, // a value outside the table has an empty row
        {1, {"update a", "disable a"}},
        {0, {"enable a"}},
    };
    for (const Step &step : steps) {
        choose(control, step.item);
        EXPECT_EQ(log, step.told) << "item " << step.item;
    }
    choose(control, 1);
    choose(control, 1);
    EXPECT_EQ(log, QStringList()) << "the item shown already";
}

TEST_F(ConstraintWalkTest, OpeningAgainCountsNothingAgain) {
    PopupControlKRVImageOptions *control = list(0, &kDisableAndUpdate);
    choose(control, 2);
    control->GetValueFromUI();
    control->SetValueFromUIToControl();
    panel.SetCurrentValueToUI();
    panel.SetCurrentValueToUI();
    EXPECT_EQ(panel.GetPanelControl(&kATag)->constrainCount(), 1);
    choose(control, 0);
    EXPECT_EQ(panel.GetPanelControl(&kATag)->constrainCount(), 0);
}

TEST_F(ConstraintWalkTest, HidingAppliesTheNewRowFirst) {
    PopupControlKRVImageOptions *control = list(-1, &kHideOnly);
    choose(control, 1);
    EXPECT_EQ(log, QStringList({"hide a"}));
    choose(control, 2);
    EXPECT_EQ(log, QStringList({"hide a", "hide b", "show a"}));
    choose(control, 0);
    EXPECT_EQ(log, QStringList({"show a", "show b"}));
}

TEST_F(ConstraintWalkTest, SimulationCountsAHideRowAgainUntilTheViewIsRead) {
    PopupControlKRVImageOptions *control = list(-1, &kHideOnly);
    const int32_t value = 2;
    control->SetExternalValueToUI(&value, sizeof value);
    log.clear();
    control->SimulationUIEventHandler();
    control->SimulationUIEventHandler();
    EXPECT_EQ(log, QStringList({"hide a", "hide a"}));
    control->GetValueFromUI();
    control->SimulationUIEventHandler();
    EXPECT_EQ(log.size(), 2);
}

TEST_F(ConstraintWalkTest, NoSelectionCountsAsTheFirstItem) {
    PopupControlKRVImageOptions *control = list(0, &kDisableAndUpdate);
    choose(control, 1);
    qobject_cast<PopupView *>(control->GetControlPtr())->selectItemAtIndex(-1);
    log.clear();
    control->SimulationUIEventHandler();
    EXPECT_EQ(log, QStringList({"enable a"}));
}

TEST_F(ConstraintWalkTest, ProgramChangesTellNobody) {
    PopupControlKRVImageOptions *control = list(0, &kDisableAndUpdate);
    log.clear();
    const int32_t value = 3;
    control->SetExternalValueToUI(&value, sizeof value);
    EXPECT_EQ(control->GetCurrentControlArrayNumber(), 2);
    EXPECT_EQ(log, QStringList());
}

} // namespace
