#pragma once

#include "platform/export.h"

#include <QString>

#include <cstdint>

/// @return the value without its fraction, held within 32 bits; 0 for no number
PDE_PLATFORM_EXPORT int32_t truncatedToInt(double value);

/// The decimal number at a text's start, 0 without one: blanks, a sign, digits. One that is too
/// great gives the greatest, and likewise below.
PDE_PLATFORM_EXPORT int32_t leadingInteger(const char *text);
PDE_PLATFORM_EXPORT int32_t leadingInteger(const QString &text);

/// The number at a text's start as strtod(3) reads it with "." as the decimal sign, whatever the
/// locale is; 0 without one.
PDE_PLATFORM_EXPORT double leadingDouble(const char *text);
