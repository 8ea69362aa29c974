#include "panel_fixture.h"

#include "controls/static_text_family.h"
#include "ppd/product_type.h"

namespace {

constexpr int kRecorderTag = 7;
const CtrlTag kUpdateRow[] = {&kRecorderTag, nullptr};
const CtrlTagList kUpdateRows[] = {kUpdateRow, kUpdateRow, kUpdateRow};
const CtrlConstrainTable kUpdateTable{kUpdateRows};
const CtrlConstrainInfo kUpdates{.updateTable = &kUpdateTable};

constexpr int kModeTag = 101, kModeTitleTag = 201, kTypeTag = 106, kTypeTitleTag = 206;

// Mode Black and type Photo exclude each other.
const QByteArray kPpd =
    ppdOption("QZColorMode", {"Color", "Black", "Auto"}, "Color", "Colour & More") +
    ppdOption("QZRGBImageType", {"Text", "Photo", "CAD"}, "Photo") +
    "*UIConstraints: *QZColorMode Black *QZRGBImageType Photo\n"
    "*UIConstraints: *QZRGBImageType Photo *QZColorMode Black\n";

class PopupTest : public PanelTest {
protected:
    GPPDListCtrlKRV *addList(const char *key, int tag, const int *titleTag, PopupIniData *record) {
        auto title = std::make_unique<PPDStaticTextCtrlKRVImageOptions>();
        title->CreateControl(view<TextView>(*titleTag), key, nullptr, nullptr, nullptr, QString(),
                             nullptr);
        panel.RunTimeAddNewControl(std::move(title));
        auto control = std::make_unique<GPPDListCtrlKRV>();
        control->CreateControl(view<PopupView>(tag), key, record, &kUpdates, nullptr,
                               kControlUserCurrent, titleTag);
        GPPDListCtrlKRV *kept = control.get();
        panel.RunTimeAddNewControl(std::move(control));
        return kept;
    }
    void build(const QByteArray &body) {
        open(body);
        mode = addList("QZColorMode", kModeTag, &kModeTitleTag, &modeRecord);
        type = addList("QZRGBImageType", kTypeTag, &kTypeTitleTag, &typeRecord);
        start();
        host->calls.clear();
    }
    static PopupView *menu(BaseControlKRVImageOptions *control) {
        return qobject_cast<PopupView *>(control->GetControlPtr());
    }
    TextView *titleView(const int &tag) {
        return qobject_cast<TextView *>(panel.GetPanelControl(&tag)->GetControlPtr());
    }

