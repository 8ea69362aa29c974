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
#include <QHBoxLayout>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/// One view in a panel that isn't shown.
template <class View>
struct InPanel {
    QWidget panel;
    View *view = new View(&panel);
    int actions = 0;

    InPanel() {
        view->setAction([this] { ++actions; });
    }
};

PopupView *withItems(PopupView *view) {
    for (const char *title : {"one", "two & <b>", "three"})
        view->addItemWithTitle(title);
    return view;
}

/// What each view does for the program, silently, and for a person, with one action that sees the
/// new value.
struct ViewCase {
    const char *name;
    std::function<QWidget *(QWidget *panel)> make;
    std::function<void(QWidget *)> program;
    std::function<bool(QWidget *)> person;
    std::function<int(QWidget *)> value;
    int afterProgram, afterPerson;
};

template <class View>
auto on(auto call) {
    return [call](QWidget *view) { return call(static_cast<View *>(view)); };
}

template <class View>
ViewCase button(const char *name, int afterPerson) {
    return {name,
            [](QWidget *panel) { return new View(panel); },
            on<View>([](View *v) {
                v->setTitle("R&D");
                v->setIntValue(1);
                v->setIntValue(0);
                v->setIntValue(1);
            }),
            on<View>([](View *v) {
                v->click();
                return views::isUsable(v);
            }),
            on<View>([](View *v) { return v->intValue(); }),
            1,
            afterPerson};
}

const ViewCase kViewCases[] = {
    button<CheckBoxView>("check box", 0),
    button<RadioView>("radio button", 1),
    {"popup", [](QWidget *panel) { return withItems(new PopupView(panel)); },
     on<PopupView>([](PopupView *v) {
         v->removeAllItems();
         withItems(v)->selectItemAtIndex(1);
         v->insertItemWithTitle("first", 0);
         for (int outside : {4, 99, -2})
             v->selectItemAtIndex(outside);
         v->setItemEnabled(2, false);
     }),
     on<PopupView>([](PopupView *v) {
         return !v->chooseItem(4) && !v->chooseItem(-1) && v->chooseItem(3) && v->chooseItem(3);
     }),
     on<PopupView>([](PopupView *v) { return v->indexOfSelectedItem(); }), 2, 3},
    {"slider", [](QWidget *panel) { return new SliderView(panel); },
     on<SliderView>([](SliderView *v) {
         v->setIntValue(50);
         v->setMinValue(-5);
         v->setMaxValue(5);
         v->setAllowsTickMarkValuesOnly(true);
         v->setNumberOfTickMarks(11);
     }),
     on<SliderView>([](SliderView *v) {
         return !v->slideTo(6) && !v->slideTo(-6) && v->slideTo(-2) && v->slideTo(-2);
     }),
     on<SliderView>([](SliderView *v) { return v->intValue(); }), 5, -2},
    {"stepper", [](QWidget *panel) { return new StepperView(panel); },
     on<StepperView>([](StepperView *v) {
         v->setMinValue(-3);
         v->setMaxValue(3);
         v->setIntValue(8);
     }),
     on<StepperView>([](StepperView *v) { return v->stepBy(-1); }),
     on<StepperView>([](StepperView *v) { return v->intValue(); }), 3, 2},
    {"text field", [](QWidget *panel) { return new TextFieldView(panel); },
     on<TextFieldView>([](TextFieldView *v) { v->setStringValue("12"); }),
     on<TextFieldView>([](TextFieldView *v) { return v->typeText("-3"); }),
     on<TextFieldView>([](TextFieldView *v) { return v->stringValue().toInt(); }), 12, -3},
};

