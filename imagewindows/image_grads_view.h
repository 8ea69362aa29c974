#pragma once

#include "platform/views/view.h"

#include <QWidget>

#include <cstdint>

class QPainter;

/// A colour of the preview; components from 0 to 255.
struct RGBColor {
    uint16_t red, green, blue;
};

// clang-format off
inline constexpr RGBColor COLOR_BACKGROUND           {255, 255, 255};
inline constexpr RGBColor COLOR_DENSITY_BLACK_LOW    {120, 120, 120};
inline constexpr RGBColor COLOR_DENSITY_BLACK_MID    { 70,  70,  70};
inline constexpr RGBColor COLOR_DENSITY_BLACK_HIGH   {  0,   0,   0};
inline constexpr RGBColor COLOR_DENSITY_CYAN_LOW     {164, 249, 249};
inline constexpr RGBColor COLOR_DENSITY_CYAN_MID     {  0, 255, 255};
inline constexpr RGBColor COLOR_DENSITY_CYAN_HIGH    { 48, 205, 205};
inline constexpr RGBColor COLOR_DENSITY_MAGENTA_LOW  {249, 164, 249};
inline constexpr RGBColor COLOR_DENSITY_MAGENTA_MID  {255,   0, 255};
inline constexpr RGBColor COLOR_DENSITY_MAGENTA_HIGH {205,  30, 205};
inline constexpr RGBColor COLOR_DENSITY_YELLOW_LOW   {249, 249, 164};
inline constexpr RGBColor COLOR_DENSITY_YELLOW_MID   {255, 255,   0};
inline constexpr RGBColor COLOR_DENSITY_YELLOW_HIGH  {205, 205,  48};

/// For black, cyan, magenta and yellow the colours of low, mid and high density.
inline constexpr const RGBColor *ColorMap[4][3] = {
    {&COLOR_DENSITY_BLACK_LOW,   &COLOR_DENSITY_BLACK_MID,   &COLOR_DENSITY_BLACK_HIGH},
    {&COLOR_DENSITY_CYAN_LOW,    &COLOR_DENSITY_CYAN_MID,    &COLOR_DENSITY_CYAN_HIGH},
    {&COLOR_DENSITY_MAGENTA_LOW, &COLOR_DENSITY_MAGENTA_MID, &COLOR_DENSITY_MAGENTA_HIGH},
    {&COLOR_DENSITY_YELLOW_LOW,  &COLOR_DENSITY_YELLOW_MID,  &COLOR_DENSITY_YELLOW_HIGH},
};
// clang-format on

/// Three columns of seven bars: the low, mid and high density of one colour.
///
/// The picture is what is printed, so that its colours are the same in every style. Bars are lit
/// from the bottom, none while the view is disabled by its own flag. Each edge stands on a device
/// pixel, at a fractional scale, too.
class ImageGradsViewKRV : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int tag READ tag WRITE setViewTag)
public:
    /// A view of 275 by 152, with no bar lit.
    explicit ImageGradsViewKRV(QWidget *parent = nullptr);

    /// Shows the densities of a colour.
    /// @param color  a row of ColorMap; any other lights no bar
    /// @param DensityLow, DensityMid, DensityHigh  -3 for one bar to 3 for seven
    void drawPanel(int32_t color, int32_t DensityLow, int32_t DensityMid, int32_t DensityHigh);
    /// Draws the whole picture.
    void drawRect(QPainter &painter) const;
    /// Draws one bar with its black frame.
    /// @param rectangle   in the view's coordinates
    void drawColorView(QPainter &painter, const QRect &rectangle, const RGBColor &whichColor) const;
    /// Draws the white ground with its black frame.
    void drawOutline(QPainter &painter) const;
    int32_t tag() const { return viewTag; }
    void setViewTag(int32_t tag) { viewTag = tag; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

    int32_t viewTag = 0;
    int32_t iColor = 0;
    int32_t iDensityLow = 0; ///< the number of bars, and so the next two
    int32_t iDensityMid = 0;
    int32_t iDensityHigh = 0;
};
