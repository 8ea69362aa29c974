#include "imagewindows/color_balance_window.h"

#include "controls/button_family.h"
#include "controls/check_box_family.h"
#include "controls/static_text_family.h"
#include "controls/stepper_family.h"
#include "controls/text_entry_family.h"
#include "imagewindows/image_grads_view.h"
#include "imagewindows/window_buttons.h"
#include "ppd/ppd_keys.h"

ColorBalanceWndKRV::~ColorBalanceWndKRV() {
    terminate(); // while the fields still stand that it clears
}

std::vector<views::Outlet> ColorBalanceWndKRV::outlets() {
    using views::outlet;
    std::vector<views::Outlet> result{
        outlet("gWndTargetColorSTxtCtrl", gWndTargetColorSTxtCtrl),
        outlet("gWndLowDCBStxtCtrl", gWndLowDCBStxtCtrl),
        outlet("gWndLowDCBSStxtCtrl", gWndLowDCBSStxtCtrl),
        outlet("gWndMidDCBStxtCtrl", gWndMidDCBStxtCtrl),
        outlet("gWndMidDCBSStxtCtrl", gWndMidDCBSStxtCtrl),
        outlet("gWndHighDCBStxtCtrl", gWndHighDCBStxtCtrl),
        outlet("gWndHighDCBSStxtCtrl", gWndHighDCBSStxtCtrl),
        outlet("graphicWndCnclPushCtrl", graphicWndCnclPushCtrl),
        outlet("graphicWndOKPushCtrl", graphicWndOKPushCtrl),
        outlet("graphicWndRstrPushCtrl", graphicWndRstrPushCtrl),
        outlet("graphicWndHelpPushCtrl", graphicWndHelpPushCtrl),
        outlet("gWndTargetColorLboxCtrl", gWndTargetColorLboxCtrl),
        outlet("graphicWndAdjustCBCboxCtrl", graphicWndAdjustCBCboxCtrl),
        outlet("imageGradsView", imageGradsView),
    };
    for (int color = 0; color < kTargetColors; ++color)
        for (int range = 0; range < kDensityRanges; ++range) {
            const DensityRow &row = kDensityRows[color][range];
            result.push_back(outlet(row.edit, gWndDCBEtxtCtrl[color][range]));
            result.push_back(outlet(row.stepper, gWndDCBLarrCtrl[color][range]));
        }
    return result;
}

ModalWindow *ColorBalanceWndKRV::loadWindow(const Bundle *bundle) {
    return loadForm(bundle, QStringLiteral("QZImageOptions_ColorBalance"), outlets(),
                    {views::viewClass<ImageGradsViewKRV>()});
}

void ColorBalanceWndKRV::addText(StaticTextEditControlKRVImageOptions *&field, TextView *view,
                                 const char *key) {
    auto control = std::make_unique<StaticTextEditControlKRVImageOptions>();
    control->CreateControl(view, nullptr, nullptr, nullptr, QString(), nullptr, key);
    adopt(field, std::move(control));
}

template <class Button>
void ColorBalanceWndKRV::addButton(Button *&field, ButtonView *view, const char *title) {
    auto control = std::make_unique<Button>();
    control->CreateControl(view, title);
    adopt(field, std::move(control));
}

void ColorBalanceWndKRV::addHelpButton(const char *page) {
    auto control = std::make_unique<GHelpButtonKRV>();
    control->CreateControlWithHelpName(graphicWndHelpPushCtrl, QString::fromUtf8(page));
    adopt(graphicWndHelpPushCtrlPtr, std::move(control));
}

void ColorBalanceWndKRV::addTargetList() {
    auto control = std::make_unique<ColorTargetListCtrlKRV>();
    control->CreateControl(gWndTargetColorLboxCtrl, &m_records.trgetcolorList,
                           &trgetcolorListConstrainInfoPtr, &trgetcolorListAccessInfo,
                           kControlUserCurrent);
    adopt(gWndTargetColorLboxCtrlPtr, std::move(control));
}

void ColorBalanceWndKRV::addCheckBox() {
    auto control = std::make_unique<GCheckBoxKRV>();
    control->PPDCheckBox(graphicWndAdjustCBCboxCtrl, kPPDColorBalanceAdjustmentKey,
                         &m_records.adjustColorBalanceCbox, &adjustColorBalanceCboxCnstrnInfoPtr,
                         &adjustColorBalanceCboxAcssInfo, kControlUserCurrent);
    adopt(graphicWndAdjustCBCboxCtrlPtr, std::move(control));
}

void ColorBalanceWndKRV::addNumberEdit(int color, int range) {
    const DensityRow &row = kDensityRows[color][range];
    auto control = std::make_unique<GTextEditCtrlKRV>();
    control->CreateControl(gWndDCBEtxtCtrl[color][range], &m_records.density, row.editConstrain,
                           row.editAccess, kControlUserCurrent, &densityFilterData);
    adopt(gWndDCBEtxtCtrlPtr[color][range], std::move(control));
}

