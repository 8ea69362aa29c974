#pragma once

#include "platform/cups_ppd.h"

#include <QString>

namespace host {

// CUPS' forms of settings that a PPD has in options of its own, brought to the PPD's marks. libcups
// does so, too, but looks at all conflicts of the PPD and loses some memory with each PPD.

/// Marks what CUPS' option "sides" says: "one-sided", "two-sided-long-edge",
/// "two-sided-short-edge".
/// @param duplex  the PPD's option
/// @return false, with nothing done, where the option has no such choice
bool markSides(ppd_file_t *ppd, const ppd_option_t &duplex, const QString &sides);

/// @return what CUPS' option "sides" would say of a choice of the PPD's option; null for none of it
QString sidesOf(const ppd_choice_t &choice);

/// Marks what CUPS' option "media" says: names of a size (the PPD's, or those of PWG 5101.1 and
/// their older ones), a source and a type, parted by commas.
/// @return whether all of it is marked
bool markMedia(ppd_file_t *ppd, const QString &media);

} // namespace host
