#include "panel_fixture.h"

#include "controls/static_text_family.h"

#include <QAccessible>

namespace {

constexpr int kRecorderTag = 7;
const CtrlTag kUpdateRow[] = {&kRecorderTag, nullptr};
const CtrlTagList kUpdateRows[] = {kUpdateRow, kUpdateRow, kUpdateRow};
const CtrlConstrainTable kUpdateTable{kUpdateRows};
const CtrlConstrainInfo kUpdates{.updateTable = &kUpdateTable};

constexpr int kModeTag = 101, kModeTitleTag = 201, kTypeTag = 106, kTypeTitleTag = 206;
const char *const kMode = "QZColorMode", *const kType = "QZRGBImageType";

// Mode Black and type Photo exclude each other.
const QByteArray kPpd = ppdOption(kMode, {"Color", "Black", "Auto"}, "Color", "Colour & More") +
                        ppdOption(kType, {"Text", "Photo", "CAD"}, "Photo") +
                        "*UIConstraints: *QZColorMode Black *QZRGBImageType Photo\n"
                        "*UIConstraints: *QZRGBImageType Photo *QZColorMode Black\n";

class PopupTest : public PanelTest {
protected:
    GPPDListCtrlKRV *addList(const char *key, int tag, const int *titleTag, PopupIniData *record) {
        auto title = std::make_unique<PPDStaticTextCtrlKRVImageOptions>();
        title->CreateControl(view<TextView>(*titleTag), key, nullptr, nullptr, nullptr, {},
                             nullptr);
        keep(std::move(title));
        auto list = std::make_unique<GPPDListCtrlKRV>();
        list->CreateControl(view<PopupView>(tag), key, record, &kUpdates, nullptr,
                            kControlUserCurrent, titleTag);
        return keep(std::move(list));
    }
    void build(const QByteArray &body) {
        open(body);
        mode = addList(kMode, kModeTag, &kModeTitleTag, &modeRecord);
        type = addList(kType, kTypeTag, &kTypeTitleTag, &typeRecord);
        recorder(kRecorderTag, "r");
        start();
    }
    static PopupView *menu(BaseControlKRVImageOptions *control) {
        return qobject_cast<PopupView *>(control->GetControlPtr());
    }
    static int shown(BaseControlKRVImageOptions *list) { return menu(list)->indexOfSelectedItem(); }

