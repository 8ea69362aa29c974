#include "services/bmp_data.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr qsizetype kHeaderSize = 54;
constexpr uint32_t kDotsPerMetre = 2835; // 72 per inch

// Places in the headers.
constexpr int kWidth = 18;
constexpr int kHeight = 22;
constexpr int kBitsPerPixel = 28;
constexpr int kCompression = 30;
constexpr int kHorizontalResolution = 38;
constexpr int kVerticalResolution = 42;

/// Rounds up to the 4 bytes that a row is padded to.
qint64 padded(qint64 bytes) {
    return (bytes + 3) / 4 * 4;
}

} // namespace

int32_t VerticalReverse(QByteArray *data) {
    if (!data || data->isNull())
        return kImageBadArgument;
    if (data->size() < kHeaderSize)
        return kImageFailed;
    const char *in = data->constData();
    const auto dword = [in](int place) { return qFromLittleEndian<uint32_t>(in + place); };
    const qint64 width = dword(kWidth); // a negative one is too wide for any data
    const uint32_t height = dword(kHeight);
    const int bits = qFromLittleEndian<uint16_t>(in + kBitsPerPixel);
    const bool supported = bits == 1 || bits == 4 || bits == 8 || bits == 24;
    if (static_cast<int32_t>(height) > 0 && dword(kHorizontalResolution) == kDotsPerMetre &&
        dword(kVerticalResolution) == kDotsPerMetre && supported)
        return kImageDone;
    if (!supported && bits != 32)
        return kImageFailed;

    const int outputBits = bits == 32 ? 24 : bits;
    const uint32_t newHeight = 0 - height; // unsigned: the lowest height stays what it is
    const qint64 rows = std::max(static_cast<int32_t>(newHeight), 0);
    const qint64 sourceRow = padded(width * (bits / 8)); // 0 for 1 and 4 bits: nothing to copy
    const qint64 targetRow = padded(width * (outputBits / 8));
    if (sourceRow > 0 && rows > (data->size() - kHeaderSize) / sourceRow)
        return kImageFailed;

    QByteArray buffer(data->size(), '\0');
    char *out = buffer.data();
    std::copy_n(in, kHeaderSize, out);
    auto *header = reinterpret_cast<unsigned char *>(out);
    WriteDword(header + kHeight, newHeight);
    WriteWord(header + kBitsPerPixel, static_cast<uint16_t>(outputBits));
    WriteWord(header + kCompression, 0);
    WriteDword(header + kHorizontalResolution, kDotsPerMetre);
    WriteDword(header + kVerticalResolution, kDotsPerMetre);

    for (qint64 row = 0; sourceRow > 0 && row < rows; ++row) {
        const char *source = in + data->size() - (row + 1) * sourceRow;
        char *target = out + kHeaderSize + row * targetRow;
        if (bits != 32)
            std::copy_n(source, sourceRow, target);
        else
            for (qint64 pixel = 0; pixel < width; ++pixel)
                std::copy_n(source + pixel * 4, 3, target + pixel * 3);
    }
    data->swap(buffer);
    return kImageDone;
}

void WriteDword(unsigned char *out, uint32_t value) {
    qToLittleEndian(value, out);
}

void WriteWord(unsigned char *out, uint16_t value) {
    qToLittleEndian(value, out);
}
