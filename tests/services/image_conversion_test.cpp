#include "services/image_conversion.h"

#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>

TEST(ImageConversion, WhatItReadsAndOthersReadBack) {
    const QTemporaryDir folder;
    const QString in = folder.filePath("in"), out = folder.filePath("out");
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(0xFF2848C8);
    ASSERT_TRUE(image.copy(0, 0, 32, 64).save(in, "PNG")); // with a transparent lower half
    // clang-format off
    const std::tuple<const char *, const char *, const char *, QRgb> formats[] = { // corner comes last
        {"", ".tiff", "tiff", 0}, {".bmp.BMP", "", "bmp", 0xFFFFFFFF}, {".GiF", "", "gif", 0},
        {".jpeg", ".jpg", "jpeg", 0xFFFFFFFF}, {".", ".png", "png", 0}, {"", ".jp2", "png", 0}};
    // clang-format on
    for (uint32_t type = 0; const auto &[given, added, format, corner] : formats) {
        QString made = out + given + added;
        ASSERT_EQ(ConvertImgType(in, out + given, type++, true), 0) << format;
        if (made.endsWith(".jp2")) // Qt has no reader for it
            QProcess::execute("opj_decompress", {"-quiet", "-i", made, "-o", made = in + ".png"});
        const QImage read(made);
        EXPECT_EQ(QImageReader::imageFormat(made), format);
        EXPECT_EQ(read.pixel(0, 0) & 0xFFF0F0F0, 0xFF2040C0) << format;
        EXPECT_EQ(qPremultiply(read.pixel(31, 63)), corner) << format;
    }
    image.setPixel(31, 31, 0x400000FF); // a quarter of blue
    ASSERT_TRUE(image.copy(0, 0, 32, 64).save(in, "PNG"));
    ASSERT_EQ(ConvertImgType(in, out, kImageGIF, false), 0);
    EXPECT_EQ(QImage(out).pixel(31, 31) & 0xFFF0F0F0, 0xFFB0B0F0);
    EXPECT_EQ(qAlpha(QImage(out).pixel(31, 63)), 0);
    QFile deep(in);
    ASSERT_TRUE(deep.open(QIODevice::WriteOnly));
    deep.write("P6 9 9 4294967295 " + QByteArray(9 * 9 * 12, 'x')); // 32 bits of a sample
    deep.close();
    ASSERT_EQ(ConvertImgType(in, out + ".jp2", kImageJPEG2000, false), 0);
    EXPECT_EQ(
        QProcess::execute("opj_decompress", {"-quiet", "-i", out + ".jp2", "-o", in + ".png"}), 0);
    QFile::remove(out);
    const std::pair<QByteArray, int> sources[] = {{"", 1001},
                                                  {"%!PS\nshowpage\n", 1001},
                                                  {"push graphic-context\n", 1001},
                                                  {"P6 9 99999999 255 x", 1001},
                                                  {"P6 1 1 255 abcP6 1 1 255 xyz", 0}};
    for (const auto &[source, status] : sources) {
        QFile file(in);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(source) >= 0 && file.flush());
        EXPECT_EQ(ConvertImgType(in, out, 0, false), status) << source.data();
        EXPECT_EQ(QFile::exists(out), status == 0) << source.data();
    }
    EXPECT_EQ(QImageReader(out).imageCount(), 2);
    for (const QString name : {"none", ".", "ppm:in", "in[0]"})
        EXPECT_EQ(ConvertImgType(folder.filePath(name), out, 4, false), 1001) << qPrintable(name);
    EXPECT_EQ(ConvertImgType(in, folder.filePath("none/out"), 4, false), 1001);
    for (auto [from, to, type] : {std::tuple(in, out, 6), {QString(), out, 0}, {in, QString(), 0}})
        EXPECT_EQ(ConvertImgType(from, to, type, true), -50) << type;
}

/// Headers that say this, every other byte of them 'h', and then the pixels.
static QByteArray bmp(int width, int height, int bits, const char *pixels, int resolution = 2835) {
    QByteArray data = QByteArray(54, 'h') + pixels;
    auto *header = reinterpret_cast<unsigned char *>(data.data());
    for (auto [at, n] : {std::pair(18, width), {22, height}, {38, resolution}, {42, resolution}})
        WriteDword(header + at, n);
    WriteWord(header + 28, bits);
    return data;
}

/// The same as it comes out: without compression, and '0' is a zeroed byte.
static QByteArray done(int width, int height, int bits, const char *pixels) {
    return bmp(width, height, bits, pixels).replace(30, 2, "\0\0", 2).replace('0', '\0');
}

TEST(BmpData, BottomUpOrRefused) {
    EXPECT_EQ(bmp(0x1828384, -2, 0x9192, "").mid(18, 12),
              "\x84\x83\x82\x01\xFE\xFF\xFF\xFFhh\x92\x91");
    EXPECT_EQ(VerticalReverse(nullptr), -50);
    // clang-format off
    const std::pair<QByteArray, QByteArray> rows[] = {
        {bmp(3, -2, 24, "aaabbbccc...dddeeefff,,,"), done(3, 2, 24, "dddeeefff,,,aaabbbccc...")},
        {bmp(2, -3, 8, "ab..cd..ef..", 2834), done(2, 3, 8, "ef..cd..ab..")},
        {bmp(1, -2, 8, "palettea...b..."), done(1, 2, 8, "b...a...0000000")},
        {bmp(2, -2, 32, "aaa.bbb.ccc.ddd."), done(2, 2, 24, "cccddd00aaabbb00")},
        {bmp(1, -1, 1, "a..."), done(1, 1, 1, "0000")}, {bmp(1, -1, 4, "a..."), done(1, 1, 4, "0000")},
        {bmp(1, 1, 24, "aaa."), bmp(1, 1, 24, "aaa.")}, {bmp(1, 1, 24, "a", 2834), done(1, -1, 24, "0")},
        {bmp(1, 1, 32, "aaa."), done(1, -1, 24, "0000")}, {bmp(-1, INT_MIN, 24, "a"), done(-1, INT_MIN, 24, "0")},
        {bmp(0, -INT_MAX, 24, "a"), done(0, INT_MAX, 24, "0")}, {bmp(-1, -INT_MAX, 1, "a"), done(-1, INT_MAX, 1, "0")},
        // Refused, and left alone.
        {"", ""}, {bmp(1, -1, 24, "").left(53), ""}, {bmp(1, -1, 24, "aaa"), ""}, {bmp(1, -2, 32, "aaa."), ""},
        {bmp(1, -1, 16, "aaa."), ""}, {bmp(1, -1, 0, "aaa."), ""}, {bmp(1, 1, 0xFFFF, "aaa."), ""},
        {bmp(-1, -1, 24, "aaa."), ""}, {bmp(INT_MAX, -INT_MAX, 32, "aaa."), ""}, {bmp(INT_MIN, -1, 8, "aaa."), ""}};
    // clang-format on
    for (const auto &[in, out] : rows) {
        QByteArray data = in;
        EXPECT_EQ(VerticalReverse(&data), out.isEmpty() ? 1001 : 0) << in.toHex(' ').data();
        EXPECT_EQ(data.toHex(' '), (out.isEmpty() ? in : out).toHex(' '));
    }
}