TEST(Views, OnlyAPersonsActSendsTheAction) {
    for (const ViewCase &row : kViewCases) {
        SCOPED_TRACE(row.name);
        QWidget panel;
        QWidget *view = row.make(&panel);
        int actions = 0;
        int seen = 0;
        dynamic_cast<views::ActionSource *>(view)->setAction([&] {
            ++actions;
            seen = row.value(view);
        });
        row.program(view);
        EXPECT_EQ(0, actions);
        EXPECT_EQ(row.afterProgram, row.value(view));
        views::setEnabled(view, false);
        EXPECT_FALSE(row.person(view));
        views::setEnabled(view, true);
        EXPECT_EQ(0, actions);
        EXPECT_EQ(row.afterProgram, row.value(view));
        EXPECT_TRUE(row.person(view));
        EXPECT_EQ(1, actions);
        EXPECT_EQ(row.afterPerson, seen);
        views::setHidden(&panel, true); // a part of the way up to the window is enough
        EXPECT_FALSE(row.person(view));
    }
}

TEST(Views, FlagsAreTheViewsOwn) {
    QWidget panel;
    auto *view = new StepperView;
    EXPECT_FALSE(views::isHidden(view)); // though Qt says so
    views::setHidden(view, true);
    EXPECT_TRUE(views::isHidden(view));
    view->setParent(&panel);
    EXPECT_TRUE(views::isHidden(view));
    views::setHidden(view, false);
    views::setEnabled(&panel, false);
    EXPECT_TRUE(views::isEnabled(view) && !views::isHidden(view) && !views::isUsable(view));
    EXPECT_FALSE(views::isEnabled(nullptr) || views::isHidden(nullptr) || views::isUsable(nullptr));
    view->setParent(nullptr);
    views::setHidden(view, true);
    views::setHidden(view, false);
    EXPECT_FALSE(view->isVisible() || views::isHidden(view)); // no window of its own
    view->setProperty("tag", 3600);
    EXPECT_EQ(3600, views::tag(view));
    delete view;
}

TEST(Views, TitlesStandForThemselves) {
    ButtonView button;
    PopupView popup;
    TextView label;
    const struct {
        QString title;
        QChar mnemonic;
        const char *shown;
    } cases[] = {
        {"R&D", {}, "R&&D"},   {"R&D", 'd', "R&&&D"},           {"Grey scale", 'S', "Grey &scale"},
        {"Grey", 'X', "Grey"}, {"明るさ:", 'B', "明るさ(&B):"},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.title.toStdString());
        button.setTitle(row.title);
        button.setMnemonic(row.mnemonic);
        label.setStringValue(row.title);
        label.setMnemonic(row.mnemonic);
        EXPECT_EQ(row.title, button.title());
        EXPECT_EQ(row.title, label.stringValue());
        EXPECT_EQ(row.shown, button.text());
        EXPECT_EQ(row.title, label.text()); // has no buddy yet
        label.setBuddy(&popup);
        EXPECT_EQ(row.shown, label.text());
        label.setBuddy(nullptr);
    }
    label.setStringValue({});
    EXPECT_TRUE(label.stringValue().isNull());
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
    EXPECT_FALSE(buttons[2]->intValue());
    views::setEnabled(buttons[1], false);
    QTest::keyClick(buttons[0], Qt::Key_Down);
    EXPECT_TRUE(!buttons[1]->intValue() && buttons[2]->intValue());
    QTest::keyClick(buttons[2], Qt::Key_Right);
    EXPECT_EQ(1, buttons[0]->intValue());
    EXPECT_EQ(2, actions);
}

