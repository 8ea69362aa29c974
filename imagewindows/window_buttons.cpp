#include "imagewindows/window_buttons.h"

#include "imagewindows/popup_window.h"
#include "platform/pde/pde_plugin_callback.h"
#include "platform/views/button_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/popup_view.h"
#include "ppd/ppd_keys.h"
#include "ppd/resource_names.h"

#include <array>

namespace {

PopupWinInPanelKRVImageOptions *asWindow(ControlPanel *panel) {
    return dynamic_cast<PopupWinInPanelKRVImageOptions *>(panel);
}

/// The menu of a panel's list, or null.
PopupView *menuOf(BaseControlKRVImageOptions *control) {
    return control ? qobject_cast<PopupView *>(control->GetControlPtr()) : nullptr;
}

} // namespace

bool GColorBalanceButtonKRV::UIEventHandler() {
    if (ctrlParentPanelPtr)
        if (PopupWinInPanelKRVImageOptions *window = ctrlParentPanelPtr->getColorBalanceWnd())
            window->ActivateWindow();
    return true;
}

void GImageSettingsButtonKRV::GImageSettingsButton(ButtonView *view, const char *title) {
    CreateControl(view, title);
    bIsBlackOverPrint = false;
}

bool GImageSettingsButtonKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    if (!BaseButtonKRVImageOptions::InitializeCtrl(bundle, ppd))
        return false;
    std::array<char, 100> keyword{};
    if (ppd)
        FixPPDKeywordAccordingToType(ppd, kPPDBlackOverPrintKey, keyword.data());
    bIsBlackOverPrint = ppd && ppdFindOption(ppd, keyword.data());
    return true;
}

// The panel builds its form by a wider rule than this button asks by; a PPD that only has the
// option of the colour profile gets the plain form asked for, which then opens nothing.
bool GImageSettingsButtonKRV::UIEventHandler() {
    if (!ctrlParentPanelPtr)
        return false;
    PopupWinInPanelKRVImageOptions *window =
        bIsBlackOverPrint ? ctrlParentPanelPtr->getImageAdjustmentBlackOverWnd()
                          : ctrlParentPanelPtr->getImageAdjustmentWnd();
    if (window)
        window->ActivateWindow();
    return true;
}

bool GOKButtonKRV::UIEventHandler() {
    PopupWinInPanelKRVImageOptions *window = asWindow(ctrlParentPanelPtr);
    if (!window)
        return true;
    window->endPendingEdits();
    if (const auto *controls = window->getCtrlGroupArrayRef())
        for (const auto &control : *controls)
            if (!control->InvalidateData())
                return false;
    window->SetValueFromUIToControl();
    window->DeactivateWindow();
    return true;
}

void GCancelButtonKRV::setTargetandAction() {
    BaseButtonKRVImageOptions::setTargetandAction();
    auto *view = qobject_cast<ButtonView *>(ControlPtr.data());
    if (auto *window = view ? qobject_cast<ModalWindow *>(view->window()) : nullptr)
        window->setCancelButton(view);
}

bool GCancelButtonKRV::UIEventHandler() {
    if (PopupWinInPanelKRVImageOptions *window = asWindow(ctrlParentPanelPtr)) {
        window->dropPendingEdits();
        window->DeactivateWindow();
    }
    return true;
}

bool GRestoreDefaultButtonKRV::UIEventHandler() {
    auto *panel = dynamic_cast<BasePrintPanelKRVImageOptions *>(ctrlParentPanelPtr);
    if (!panel)
        return true;
    panel->SetDefaultValueToUI();
    // No session is stored in a running dialog, so that the conflict display stays as it was.
    if (!panel->GetCurrentPrintSession())
        return true;
    PDEPluginCallback *host = panel->GetCurrentPDECallbackObj();
    if (ppd_file_t *ppd = host ? host->ppdFile() : nullptr)
        panel->UpdateConflictsPanelControlFromPPD(ppd);
    return true;
}

bool GOKButtonIAKRV::UIEventHandler() {
    PopupWinInPanelKRVImageOptions *window = asWindow(ctrlParentPanelPtr);
    ppd_file_t *ppd = window ? window->GetCurrentPPD() : nullptr;
    if (!ppd)
        return true;
    window->endPendingEdits();
    window->SetValueFromUIToControl();
    ControlPanel *panel = window->GetParentWnd();
    DoPanelControlSync(panel, &CMYKCorrectionPopupButtonTag, &cmykColorCorrectionListTag);
    DoPanelControlSync(panel, &RGBColorCorrectionIAListTag, &rgbColorCorrectonListTag);
    if (panel)
        panel->UpdateConflictsPanelControlFromPPD(ppd);
    window->DeactivateWindow();
    return true;
}

void GOKButtonIAKRV::DoPanelControlSync(ControlPanel *panel, CtrlTag syncSrcCtrl,
                                        CtrlTag syncTrgCtrl) {
    if (!panel || !syncSrcCtrl || !syncTrgCtrl || !ctrlParentPanelPtr)
        return;
    BaseControlKRVImageOptions *target = panel->GetPanelControl(syncTrgCtrl);
    PopupView *targetMenu = menuOf(target);
    const PopupView *sourceMenu = menuOf(ctrlParentPanelPtr->GetPanelControl(syncSrcCtrl));
    if (!targetMenu || !sourceMenu)
        return;
    const auto item = static_cast<int16_t>(sourceMenu->indexOfSelectedItem());
    if (item == static_cast<int16_t>(targetMenu->indexOfSelectedItem()))
        return;
    targetMenu->selectItemAtIndex(item);
    target->SimulationUIEventHandler();
}

bool GImageAdjCancelButtonKRV::UIEventHandler() {
    if (PopupWinInPanelKRVImageOptions *window = asWindow(ctrlParentPanelPtr))
        window->RestoreMarkedPPD();
    return GCancelButtonKRV::UIEventHandler();
}
