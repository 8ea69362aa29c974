#pragma once

#include "host/settings/option_list.h"
#include "platform/cups_ppd.h"
#include "platform/print_core.h"

#include <QStringList>

class QPrintEngine;

namespace pdeqt {

/// The options for CUPS that a print engine of Qt has: what its dialog and programs have put there.
/// Empty for an engine that prints to no CUPS queue.
host::OptionList engineOptions(const QPrintEngine &engine);
void setEngineOptions(QPrintEngine &engine, const host::OptionList &options);

/// What a panel has to say for a job: those of the options that would be sent which are the
/// panel's own, or print settings. All else (paper, sides, source) is the dialog's. What can't be
/// sent is left out, with a line in the log.
/// @param keys  the panel's options
host::OptionList panelOptions(ppd_file_t *ppd, const QStringList &keys,
                              const PrintSettings &settings);

/// Puts a panel's options in place of those of the same names, and of those that it had put there
/// before. Names count without case.
host::OptionList merged(host::OptionList list, const QStringList &formerNames,
                        const host::OptionList &options);

} // namespace pdeqt
