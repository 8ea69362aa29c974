#include "imagewindows/density_preview.h"

#include "imagewindows/color_balance_window.h"
#include "imagewindows/image_grads_view.h"

namespace {

constexpr uint32_t kLastColor = 3;
constexpr int32_t kMinDensity = -3;
constexpr int32_t kMaxDensity = 3;

} // namespace

void GHIViewControlKRV::GHIViewControl(ImageGradsViewKRV *view,
                                       const ColorBalanceControlMapItem *controlMap,
                                       int32_t viewTag) {
    CreateControl(view);
    colorBalanceControlMapItemPtr = controlMap;
    if (view)
        view->setViewTag(viewTag);
}

int32_t GHIViewControlKRV::Update() {
    colorBalanceCtrlData = {};
    if (!colorBalanceControlMapItemPtr || !GetCtrlDataFromMapItems())
        return 0;
    const ColorBalanceCtrlData &data = colorBalanceCtrlData;
    if (auto *view = qobject_cast<ImageGradsViewKRV *>(ControlPtr.data()))
        view->drawPanel(data.color, data.densityLow, data.densityMid, data.densityHigh);
    return 0;
}

bool GHIViewControlKRV::GetCtrlDataFromMapItems() {
    const auto *window = dynamic_cast<ColorBalanceWndKRV *>(ctrlParentPanelPtr);
    ColorTargetListCtrlKRV *list = window ? window->getgWndTargetColorLboxCtrl() : nullptr;
    if (!list || !colorBalanceControlMapItemPtr)
        return false;
    const auto color = static_cast<uint32_t>(list->GetCurrentControlArrayNumber());
    if (color > kLastColor)
        return false;
    const auto &[low, mid, high] = colorBalanceControlMapItemPtr[color];
    ColorBalanceCtrlData data{.color = static_cast<int32_t>(color)};
    if (!GetDensityColor(low, &data.densityLow) || !GetDensityColor(mid, &data.densityMid) ||
        !GetDensityColor(high, &data.densityHigh))
        return false;
    colorBalanceCtrlData = data;
    return true;
}

bool GHIViewControlKRV::GetDensityColor(CtrlTag tag, int32_t *DensityColor) {
    BaseControlKRVImageOptions *stepper =
        tag && ctrlParentPanelPtr ? ctrlParentPanelPtr->GetPanelControl(tag) : nullptr;
    const CtrlDataBlk *value = stepper ? stepper->GetValueFromUI() : nullptr;
    if (!value || value->word() < kMinDensity || value->word() > kMaxDensity)
        return false;
    *DensityColor = value->word();
    return true;
}
