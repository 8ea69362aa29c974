#pragma once

#include "platform/cups_ppd.h"
#include "platform/export.h"

/// Marks a choice as ppdMarkOption of libcups does, without its test of all conflicts of the PPD,
/// which takes long for many constraints and whose answer nobody here needs.
///
/// Options that libcups gives a side effect or a syntax of their own go to ppdMarkOption itself:
/// the page size and region, the input slot and manual feed, custom values ("Custom.X", "{A=1
/// B=2}") and options of which many choices can be marked.
/// @param option  keyword of the option; case is ignored in ASCII
/// @param choice  keyword of the choice; an exact match comes first, then one in ASCII without case
/// @return true if the choice is marked when the call returns, without work if it was so before;
///         false, with nothing done, for a null argument and when the option or choice is missing
PDE_PLATFORM_EXPORT bool markChoice(ppd_file_t *ppd, const char *option, const char *choice);
