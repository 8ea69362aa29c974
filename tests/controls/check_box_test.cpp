#include "panel_fixture.h"
#include "text_bundle.h"

#include "controls/check_box_family.h"
#include "platform/ppd_marks.h"
#include "platform/views/check_box_view.h"
#include "ppd/product_type.h"

namespace {

constexpr int kBoxTag = 510, kATag = 11, kBTag = 12;
const char *const kKey = "QZColorBalanceAdjustment";

// Off disables a, on disables b; either change updates a.
const CtrlTag kA[] = {&kATag, nullptr};
const CtrlTag kB[] = {&kBTag, nullptr};
const CtrlTagList kStateRows[] = {kA, kB, nullptr};
const CtrlTagList kUpdateRows[] = {kA, nullptr};
const CtrlConstrainTable kStates{kStateRows};
const CtrlConstrainTable kUpdates{kUpdateRows};
const CtrlConstrainInfo kDisables{.disableTable = &kStates};
const CtrlConstrainInfo kHidesAndUpdates{.hideTable = &kStates, .updateTable = &kUpdates};

class CheckBoxTest : public PanelTest {
protected:
    template <class Box>
    Box *build(const QByteArray &body, const CtrlConstrainInfo *constrain = nullptr) {
        open(body);
        auto control = std::make_unique<Box>();
        boxView = view<CheckBoxView>(kBoxTag);
        control->PPDCheckBox(boxView, kKey, &record, constrain, nullptr, kControlUserCurrent);
        Box *kept = control.get();
        panel.RunTimeAddNewControl(std::move(control));
        recorder(kATag, "a");
        recorder(kBTag, "b");
        start();
        log.clear();
        host->calls.clear();
        return kept;
    }
    QList<QPair<QString, QString>> told(const QString &choice) { return {{kKey, choice}}; }

