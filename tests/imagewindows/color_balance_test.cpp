#include "color_balance_fixture.h"

#include "platform/views/alert.h"

#include <algorithm>
#include <random>

namespace {

class WindowStateTest : public ColorBalanceTest {
protected:
    /// Fields and arrows of the target alone are shown, each held by at most one row, and the box
    /// alone decides what is enabled.
    void expectBalanced() {
        const int target = targets()->indexOfSelectedItem();
        const int off = 1 - box()->intValue();
        int disabled = 0;
        for (const auto &held : *window.getCtrlGroupArrayRef()) {
            disabled += !views::isEnabled(held->GetControlPtr());
            EXPECT_TRUE(held->constrainCount() == 0 || held->constrainCount() == off);
        }
        EXPECT_EQ(disabled, 33 * off);
        for (int color = 0; color < kTargetColors; ++color)
            for (int range = 0; range < kDensityRanges; ++range) {
                for (const int tag : {editTag(color, range), stepperTag(color, range)}) {
                    EXPECT_EQ(control(tag)->hideCount(), color != target) << tag;
                    EXPECT_EQ(views::isHidden(control(tag)->GetControlPtr()), color != target);
                }
                EXPECT_EQ(edit(color, range)->stringValue(),
                          QString::number(stepper(color, range)->intValue()));
            }
        const QList<int> lit = bars();
        for (int range = 0; range < kDensityRanges; ++range) {
            EXPECT_EQ(lit[range], off ? 0 : stepper(target, range)->intValue() + 4);
            const auto *title = at<TextView>(gLwDnstStxtID + range);
            EXPECT_EQ(title->buddy(), edit(target, range));
            EXPECT_EQ(title->stringValue(), stepper(target, range)->accessibleName() + ":");
        }
    }
    PopupView *colorMode() { return qobject_cast<PopupView *>(panel.colorMode->GetControlPtr()); }
};

TEST_F(WindowStateTest, EveryRoadKeepsTheCountsBalanced) {
    std::mt19937 random(7);
    const auto below = [&random](int n) { return static_cast<int>(random() % n); };
    for (int opening = 0; opening < 30 && !HasFailure(); ++opening) {
        if (below(3) == 0)
            build(); // on the form as the former controls have left it
        if (below(6) == 0) {
            panel.releaseHolds(); // what a change of the PPD does
            start();
        }
        colorMode()->selectItemAtIndex(below(3) == 0);
        run([&] {
            for (int act = 0; act < 8 && !HasFailure(); ++act) {
                SCOPED_TRACE(testing::Message() << opening << "." << act);
                const int color = targets()->indexOfSelectedItem(), range = below(3);
                const std::function<void()> acts[] = {
                    [&] { press(gClrBlncDfltPushID); },
                    [&] { box()->click(); },
                    [&] { stepper(color, range)->stepBy(below(7) - 3); },
                    [&] { edit(color, range)->typeText(QString::number(below(7) - 3)); },
                    [&] { targets()->chooseItem(below(4)); },
                };
                acts[std::min(below(8), 4)](); // the target most of all
                expectBalanced();
            }
            press(below(2) ? gClrBlncOKPushID : gClrBlncCnclPushID);
        });
    }
}

TEST_F(WindowStateTest, BlackAndWhiteLeavesBlackAlone) {
    run([&] {
        targets()->chooseItem(2);
        EXPECT_EQ(targets()->nextInFocusChain(), edit(2, 0));
        press(gClrBlncOKPushID);
    });
    panel.SetValueToTicket(&host->settings, false);
    QString target;
    PMPrintSettingsGetValue(&host->settings, QString::fromUtf8(trgetcolorListAccessInfo.ticketKey),
                            &target);
    EXPECT_EQ(target, "2");
    for (const int mode : {1, 0, 1}) {
        build(); // takes the target from the settings, before any opening
        colorMode()->selectItemAtIndex(mode);
        run([&] {
            expectBalanced();
            EXPECT_EQ(targets()->indexOfSelectedItem(), mode == 1 ? 0 : 2);
            for (int item = 0; item < kTargetColors; ++item)
                EXPECT_EQ(targets()->isItemEnabled(item), mode == 0 || item == 0);
            press(gClrBlncCnclPushID);
        });
    }
}

TEST_F(ColorBalanceTest, EachFieldHasItsOwnArrowsAndColumn) {
    const std::tuple<const char *, int> entries[] = {// typed, both show then
                                                     {"2", 2},  {"4", 2}, {"33", 2},
                                                     {"--", 2}, {"-", 0}, {"-3", -3},
                                                     {"", 0},   {"3", 3}, {"-1", -1}};
    run([&] {
        for (int color = 0; color < kTargetColors; ++color) {
            targets()->chooseItem(color);
            for (int range = 0; range < kDensityRanges; ++range) {
                for (const auto &[text, number] : entries) {
                    EXPECT_TRUE(edit(color, range)->typeText(text));
                    EXPECT_EQ(edit(color, range)->stringValue(), QString::number(number)) << text;
                    EXPECT_EQ(stepper(color, range)->intValue(), number);
                }
                EXPECT_EQ(bars(), (QList<int>(range + 1, 3) + QList<int>(2 - range, 4)))
                    << "no other column has moved";
            }
            const int beeps = views::beepCount();
            stepper(color, 1)->stepBy(4);
            EXPECT_EQ(edit(color, 1)->stringValue(), "3");
            EXPECT_EQ(bars()[1], 7);
            EXPECT_EQ(views::beepCount(), beeps) << "four steps from -1";
            stepper(color, 1)->stepBy(1);
            EXPECT_EQ(views::beepCount(), beeps + 1);
        }
        press(gClrBlncCnclPushID);
    });
}

TEST_F(ColorBalanceTest, OkCommitsValidTextsAndCancelNothing) {
    run([&] {
        stepper(0, 0)->stepBy(2);
        press(gClrBlncCnclPushID);
    });
    run([&] {
        EXPECT_EQ(edit(0, 0)->stringValue(), "0") << "the committed value";
        stepper(0, 0)->stepBy(1);
        edit(2, 1)->setStringValue("x"); // past the formatter
        window.SycValueFromUI();
        QString alert;
        QTimer::singleShot(0, qApp, [&] {
            alert = views::currentAlert();
            views::dismissAlert();
        });
        press(gClrBlncOKPushID);
        EXPECT_EQ(alert, bundle->localizedString("Message??", "none"));
        EXPECT_TRUE(ModalWindow::current()->isVisible()) << "stays open";
        EXPECT_EQ(control(stepperTag(0, 0))->GetValueFromControl()->word(), 0);
        edit(2, 1)->setStringValue("-2");
        window.SycValueFromUI();
        press(gClrBlncOKPushID);
    });
    EXPECT_EQ(control(stepperTag(0, 0))->GetValueFromControl()->word(), 1);
    run([&] {
        box()->click();
        EXPECT_EQ(host->marked(kPPDColorBalanceAdjustmentKey), "False");
        press(gClrBlncCnclPushID);
    });
    EXPECT_EQ(host->marked(kPPDColorBalanceAdjustmentKey), "False") << "Cancel leaves the mark";
    EXPECT_TRUE(panel.IsColorBalanceAdjustmentAvailable());
}

TEST_F(ColorBalanceTest, SavedDensitiesAreChoicesFromTheGreatestDown) {
    QList<QPair<QString, QString>> expected{{kPPDColorBalanceAdjustmentKey, "True"}};
    run([&] {
        for (int color = 0; color < kTargetColors; ++color) {
            targets()->chooseItem(color);
            for (int range = 0; range < kDensityRanges; ++range) {
                const int number = 3 - (3 * color + range) % 7;
                edit(color, range)->typeText(QString::number(number));
                expected.append({kDensityRows[color][range].ppdKey, QString::number(number)});
            }
        }
        press(gClrBlncOKPushID);
    });
    host->calls.clear();
    panel.SetValueToTicket(&host->settings, false);
    EXPECT_EQ(host->calls, expected);
    EXPECT_EQ(host->marked(kPPDColorDensityBlackLowKey), "3");
    EXPECT_EQ(ppdFindOption(ppd.get(), kPPDColorDensityBlackLowKey)->choices[0].marked, 1);

    const std::tuple<const char *, bool, int> rows[] = {// colour mode, box, rows of densities
                                                        {"Color", true, 12},
                                                        {"Black", true, 3},
                                                        {"Black", false, 0},
                                                        {"Color", false, 0}};
    for (const auto &[mode, on, densities] : rows) {
        markChoice(ppd.get(), kPPDColorModeKey, mode);
        markChoice(ppd.get(), kPPDColorBalanceAdjustmentKey, on ? "True" : "False");
        panel.Open();
        QVariantMap texts;
        QStringList order;
        window.GetSummaryText(&texts, &order);
        EXPECT_EQ(order.size(), 1 + densities) << mode;
        EXPECT_EQ(texts[order[0]], on ? "True label" : "False label");
        EXPECT_EQ(texts["QZColorDensityBlackLow "], densities ? "3 label" : QVariant())
            << "the title is cut like every summary text";
    }
}

} // namespace
