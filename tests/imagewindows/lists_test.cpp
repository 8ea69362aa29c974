#include "main_panel_fixture.h"

#include "imagewindows/cmyk_lists.h"
#include "imagewindows/output_mode_list.h"
#include "imagewindows/plugin_type_list.h"
#include "imagewindows/rgb_correction_list.h"
#include "imagewindows/screen_list.h"

namespace {

using Calls = QList<QPair<QString, QString>>;
constexpr const char *kRgb = "QZRGBCorrection", *kCmyk = "QZCMYKCorrectionSTD";
constexpr const char *kMode = "QZOutputMode", *kPaper = "QZCMYKCorrectionTarget";
constexpr int kModeTag = 103;

class ListsTest : public MainPanelTest {
protected:
    /// Both RGB lists on an option with the choices of a text.
    void openRgb(const char *choices, const char *standard, const QByteArray &more = "",
                 const CtrlConstrainInfo *info = nullptr) {
        open(ppdOption(kRgb, QByteArray(choices).split(' '), standard) + more);
        list = addList<RGBCorrectionListCtrlKRV>(panel, kRgb, rgbColorCorrectonListTag, info);
        panel.rgb = list;
        child = addList<RGBCorrectionListCtrlIAKRV>(*window, kRgb, RGBColorCorrectionIAListTag);
    }
    /// The items' keywords, with "-" behind a disabled one.
    static QString items(const BaseControlKRVImageOptions *control) {
        QStringList result;
        for (int i = 0; i < menu(control)->numberOfItems(); ++i)
            result.append(menu(control)->itemRepresentedObject(i) +
                          (menu(control)->isItemEnabled(i) ? "" : "-"));
        return result.join(' ');
    }

    RGBCorrectionListCtrlKRV *list = nullptr;
    RGBCorrectionListCtrlIAKRV *child = nullptr;
};

TEST_F(ListsTest, RgbMenuLeavesNoneOut) {
    // What is marked forbids the second and the last row; "-" marks a disabled item. The window's
    // list disables by the row behind an item, and so does each refresh.
    const struct {
        const char *choices, *standard, *mainMenu, *childMenu;
        int defaultValue;
    } cases[] = {
        {"None Perceptual Vivid", "Vivid", "Perceptual- Vivid-", "Perceptual- Vivid-", 2},
        {"None Perceptual Vivid", "None", "Perceptual- Vivid-", "Perceptual- Vivid-", 0},
        {"None Soft Vivid", "None", "Soft- Vivid-", "Soft- Vivid-", 1},
        {"Pure Soft None Vivid", "Soft", "Pure Soft- Vivid-", "Pure- Soft Vivid-", 1},
        {"Soft Vivid None", "Vivid", "Soft Vivid-", "Soft- Vivid-", 1},
        {"Soft Vivid Photo", "Photo", "Vivid- Photo-", "Vivid- Photo-", 2},
        {"Soft Perceptual", "Soft", "Perceptual-", "Perceptual-", -1},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.choices);
        const QList<QByteArray> choices = QByteArray(row.choices).split(' ');
        QByteArray rules = ppdOption("QZX", {"A", "B"});
        for (const QByteArray &choice : {choices[1], choices.last()})
            rules += "*UIConstraints: *QZX A *QZRGBCorrection " + choice + "\n";
        openRgb(row.choices, row.standard, rules);
        start();
        EXPECT_EQ(items(list), row.mainMenu);
        EXPECT_EQ(items(child), row.childMenu);
        EXPECT_EQ(*static_cast<const int *>(list->GetDefaultDataBlk()), row.defaultValue);
        list->UpdateConflictsPanelControlFromPPD(ppd.get());
        EXPECT_EQ(items(list), row.childMenu);
        EXPECT_EQ(list->GetUISelectStr(), row.standard) << "the marked row, item or not";
    }
}

TEST_F(ListsTest, RgbItemIsTheRowBehindIt) {
    openRgb("None Perceptual Vivid Soft", "Vivid");
    start();
    EXPECT_EQ(shown(list), 1);
    ASSERT_TRUE(menu(list)->chooseItem(2));
    EXPECT_TRUE(list->SetValueToTicket(nullptr, false)) << "what is shown, committed or not";
    EXPECT_TRUE(list->RestorePPD(ppd.get()));
    EXPECT_TRUE(list->SetDefaultValueToUI());
    EXPECT_EQ(shown(list), 1);
    const Calls told{{kRgb, "Soft"}, {kRgb, "Soft"}, {kRgb, "Vivid"}, {kRgb, "Vivid"}};
    EXPECT_EQ(host->calls, told);
    for (const int index : {0, 4, 5})
        EXPECT_EQ(list->ConvertFromPresetIndex(index), index == 4);
}

