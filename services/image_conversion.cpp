#include "services/image_conversion.h"

#include "platform/file_content.h"

#include <Magick++.h>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

namespace {

constexpr qint64 kGreatestFile = 256 << 20;
/// Bits of a sample. What has more, hardly any program reads.
constexpr size_t kGreatestDepth = 16;

using Pictures = std::vector<Magick::Image>;

/// What a format keeps of transparency.
enum class Opacity {
    None,    ///< every place needs a colour
    AllOrNo, ///< so does a place that shows a part of what is behind it
    Any,
};

struct FileType {
    const char *encoder;
    const char *format; ///< what the encoder's files are known by, from their first bytes
    const char *extension;
    bool holdsMany; ///< pictures
    Opacity opacity;
};

// By ImageFileType. BMP3 is the variant whose information header has 40 bytes.
// clang-format off
constexpr FileType kFileTypes[] = {
    {"TIFF", "TIFF", "tiff", true, Opacity::Any},
    {"BMP3", "BMP", "bmp", false, Opacity::None},
    {"GIF", "GIF", "gif", true, Opacity::AllOrNo},
    {"JPEG", "JPEG", "jpg", false, Opacity::None},
    {"PNG", "PNG", "png", false, Opacity::Any},
    {"JP2", "JP2", "jp2", false, Opacity::Any},
};
// clang-format on

// Only plain pictures are read: the library's scripts and drawings could name other files.
constexpr std::string_view kReadable[] = {
    "TIFF", "TIFF64", "BMP",  "GIF", "JPEG", "PNG", "JP2",
    "JPC",  "J2K",    "WEBP", "PBM", "PGM",  "PPM", "PAM",
};

/// @return what a file is by its first bytes, in the library's words; empty if unknown
std::string formatOf(const QByteArray &data) {
    MagickCore::ExceptionInfo *exception = MagickCore::AcquireExceptionInfo();
    const MagickCore::MagicInfo *magic =
        MagickCore::GetMagicInfo(reinterpret_cast<const unsigned char *>(data.constData()),
                                 static_cast<size_t>(data.size()), exception);
    std::string format = magic ? MagickCore::GetMagicName(magic) : "";
    MagickCore::DestroyExceptionInfo(exception);
    return format;
}

/// @return the pictures of a file; none if it isn't one of images. Throws the library's errors
Pictures load(const QString &path) {
    QString reason;
    const QByteArray data = readRegularFile(path, kGreatestFile, &reason).value_or(QByteArray());
    const std::string format = formatOf(data);
    if (std::find(std::begin(kReadable), std::end(kReadable), format) == std::end(kReadable))
        return {};
    Magick::ReadOptions options;
    options.quiet(true); // a warning leaves the picture usable
    Pictures pictures;
    Magick::readImages(&pictures, Magick::Blob(data.constData(), data.size()), options);
    if (pictures.size() < 2 || (format != "GIF" && format != "WEBP"))
        return pictures;
    Pictures whole; // later frames of an animation hold only what changes
    Magick::coalesceImages(&whole, pictures.begin(), pictures.end());
    return whole;
}

/// Wholly transparent places stay so where the format has them.
void putOnWhite(Magick::Image &picture, Opacity opacity) {
    Magick::Image shown = picture;
    picture.backgroundColor("white");
    picture.alphaChannel(MagickCore::RemoveAlphaChannel);
    if (opacity == Opacity::None)
        return;
    shown.alphaChannel(MagickCore::ExtractAlphaChannel);
    shown.threshold(0);
    picture.composite(shown, 0, 0, MagickCore::CopyOpacityCompositeOp);
}

/// @return the data of a file of the type; empty if the encoder made something else
QByteArray encode(Pictures pictures, const FileType &type) {
    if (!type.holdsMany)
        pictures.resize(1);
    for (Magick::Image &picture : pictures) {
        picture.quiet(true);
        picture.magick(type.encoder);
        picture.compressType(Magick::NoCompression); // not the source's
        if (picture.depth() > kGreatestDepth)
            picture.depth(kGreatestDepth);
        if (type.opacity != Opacity::Any && picture.matte())
            putOnWhite(picture, type.opacity);
        if (&type == &kFileTypes[kImageBMP]) {
            // 28.35 per centimetre is stored as 2835 per metre, 72 per inch as 2834.
            picture.modifyImage();
            picture.resolutionUnits(Magick::PixelsPerCentimeterResolution);
            picture.image()->x_resolution = picture.image()->y_resolution = 28.35;
        }
    }
    Magick::Blob blob;
    Magick::writeImages(pictures.begin(), pictures.end(), &blob);
    const QByteArray data(static_cast<const char *>(blob.data()),
                          static_cast<qsizetype>(blob.length()));
    return formatOf(data) == type.format ? data : QByteArray();
}

QString pathExtension(const QString &path) {
    const QString name = path.mid(path.lastIndexOf('/') + 1);
    const qsizetype dot = name.lastIndexOf('.');
    return dot > 0 ? name.mid(dot + 1) : QString(); // a hidden file's dot starts no extension
}

int32_t convert(const QString &source, const QString &target, const FileType &type) {
    const Pictures pictures = load(source);
    if (pictures.empty())
        return kImageFailed;
    QByteArray data = encode(pictures, type);
    if (data.isEmpty())
        return kImageFailed;
    if (&type == &kFileTypes[kImageBMP] && VerticalReverse(&data) != kImageDone)
        return kImageFailed;
    return writeWholeFile(target, data) ? kImageDone : kImageFailed;
}

} // namespace

int32_t ConvertImgType(const QString &source, const QString &target, uint32_t type,
                       bool addExtension) {
    if (source.isNull() || target.isNull() || type >= std::size(kFileTypes))
        return kImageBadArgument;
    const QString extension = kFileTypes[type].extension;
    QString path = target;
    if (addExtension && pathExtension(path).compare(extension, Qt::CaseInsensitive) != 0)
        path += '.' + extension;
    try {
        static const bool started = (Magick::InitializeMagick(nullptr), true);
        (void)started;
        return convert(source, path, kFileTypes[type]);
    } catch (const std::exception &) { // of the library, or no memory for a large picture
        return kImageFailed;
    }
}
