#pragma once

#include "platform/cups_ppd.h"

#include <QString>

namespace host {

/// The custom value of an option as it stands.
struct CustomValue {
    QString text;             ///< as libcups marks it; null if nothing of it may be kept
    bool hasSecret = false;   ///< one of its parameters is a password or passcode
    bool lacksSecret = false; ///< and one of those is empty
};

enum class Secrets { Without, With };

/// The parameters' values of an option, whether its choice "Custom" is marked or not:
/// "Custom.WIDTHxHEIGHT" in points for a page size, "Custom.X" for one parameter, else
/// "{A=1 B='two words'}".
CustomValue customValueOf(ppd_file_t *ppd, const ppd_option_t &option, Secrets secrets);

/// @return whether the marked custom value of an option is within the PPD's limits: numbers, the
///         lengths of texts, a page's sides. Passwords aren't looked at
bool customValueFits(ppd_file_t *ppd, const ppd_option_t &option);

} // namespace host
