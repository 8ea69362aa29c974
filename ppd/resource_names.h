#pragma once

#include "platform/cups_ppd.h"

#include <QString>

#include <cstdint>

/// A part of the value of "QZXImageOptionsSettings", which is the name of a layout, a hyphen and
/// the name of a help page. The first hyphen splits; later ones belong to the help part. Without a
/// hyphen the whole value is the layout, and the help part is empty.
/// @param value  UTF-8; at most 254 bytes of the part are taken, a character that is cut is dropped
/// @param part   0 for the layout, 1 for the help page; any other gives an empty text
/// @return null for a null value
QString GetAppResourceName(const char *value, int32_t part);
/// The same.
QString GetAppResourceNameNS(const char *value, int32_t part);
/// A resource's full name: the prefix that belongs to the part, none for a part other than 0 and 1,
/// and the name; cut to 510 UTF-16 units.
/// @return null for a null name
QString GetAppFullResourceName(const QString &name, int32_t part, const QString &prefix0,
                               const QString &prefix1);

/// The spelling of a maker's keyword for this PPD: when the PPD's "Manufacturer" is
/// KVendorPPDValue, a prefix KVendorPPDPrefix in whatever case is brought to that of the constant.
/// Any other keyword passes as it is.
/// @param out  zeroed, 100 bytes; at most 99 are written, and no NUL
void FixPPDKeywordAccordingToType(ppd_file_t *ppd, const char *keyword, char *out);

/// The attribute of a vendor keyword in the spelling that is valid for this PPD.
/// @return owned by the PPD; null without one
ppd_attr_t *findVendorAttribute(ppd_file_t *ppd, const char *keyword);
