#include "main_panel_fixture.h"

#include "imagewindows/cmyk_lists.h"
#include "imagewindows/output_mode_list.h"
#include "imagewindows/rgb_correction_list.h"

namespace {

constexpr const char *kMode = "QZOutputMode", *kPaper = "QZCMYKCorrectionTarget";

class ListsTest : public MainPanelTest {
protected:
    /// Both RGB lists on an option with the choices of a text.
    void openRgb(const char *choices, const char *standard, const QByteArray &more = "") {
        open(ppdOption(kRgb, QByteArray(choices).split(' '), standard) + more);
        list = addList<RGBCorrectionListCtrlKRV>(panel, kRgb, rgbColorCorrectonListTag);
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
        {"Pure Soft None Vivid", "Soft", "Pure Soft- Vivid-", "Pure- Soft Vivid-", 1},
        {"Soft Vivid None", "Vivid", "Soft Vivid-", "Soft- Vivid-", 1},
        {"Soft Vivid Photo", "Photo", "Vivid- Photo-", "Vivid- Photo-", 2},
        {"Soft Perceptual", "Soft", "Perceptual-", "Perceptual-", -1},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.choices);
        const QList<QByteArray> choices = QByteArray(row.choices).split(' ');
        const QByteArray rule = "*UIConstraints: *QZX A *QZRGBCorrection ";
        const QByteArray rules = rule + choices[1] + "\n" + rule + choices.last() + "\n";
        openRgb(row.choices, row.standard, ppdOption("QZX", {"A", "B"}) + rules);
        start();
        EXPECT_EQ(items(list), row.mainMenu);
        EXPECT_EQ(items(child), row.childMenu);
        EXPECT_EQ(*static_cast<const int *>(list->GetDefaultDataBlk()), row.defaultValue);
        EXPECT_EQ(list->GetUISelectStr(), row.standard) << "the marked row, item or not";

        panel.UpdateConflictsPanelControlFromPPD(ppd.get());
        EXPECT_EQ(items(list), row.childMenu);
        markChoice(ppd.get(), "QZX", "B");
        panel.UpdateConflictsPanelControlFromPPD(ppd.get());
        EXPECT_FALSE(items(list).contains('-'));
    }
}

TEST_F(ListsTest, MarkedNoneShowsNothingAndStaysNone) {
    openRgb("None Perceptual Vivid", "Vivid");
    markChoice(ppd.get(), kRgb, "None");
    start();
    panel.Open();
    EXPECT_EQ(shown(list), -1);
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
    // clang-format off
    using Row = std::tuple<bool, bool, bool, const char *, const char *>;
    const Row rows[] = { // printing, advanced setting, colour, choices, what is sent
        {false, false, false, "None Vivid", "Vivid"},
        {true, false, true, "None Vivid", "None"},
        {true, true, false, "None Vivid", "None"},
        {true, true, false, "Soft Vivid", "Vivid"},
    };
    // clang-format on
    for (const auto &[printing, advanced, color, choices, sent] : rows) {
        openRgb(choices, "Vivid");
        start();
        std::tie(panel.printing, panel.advanced, panel.color) = std::tie(printing, advanced, color);
        EXPECT_TRUE(list->SetValueToTicket(nullptr, false));
        EXPECT_EQ(host->calls, Calls({{kRgb, sent}}));
    }
}

TEST_F(ListsTest, MailboxJobForcesTheOutputMode) {
    // The attribute, the item (-1: no mailbox mode among the rows), whether it is forced, summary.
    const std::tuple<QByteArray, int, bool, QString> rows[] = {
        {"*QZXMailBoxSettings: \"AutoFine\"\n", 1, true, "Fine label"},
        {"*QZXMailBoxSettings: \"AutoAVeryLongOutputMode\"\n", 2, true, ""},
        {"*QZXMailBoxSettings: \"Auto\"\n", -1, true, ""},
        {"", 0, false, "Normal label"},
    };
    for (const auto &[attribute, item, forced, text] : rows) {
        SCOPED_TRACE(attribute.constData());
        open(ppdOption(kMode, {"Normal", "Fine", "AVeryLongOutputMode"}) + attribute);
        auto *mode = addList<GOutputModeListCtrlKRV>(panel, kMode, 103);
        start();
        for (const bool mailbox : {false, true, true, false}) {
            panel.mailbox = mailbox;
            panel.Open();
            EXPECT_EQ(views::isEnabled(menu(mode)), !(mailbox && forced));
            EXPECT_EQ(shown(mode), mailbox ? item : 0);
            EXPECT_EQ(mode->constrainCount(), mailbox && forced) << "held once";
            EXPECT_EQ(summary(), mailbox ? text : "Normal label");
        }
        panel.mailbox = true; // after the panel was shown, and never shown again
        for (int round = 0; item > 0 && round < 2; ++round) {
            panel.SetValueFromUIToControl();
            EXPECT_TRUE(mode->SetValueToTicket(nullptr, false));
            EXPECT_EQ(host->marked(kMode), item == 1 ? "Fine" : "AVeryLongOutputMode");
            EXPECT_TRUE(mode->SetDefaultValueToUI()) << "marks the default";
        }
    }
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
        for (int i = 0; i < 2 * choices.size(); ++i) {
            menu(cmyk)->chooseItem(i % choices.size());
            EXPECT_EQ(views::isEnabled(menu(paper)), choices[i % choices.size()] != "None");
        }
        EXPECT_TRUE(paper->ToGetSummaryText()) << "the main panel still has Vivid";
    }
}

} // namespace
