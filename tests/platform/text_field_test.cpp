#include "platform/views/text_field_view.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

/// Takes up to two of "-0123"; what is no number from -3 to 3 springs back to "1".
struct NumberFormatter : TextFormatter {
    bool isPartialStringValid(const QString &partial, QString *, QString *) override {
        const bool valid = QRegularExpression("^[-0123]{0,2}$").match(partial).hasMatch();
        if (!valid)
            views::beep();
        return valid;
    }
    bool getObjectValue(QString *object, const QString &string, QString *) override {
        *object = qAbs(string.toInt()) <= 3 ? string : "1";
        return string != "--";
    }
    QString stringForObjectValue(const QString &object) override { return object; }
};

struct Field {
    QWidget panel;
    TextFieldView *view = new TextFieldView(&panel);
    QLineEdit *other = new QLineEdit(&panel);
    QStringList sent;

    Field() {
        view->setFormatter(std::make_shared<NumberFormatter>());
        view->setAction([this] { sent += view->stringValue(); });
        view->setStringValue("2");
        panel.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
        view->becomeFirstResponder();
    }
};

TEST(TextField, CommitsWhatAPersonTypes) {
    const std::tuple<const char *, const char *, QStringList, int> cases[] = {
        {"-2", "-2", {"-2"}, 0}, {"4", "2", {}, 1},       {"33", "1", {"1"}, 0},
        {"", "", {""}, 0},       {"--", "--", {"--"}, 0}, {"x3", "3", {"3"}, 1},
        {"123", "1", {"1"}, 1},  {"2", "2", {"2"}, 0}};
    for (const auto &[typed, shown, sent, beeps] : cases) {
        Field field;
        const int before = views::beepCount();
        EXPECT_TRUE(field.view->typeText(typed));
        EXPECT_EQ(shown, field.view->stringValue());
        EXPECT_EQ(sent, field.sent) << typed;
        EXPECT_EQ(beeps, views::beepCount() - before) << typed;
    }
}

TEST(TextField, CommitsOnceAtReturnAndFocusLossOfAnEditAlone) {
    Field field;
    QTest::keyClick(field.view, Qt::Key_Return); // nothing was edited
    field.view->setStringValue("not a number");  // the program may
    field.other->setFocus();
    EXPECT_TRUE(field.sent.isEmpty());
    field.view->becomeFirstResponder();
    QTest::keyClicks(field.view, "3");
    EXPECT_TRUE(field.view->hasPendingEdit() && field.sent.isEmpty());
    QTest::keyClick(field.view, Qt::Key_Return);
    field.other->setFocus();
    field.view->becomeFirstResponder();
    QTest::keyClicks(field.view, "-1");
    QTest::keyClick(field.view, Qt::Key_Tab);
    EXPECT_EQ((QStringList{"3", "-1"}), field.sent);
    field.view->setAction([&field] {
        field.view->endEditing();
        delete field.view;
    });
    field.view->typeText("1");
}

TEST(TextField, HidingDisablingAndProgramTextsCommitNothing) {
    const std::pair<void (*)(Field &), const char *> cases[] = {
        {[](Field &f) { views::setHidden(f.view, true); }, "3"},
        {[](Field &f) { f.panel.hide(); }, "3"},
        {[](Field &f) { views::setEnabled(f.view, false); }, "3"},
        {[](Field &f) { f.view->setStringValue("0"); }, "0"},
        {[](Field &f) { f.view->dropPendingEdit(); }, "2"},
    };
    for (const auto &[act, shown] : cases) {
        Field field;
        QTest::keyClicks(field.view, "3");
        act(field);
        EXPECT_TRUE(field.sent.isEmpty());
        EXPECT_EQ(shown, field.view->stringValue());
        field.view->endEditing(); // an edit that waits isn't lost
        EXPECT_EQ(*shown == '3' ? QStringList{"3"} : QStringList(), field.sent);
    }
}

} // namespace
