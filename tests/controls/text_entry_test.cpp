#include "density_fixture.h"
#include "text_bundle.h"

#include "platform/views/alert.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

class NumberFieldTest : public DensityTest {};

TEST_F(NumberFieldTest, TypedNumbersMoveTheStepper) {
    build(density("0"));
    const struct {
        const char *typed;
        int shown;
        bool beeps;
    } cases[] = {
        {"3", 3, false},   {"-3", -3, false}, {"-", 0, false},  {"2", 2, false},
        {"", 0, false},    {"1", 1, false},   {"33", 1, false}, {"--", 1, false},
        {"4", 1, true},    {"-4", 0, true}, // the sign stands alone
        {"-13", -1, true},                  // the third key doesn't fit
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.typed);
        const int beeps = views::beepCount();
        log.clear();
        ASSERT_TRUE(field->typeText(c.typed));
        EXPECT_EQ(views::beepCount() > beeps, c.beeps);
        EXPECT_EQ(log.contains("update preview"), QByteArray(c.typed) != "4");
        expectBothShow(c.shown);
    }
    edit->SetExternalValueToUI("3", 1);
    EXPECT_EQ(arrow->intValue(), -1) << "a text of the program is no entry";
}

TEST_F(NumberFieldTest, UncommittedNumbersAreGoneAtTheNextOpening) {
    build(density("2"));
    field->typeText("-3");
    panel.SetCurrentValueToUI();
    expectBothShow(2);
    field->typeText("-1");
    panel.SetValueFromUIToControl();
    arrow->stepBy(3);
    panel.SetCurrentValueToUI();
    expectBothShow(-1);
}

TEST_F(NumberFieldTest, FormatterGoesWithItsControl) {
    build(density("0"));
    QString error;
    EXPECT_FALSE(field->formatter()->isPartialStringValid("4", nullptr, &error));
    EXPECT_EQ(error, "String too long.") << "for a wrong character, too";
    panel.terminate();
    EXPECT_FALSE(field->formatter()) << "it would ask a control that is gone";
}

TEST_F(NumberFieldTest, RefusedDataShowsTheMessageAndTakesTheFocus) {
    build(density("0"));
    const TextlessBundle bundle;
    panel.InitializeUserPane(bundle.get(), ppd.get());
    window.show();
    const struct {
        const char *text;
        bool valid;
    } cases[] = {{"", true}, {"-", true}, {"-3", true}, {"33", true}, {"4", false}, {"-13", false}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        arrow->setFocus();
        edit->SetExternalValueToUI(c.text, 0);
        edit->GetValueFromUI();
        QString message;
        QTimer::singleShot(0, [&message] {
            message = views::currentAlert();
            views::dismissAlert();
        });
        EXPECT_EQ(edit->InvalidateData(), c.valid);
        QCoreApplication::processEvents();
        EXPECT_EQ(message, c.valid ? QString() : QString("no translation"));
        EXPECT_EQ(window.focusWidget() == field, !c.valid);
        EXPECT_EQ(edit->InvalidateDataAndReturnError(), c.valid);
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
    EXPECT_EQ(text.GetDataBlkSize(), 6u) << "two cells for each of the wide characters";

    const QByteArray longText(300, 'x');
    const auto commit = [&](const QByteArray &typed) {
        field.setStringValue(QString::fromLatin1(typed));
        text.GetValueFromUI();
        text.SetValueFromUIToControl();
        EXPECT_TRUE(text.InvalidateData());
        EXPECT_TRUE(text.SetValueToTicket(&host->settings, false));
        return host->settings.find("text.key")->value.toLatin1();
    };
    EXPECT_EQ(commit(longText), longText.first(255));
    EXPECT_EQ(text.GetDataBlkSize(), 300u);
    char buffer[256];
    EXPECT_TRUE(text.ConvertToPreferenceString(buffer));
    EXPECT_EQ(QByteArray(buffer), longText.first(255));
    EXPECT_EQ(commit("short"), "short") << "nothing of the longer text is left";
    EXPECT_EQ(commit(""), "") << "an empty field passes its least length";
}

} // namespace
