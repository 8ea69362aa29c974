#pragma once

#include "panel_fixture.h"

#include "controls/stepper_family.h"
#include "controls/text_entry_family.h"
#include "platform/views/stepper_view.h"
#include "platform/views/text_field_view.h"
#include "ppd/ppd_keys.h"

/// One density of a window: a number field, a stepper and a preview that tell each other.
class DensityTest : public PanelTest {
protected:
    static constexpr int kEdit = 3500, kStepper = 3600, kPreview = 3000;

    static QByteArray density(const QByteArray &defaultChoice) {
        return ppdOption(kPPDColorDensityCyanLowKey, {"3", "2", "1", "0", "-1", "-2", "-3"},
                         defaultChoice);
    }
    void build(const QByteArray &ppdBody) {
        open(ppdBody);
        field = view<TextFieldView>(kEdit);
        auto number = std::make_unique<GTextEditCtrlKRV>();
        number->CreateControl(field, &editRecord, &fieldInfo, &access, kControlUserCurrent,
                              &filter);
        edit = keep(std::move(number));
        recorder(kPreview, "preview");
        arrow = view<StepperView>(kStepper);
        auto arrows = std::make_unique<GLittleArrayControlKRV>();
        arrows->PPDLittleArrayControl(arrow, &record, kPPDColorDensityCyanLowKey, &stepperInfo,
                                      &access, kControlUserCurrent);
        stepper = keep(std::move(arrows));
        start();
    }
    /// Field and stepper show this number, and the arrow moves on from it.
    void expectBothShow(int number) {
        EXPECT_EQ(field->stringValue(), QString::number(number));
        EXPECT_EQ(arrow->intValue(), number);
        const int beeps = views::beepCount();
        const int way = number < 3 ? 1 : -1;
        arrow->stepBy(way);
        EXPECT_EQ(field->stringValue(), QString::number(number + way));
        arrow->stepBy(-way);
        EXPECT_EQ(views::beepCount(), beeps);
    }

    const CtrlTag fieldRow[3] = {&kStepper, &kPreview, nullptr};
    const CtrlTag stepperRow[3] = {&kEdit, &kPreview, nullptr};
    const CtrlTagList fieldRows[1] = {fieldRow}, stepperRows[1] = {stepperRow};
    const CtrlConstrainTable fieldTable{fieldRows}, stepperTable{stepperRows};
    const CtrlConstrainInfo fieldInfo{.updateTable = &fieldTable};
    const CtrlConstrainInfo stepperInfo{.updateTable = &stepperTable};
    const CtrlAccessInfo access{};
    const InputFilterData digits{2, {{'-', '-'}, {'0', '3'}}};
    const TextEditFilterData filter{digits, digits, "Message??"};
    TextEditIniData editRecord{.minLength = 1, .maxLength = 2};
    LittleArrayIniData record{.minValue = -3, .maxValue = 3};

    GTextEditCtrlKRV *edit = nullptr;
    GLittleArrayControlKRV *stepper = nullptr;
    TextFieldView *field = nullptr;
    StepperView *arrow = nullptr;
};