    PopupIniData modeRecord{.startValue = 1, .defaultValue = 1};
    PopupIniData typeRecord{.startValue = 1, .defaultValue = 1};
    GPPDListCtrlKRV *mode = nullptr, *type = nullptr;
};

TEST_F(PopupTest, ValueAtEachStage) {
    build(kPpd);
    EXPECT_EQ(menu(mode)->itemTitle(1), "Black label");
    EXPECT_EQ(menu(mode)->itemRepresentedObject(1), "Black");
    EXPECT_EQ(typeRecord.defaultValue, 2u);
    EXPECT_EQ(shown(type), 1);
    EXPECT_EQ(type->GetValueFromControl()->word(), 2);
    EXPECT_EQ(type->GetUISelectStr(), "Photo");

    menu(type)->chooseItem(2);
    panel.SetValueFromUIToControl();
    EXPECT_TRUE(save(type));
    EXPECT_EQ(host->calls, Calls({{kType, "CAD"}}));
    EXPECT_FALSE(save(type)) << "unchanged since";
    EXPECT_TRUE(host->settings.entries().isEmpty()) << "a bound list has no ticket entry";

    panel.SetDefaultValueToUI();
    EXPECT_EQ(shown(type), 1);
    EXPECT_EQ(host->marked(kType), "Photo");
    EXPECT_EQ(type->GetValueFromControl()->word(), 3) << "shown and marked, not committed";
    type->RestorePPD(ppd.get());
    EXPECT_EQ(host->marked(kType), "CAD");

    markChoice(ppd.get(), kMode, "Auto");
    panel.Open();
    EXPECT_EQ(shown(mode), 2) << "a mark of somebody else's";
    EXPECT_EQ(mode->GetValueFromControl()->word(), 3);
    EXPECT_TRUE(mode->valueChanged());
}

TEST_F(PopupTest, ConflictWithOneOtherChoice) {
    build(kPpd);
    for (const auto &[option, choice, forbids] :
         {std::tuple(kType, "Photo", true), std::tuple(kType, "CAD", false),
          std::tuple(kMode, "Photo", false)})
        EXPECT_EQ(mode->isChoiceConflicted("QZColorMode:Black", option, choice, ppd.get()),
                  forbids);
}

TEST_F(PopupTest, GreyedItemsTellWhy) {
    QByteArray more; // of five causes three are named
    for (const char *key : {"A", "B", "C", "D"})
        more += ppdOption(key, {"Off", "On"}, "On", key + QByteArray("&")) + "*UIConstraints: *" +
                key + " On *QZColorMode Black\n";
    build(kPpd + more);
    PopupView *items = menu(mode);
    const auto told = [items](int item, int role) {
        return items->itemData(item, role).toString().toStdString();
    };
    const auto look = [this] { panel.UpdateConflictsPanelControlFromPPD(ppd.get()); };
    look();
    EXPECT_EQ(told(1, Qt::AccessibleDescriptionRole),
              "Not available with QZRGBImageType title: Photo label, A&: On label, "
              "B&: On label, …");
    EXPECT_TRUE(told(1, Qt::ToolTipRole).find(", A&amp;: On") != std::string::npos);
    EXPECT_EQ(told(0, Qt::ToolTipRole), "") << "an item that isn't greyed";
    for (const char *key : {"A", "B", "C", "D"})
        unmark(key);
    look();
    items->selectItemAtIndex(1);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(items);
    EXPECT_EQ(list->text(QAccessible::Description),
              "Not available with QZRGBImageType title: Photo label");
    EXPECT_EQ(list->child(0)->child(1)->text(QAccessible::Description),
              list->text(QAccessible::Description));
    markChoice(ppd.get(), kType, "CAD");
    EXPECT_EQ(told(1, Qt::AccessibleDescriptionRole),
              "Available again once another setting is chosen");
    look();
    EXPECT_EQ(told(1, Qt::AccessibleDescriptionRole), "");
    items->setItemEnabled(1, false);
    mode->SetControlPtr(nullptr);
    EXPECT_EQ(told(1, Qt::ToolTipRole), "") << "a control that has given its view up";
}

TEST_F(PopupTest, RefusedChoiceGoesBackToTheItemShown) {
    // The first choice of a list without a disable table: its live block is still the start mark.
    build(kPpd);
    host->refuses = true;
    menu(type)->chooseItem(2);
    EXPECT_EQ(shown(type), 1);
    EXPECT_EQ(log, QStringList()) << "no step runs";
    host->refuses = false;
    menu(type)->chooseItem(2);
    EXPECT_EQ(log, QStringList({"update r"}));
    // Without an act of the view, to the item that the live block tells.
    host->refuses = true;
    menu(type)->selectItemAtIndex(0);
    type->GetValueFromUI()->setWord(3);
    type->UIEventHandler();
    EXPECT_EQ(shown(type), 2);
    panel.Open(); // the mark
    menu(mode)->selectItemAtIndex(2);
    mode->RequestPopupList();
    EXPECT_EQ(shown(mode), 0);
}

TEST_F(PopupTest, ChangedValueIsSentOnceAndARefusalKeepsIt) {
    build(kPpd);
    EXPECT_FALSE(save(mode));
    menu(mode)->chooseItem(2);
    panel.SetValueFromUIToControl();
    host->refuses = true;
    EXPECT_FALSE(save(mode) || mode->GetValueToPreset());
    EXPECT_TRUE(mode->valueChanged());
    host->refuses = false;
    EXPECT_TRUE(save(mode));
    EXPECT_EQ(host->calls, Calls({{kMode, "Auto"}}));
    EXPECT_FALSE(save(mode));
}

TEST_F(PopupTest, MissingOptionStaysHiddenWhateverConstraintsSay) {
    build(ppdOption(kMode, {"Color", "Black"}));
    EXPECT_TRUE(views::isHidden(menu(type)));
    EXPECT_TRUE(views::isHidden(panel.GetPanelControl(&kTypeTitleTag)->GetControlPtr()));
    type->Show();
    type->Hide();
    EXPECT_EQ(type->hideCount(), 0);
    EXPECT_TRUE(views::isHidden(menu(type)));
    EXPECT_TRUE(reported(kMode));
    EXPECT_FALSE(reported(kType));
    EXPECT_FALSE(save(type));
}

TEST_F(PopupTest, DefaultThatIsNoChoiceLeavesTheRecord) {
    typeRecord.defaultValue = 3;
    QByteArray body = ppdOption(kType, {"A", "B", "C"}, "A");
    build(body.replace("*DefaultQZRGBImageType: A", "*DefaultQZRGBImageType: Unknown"));
    EXPECT_EQ(typeRecord.defaultValue, 3u);
    EXPECT_EQ(shown(type), 2) << "no mark: the record's default";
}

} // namespace
