#pragma once

#include <QByteArray>

#include <cstdint>

// The data of a BMP file: a file header of 14 bytes, an information header of 40
// (BITMAPFILEHEADER, BITMAPINFOHEADER), then the rows, each padded to 4 bytes. Numbers are
// little-endian.

/// Results of the image functions.
enum ImageStatus : int32_t {
    kImageDone = 0,
    kImageBadArgument = -50,
    kImageFailed = 1001,
};

/// Brings the data into bottom-up form with 1, 4, 8 or 24 bits per pixel and 72 dots per inch; the
/// length stays. Data in this form is left alone, as is data that is refused.
///
/// Only top-down data (a negative height) of 8, 24 or 32 bits keeps its picture: its rows are taken
/// from the end of the data, and 32 bits become 24. All other data comes out with its height
/// negated and its pixels zeroed. A palette isn't looked for, and is lost with top-down data.
/// @return kImageBadArgument without data; kImageFailed for another bit depth, for data shorter
///         than its headers, and for rows that the data is too short for
int32_t VerticalReverse(QByteArray *data);

/// Stores a number at `out`, lowest byte first.
void WriteDword(unsigned char *out, uint32_t value);
void WriteWord(unsigned char *out, uint16_t value);
