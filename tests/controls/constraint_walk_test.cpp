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
    void build(int32_t iniValue, const CtrlConstrainInfo *info) {
        open("");
        record = {.defaultValue = 1, .iniValue = iniValue, .menuKeys = kMenu};
        menu = view<PopupView>(kListTag);
        auto made = std::make_unique<PopupControlKRVImageOptions>();
        made->CreateControl(menu, &record, info, nullptr, kControlUserCurrent);
        list = keep(std::move(made));
        a = recorder(kATag, "a");
        recorder(kBTag, "b");
        start();
    }

    PopupIniData record;
    PopupView *menu = nullptr;
    PopupControlKRVImageOptions *list = nullptr;
    RecordingControl *a = nullptr;
};

TEST_F(ConstraintWalkTest, RowsOfTheOldAndTheNewValue) {
    // clang-format off
    const struct {
        const CtrlConstrainInfo *info; // null: the former row's, with the menu as it stands
        int item;
        QStringList told;
    } steps[] = {
        // Disabling releases the old row first; a value outside the table has an empty row.
        {&kDisableAndUpdate, 1, {"update a", "disable a"}},
        {nullptr, 2, {"update a", "update b", "enable a", "disable a", "disable b"}},
        {nullptr, 4, {"enable a", "enable b"}},
        {nullptr, 1, {"update a", "disable a"}},
        {nullptr, 1, {}},
        {nullptr, 0, {"enable a"}},
        // Hiding applies the new row first.
        {&kHideOnly, 1, {"hide a"}},
        {nullptr, 2, {"hide a", "hide b", "show a"}},
        {nullptr, 0, {"show a", "show b"}},
    };
    // clang-format on
    for (const auto &step : steps) {
        if (step.info)
            build(step.info == &kHideOnly ? -1 : 0, step.info);
        log.clear();
        ASSERT_TRUE(menu->chooseItem(step.item));
        EXPECT_EQ(log, step.told) << "item " << step.item;
    }
}

TEST_F(ConstraintWalkTest, OpeningAgainCountsNothingAgain) {
    build(0, &kDisableAndUpdate);
    menu->chooseItem(2);
    panel.SetValueFromUIToControl();
    panel.SetCurrentValueToUI();
    panel.SetCurrentValueToUI();
    EXPECT_EQ(a->constrainCount(), 1);
    menu->chooseItem(0);
    EXPECT_EQ(a->constrainCount(), 0);
    menu->chooseItem(1);
    menu->selectItemAtIndex(-1);
    list->SimulationUIEventHandler();
    EXPECT_EQ(a->constrainCount(), 0) << "no selection counts as the first item";
}

TEST_F(ConstraintWalkTest, SimulationCountsAHideRowAgainUntilTheViewIsRead) {
    build(-1, &kHideOnly);
    const int32_t value = 2;
    list->SetExternalValueToUI(&value, sizeof value);
    EXPECT_EQ(log, QStringList()) << "a change of the program's tells nobody";
    list->SimulationUIEventHandler();
    list->SimulationUIEventHandler();
    EXPECT_EQ(log, QStringList({"hide a", "hide a"}));
    list->GetValueFromUI();
    list->SimulationUIEventHandler();
    EXPECT_EQ(log.size(), 2);
}

} // namespace
