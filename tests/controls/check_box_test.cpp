#include "panel_fixture.h"

#include "controls/check_box_family.h"
#include "platform/ppd_marks.h"
#include "platform/views/check_box_view.h"

namespace {

constexpr int kBoxTag = 510, kATag = 11, kBTag = 12;
const char *const kKey = "QZColorBalanceAdjustment";

// Off disables a, on disables b; either change updates a.
const CtrlTag kA[] = {&kATag, nullptr};
const CtrlTag kB[] = {&kBTag, nullptr};
const CtrlTagList kStateRows[] = {kA, kB, nullptr};
const CtrlTagList kUpdateRows[] = {kA, nullptr};
const CtrlConstrainTable kStates{kStateRows}, kUpdates{kUpdateRows};
const CtrlConstrainInfo kDisables{.disableTable = &kStates};
const CtrlConstrainInfo kHidesAndUpdates{.hideTable = &kStates, .updateTable = &kUpdates};

class CheckBoxTest : public PanelTest {
protected:
    template <class Box>
    Box *build(const QByteArray &body, const CtrlConstrainInfo *constrain = nullptr) {
        open(body);
        boxView = view<CheckBoxView>(kBoxTag);
        auto made = std::make_unique<Box>();
        made->PPDCheckBox(boxView, kKey, &record, constrain, nullptr, kControlUserCurrent);
        Box *box = keep(std::move(made));
        a = recorder(kATag, "a");
        b = recorder(kBTag, "b");
        start();
        return box;
    }

    CheckBoxIniData record;
    CheckBoxView *boxView = nullptr;
    RecordingControl *a = nullptr, *b = nullptr;
};

TEST_F(CheckBoxTest, MarksByKeywordInEitherOrderButSendsTheRawIndex) {
    const QList<QByteArray> orders[] = {{"False", "True"}, {"True", "False"}};
    for (const QList<QByteArray> &choices : orders) {
        SCOPED_TRACE(choices.first().toStdString());
        auto *box = build<GBasePPDCheckBoxKRV>(ppdOption(kKey, choices, "False", "Balance & co"));
        EXPECT_EQ(boxView->title(), "Balance & co");
        EXPECT_EQ(boxView->intValue(), 0);
        boxView->click();
        EXPECT_EQ(host->calls, Calls({{kKey, "True"}}));
        panel.SetValueFromUIToControl();
        box->Disable(); // a box that is held down stays in the summary
        EXPECT_EQ(summary(), QStringList("Balance & co=True label"));

        EXPECT_TRUE(save(box));
        EXPECT_EQ(host->calls, Calls({{kKey, choices.last()}}));
        EXPECT_FALSE(save(box)) << "unchanged since";
        box->Enable();
        boxView->click();
        EXPECT_TRUE(box->RestorePPD(ppd.get()));
        EXPECT_EQ(host->marked(kKey), "True") << "the committed value";
        panel.SetDefaultValueToUI();
        EXPECT_EQ(boxView->intValue(), 0);
        EXPECT_EQ(host->marked(kKey), "False");
        EXPECT_EQ(box->GetValueFromControl()->word(), 1) << "shown and marked, not committed";
    }
}

TEST_F(CheckBoxTest, RefusedClickKeepsItsConstraints) {
    const QByteArray body = ppdOption(kKey, {"False", "True"});
    const QStringList toOn{"disable b", "enable a"};
    const auto refuse = [&](auto *box, int shown) {
        host->refuses = true;
        boxView->click();
        EXPECT_EQ(boxView->intValue(), shown);
        EXPECT_EQ(box->GetValueFromUIDataBlk()->word(), shown);
        EXPECT_EQ(log, toOn);
        EXPECT_FALSE(box->valueChanged());
        EXPECT_EQ(host->marked(kKey), "False");
    };
    // SetPPD has stored the new value before the refusal: the view stays with it.
    refuse(build<GCheckBoxExtKRV>(body, &kDisables), 1);
    // The view goes back, the walks stay, and the next click counts them again.
    auto *box = build<GCheckBoxKRV>(body, &kDisables);
    refuse(box, 0);
    host->refuses = false;
    boxView->click();
    EXPECT_EQ(log, toOn + toOn);
    EXPECT_TRUE(box->valueChanged());
    EXPECT_EQ(b->constrainCount(), 2);
    EXPECT_EQ(a->constrainCount(), -1);
}

TEST_F(CheckBoxTest, WalksFollowEachChangeOnce) {
    auto *box = build<GCheckBoxKRV>(ppdOption(kKey, {"False", "True"}), &kHidesAndUpdates);
    EXPECT_EQ(a->hideCount(), 1) << "the row of the first value";
    boxView->click();
    EXPECT_EQ(log, QStringList({"update a", "hide b", "show a"}));
    box->SimulationUIEventHandler();
    EXPECT_EQ(log.size(), 3) << "nothing has changed";
}

TEST_F(CheckBoxTest, OpenTakesUpMarks) {
    auto *box = build<GCheckBoxKRV>(ppdOption(kKey, {"True", "False"}, "False"));
    markChoice(ppd.get(), kKey, "True");
    panel.Open();
    EXPECT_EQ(boxView->intValue(), 1);
    EXPECT_EQ(box->GetValueFromControl()->word(), 1);
    EXPECT_TRUE(box->valueChanged());
    host->refuses = true;
    EXPECT_FALSE(box->GetValueToPreset());
    unmark(kKey);
    EXPECT_TRUE(box->GetValueToPreset());
    EXPECT_EQ(box->GetValueFromControl()->word(), 1) << "without a mark the value stays";
}

TEST_F(CheckBoxTest, OnlyTheCheckedBoxReportsAndAMissingOptionIsHarmless) {
    QByteArray body = ppdOption(kKey, {"False", "True"}, {}, "T");
    body.replace("False label", "Twenty-two bytes long.\xC3\xA4 and more");
    build<GCheckBoxExtKRV>(body);
    EXPECT_FALSE(reported(kKey));
    build<GCheckBoxKRV>(body);
    EXPECT_TRUE(reported(kKey));
    EXPECT_EQ(summary(), QStringList("T=Twenty-two bytes long.")) << "cut at a whole character";

    auto *box = build<GCheckBoxKRV>(ppdOption(kKey, {"False", "True"}, "True"));
    EXPECT_EQ(box->GetValueFromControl()->word(), 1);
    ASSERT_TRUE(box->InitializeCtrl(nullptr, openPpdText("").get()));
    EXPECT_EQ(box->GetValueFromControl(), nullptr) << "no value of a former PPD";
    box = build<GCheckBoxKRV>("");
    EXPECT_FALSE(reported(kKey));
    boxView->click();
    panel.Open();
    panel.SetValueFromUIToControl();
    EXPECT_FALSE(box->valueChanged() || save(box));
    EXPECT_FALSE(box->RestorePPD(ppd.get()) || box->GetValueToPreset());
}

} // namespace
