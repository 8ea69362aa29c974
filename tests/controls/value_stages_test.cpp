// The way of a value through the families that keep it in the print settings.

#include "panel_fixture.h"

#include "controls/check_box_family.h"
#include "controls/group_box.h"
#include "controls/radio_family.h"
#include "controls/stepper_family.h"
#include "platform/views/check_box_view.h"
#include "platform/views/radio_view.h"
#include "platform/views/stepper_view.h"

#include <QGroupBox>

namespace {

constexpr int kTag = 1;
const char *const kMenuKeys[] = {"Known", "B", "C", nullptr};
const CtrlAccessInfo kAccess{.ticketKey = "a.key"};
const QString &kUser = kControlUserCurrent;

class ValueStagesTest : public PanelTest {
public:
    BaseControlKRVImageOptions *popup() {
        auto *menu = view<PopupView>(kTag);
        act = [menu] { menu->chooseItem(2); };
        auto made = std::make_unique<PopupControlKRVImageOptions>();
        made->CreateControl(menu, &popupRecord, nullptr, &kAccess, kUser);
        return keep(std::move(made));
    }
    BaseControlKRVImageOptions *checkBox() {
        auto *box = view<CheckBoxView>(kTag);
        act = [box] { box->click(); };
        auto made = std::make_unique<CheckBoxKRVImageOptions>();
        made->CheckBox(box, &boxRecord, nullptr, &kAccess, kUser);
        return keep(std::move(made));
    }
    BaseControlKRVImageOptions *radio() {
        auto *button = view<RadioView>(kTag);
        act = [button] { button->click(); };
        auto made = std::make_unique<RadioButtonKRVImageOptions>();
        made->RadioButton(button, &radioRecord, nullptr, &kAccess, kUser);
        return keep(std::move(made));
    }
    BaseControlKRVImageOptions *stepper() {
        auto *arrows = view<StepperView>(kTag);
        act = [arrows] { arrows->stepBy(1); };
        auto made = std::make_unique<LittleArrayKRVImageOptions>();
        made->LittleArrayControl(arrows, &stepperRecord, nullptr, &kAccess, kUser, "Number");
        return keep(std::move(made));
    }
    std::string ticket() { return host->settings.find("a.key")->value.toStdString(); }