template <class Stepper>
void ColorBalanceWndKRV::addStepper(int color, int range) {
    const DensityRow &row = kDensityRows[color][range];
    std::unique_ptr<GLittleArrayControlKRV> control = std::make_unique<Stepper>();
    control->PPDLittleArrayControl(gWndDCBLarrCtrl[color][range], &m_records.steppers[color][range],
                                   row.ppdKey, row.stepperConstrain, row.stepperAccess,
                                   kControlUserCurrent);
    adopt(gWndDCBLarrCtrlPtr[color][range], std::move(control));
}

void ColorBalanceWndKRV::addPreview() {
    auto control = std::make_unique<GHIViewControlKRV>();
    control->GHIViewControl(imageGradsView, colorBalanceImageControlMapItem, gClrBlncImgHviewID);
    adopt(gWndCBImageHviewCtrlPtr, std::move(control));
}

void ColorBalanceWndKRV::ColorBalanceWnd(QWidget *window, const QString &winTitle) {
    PopupWinInPanel(window, winTitle);
    if (!window)
        return;
    // clang-format off
    addText(gWndTargetColorSTxtCtrlPtr, gWndTargetColorSTxtCtrl, "Target Color Statics Text");
    addText(gWndLowDCBStxtCtrlPtr, gWndLowDCBStxtCtrl, "Low Density Scope Statics Text");
    addText(gWndLowDCBSStxtCtrlPtr, gWndLowDCBSStxtCtrl, "Density Scope Statics Text");
    addText(gWndMidDCBStxtCtrlPtr, gWndMidDCBStxtCtrl, "Mid Density Scope Statics Text");
    addText(gWndMidDCBSStxtCtrlPtr, gWndMidDCBSStxtCtrl, "Density Scope Statics Text");
    addText(gWndHighDCBStxtCtrlPtr, gWndHighDCBStxtCtrl, "High Density Scope Statics Text");
    addText(gWndHighDCBSStxtCtrlPtr, gWndHighDCBSStxtCtrl, "Density Scope Statics Text");
    addButton(graphicWndCnclPushCtrlPtr, graphicWndCnclPushCtrl, "Cancel Button Text");
    addButton(graphicWndOKPushCtrlPtr, graphicWndOKPushCtrl, "OK Button Text");
    addButton(graphicWndRstrPushCtrlPtr, graphicWndRstrPushCtrl, "Restore Default Button Text");
    addHelpButton("ColorBalance.htm");
    addTargetList();
    addCheckBox();
    // clang-format on
    for (int range = 0; range < kDensityRanges; ++range)
        for (int color = 0; color < kTargetColors; ++color)
            addNumberEdit(color, range);
    for (int color = 0; color < kTargetColors; ++color)
        for (int range = 0; range < kDensityRanges; ++range)
            if (color == 0)
                addStepper<GBlackLittleArrayControlKRV>(color, range);
            else
                addStepper<GLittleArrayControlKRV>(color, range);
    addPreview();
}

int32_t ColorBalanceWndKRV::InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) {
    m_records = ColorBalanceRecords{};
    isActived = false; // the controls' blocks and counts begin anew, too
    PopupWinInPanelKRVImageOptions::InitializeUserPane(bundle, ppd);
    if (imageGradsView && windowRef)
        imageGradsView->setAccessibleName(windowRef->windowTitle());
    labelShownFields();
    views::assignMnemonics(windowRef);
    return 0;
}

void ColorBalanceWndKRV::InitializePaneConstrains() {
    if (gWndTargetColorLboxCtrlPtr)
        gWndTargetColorLboxCtrlPtr->InitializeConstrains();
}

int32_t ColorBalanceWndKRV::ActivateWindow() {
    if (!canOpen())
        return 0;
    const bool actived = IsActived();
    SetCurrentValueToUI();
    if (!actived) {
        InitializePaneConstrains();
        ChangeActivedStatus();
    }
    runModalForWindow();
    return 0;
}

void ColorBalanceWndKRV::labelShownFields() {
    TextView *const titles[kDensityRanges] = {gWndLowDCBStxtCtrl, gWndMidDCBStxtCtrl,
                                              gWndHighDCBStxtCtrl};
    for (int range = 0; range < kDensityRanges; ++range)
        for (int color = kTargetColors - 1; titles[range] && color >= 0; --color) {
            TextFieldView *field = gWndDCBEtxtCtrl[color][range];
            if (!field || views::isHidden(field))
                continue;
            field->setAccessibleName(QString()); // it takes the title's, and the arrows its own
            titles[range]->setBuddy(field);
            if (StepperView *arrows = gWndDCBLarrCtrl[color][range])
                arrows->setAccessibleName(field->accessibleName());
        }
}
