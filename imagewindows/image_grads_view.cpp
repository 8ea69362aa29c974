#include "imagewindows/image_grads_view.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr QSize kViewSize{275, 152};
constexpr int kColumns = 3;
constexpr std::array<int, kColumns> kColumnX{5, 111, 217};
constexpr int kRows = 7;
constexpr int kRowPitch = 21;
constexpr int kMargin = 5; // below the lowest bar
constexpr QSize kBarSize{53, 16};

QColor colorOf(const RGBColor &color) {
    return QColor(color.red, color.green, color.blue);
}

/// Fills a rectangle with black and its inside with a colour, in device pixels: a frame of one
/// unit of the view is as thick on each side.
void fillFramed(QPainter &painter, const QRect &device, const QColor &inside) {
    const QTransform toDevice = painter.deviceTransform();
    const QTransform toView = toDevice.inverted();
    const int frame = std::max(1, qRound(toDevice.m11()));
    painter.fillRect(toView.mapRect(QRectF(device)), Qt::black);
    painter.fillRect(toView.mapRect(QRectF(device.adjusted(frame, frame, -frame, -frame))), inside);
}

} // namespace

ImageGradsViewKRV::ImageGradsViewKRV(QWidget *parent) : QWidget(parent) {
    setFixedSize(kViewSize);
}

QSize ImageGradsViewKRV::sizeHint() const {
    return kViewSize;
}

void ImageGradsViewKRV::drawPanel(int32_t color, int32_t DensityLow, int32_t DensityMid,
                                  int32_t DensityHigh) {
    constexpr int32_t kBarsAtZero = 4;
    iColor = color;
    iDensityLow = DensityLow + kBarsAtZero;
    iDensityMid = DensityMid + kBarsAtZero;
    iDensityHigh = DensityHigh + kBarsAtZero;
    update();
}

void ImageGradsViewKRV::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, false);
    drawRect(painter);
}

void ImageGradsViewKRV::drawRect(QPainter &painter) const {
    drawOutline(painter);
    const bool lit = views::isEnabled(this) && iColor >= 0 && iColor < int32_t{std::size(ColorMap)};
    const std::array<int32_t, kColumns> bars{iDensityLow, iDensityMid, iDensityHigh};
    for (int row = 0; row < kRows; ++row) {
        const int y = height() - (row * kRowPitch + kMargin) - kBarSize.height();
        for (int column = 0; column < kColumns; ++column)
            drawColorView(painter, QRect(QPoint(kColumnX[column], y), kBarSize),
                          lit && row < bars[column] ? *ColorMap[iColor][column] : COLOR_BACKGROUND);
    }
}

// All bars are of one size, so that only the distance between them differs at a fractional scale.
void ImageGradsViewKRV::drawColorView(QPainter &painter, const QRect &rectangle,
                                      const RGBColor &whichColor) const {
    const QRectF device = painter.deviceTransform().mapRect(QRectF(rectangle));
    fillFramed(painter, QRect(device.topLeft().toPoint(), device.size().toSize()),
               colorOf(whichColor));
}

void ImageGradsViewKRV::drawOutline(QPainter &painter) const {
    const QRectF device = painter.deviceTransform().mapRect(QRectF(rect()));
    fillFramed(painter, device.toRect(), colorOf(COLOR_BACKGROUND));
}
