#pragma once

#include "host/ppd_source.h"

namespace host {

/// The printer behind "Print to File" when no PPD is given: plain PostScript Level 3 with the usual
/// paper sizes and two-sided printing, the paper that the locale uses by default.
PpdSource openFilePrinter();

} // namespace host