    CheckBoxIniData record;
    CheckBoxView *boxView = nullptr;
};

TEST_F(CheckBoxTest, MarksByKeywordInEitherOrderButSendsTheRawIndex) {
    struct Case {
        QList<QByteArray> choices;
        const char *sentForOn;
    };
    for (const Case &c : {Case{{"False", "True"}, "True"}, Case{{"True", "False"}, "False"}}) {
        SCOPED_TRACE(c.choices.first().toStdString());
        auto *box = build<GBasePPDCheckBoxKRV>(ppdOption(kKey, c.choices, "False", "Balance & co"));
        EXPECT_EQ(boxView->title(), "Balance & co");
        EXPECT_EQ(record.defaultValue, 0u);
        EXPECT_EQ(boxView->intValue(), 0);
        boxView->click();
        EXPECT_EQ(host->calls, told("True"));
        EXPECT_EQ(host->marked(kKey), "True");
        panel.SetValueFromUIToControl();

        QVariantMap rows;
        QStringList order;
        box->Disable(); // a box that is held down stays in the summary
        panel.GetSummaryText(&rows, &order);
        EXPECT_EQ(rows.value("Balance & co"), "True label");
        EXPECT_EQ(order, QStringList("Balance & co"));

        host->calls.clear();
        EXPECT_TRUE(box->SetValueToTicket(&host->settings, false));
        EXPECT_EQ(host->calls, told(c.sentForOn));
        EXPECT_FALSE(box->SetValueToTicket(&host->settings, false)) << "unchanged since";
        EXPECT_TRUE(host->settings.entries().isEmpty());
        box->Enable();
        boxView->click();
        EXPECT_EQ(host->marked(kKey), "False");
        EXPECT_TRUE(box->RestorePPD(ppd.get()));
        EXPECT_EQ(host->marked(kKey), "True") << "the committed value";
    }
}

TEST_F(CheckBoxTest, DefaultIsShownAndMarkedButNotCommitted) {
    auto *box = build<GCheckBoxKRV>(ppdOption(kKey, {"False", "True"}, "True"));
    EXPECT_EQ(record.defaultValue, 1u);
    EXPECT_EQ(boxView->intValue(), 1);
    boxView->click();
    panel.SetValueFromUIToControl();
    panel.SetDefaultValueToUI();
    EXPECT_EQ(boxView->intValue(), 1);
    EXPECT_EQ(host->marked(kKey), "True");
    EXPECT_EQ(box->GetValueFromControl()->word(), 0);
}

TEST_F(CheckBoxTest, RefusedClickKeepsItsConstraints) {
    const QByteArray body = ppdOption(kKey, {"False", "True"});
    const QStringList toOn{"disable b", "enable a"};
    {
        // SetPPD has stored the new value before the refusal: the view stays with it.
        auto *box = build<GCheckBoxExtKRV>(body, &kDisables);
        host->refuses = true;
        boxView->click();
        EXPECT_EQ(boxView->intValue(), 1);
        EXPECT_EQ(box->GetValueFromUIDataBlk()->word(), 1);
        EXPECT_EQ(log, toOn);
        EXPECT_FALSE(box->valueChanged());
        EXPECT_EQ(host->marked(kKey), "False");
    }
    // The view goes back, the walks of the refused value stay, and the next click counts them
    // again.
    auto *box = build<GCheckBoxKRV>(body, &kDisables);
    host->refuses = true;
    boxView->click();
    EXPECT_EQ(boxView->intValue(), 0);
    EXPECT_EQ(box->GetValueFromUIDataBlk()->word(), 0);
    EXPECT_EQ(log, toOn);
    EXPECT_FALSE(box->valueChanged());
    host->refuses = false;
    boxView->click();
    EXPECT_EQ(boxView->intValue(), 1);
    EXPECT_EQ(log, toOn + toOn);
    EXPECT_TRUE(box->valueChanged());
    EXPECT_EQ(panel.GetPanelControl(&kBTag)->constrainCount(), 2);
    EXPECT_EQ(panel.GetPanelControl(&kATag)->constrainCount(), -1);
}

TEST_F(CheckBoxTest, WalksFollowEachChangeOnce) {
    auto *box = build<GCheckBoxKRV>(ppdOption(kKey, {"False", "True"}), &kHidesAndUpdates);
    EXPECT_EQ(panel.GetPanelControl(&kATag)->hideCount(), 1) << "the row of the first value";
    EXPECT_EQ(box->DoControlUpdateConstrain(), 1);
    boxView->click();
    EXPECT_EQ(log, QStringList({"update a", "hide b", "show a"}));
    box->SimulationUIEventHandler();
    panel.Open();
    EXPECT_EQ(log.size(), 3) << "nothing has changed";
}

TEST_F(CheckBoxTest, OpenTakesUpMarksAndAMissingMarkLeavesTheBlock) {
    auto *box = build<GCheckBoxKRV>(ppdOption(kKey, {"True", "False"}, "False"));
    markChoice(ppd.get(), kKey, "True");
    panel.Open();
    EXPECT_EQ(boxView->intValue(), 1);
    EXPECT_EQ(box->GetValueFromControl()->word(), 1);
    EXPECT_TRUE(box->valueChanged());

    host->refuses = true;
    EXPECT_FALSE(box->GetValueToPreset());
    host->calls.clear();
    ppd_choice_t *marked = ppdFindMarkedChoice(ppd.get(), kKey);
    marked->marked = 0;
    cupsArrayRemove(ppd->marked, marked);
    EXPECT_TRUE(box->GetValueToPreset());
    EXPECT_TRUE(host->calls.isEmpty());
    EXPECT_EQ(box->GetValueFromControl()->word(), 1);
}

TEST_F(CheckBoxTest, SummaryTextIsCutAtAWholeCharacter) {
    QByteArray body = ppdOption(kKey, {"False", "True"});
    body.replace("False label", "Twenty-two bytes long.\xC3\xA4 and more");
    build<GCheckBoxKRV>(body);
    QVariantMap rows;
    QStringList order;
    panel.GetSummaryText(&rows, &order);
    EXPECT_EQ(rows.first(), "Twenty-two bytes long.");
}

TEST_F(CheckBoxTest, OnlyTheCheckedBoxReportsAndAMissingOptionIsHarmless) {
    CPPDChecker *checker = CPPDChecker::Instance();
    const QByteArray body = ppdOption(kKey, {"False", "True"});
    checker->Init();
    build<GCheckBoxExtKRV>(body);
    EXPECT_FALSE(checker->checks.at(kKey));
    build<GCheckBoxKRV>(body);
    EXPECT_TRUE(checker->checks.at(kKey));

    auto *box = build<GCheckBoxKRV>("");
    EXPECT_FALSE(checker->checks.at(kKey));
    EXPECT_FALSE(box->GetValueFromControl()) << "no title, no blocks";
    boxView->click();
    EXPECT_FALSE(box->valueChanged());
    panel.Open();
    panel.SetValueFromUIToControl();
    EXPECT_FALSE(box->SetValueToTicket(&host->settings, false));
    EXPECT_FALSE(box->RestorePPD(ppd.get()) || box->GetValueToPreset());
    EXPECT_FALSE(box->SetPPD(nullptr));
    delete boxView;
    EXPECT_FALSE(box->SetControlValueToUI() || box->SetPPD(ppd.get()));
    EXPECT_TRUE(box->UIEventHandler());
}

TEST_F(CheckBoxTest, PlainBoxGoesToTheTicket) {
    open("");
    const TextlessBundle bundle;
    static const CtrlAccessInfo access{.ticketKey = "box.key"};
    record = {.defaultValue = 1, .titleKey = "Some Key"};
    auto owned = std::make_unique<CheckBoxKRVImageOptions>();
    CheckBoxKRVImageOptions *box = owned.get();
    boxView = view<CheckBoxView>(kBoxTag);
    box->CheckBox(boxView, &record, nullptr, &access, kControlUserCurrent);
    panel.RunTimeAddNewControl(std::move(owned));
    EXPECT_FALSE(box->InitializeCtrl(nullptr, nullptr)) << "no bundle, no title";
    EXPECT_FALSE(box->GetValueFromUI());
    ASSERT_TRUE(box->InitializeCtrl(bundle.get(), nullptr));
    EXPECT_EQ(boxView->title(), "no translation");
    EXPECT_FALSE(box->GetValueToPreset());
    host->settings.set("box.key", "1", false);
    EXPECT_TRUE(box->GetValueToPreset());
    EXPECT_EQ(boxView->intValue(), 0) << "the view isn't touched";
    EXPECT_TRUE(box->SetControlValueToUI());
    boxView->click();
    panel.SetValueFromUIToControl();
    EXPECT_TRUE(box->SetValueToTicket(&host->settings, false));
    EXPECT_EQ(host->settings.find("box.key")->value, "0");
    box->Disable();
    box->SetDefaultValueToUI();
    EXPECT_EQ(boxView->intValue(), 0) << "a disabled box takes no value from outside";
}

} // namespace
