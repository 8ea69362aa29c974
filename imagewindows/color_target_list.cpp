#include "imagewindows/color_target_list.h"

#include "imagewindows/color_balance_tables.h"
#include "imagewindows/color_balance_window.h"
#include "platform/views/popup_view.h"

namespace {

constexpr int32_t kBlackAndWhiteMode = 1; // an item of the colour mode list

const CtrlConstrainTable *hideTable(const CtrlConstrainInfo *info) {
    return info ? info->hideTable : nullptr;
}

} // namespace

std::optional<int32_t> ColorTargetListCtrlKRV::shownValue() const {
    const PopupView *menu = popup();
    return menu ? std::optional(menu->indexOfSelectedItem()) : std::nullopt;
}

void ColorTargetListCtrlKRV::showValue(int32_t value) {
    if (PopupView *menu = popup())
        menu->selectItemAtIndex(value);
}

bool ColorTargetListCtrlKRV::SetExternalValueToUI(const void *value, uint32_t) {
    if (!value || !popup() || !ctrlDataBlkPtr)
        return false;
    showValue(externalInteger(value));
    return true;
}

void ColorTargetListCtrlKRV::InitializeConstrains() {
    const CtrlConstrainTable *table = hideTable(ctrlConstrainControlArray);
    if (!table || !listctrlIniDataPtr)
        return;
    const auto standard = static_cast<int32_t>(listctrlIniDataPtr->defaultValue);
    if (standard >= 0)
        HideControlConstrains(table->row(standard));
    labelShownFields();
}

bool ColorTargetListCtrlKRV::UIEventHandler() {
    const std::optional<int32_t> item = shownValue();
    if (ctrlParentPanelPtr && item && *item >= 0 && *item < kTargetColors)
        if (const auto *next = ctrlParentPanelPtr->GetPanelControl(targetColorNextView[*item]))
            QWidget::setTabOrder(ControlPtr, next->GetControlPtr());
    return PopupControlKRVImageOptions::UIEventHandler();
}

bool ColorTargetListCtrlKRV::SimulationUIEventHandler() {
    PopupControlKRVImageOptions::SimulationUIEventHandler();
    GetValueFromUI();
    return true;
}

int32_t ColorTargetListCtrlKRV::DoSelfUpdate() {
    ControlPanel *main = ctrlParentPanelPtr ? ctrlParentPanelPtr->GetParentWnd() : nullptr;
    BaseControlKRVImageOptions *colorMode = main ? main->GetPanelControl(&ColorModeTag) : nullptr;
    PopupView *menu = popup();
    if (!colorMode || !menu)
        return 0;
    const bool colors = colorMode->GetCurrentControlArrayNumber() != kBlackAndWhiteMode;
    for (int item = 0; item < menu->numberOfItems(); ++item)
        menu->setItemEnabled(item, colors || item == 0);
    if (!colors)
        menu->selectItemAtIndex(0);
    return 0;
}

int32_t ColorTargetListCtrlKRV::DoControlUpdateConstrain() {
    if (!ctrlUIDataBlkPtr || shownValue() == ctrlUIDataBlkPtr->word())
        return 0;
    return DoBaseControlUpdateConstrain();
}

// A control in both rows stays hidden throughout, since the new row is counted first.
int32_t ColorTargetListCtrlKRV::DoControlHideConstrain() {
    const CtrlConstrainTable *table = hideTable(ctrlConstrainControlArray);
    const std::optional<int32_t> item = shownValue();
    if (!table || !ctrlUIDataBlkPtr || !item || *item == ctrlUIDataBlkPtr->word())
        return 0;
    HideControlConstrains(table->row(*item));
    if (ctrlUIDataBlkPtr->word() >= 0)
        ShowControlConstrains(table->row(ctrlUIDataBlkPtr->word()));
    labelShownFields();
    return 0;
}

void ColorTargetListCtrlKRV::labelShownFields() {
    if (auto *window = dynamic_cast<ColorBalanceWndKRV *>(ctrlParentPanelPtr))
        window->labelShownFields();
}
