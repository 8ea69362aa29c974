#include "platform/views/button_view.h"
#include "platform/views/check_box_view.h"
#include "platform/views/popup_view.h"
#include "platform/views/radio_view.h"
#include "platform/views/slider_view.h"
#include "platform/views/stepper_view.h"
#include "platform/views/text_field_view.h"
#include "platform/views/text_view.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/// What a view does for the program, silently, and for a person, with one action that sees the new
/// value.
template <class View>
void expectActionOf(std::function<bool(View *)> person, int afterPerson,
                    std::function<void(View *)> program, int afterProgram,
                    std::function<int(View *)> value) {
    SCOPED_TRACE(View::staticMetaObject.className());
    QWidget panel;
    auto *view = new View(&panel);
    QList<int> seen;
    view->setAction([&] { seen += value(view); });
    program(view);
    views::setEnabled(view, false);
    EXPECT_FALSE(person(view));
    views::setEnabled(view, true);
    EXPECT_TRUE(seen.isEmpty());
    EXPECT_EQ(afterProgram, value(view));
    EXPECT_TRUE(person(view));
    EXPECT_EQ(QList{afterPerson}, seen);
    views::setHidden(&panel, true); // a part of the way up to the window is enough
    EXPECT_FALSE(person(view));
}

TEST(Views, OnlyAPersonsActSendsTheAction) {
    const auto click = [](QAbstractButton *v) { return v->click(), views::isUsable(v); };
    const auto check = [](auto *v) { v->setIntValue(1); };
    expectActionOf<CheckBoxView>(click, 0, check, 1, &CheckBoxView::intValue);
    expectActionOf<RadioView>(click, 1, check, 1, &RadioView::intValue);
    expectActionOf<PopupView>(
        [](auto *v) { return !v->chooseItem(4) && v->chooseItem(3) && v->chooseItem(3); }, 3,
        [](auto *v) {
            for (const char *title : {"first", "one", "two & <b>", "three"})
                v->addItemWithTitle(title);
            for (int index : {2, 4, 99, -2})
                v->selectItemAtIndex(index);
        },
        2, &PopupView::indexOfSelectedItem);
    expectActionOf<SliderView>(
        [](auto *v) { return !v->slideTo(6) && !v->slideTo(-6) && v->slideTo(-2); }, -2,
        [](auto *v) {
            v->setIntValue(50);
            v->setMinValue(-5);
            v->setMaxValue(5);
        },
        5, &SliderView::intValue);
    expectActionOf<StepperView>([](auto *v) { return v->stepBy(-1); }, 98,
                                [](auto *v) { v->setIntValue(500); }, 99, &StepperView::intValue);
    expectActionOf<TextFieldView>([](auto *v) { return v->typeText("-3"); }, -3,
                                  [](auto *v) { v->setStringValue("12"); }, 12,
                                  [](auto *v) { return v->stringValue().toInt(); });
}

TEST(Views, FlagsAreTheViewsOwn) {
    QWidget panel;
    StepperView view;
    EXPECT_FALSE(views::isHidden(&view)); // though Qt says so
    views::setHidden(&view, true);
    view.setParent(&panel);
    EXPECT_TRUE(views::isHidden(&view));
    views::setHidden(&view, false);
    views::setEnabled(&panel, false);
    EXPECT_TRUE(views::isEnabled(&view) && !views::isHidden(&view) && !views::isUsable(&view));
}

TEST(Views, RadioButtonsAreNotExclusiveAndMoveWithTheArrows) {
    QWidget panel;
    RadioView *buttons[] = {new RadioView(&panel), new RadioView(&panel), new RadioView(&panel)};
    int actions = 0;
    for (RadioView *button : buttons) {
        button->setIntValue(1);
        button->setAction([&actions] { ++actions; });
    }
    EXPECT_TRUE(buttons[0]->intValue() && buttons[1]->intValue());
    for (RadioView *button : buttons)
        button->setIntValue(0);
    views::setEnabled(buttons[1], false);
    QTest::keyClick(buttons[0], Qt::Key_Down);
    EXPECT_TRUE(!buttons[1]->intValue() && buttons[2]->intValue());
    QTest::keyClick(buttons[2], Qt::Key_Right);
    EXPECT_EQ(1, buttons[0]->intValue());
    EXPECT_EQ(2, actions);
}

