#pragma once

#include "services/bmp_data.h"

#include <QString>

/// What an image file can be converted to.
enum ImageFileType : uint32_t {
    kImageTIFF = 0,
    kImageBMP = 1,
    kImageGIF = 2,
    kImageJPEG = 3,
    kImagePNG = 4,
    kImageJPEG2000 = 5,
};

/// Converts an image file.
///
/// TIFF and GIF take all pictures of the source, the others the first. Transparent places become
/// white in JPEG and BMP, half transparent ones are put on white in GIF. A sample has 16 bits at
/// most. BMP becomes what VerticalReverse wants. The target is replaced as a whole or not at all,
/// and may be the source.
/// @param source        a TIFF, BMP, GIF, JPEG, PNG, JPEG 2000, WebP or Netpbm file
///                      of up to 256 MB, whatever its name
/// @param target        path of the new file; its folder must exist
/// @param type          an ImageFileType
/// @param addExtension  adds the type's extension ("tiff", "bmp", "gif", "jpg", "png", "jp2") to
///                      a target that has another or none; upper and lower case are the same
/// @return kImageBadArgument for a null path or another type; kImageFailed when the source can't
///         be read or the target can't be made
int32_t ConvertImgType(const QString &source, const QString &target, uint32_t type,
                       bool addExtension);