    PopupIniData modeRecord{.startValue = 1, .defaultValue = 1};
    PopupIniData typeRecord{.startValue = 1, .defaultValue = 1};
    GPPDListCtrlKRV *mode = nullptr;
    GPPDListCtrlKRV *type = nullptr;
};

TEST_F(PopupTest, TakesMenuTitleDefaultAndMarkFromThePpd) {
    build(kPpd);
    EXPECT_EQ(titleView(kModeTitleTag)->stringValue(), "Colour & More:");
    ASSERT_EQ(menu(mode)->numberOfItems(), 3);
    EXPECT_EQ(menu(mode)->itemTitle(1), "Black label");
    EXPECT_EQ(menu(mode)->itemRepresentedObject(1), "Black");
    EXPECT_EQ(typeRecord.defaultValue, 2u);
    EXPECT_EQ(menu(type)->indexOfSelectedItem(), 1);
    EXPECT_EQ(type->GetValueFromControl()->word(), 2);
    EXPECT_EQ(type->GetUISelectStr(), "Photo");
}

TEST_F(PopupTest, ChoiceIsToldToTheHostAndConflictsFollow) {
    build(kPpd);
    panel.UpdateConflictsPanelControlFromPPD(ppd.get());
    EXPECT_FALSE(menu(mode)->isItemEnabled(1)) << "Photo forbids Black";
    EXPECT_FALSE(menu(mode)->chooseItem(1));
    EXPECT_EQ(host->marked("QZColorMode"), "Color");

    ASSERT_TRUE(menu(type)->chooseItem(2));
    EXPECT_EQ(host->marked("QZRGBImageType"), "CAD");
    EXPECT_TRUE(menu(mode)->isItemEnabled(1));
    ASSERT_TRUE(menu(mode)->chooseItem(1));
    EXPECT_EQ(host->marked("QZColorMode"), "Black");
    EXPECT_FALSE(menu(type)->isItemEnabled(1));
    EXPECT_EQ(menu(type)->indexOfSelectedItem(), 2);
    const QList<QPair<QString, QString>> told{{"QZRGBImageType", "CAD"}, {"QZColorMode", "Black"}};
    EXPECT_EQ(host->calls, told);
}

TEST_F(PopupTest, RefusedChoiceGoesBackToTheItemShown) {
    // The first choice of a list without a disable table: its live block is still the start mark.
    build(kPpd);
    recorder(kRecorderTag, "r");
    host->refuses = true;
    const bool changed = type->valueChanged();
    menu(type)->chooseItem(2);
    EXPECT_EQ(menu(type)->indexOfSelectedItem(), 1);
    EXPECT_EQ(host->marked("QZRGBImageType"), "Photo");
    EXPECT_EQ(type->valueChanged(), changed);
    EXPECT_EQ(log, QStringList()) << "no step runs";
    host->refuses = false;
    menu(type)->chooseItem(2);
    EXPECT_EQ(log, QStringList({"update r"}));
}

TEST_F(PopupTest, ValueReachesTheHostOnceWhenItHasChanged) {
    build(kPpd);
    menu(mode)->chooseItem(2);
    panel.SetValueFromUIToControl();
    host->calls.clear();
    EXPECT_TRUE(mode->SetValueToTicket(&host->settings, false));
    EXPECT_EQ(host->calls.size(), 1);
    EXPECT_FALSE(mode->SetValueToTicket(&host->settings, false)) << "unchanged since";
    EXPECT_EQ(host->calls.size(), 1);
    EXPECT_TRUE(host->settings.entries().isEmpty()) << "a bound list has no ticket entry";
}

TEST_F(PopupTest, OpenTakesUpMarksOfOthers) {
    build(kPpd);
    markChoice(ppd.get(), "QZColorMode", "Auto");
    panel.Open();
    EXPECT_EQ(menu(mode)->indexOfSelectedItem(), 2);
    EXPECT_EQ(mode->GetValueFromControl()->word(), 3);
}

TEST_F(PopupTest, DefaultIsShownAndMarkedButNotCommitted) {
    build(kPpd);
    menu(type)->chooseItem(2);
    panel.SetValueFromUIToControl();
    panel.SetDefaultValueToUI();
    EXPECT_EQ(menu(type)->indexOfSelectedItem(), 1);
    EXPECT_EQ(host->marked("QZRGBImageType"), "Photo");
    EXPECT_EQ(type->GetValueFromControl()->word(), 3);
    type->RestorePPD(ppd.get());
    EXPECT_EQ(host->marked("QZRGBImageType"), "CAD");
}

TEST_F(PopupTest, MissingOptionStaysHiddenWhateverConstraintsSay) {
    CPPDChecker::Instance()->Init();
    build(ppdOption("QZColorMode", {"Color", "Black"}));
    EXPECT_TRUE(views::isHidden(menu(type)));
    EXPECT_TRUE(views::isHidden(titleView(kTypeTitleTag)));
    type->Show();
    type->Hide();
    EXPECT_EQ(type->hideCount(), 0);
    EXPECT_TRUE(views::isHidden(menu(type)));
    EXPECT_TRUE(CPPDChecker::Instance()->checks.at("QZColorMode"));
    EXPECT_FALSE(CPPDChecker::Instance()->checks.at("QZRGBImageType"));
    EXPECT_FALSE(type->SetValueToTicket(&host->settings, false));
}

TEST_F(PopupTest, DefaultThatIsNoChoiceLeavesTheRecord) {
    typeRecord.defaultValue = 3;
    build("*OpenUI *QZRGBImageType/Type: PickOne\n*DefaultQZRGBImageType: Unknown\n"
          "*QZRGBImageType A/A: \"\"\n*QZRGBImageType B/B: \"\"\n*QZRGBImageType C/C: \"\"\n"
          "*CloseUI: *QZRGBImageType\n");
    EXPECT_EQ(typeRecord.defaultValue, 3u);
    EXPECT_EQ(menu(type)->indexOfSelectedItem(), 2) << "no mark: the record's default";
}

TEST_F(PopupTest, SummaryLeavesOutWhatIsHeldDown) {
    build(kPpd);
    const auto summary = [this] {
        QVariantMap rows;
        QStringList order;
        panel.GetSummaryText(&rows, &order);
        EXPECT_EQ(rows.keys().size(), order.size());
        QStringList texts;
        for (const QString &title : order)
            texts.append(title + "=" + rows.value(title).toString());
        return texts;
    };
    const QStringList both{"Colour & More=Color label", "QZRGBImageType title=Photo label"};
    EXPECT_EQ(summary(), both);
    type->Disable();
    EXPECT_EQ(summary(), both.first(1));
    type->Enable();
    mode->Hide();
    EXPECT_EQ(summary(), both.last(1));
    mode->Show();
    EXPECT_EQ(summary(), both);
}

TEST_F(PopupTest, EntriesOfTheTableAreAskedByPair) {
    build(kPpd);
    EXPECT_TRUE(
        mode->isChoiceConflicted("QZColorMode:Black", "QZRGBImageType", "Photo", ppd.get()));
    EXPECT_FALSE(mode->isChoiceConflicted("QZColorMode:Black", "QZRGBImageType", "CAD", ppd.get()));
    EXPECT_FALSE(
        mode->isChoiceConflicted("QZColorMode:Color", "QZRGBImageType", "Photo", ppd.get()));
    EXPECT_FALSE(mode->isChoiceConflicted("QZColorMode:Black", "QZRGBImageType", "Photo", nullptr));
}

TEST_F(PopupTest, WithoutAConstraintTableAListStaysEmpty) {
    open(kPpd);
    panel.SetxppdPtr(nullptr);
    mode = addList("QZColorMode", kModeTag, &kModeTitleTag, &modeRecord);
    start();
    EXPECT_EQ(menu(mode)->numberOfItems(), 0);
    EXPECT_FALSE(mode->GetValueFromControl());
    panel.Open();
    panel.SetValueFromUIToControl();
    EXPECT_FALSE(mode->SetValueToTicket(&host->settings, false));
}

TEST(StaticPopup, PresetAndPreferenceTexts) {
    PrintSettings settings;
    static const CtrlAccessInfo access{.ticketKey = "list.key"};
    static const char *const menuKeys[] = {"A", "B", "C", nullptr};
    PopupIniData record{.defaultValue = 2, .iniValue = -1, .menuKeys = menuKeys};
    PopupView view;
    BasePrintPanelKRVImageOptions panel;
    panel.CreatePanel(nullptr);
    panel.SetCurrentPMPrintSettings(&settings);
    auto owned = std::make_unique<PopupControlKRVImageOptions>();
    PopupControlKRVImageOptions *list = owned.get();
    list->CreateControl(&view, &record, nullptr, &access, kControlUserCurrent);
    panel.RunTimeAddNewControl(std::move(owned));
    ASSERT_TRUE(list->InitializeCtrl(nullptr, nullptr));
    EXPECT_EQ(view.itemTitle(2), "C") << "a key without translation shows itself";
    EXPECT_FALSE(list->GetValueToPreset());
    list->SetControlValueToDefault();
    EXPECT_EQ(list->GetValueFromControl()->word(), 2);
    settings.set("list.key", "3x", false);
    EXPECT_TRUE(list->GetValueToPreset());
    char buffer[256] = {};
    EXPECT_TRUE(list->ConvertToTickectData(buffer));
    EXPECT_STREQ(buffer, "3");
    EXPECT_TRUE(list->ConvertFromPreferenceString("1"));
    EXPECT_TRUE(list->SetControlValueToUI());
    EXPECT_EQ(view.indexOfSelectedItem(), 0);
    EXPECT_TRUE(list->SetValueToTicket(&settings, false));
    EXPECT_EQ(settings.find("list.key")->value, "1");
}

} // namespace
