#pragma once

#include "controls/base_control.h"

#include <array>

class ImageGradsViewKRV;

/// The tags of the steppers of one colour: low, mid, high.
using ColorBalanceControlMapItem = std::array<CtrlTag, 3>;

/// What the preview shows: the target colour from 0 and its three densities.
struct ColorBalanceCtrlData {
    int32_t color = 0;
    int32_t densityLow = 0;
    int32_t densityMid = 0;
    int32_t densityHigh = 0;
};

/// The preview of the colour balance window. It has no value; Update draws what the target list and
/// its colour's steppers show at the moment.
class GHIViewControlKRV : public BaseControlKRVImageOptions {
public:
    /// @param view        may be null
    /// @param controlMap  one row for each target colour, borrowed; null draws nothing
    /// @param viewTag     the view's tag from now on
    void GHIViewControl(ImageGradsViewKRV *view, const ColorBalanceControlMapItem *controlMap,
                        int32_t viewTag);
    /// Draws anew. Without a map or with a value missing the last picture stays. @return 0
    int32_t Update() override;
    /// Gathers colour and densities. @return false when one is missing or out of range
    bool GetCtrlDataFromMapItems();
    /// @param tag           of a stepper
    /// @param DensityColor  receives the number that the stepper's view shows
    /// @return false without tag, control or value, and for a number outside -3 to 3
    bool GetDensityColor(CtrlTag tag, int32_t *DensityColor);

protected:
    ColorBalanceCtrlData colorBalanceCtrlData;
    const ColorBalanceControlMapItem *colorBalanceControlMapItemPtr = nullptr;
};
