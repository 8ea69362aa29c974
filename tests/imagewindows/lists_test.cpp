#include "main_panel_fixture.h"

#include "imagewindows/cmyk_lists.h"
#include "imagewindows/image_adjustment_tables.h"
#include "imagewindows/output_mode_list.h"
#include "imagewindows/rgb_correction_list.h"

namespace {

constexpr const char *kMode = "QZOutputMode";

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

TEST_F(ListsTest, WhereNoneIsNotSentItIsTheShownRow) {
    for (const auto &[printing, choices] : {std::pair(false, "None Vivid"), {true, "Soft Vivid"}}) {
        openRgb(choices, "Vivid");
        start();
        panel.printing = printing;
        panel.advanced = panel.color = false;
        EXPECT_TRUE(list->SetValueToTicket(nullptr, false));
        EXPECT_EQ(host->calls, Calls({{kRgb, "Vivid"}})) << choices;
    }
}

TEST_F(ListsTest, CmykWithoutNoneDisablesNothing) {
    open(ppdOption(kCmyk, {"Soft", "Vivid"}) + ppdOption("QZCMYKCorrectionTarget", {"A"}));
    auto *cmyk = addList<CMYKCorrectionListCtrlIAKRV>(*window, kCmyk, 505,
                                                      &cmykcolorcorrectionConstrainInfoIA);
    auto *paper = addList<CMYKTargetMediaListCtrlIAKRV>(*window, "QZCMYKCorrectionTarget", 506);
    start();
    EXPECT_TRUE(menu(cmyk)->chooseItem(1) && menu(cmyk)->chooseItem(0));
    EXPECT_TRUE(views::isEnabled(menu(paper)) && !paper->ToGetSummaryText()) << "no main list";
}

TEST_F(ListsTest, MailboxJobForcesTheOutputMode) {
    // The attribute, the item (-1: no mailbox mode among the rows), whether it is forced, summary.
    const std::tuple<QByteArray, int, bool, QString> rows[] = {
        {"*QZXMailBoxSettings: \"AutoAVeryLongOutputMode\"\n", 1, true, ""},
        {"*QZXMailBoxSettings: \"Auto\"\n", -1, true, ""},
        {"", 0, false, "Normal label"},
    };
    for (const auto &[attribute, item, forced, text] : rows) {
        SCOPED_TRACE(attribute.constData());
        open(ppdOption(kMode, {"Normal", "AVeryLongOutputMode"}) + attribute);
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
        panel.SetValueFromUIToControl();
        EXPECT_EQ(mode->SetValueToTicket(nullptr, false), item > 0);
    }
}

} // namespace
