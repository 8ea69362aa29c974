#include "color_balance_fixture.h"

#include <QSet>

namespace {

QImage picture(ImageGradsViewKRV &view, double scale) {
    QImage image(QSize(qCeil(275 * scale), qCeil(152 * scale)), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::black);
    view.render(&image);
    return image;
}

TEST(ImageGradsTest, PixelsStandWhereTheyBelong) {
    ImageGradsViewKRV view;
    EXPECT_EQ(view.size(), QSize(275, 152));
    view.drawPanel(2, -3, 0, 3);
    // clang-format off
    const struct { int x, y; QColor lit, off; } places[] = { // logical, y from above
        {0, 0, Qt::black, Qt::black}, {274, 151, Qt::black, Qt::black}, {1, 1, Qt::white, Qt::white},
        {5, 131, Qt::black, Qt::black}, {57, 146, Qt::black, Qt::black}, {4, 131, Qt::white, Qt::white}, {58, 146, Qt::white, Qt::white}, {30, 147, Qt::white, Qt::white},
        {6, 132, {249, 164, 249}, Qt::white}, {56, 145, {249, 164, 249}, Qt::white},       // low, row 0
        {30, 125, Qt::black, Qt::black}, {30, 118, Qt::white, Qt::white},                  // low, row 1
        {112, 69, {255, 0, 255}, Qt::white}, {112, 48, Qt::white, Qt::white},              // mid, rows 3 and 4
        {218, 6, {205, 30, 205}, Qt::white}, {268, 132, {205, 30, 205}, Qt::white},        // high, rows 6 and 0
    };
    // clang-format on
    for (const bool enabled : {true, false}) {
        views::setEnabled(&view, enabled);
        for (const int scale : {1, 2}) {
            const QImage image = picture(view, scale);
            for (const auto &place : places)
                for (const int inside : {0, scale - 1}) // no pixel of the block is mixed
                    EXPECT_EQ(image.pixelColor(scale * place.x + inside, scale * place.y + inside),
                              enabled ? place.lit : place.off)
                        << place.x << "," << place.y << " at " << scale;
        }
    }
}

TEST(ImageGradsTest, FractionalScalesMixNoColors) {
    ImageGradsViewKRV view;
    for (const double scale : {1.25, 1.5, 1.75})
        for (int color = 0; color < 4; ++color) {
            view.drawPanel(color, 3, 3, 3);
            const QImage image = picture(view, scale);
            QSet<QRgb> colors{qRgb(0, 0, 0), qRgb(255, 255, 255)};
            for (const RGBColor *bar : ColorMap[color])
                colors.insert(qRgb(bar->red, bar->green, bar->blue));
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    ASSERT_TRUE(colors.contains(image.pixel(x, y) | 0xFF000000)) << x << "," << y;
        }
}

TEST_F(ColorBalanceTest, PreviewReadsArrowsAndKeepsItsLastPicture) {
    auto *preview = dynamic_cast<GHIViewControlKRV *>(control(gClrBlncImgHviewID));
    ASSERT_TRUE(preview) << "by the tag that it has given its view";
    run([&] {
        stepper(0, 2)->stepBy(-2);
        edit(0, 0)->setStringValue("-");
        preview->Update();
        EXPECT_EQ(bars(), QList<int>({4, 4, 2})) << "texts don't count";
        stepper(0, 1)->setMaxValue(9);
        stepper(0, 1)->setIntValue(4);
        preview->Update();
        EXPECT_EQ(bars(), QList<int>({4, 4, 2})) << "out of range";
        stepper(0, 1)->setIntValue(3);
        targets()->selectItemAtIndex(-1);
        preview->Update();
        EXPECT_EQ(bars(), QList<int>({4, 4, 2})) << "no target";
        press(gClrBlncCnclPushID);
    });
}

} // namespace
