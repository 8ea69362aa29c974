#pragma once

#include "platform/cups_ppd.h"

#include <QJsonValue>
#include <QString>

namespace host {

/// Makes a custom value of what a program gives: "Custom.X", "Custom.WIDTHxHEIGHT", "{A=1 B=2}",
/// a length of them with a unit of CUPS ("Custom.10x20cm"), or an object with the values by name,
/// {"Width": 283.5, "Height": 300}, lengths in points. What isn't given stays as it is.
/// @param why  told when null is returned, a sentence for a person. What was given, which may be a
///             PIN, isn't in it
/// @return the choice that markChoice() takes, each value within the limits; null for none
QString customChoice(ppd_file_t *ppd, const ppd_option_t &option, const QJsonValue &given,
                     QString *why);

/// A value as text: a text as it stands, "True" or "False", a number; null for anything else.
QString plainText(const QJsonValue &value);

} // namespace host