TEST_F(ListsTest, MarkedNoneShowsNothingAndStaysNone) {
    openRgb("None Perceptual Vivid", "Vivid");
    markChoice(ppd.get(), kRgb, "None");
    start();
    panel.Open();
    EXPECT_EQ(shown(list), -1);
    EXPECT_EQ(shown(child), -1);
    ASSERT_TRUE(menu(child)->chooseItem(1));
    EXPECT_EQ(host->marked(kRgb), "Vivid");
    EXPECT_TRUE(child->RestorePPD(ppd.get()));
    EXPECT_EQ(host->marked(kRgb), "None");
    panel.SetValueFromUIToControl();
    host->calls.clear();
    panel.SetValueToTicket(&host->settings, false);
    EXPECT_EQ(host->calls, Calls({{kRgb, "None"}})) << "once, from the main panel's list";
}

TEST_F(ListsTest, PrintingWithoutAdvancedSettingOrColorSendsNone) {
    const struct {
        bool printing, advanced, color;
        const char *choices, *sent;
    } cases[] = {
        {true, true, true, "None Vivid", "Vivid"},  {false, false, false, "None Vivid", "Vivid"},
        {true, false, true, "None Vivid", "None"},  {true, true, false, "None Vivid", "None"},
        {true, true, false, "Soft Vivid", "Vivid"},
    };
    for (const auto &row : cases) {
        openRgb(row.choices, "Vivid");
        start();
        panel.printing = row.printing;
        panel.advanced = row.advanced;
        panel.color = row.color;
        EXPECT_TRUE(list->SetValueToTicket(nullptr, false));
        delete list->GetControlPtr();
        EXPECT_TRUE(list->SetValueToTicket(nullptr, false)) << "without a view too";
        EXPECT_EQ(host->calls, Calls({{kRgb, row.sent}, {kRgb, row.sent}}));
        host->refuses = true;
        EXPECT_FALSE(list->SetValueToTicket(nullptr, false));
    }
}

TEST_F(ListsTest, MailboxJobForcesTheOutputMode) {
    const struct {
        const char *attribute;
        int item; // -1: no mailbox mode among the rows
        bool forced;
        QStringList summary;
    } cases[] = {
        {"*QZXMailBoxSettings: \"AutoFine\"\n", 1, true, {"Fine label"}},
        {"*QZXMailBoxSettings: \"AutoAVeryLongOutputMode\"\n", 2, true, {""}},
        {"*QZXMailBoxSettings: \"Auto\"\n", -1, true, {}},
        {"", 0, false, {"Normal label"}},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.attribute);
        open(ppdOption(kMode, {"Normal", "Fine", "AVeryLongOutputMode"}) + row.attribute);
        auto label = std::make_unique<PPDStaticTextCtrlKRVImageOptions>();
        label->CreateControl(new TextView(&view), kMode, nullptr, nullptr, nullptr, {}, nullptr);
        const auto *title = add(panel, std::move(label), OutputModeStaticTag);
        auto *mode =
            addList<GOutputModeListCtrlKRV>(panel, kMode, kModeTag, nullptr, &OutputModeStaticTag);
        start();
        for (const bool mailbox : {false, true, true, false}) {
            panel.mailbox = mailbox;
            panel.Open();
            EXPECT_EQ(views::isEnabled(menu(mode)), !(mailbox && row.forced));
            EXPECT_EQ(views::isEnabled(title->GetControlPtr()), !(mailbox && row.forced));
            EXPECT_EQ(shown(mode), mailbox ? row.item : 0);
            EXPECT_EQ(mode->constrainCount(), mailbox && row.forced) << "held once";
            QVariantMap rows;
            QStringList order;
            panel.GetSummaryText(&rows, &order);
            EXPECT_EQ(order.isEmpty() ? QStringList() : rows[order[0]].toStringList(),
                      mailbox ? row.summary : QStringList("Normal label"));
        }
        panel.mailbox = true; // after the panel was shown, and never shown again
        for (int round = 0; row.item > 0 && round < 2; ++round) {
            panel.SetValueFromUIToControl();
            EXPECT_TRUE(mode->SetValueToTicket(nullptr, false));
            EXPECT_EQ(host->marked(kMode), row.item == 1 ? "Fine" : "AVeryLongOutputMode");
            EXPECT_TRUE(mode->SetDefaultValueToUI()) << "marks the default";
        }
    }
    open("*QZXMailBoxSettings: \"AutoFine\"\n");
    auto *mode = addList<GOutputModeListCtrlKRV>(panel, kMode, kModeTag);
    start();
    panel.UpdateConflictsPanelControlFromPPD(ppd.get());
    EXPECT_TRUE(views::isHidden(menu(mode))) << "an attribute without its option shows nothing";
}

