#pragma once

#include <QString>

// Conversions between points, millimetres and inches, with their own rounding.

/// Points of an inch (PostScript).
inline constexpr float UnitsPerInch = 72.0F;

/// Converts points into a scaled integer and its text.
///
/// Inches are rounded to the nearest unit of the last decimal. Millimetres have 5 added and their
/// last digit zeroed: 72 points with 2 decimals are 2540, "25.40".
/// @param out       at least 13 bytes, receives the text with its NUL; a number shorter than
///                  `decimals` is "." and its digits, without zeros in front. May be null
/// @param decimals  0 and below scale nothing and write no point
/// @param type      0 inches, 1 millimetres
/// @return the integer, held within 32 bits; -1 for another type, with `out` left alone
int TransformPointByType(char *out, int points, int decimals, int type);
/// Converts millimetres with one decimal or none into inches: "25.4" is "1.00", "10" is "0.39".
///
/// The point is taken out, not read, so "12.34" counts as 1234 tenths. Only the first 32 bytes
/// count. The result shows no sign.
/// @return a text with two decimals; null for a null text
QString TransformMillimetreToInchs(const QString &millimetres);
/// @return tenths of a millimetre of such a text: "12.5" is 125, "12" is 120; 0 for a null text
int GetMillimetreFromStr(const QString &text);
