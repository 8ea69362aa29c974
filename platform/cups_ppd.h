#pragma once

// libcups marks its PPD calls as deprecated and drops them in version 3. Every use goes through
// this header, so that the mark is off in one place and a successor library replaces the calls in
// one place.
#include <cups/versioning.h>
#undef _CUPS_DEPRECATED_1_6_MSG
#define _CUPS_DEPRECATED_1_6_MSG(message) _CUPS_PUBLIC
#include <cups/cups.h>
#include <cups/ppd.h>

#include <memory>

/// Closes a PPD with libcups' own call.
struct PpdCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PpdPtr = std::unique_ptr<ppd_file_t, PpdCloser>;