TEST_F(ListsTest, CmykNoneDisablesTargetPaperAtItsPlace) {
    static const CtrlConstrainTable empty{};
    static const CtrlConstrainInfo info{.disableTable = &empty};
    for (const char *row : {"None Soft Vivid", "Soft Vivid None", "Soft Vivid"}) {
        const QList<QByteArray> choices = QByteArray(row).split(' ');
        open(ppdOption(kCmyk, choices, "Vivid") + ppdOption(kPaper, {"A", "B"}));
        panel.cmyk = addList<GPPDListCtrlKRV>(panel, kCmyk, cmykColorCorrectionListTag);
        auto *cmyk = addList<CMYKCorrectionListCtrlIAKRV>(*window, kCmyk,
                                                          CMYKCorrectionPopupButtonTag, &info);
        auto *paper =
            addList<CMYKTargetMediaListCtrlIAKRV>(*window, kPaper, targetpaperIAPopupButtonTag);
        start();
        EXPECT_EQ(shown(cmyk), shown(panel.cmyk));
        for (int i = 0; i < 2 * choices.size(); ++i) {
            menu(cmyk)->chooseItem(i % choices.size());
            EXPECT_EQ(views::isEnabled(menu(paper)), choices[i % choices.size()] != "None");
        }
        EXPECT_TRUE(paper->ToGetSummaryText()) << "the main panel still has Vivid";
        panel.advanced = false;
        EXPECT_FALSE(paper->ToGetSummaryText());
        panel.advanced = true;
        if (markChoice(ppd.get(), kCmyk, "None")) {
            panel.cmyk->Open();
            EXPECT_FALSE(paper->ToGetSummaryText());
        }
    }
    EXPECT_FALSE(CMYKCorrectionListCtrlIAKRV().InitializeCtrl(nullptr, nullptr)) << "no table";
}

TEST_F(ListsTest, ScreenListGoesBackUnlessRestoring) {
    static const CtrlTag screenTag[] = {&ScreenListTag, nullptr};
    static const CtrlTagList rows[] = {screenTag}; // serves every item
    static const CtrlConstrainTable table{rows};
    static const CtrlConstrainInfo info{.updateTable = &table};
    openRgb("None Perceptual Vivid", "Perceptual", ppdOption("QZScreen", {"Fine", "Coarse"}),
            &info);
    auto *screen = addList<ScreenListCtrlKRV>(panel, "QZScreen", ScreenListTag);
    markChoice(ppd.get(), "QZScreen", "Coarse");
    panel.restoring = true;
    start();
    panel.restoring = false;
    list->GetValueFromUI();
    list->SimulationUIEventHandler();
    EXPECT_EQ(shown(screen), 1) << "nothing has changed";
    ASSERT_TRUE(menu(list)->chooseItem(1));
    EXPECT_EQ(shown(screen), 0);
    EXPECT_EQ(host->marked("QZScreen"), "Fine");
}

TEST_F(ListsTest, PluginTypesCountFromOne) {
    PopupIniData record{.defaultValue = 1};
    PluginTypeListCtrlKRV types;
    EXPECT_TRUE(types.SetPluginType(4));
    types.CreateControl(nullptr, &record, nullptr, nullptr, QString());
    for (const int type : {4, 0, -1}) {
        EXPECT_TRUE(types.SetPluginType(type));
        EXPECT_EQ(record.defaultValue, 4u);
    }
}

} // namespace
