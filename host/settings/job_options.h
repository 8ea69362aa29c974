#pragma once

#include "host/settings/option_list.h"
#include "platform/cups_ppd.h"
#include "platform/print_core.h"

namespace host {

/// The options of a job for CUPS, in the order in which they are sent: all marked choices of the
/// PPD, the print settings, the other options.
///
/// Each name stands once; of several values the last counts. Options that are CUPS' form of a
/// marked choice ("sides" beside "Duplex") are left out, since the marks are what people saw. Of an
/// option of which many choices are marked the last is sent: CUPS has no form for more.
/// @param ppd         may be null
/// @param settings    may be null
/// @param jobOptions  that are none of the PPD
OptionList jobOptionsToSend(ppd_file_t *ppd, const PrintSettings *settings,
                            const OptionList &jobOptions);

} // namespace host