    PopupIniData popupRecord{.defaultValue = 1, .iniValue = -1, .menuKeys = kMenuKeys};
    CheckBoxIniData boxRecord{.titleKey = "Box"};
    RadioButtonIniData radioRecord{.titleKey = "Button"};
    LittleArrayIniData stepperRecord{.defaultValue = 4, .minValue = -30, .maxValue = 30};
    std::function<void()> act; ///< what a person does to the view
};

TEST_F(ValueStagesTest, PlainFamilies) {
    const struct {
        const char *name;
        BaseControlKRVImageOptions *(ValueStagesTest::*build)();
        const char *preset;
        int opened, acted, byDefault;
        const char *summary;        ///< after the act
        bool takesDisabled, saysSo; ///< a value from outside into a disabled view
    } rows[] = {
        {"popup", &ValueStagesTest::popup, "2x", 2, 3, 1, nullptr, true, true},
        {"check box", &ValueStagesTest::checkBox, "1", 1, 0, 0, nullptr, false, false},
        {"radio", &ValueStagesTest::radio, " 0", 0, 1, 0, nullptr, true, false},
        {"stepper", &ValueStagesTest::stepper, "-12", -12, -11, 4, "Number=-1.1", true, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        panel.terminate();
        open("");
        auto *control = (this->*row.build)();
        host->settings.set("a.key", QString::fromUtf8(row.preset), false);
        start();
        EXPECT_EQ(control->GetValueFromUI()->word(), row.opened);
        EXPECT_EQ(control->GetValueFromControl()->word(), row.opened);

        act();
        EXPECT_EQ(control->GetValueFromUIDataBlk()->word(), row.acted);
        EXPECT_EQ(control->GetValueFromControl()->word(), row.opened) << "not committed yet";
        panel.SetValueFromUIToControl();
        EXPECT_TRUE(save(control));
        EXPECT_EQ(ticket(), std::to_string(row.acted));
        EXPECT_EQ(summary(), row.summary ? QStringList(row.summary) : QStringList());

        char text[BaseControlKRVImageOptions::kPreferenceBufferSize];
        EXPECT_TRUE(control->ConvertToPreferenceString(text));
        EXPECT_STREQ(text, std::to_string(row.acted).c_str());
        EXPECT_TRUE(control->ConvertFromPreferenceString("1.9"));
        EXPECT_TRUE(control->SetControlValueToUI());
        EXPECT_EQ(control->GetValueFromUI()->word(), 1);
        EXPECT_FALSE(control->ConvertFromPreferenceString(nullptr));
        EXPECT_TRUE(control->ConvertFromPreferenceString("99999999999999999999"));
        EXPECT_EQ(control->GetValueFromControl()->word(), INT32_MAX);

        const int32_t outside = row.acted;
        control->Disable();
        EXPECT_EQ(control->SetExternalValueToUI(&outside, sizeof outside), row.saysSo);
        EXPECT_EQ(control->GetValueFromUI()->word(), row.takesDisabled ? outside : 1);

        host->settings = PrintSettings();
        EXPECT_FALSE(control->GetValueToPreset());
        panel.GetValueFromPreset();
        EXPECT_EQ(control->GetValueFromControl()->word(), row.byDefault);
        delete control->GetControlPtr(); // as a host may: every question has an answer still
        EXPECT_FALSE(control->SetControlValueToUI());
        EXPECT_TRUE(save(control));
        const bool radio = row.build == &ValueStagesTest::radio; // answers for what it showed last
        EXPECT_EQ(control->GetValueFromUI() != nullptr, radio);
        panel.SetValueFromUIToControl();
        EXPECT_EQ(control->GetValueFromControl()->word(), radio ? row.acted : row.byDefault);
    }
}

TEST_F(ValueStagesTest, NumberOutsideTheRangeIsntWritten) {
    open("");
    auto *control = stepper();
    start();
    EXPECT_TRUE(control->ConvertFromPreferenceString("31"));
    EXPECT_FALSE(save(control));
    EXPECT_FALSE(host->settings.find("a.key"));
}

TEST_F(ValueStagesTest, TextsComeFromThePanelsTableOrTheDefaultOne) {
    open("*QZLocalizableFileIndex: \"01\"\n");
    panel.takeLocalizeTable(ppd.get());
    boxRecord.titleKey = radioRecord.titleKey = "Known";
    auto *list = qobject_cast<PopupView *>(popup()->GetControlPtr());
    auto *box = qobject_cast<CheckBoxView *>(checkBox()->GetControlPtr());
    auto *button = qobject_cast<RadioView *>(radio()->GetControlPtr());
    start();
    EXPECT_EQ(list->itemTitle(0), "indexed text");
    EXPECT_EQ(list->itemTitle(1), "B") << "a key without translation shows itself";
    EXPECT_EQ(box->title(), "indexed text");
    EXPECT_EQ(button->title(), "default text");
}

TEST_F(ValueStagesTest, TitlesNeedABundleAndAKey) {
    open("");
    auto *box = static_cast<CheckBoxKRVImageOptions *>(checkBox());
    auto *titled = view<CheckBoxView>(kTag);
    titled->setTitle("Form");
    EXPECT_FALSE(box->InitializeTitle(nullptr));
    EXPECT_FALSE(box->InitializeCtrl(nullptr, nullptr));
    EXPECT_EQ(box->GetControlBlkPtr(), nullptr) << "no blocks without a title";

    QGroupBox frame("Form");
    GroupBoxControlKRVImageOptions group;
    group.CreateControl(&frame, nullptr);
    EXPECT_FALSE(group.InitializeTitle(bundle.get()));
    group.CreateControl(&frame, "Frame Text");
    EXPECT_FALSE(group.InitializeTitle(nullptr));
    EXPECT_EQ(frame.title(), "Form");
    EXPECT_TRUE(group.InitializeTitle(bundle.get()));
    EXPECT_EQ(frame.title(), "no translation");
}

} // namespace
