#pragma once

#include "host/presets/preset.h"
#include "platform/cups_ppd.h"

#include <QString>
#include <QStringList>

namespace host {

/// Marks a preset's choices in the PPD, the page size first and the rest in the PPD's order, and
/// puts its entries into the print settings. Its job options are the caller's to send.
///
/// What the preset doesn't name stays as it stands: mark the queue's defaults first.
/// @param ppd  may be null, for a queue without a PPD
/// @return what couldn't be applied, and passwords to be entered again: a line for a person each;
///         the rest is applied
QStringList applyPreset(const Preset &preset, ppd_file_t *ppd, PrintSettings &settings);

/// What stands now as a preset without a name: every marked choice, those that are the queue's
/// defaults too, so that it prints the same when the defaults change. Left out are what tells how
/// the device is equipped (the group InstallableOptions) and all passwords: custom parameters of
/// the types password and passcode, and keys as isSecretKey() knows them.
/// @param ppd  may be null
Preset presetOf(ppd_file_t *ppd, const QString &queue, const PrintSettings &settings,
                const QMap<QString, QString> &jobOptions);

} // namespace host