TEST(Views, StepperSendsEachAttemptAndStopsRepeatingAtTheEnd) {
    InPanel<StepperView> stepper;
    stepper.view->setMaxValue(3);
    EXPECT_TRUE(stepper.view->stepBy(1000000000)); // three steps and one refusal
    EXPECT_EQ(4, stepper.actions);
    EXPECT_EQ(3, stepper.view->intValue());

    stepper.view->resize(stepper.view->sizeHint());
    stepper.panel.show();
    const QPoint down(stepper.view->width() / 2, stepper.view->height() - 3);
    stepper.actions = 0;
    QTest::mousePress(stepper.view, Qt::LeftButton, {}, down);
    ASSERT_TRUE(QTest::qWaitFor([&] { return stepper.actions == 4; }));
    QTest::qWait(500); // several repeats would fit in
    QTest::mouseRelease(stepper.view, Qt::LeftButton, {}, down);
    EXPECT_EQ(0, stepper.view->intValue());
    EXPECT_EQ(4, stepper.actions);

    QTest::keyClick(stepper.view, Qt::Key_Up);
    EXPECT_EQ(1, stepper.view->intValue());
    for (int repeat = 0; repeat < 5; ++repeat) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), repeat > 0);
        QCoreApplication::sendEvent(stepper.view, &held);
    }
    EXPECT_EQ(4 + 1 + 2, stepper.actions);
    stepper.view->setMaxValue(-4); // below the least value
    EXPECT_EQ(-4, stepper.view->intValue());
    stepper.view->setAction([&] { delete stepper.view; });
    stepper.view->stepBy(5);
}

TEST(Views, WheelWithoutFocusAndKeysAtTheItemShownAreSilent) {
    QWidget panel;
    QHBoxLayout layout(&panel);
    auto *popup = withItems(new PopupView);
    auto *slider = new SliderView;
    auto *stepper = new StepperView;
    int actions = 0;
    const auto act = [&actions] { ++actions; };
    popup->setAction(act);
    slider->setAction(act);
    stepper->setAction(act);
    const QList<QWidget *> all{popup, slider, stepper};
    for (QWidget *view : all)
        layout.addWidget(view);
    panel.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    for (QWidget *view : all) {
        const auto turn = [view](int y) {
            QWheelEvent wheel(QPointF(2, 2), view->mapToGlobal(QPointF(2, 2)), {}, QPoint(0, y),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(view, &wheel);
        };
        popup->selectItemAtIndex(1);
        view->clearFocus();
        turn(120);
        EXPECT_EQ(0, actions);
        view->setFocus();
        turn(120);
        EXPECT_EQ(1, actions) << view->metaObject()->className();
        actions = 0;
    }
    EXPECT_EQ(1, stepper->intValue());
    popup->selectItemAtIndex(0);
    QTest::keyClick(popup, Qt::Key_Up); // there is none above
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(1, actions);
    QTest::keyClick(popup, Qt::Key_Down);
    EXPECT_EQ(2, actions);
    popup->showPopup();
    QTest::keyClick(popup->view(), Qt::Key_Return); // the item that is shown
    EXPECT_EQ(2, actions);
}

TEST(Views, AssistiveProgramsGetNamesAndActAsAPerson) {
    InPanel<PopupView> popup;
    InPanel<SliderView> slider;
    InPanel<StepperView> stepper;
    withItems(popup.view);
    TextView label(&popup.panel);
    label.setBuddy(popup.view);
    label.setStringValue("R&D Mode:");
    const auto ask = [](QWidget *view) { return QAccessible::queryAccessibleInterface(view); };
    EXPECT_EQ("R&D Mode", ask(popup.view)->text(QAccessible::Name));
    EXPECT_EQ("one", ask(popup.view)->text(QAccessible::Value));
    EXPECT_EQ(QAccessible::ComboBox, ask(popup.view)->role());
    popup.view->setAccessibleName("own");
    label.setStringValue("Other:");
    EXPECT_EQ("own", ask(popup.view)->text(QAccessible::Name));
    EXPECT_EQ(QAccessible::SpinBox, ask(stepper.view)->role());
    for (QWidget *view :
         {static_cast<QWidget *>(slider.view), static_cast<QWidget *>(stepper.view)}) {
        ASSERT_TRUE(ask(view)->valueInterface());
        ask(view)->valueInterface()->setCurrentValue(1);
        EXPECT_EQ(1, ask(view)->valueInterface()->currentValue().toInt());
    }
    EXPECT_EQ(1, slider.actions);
    EXPECT_EQ(1, stepper.actions);
}

} // namespace
