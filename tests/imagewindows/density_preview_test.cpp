#include "imagewindows/image_grads_view.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

QImage picture(ImageGradsViewKRV &view, double scale) {
    QImage image(view.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    view.render(&image);
    return image;
}

TEST(ImageGradsTest, PixelsStandWhereTheyBelongAndMixNoColors) {
    ImageGradsViewKRV view;
    view.drawPanel(2, -3, 0, 3);
    // clang-format off
    const struct { int x, y; QRgb color; } places[] = { // y from above; what is no frame is white when disabled
        {0, 0, 0xFF000000}, {274, 151, 0xFF000000}, {1, 1, 0xFFFFFFFF}, // the outline
        {5, 131, 0xFF000000}, {57, 146, 0xFF000000}, {4, 131, 0xFFFFFFFF}, {58, 146, 0xFFFFFFFF}, {30, 147, 0xFFFFFFFF},
        {6, 132, 0xFFF9A4F9}, {56, 145, 0xFFF9A4F9}, {30, 125, 0xFF000000}, {30, 118, 0xFFFFFFFF}, // low, rows 0 and 1
        {112, 69, 0xFFFF00FF}, {112, 48, 0xFFFFFFFF}, {218, 6, 0xFFCD1ECD}, {268, 132, 0xFFCD1ECD}, // mid and high
    };
    // clang-format on
    for (const bool enabled : {false, true}) {
        views::setEnabled(&view, enabled);
        const QImage image = picture(view, 1);
        for (const auto &[x, y, rgb] : places)
            EXPECT_EQ(image.pixel(x, y), enabled || rgb == 0xFF000000 ? rgb : ~0u) << x << "," << y;
        EXPECT_TRUE(picture(view, 2) == image.scaled(2 * image.size()));
    }

    // clang-format off
    const QSet<QRgb> bars[] = {{0xFF787878, 0xFF464646}, {0xFFA4F9F9, 0xFF00FFFF, 0xFF30CDCD},
                               {0xFFF9A4F9, 0xFFFF00FF, 0xFFCD1ECD}, {0xFFF9F9A4, 0xFFFFFF00, 0xFFCDCD30}};
    // clang-format on
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0})
        for (int color = 0; color < 4; ++color) {
            view.drawPanel(color, 3, 3, 3);
            const auto found = picture(view, scale).convertToFormat(QImage::Format_Indexed8);
            const QList<QRgb> colors = found.colorTable(); // exact below 256 colours
            EXPECT_EQ(QSet(colors.begin(), colors.end()),
                      bars[color] + QSet<QRgb>({0xFF000000, 0xFFFFFFFF}));
        }
}

} // namespace
