#include "imagewindows/screen_list.h"

int32_t ScreenListCtrlKRV::Update() {
    if (ctrlParentPanelPtr && !ctrlParentPanelPtr->GetPDEStatus())
        SetDefaultValueToUI();
    return 0;
}
