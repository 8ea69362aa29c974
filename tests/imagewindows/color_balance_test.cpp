// What no one can see from outside: counts, pixels, labels, texts past the formatter.

#include "main_panel_fixture.h"

#include "imagewindows/color_balance_window.h"
#include "platform/views/alert.h"
#include "ppd/ppd_keys.h"

#include <QCoreApplication>
#include <QTimer>

#include <random>

namespace {

class ColorBalanceTest : public MainPanelTest {
protected:
    void SetUp() override {
        QByteArray body = ppdOption(kPPDColorBalanceAdjustmentKey, {"False", "True"}, "True");
        for (const auto &color : kDensityRows)
            for (const DensityRow &row : color)
                body += ppdOption(row.ppdKey, {"3", "2", "1", "0", "-1", "-2", "-3"}, "0");
        open(body);
        form = balance.loadWindow(Bundle::open(BUNDLE_DIR).get());
        balance.ColorBalanceWnd(form, "Title");
        panel.RunTimeAddNewWindow(&balance);
        start();
    }
    BaseControlKRVImageOptions *control(int tag) { return balance.GetPanelControl(&tag); }
    template <class View>
    View *at(int tag) {
        return qobject_cast<View *>(control(tag)->GetControlPtr());
    }
    TextFieldView *edit(int color, int row) { return at<TextFieldView>(3500 + color + 10 * row); }
    StepperView *stepper(int color, int row) { return at<StepperView>(3600 + color + 10 * row); }
    PopupView *targets() { return at<PopupView>(gTrgtClrLboxID); }
    void press(int tag) { at<QAbstractButton>(tag)->click(); }
    QImage preview() { return at<QWidget>(gClrBlncImgHviewID)->grab().toImage(); }
    /// The lit bars of the preview's columns, as it is drawn.
    QList<int> bars() {
        const QImage image = preview();
        QList<int> lit{0, 0, 0};
        for (int bar = 0; bar < 21; ++bar)
            lit[bar % 3] += image.pixelColor(31 + bar % 3 * 106, 139 - bar / 3 * 21) != Qt::white;
        return lit;
    }
    /// Opens the window and acts inside its run, which the act ends.
    void run(const std::function<void()> &act) {
        QTimer::singleShot(0, form, [&] {
            EXPECT_EQ(ModalWindow::current(), form);
            act();
            EXPECT_FALSE(form->isVisible()) << "nothing ended the run";
            balance.DeactivateWindow();
        });
        balance.ActivateWindow();
    }
    /// Fields and arrows of the target alone are shown, each held by at most one row, and no
    /// control is held down but by the box. Numbers, bars and labels agree.
    void expectBalanced() {
        const int target = targets()->indexOfSelectedItem();
        const int off = !at<CheckBoxView>(gAdjstClrBlncCboxID)->isChecked();
        for (const auto &held : *balance.getCtrlGroupArrayRef())
            EXPECT_TRUE(held->constrainCount() == 0 || held->constrainCount() == off);
        for (int row = 0; row < kDensityRanges; ++row) {
            for (int color = 0; color < kTargetColors; ++color) {
                for (const int tag : {3500 + color + 10 * row, 3600 + color + 10 * row})
                    EXPECT_EQ(control(tag)->hideCount(), color != target) << tag;
                EXPECT_EQ(edit(color, row)->stringValue().toInt(), stepper(color, row)->intValue());
            }
            EXPECT_EQ(bars()[row], off ? 0 : stepper(target, row)->intValue() + 4);
            const auto *title = at<TextView>(gLwDnstStxtID + row);
            EXPECT_EQ(title->buddy(), edit(target, row));
            EXPECT_EQ(title->stringValue(), stepper(target, row)->accessibleName());
        }
        constexpr QRgb kLowest[] = {0xFF787878, 0xFFA4F9F9, 0xFFF9A4F9, 0xFFF9F9A4};
        EXPECT_EQ(preview().pixel(31, 139), off ? 0xFFFFFFFF : kLowest[target]);
    }

    ColorBalanceWndKRV balance;
    ModalWindow *form = nullptr;
};

TEST_F(ColorBalanceTest, EveryRoadKeepsTheCountsBalanced) {
    auto below = [random = std::mt19937(7)](int n) mutable { return int(random() % n); };
    for (int opening = 0; opening < 30 && !HasFailure(); ++opening) {
        if (below(3) == 0)
            SetUp(); // built anew
        if (below(6) == 0)
            panel.releaseHolds(), start(); // what a change of the PPD does
        run([&] {
            for (int act = 0; act < 8 && !HasFailure(); ++act) {
                SCOPED_TRACE(testing::Message() << opening << "." << act);
                const int color = targets()->indexOfSelectedItem(), range = below(3);
                const std::function<void()> acts[] = {
                    [&] { press(below(2) ? gClrBlncDfltPushID : gAdjstClrBlncCboxID); },
                    [&] { stepper(color, range)->stepBy(below(7) - 3); },
                    [&] { edit(color, range)->typeText(QString::number(below(7) - 3)); },
                    [&] { targets()->chooseItem(below(4)); },
                };
                acts[below(4)]();
                expectBalanced();
            }
            press(below(2) ? gClrBlncOKPushID : gClrBlncCnclPushID);
        });
    }
}

TEST_F(ColorBalanceTest, TabKeyAndWhatNoPersonCanEnter) {
    run([&] {
        for (const int to : {1, 2, 3, 0})
            EXPECT_TRUE(targets()->chooseItem(to) && targets()->nextInFocusChain() == edit(to, 0));
        stepper(0, 2)->stepBy(-2);
        stepper(0, 1)->setMaxValue(9);
        edit(0, 0)->setStringValue("x"); // the preview asks the arrows
        for (const auto &[number, target] : {std::pair(0, 0), {4, 0}, {3, -1}}) {
            stepper(0, 1)->setIntValue(number);
            targets()->selectItemAtIndex(target);
            control(gClrBlncImgHviewID)->Update();
            EXPECT_EQ(bars(), QList<int>({4, 4, 2})) << number << " is out of range, no target";
        }
        balance.SycValueFromUI();
        QTimer::singleShot(0, form, [] { EXPECT_TRUE(views::dismissAlert()); });
        press(gClrBlncOKPushID);
        EXPECT_TRUE(form->isVisible());
        press(gClrBlncCnclPushID);
    });
    EXPECT_EQ(control(gHghDnstLarrID)->GetValueFromControl()->word(), 0) << "nothing was kept";
}

TEST_F(ColorBalanceTest, OpensNothingWithoutControls) {
    balance.terminate(); // no button could end the run
    bool opened = false;
    QTimer::singleShot(0, form, [&] {
        opened = form->isVisible();
        balance.DeactivateWindow();
    });
    EXPECT_EQ(balance.ActivateWindow(), 0);
    QCoreApplication::processEvents();
    EXPECT_FALSE(opened);
}

} // namespace
