#include "density_fixture.h"

#include "platform/views/alert.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

class NumberFieldTest : public DensityTest {};

TEST_F(NumberFieldTest, TypedNumbersMoveTheStepper) {
    build(density("0"));
    // clang-format off
    const std::tuple<QByteArray, int, bool> cases[] = { // typed, shown, whether it beeps
        {"3", 3, false},
        {"-3", -3, false},
        {"-", 0, false},
        {"", 0, false},
        {"1", 1, false},
        {"33", 1, false},
        {"--", 1, false},
        {"4", 1, true},
        {"-4", 0, true},   // the sign stands alone
        {"-13", -1, true}, // the third key doesn't fit
    };
    // clang-format on
    for (const auto &[typed, number, beep] : cases) {
        SCOPED_TRACE(typed.constData());
        const int beeps = views::beepCount();
        log.clear();
        ASSERT_TRUE(field->typeText(typed));
        EXPECT_EQ(views::beepCount() > beeps, beep);
        EXPECT_EQ(log.contains("update preview"), typed != "4");
        expectBothShow(number);
    }
    edit->SetExternalValueToUI("3", 1);
    EXPECT_EQ(arrow->intValue(), -1) << "a text of the program is no entry";
    panel.terminate();
    EXPECT_FALSE(field->formatter()) << "it would ask a control that is gone";
}

TEST_F(NumberFieldTest, RefusedDataShowsTheMessageAndTakesTheFocus) {
    build(density("0"));
    start();
    window.show();
    for (const char *entry : {"", "-", "-3", "33", "4", "-13"}) {
        const bool valid = !QList<QByteArray>{"4", "-13"}.contains(entry);
        SCOPED_TRACE(entry);
        arrow->setFocus();
        edit->SetExternalValueToUI(entry, 0);
        edit->GetValueFromUI();
        QString message;
        QTimer::singleShot(0, [&message] {
            message = views::currentAlert();
            views::dismissAlert();
        });
        EXPECT_EQ(edit->InvalidateData(), valid);
        QCoreApplication::processEvents();
        EXPECT_EQ(message, valid ? QString() : QString("no translation"));
        EXPECT_EQ(window.focusWidget() == field, !valid);
        EXPECT_EQ(edit->InvalidateDataAndReturnError(), valid);
    }
}

TEST_F(PanelTest, TextGoesThroughEveryStage) {
    open("");
    const CtrlAccessInfo access{.ticketKey = "text.key"};
    TextEditIniData record{.defaultText = "gr\xC3\xBC\xC3\x9F", .minLength = 1, .maxLength = 300};
    TextFieldView field;
    TextEditCtrlKRVImageOptions text;
    text.CreateControl(&field, &record, nullptr, &access, kControlUserCurrent, nullptr);
    text.InitializeCtrl(nullptr, nullptr);
    text.SetControlValueToDefault();
    EXPECT_TRUE(text.SetControlValueToUI());
    EXPECT_EQ(field.stringValue(), QString::fromUtf8("gr\xC3\xBC\xC3\x9F"));

    const QByteArray longText(300, 'x');
    const auto commit = [&](const QByteArray &typed) {
        field.setStringValue(QString::fromLatin1(typed));
        text.GetValueFromUI();
        text.SetValueFromUIToControl();
        EXPECT_TRUE(text.InvalidateData() && save(&text));
        return host->settings.find("text.key")->value.toLatin1();
    };
    EXPECT_EQ(commit(longText), longText.first(255));
    EXPECT_EQ(commit("short"), "short") << "nothing of the longer text is left";
    EXPECT_EQ(commit(""), "") << "an empty field passes its least length";
}

} // namespace
