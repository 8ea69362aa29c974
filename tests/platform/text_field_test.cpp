#include "platform/views/text_field_view.h"

#include <QHBoxLayout>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/// Takes up to two of "-0123"; what is no number from -3 to 3 springs back to "1".
class NumberFormatter : public TextFormatter {
public:
    bool isPartialStringValid(const QString &partial, QString *, QString *) override {
        for (const QChar c : partial)
            if (!QString("-0123").contains(c) || partial.size() > 2)
                return views::beep(), false;
        return partial.size() <= 2;
    }
    bool getObjectValue(QString *object, const QString &string, QString *) override {
        if (string == "--")
            return false;
        *object = string.isEmpty() || string == "-" || qAbs(string.toInt()) <= 3 ? string : "1";
        return true;
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
    }
    void show() {
        panel.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
        view->becomeFirstResponder();
    }
};

TEST(TextField, CommitsWhatAPersonTypes) {
    const struct {
        const char *typed, *shown;
        QStringList sent;
        int beeps;
    } cases[] = {
        {"1", "1", {"1"}, 0},  {"-2", "-2", {"-2"}, 0}, {"4", "2", {}, 1},
        {"33", "1", {"1"}, 0}, {"", "", {""}, 0},       {"--", "--", {"--"}, 0},
        {"x3", "3", {"3"}, 1}, {"123", "1", {"1"}, 1},  {"2", "2", {"2"}, 0},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.typed);
        Field field;
        const int before = views::beepCount();
        EXPECT_TRUE(field.view->typeText(row.typed));
        EXPECT_EQ(row.shown, field.view->stringValue());
        EXPECT_EQ(row.sent, field.sent);
        EXPECT_EQ(row.beeps, views::beepCount() - before);
        EXPECT_FALSE(field.view->hasPendingEdit());
    }
}

TEST(TextField, CommitsOnceAtReturnAndFocusLossOfAnEditAlone) {
    Field field;
    field.show();
    const int beeps = views::beepCount();
    QTest::keyClick(field.view, Qt::Key_Return); // nothing was edited
    field.view->setStringValue("not a number");  // the program may
    field.other->setFocus();
    EXPECT_TRUE(field.sent.isEmpty());
    EXPECT_EQ(beeps, views::beepCount());

    field.view->becomeFirstResponder();
    QTest::keyClicks(field.view, "3");
    EXPECT_TRUE(field.view->hasPendingEdit() && field.sent.isEmpty());
    QTest::keyClick(field.view, Qt::Key_Return);
    field.other->setFocus();
    EXPECT_EQ(QStringList{"3"}, field.sent);

    field.view->becomeFirstResponder();
    QTest::keyClicks(field.view, "-1");
    QTest::keyClick(field.view, Qt::Key_Tab);
    EXPECT_EQ((QStringList{"3", "-1"}), field.sent);
}

TEST(TextField, HidingDisablingAndProgramTextsCommitNothing) {
    const struct {
        const char *name;
        void (*act)(Field &);
        bool stillPending;
        const char *shown;
    } cases[] = {
        {"hide", [](Field &f) { views::setHidden(f.view, true); }, true, "3"},
        {"hide the panel", [](Field &f) { f.panel.hide(); }, true, "3"},
        {"disable", [](Field &f) { views::setEnabled(f.view, false); }, true, "3"},
        {"program's text", [](Field &f) { f.view->setStringValue("0"); }, false, "0"},
        {"drop", [](Field &f) { f.view->dropPendingEdit(); }, false, "2"},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        Field field;
        field.show();
        QTest::keyClicks(field.view, "3");
        row.act(field);
        EXPECT_TRUE(field.sent.isEmpty());
        EXPECT_EQ(row.stillPending, field.view->hasPendingEdit());
        EXPECT_EQ(row.shown, field.view->stringValue());
        field.view->endEditing(); // an edit that waits isn't lost
        EXPECT_EQ(row.stillPending ? QStringList{"3"} : QStringList(), field.sent);
    }
}

TEST(TextField, ActionMayEndEditingAgainOrDestroyTheField) {
    Field field;
    field.view->setAction([&field] {
        field.sent += "action";
        field.view->endEditing();
        field.view->clearFocus();
    });
    field.view->typeText("0");
    EXPECT_EQ(QStringList{"action"}, field.sent);
    field.view->setAction([&field] { delete field.view; });
    field.view->typeText("1");
}

} // namespace