/// Views in a window that is shown, and the actions they sent.
struct ViewsInWindow : testing::Test {
    QWidget panel;
    PopupView *popup = new PopupView(&panel);
    SliderView *slider = new SliderView(&panel);
    StepperView *stepper = new StepperView(&panel);
    int actions = 0;

    ViewsInWindow() {
        for (views::ActionSource *view :
             std::initializer_list<views::ActionSource *>{popup, slider, stepper})
            view->setAction([this] { ++actions; });
        stepper->resize(stepper->sizeHint());
        for (const char *title : {"one", "two", "three"})
            popup->addItemWithTitle(title);
        panel.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    }
};

TEST_F(ViewsInWindow, StepperSendsEachAttemptAndStopsRepeatingAtTheEnd) {
    stepper->setMaxValue(3);
    EXPECT_TRUE(stepper->stepBy(1000000000)); // three steps and one refusal
    EXPECT_EQ(std::pair(4, 3), std::pair(actions, stepper->intValue()));
    const QPoint down(stepper->width() / 2, stepper->height() * 3 / 4);
    QTest::mousePress(stepper, Qt::LeftButton, {}, down);
    ASSERT_TRUE(QTest::qWaitFor([&] { return actions == 8; }));
    QTest::qWait(500); // several repeats would fit in
    QTest::mouseRelease(stepper, Qt::LeftButton, {}, down);
    EXPECT_EQ(std::pair(8, 0), std::pair(actions, stepper->intValue()));
    QTest::keyClick(stepper, Qt::Key_Up);
    for (int repeat = 0; repeat < 5; ++repeat) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), repeat > 0);
        QCoreApplication::sendEvent(stepper, &held);
    }
    EXPECT_EQ(8 + 1 + 2, actions);
    stepper->setMaxValue(-4); // below the least value
    EXPECT_EQ(-4, stepper->intValue());
    stepper->setAction([&] { delete stepper; });
    stepper->stepBy(5);
}

TEST_F(ViewsInWindow, WheelWithoutFocusAndKeysAtTheItemShownAreSilent) {
    for (QWidget *view : std::initializer_list<QWidget *>{popup, slider, stepper}) {
        popup->selectItemAtIndex(1);
        actions = 0;
        for (int focused : {0, 1}) {
            focused ? view->setFocus() : view->clearFocus();
            QWheelEvent wheel(QPointF(2, 2), view->mapToGlobal(QPointF(2, 2)), {}, QPoint(0, 120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(view, &wheel);
            EXPECT_EQ(focused, actions) << view->metaObject()->className();
        }
    }
    popup->selectItemAtIndex(0);
    actions = 0;
    QTest::keyClick(popup, Qt::Key_Up); // there is none above
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(1, actions);
    QTest::keyClick(popup, Qt::Key_Down);
    EXPECT_EQ(2, actions);
    popup->showPopup();
    QTest::keyClick(popup->view(), Qt::Key_Return); // the item that is shown
    EXPECT_EQ(2, actions);
}

TEST_F(ViewsInWindow, AssistiveProgramsGetNamesAndActAsAPerson) {
    const auto ask = [](QWidget *view) { return QAccessible::queryAccessibleInterface(view); };
    TextView label(&panel);
    label.setBuddy(popup);
    label.setStringValue("R&D Mode:");
    EXPECT_EQ("R&D Mode", ask(popup)->text(QAccessible::Name));
    for (QWidget *view : std::initializer_list<QWidget *>{slider, stepper}) {
        ask(view)->valueInterface()->setCurrentValue(1);
        EXPECT_EQ(1, ask(view)->valueInterface()->currentValue().toInt());
    }
    EXPECT_EQ(2, actions);
}

} // namespace
