#pragma once

#include "platform/cups_ppd.h"
#include "platform/print_core.h"

#include <QString>

/// Reads a number of the session.
/// @param out  receives an int32_t, the low 32 bits of the number; left alone on failure
/// @return 0; -30891 without data, with data that is no number, or when the call failed; -50 for a
///         null `out`
PMStatus GetTicketFromSession(PMPrintSession session, const QString &key, void *out);
/// Reads the session's reference to the parsed PPD, under "kPMPPDReference": the first 32 bits of a
/// buffer, zero-extended.
/// @param out  null without data or with a buffer that is shorter; owned by the session's maker
/// @return 0, also without data; the status of a failed call; -50 for a null `out`
PMStatus GetPPDRefFromSession(PMPrintSession session, ppd_file_t **out);
/// Makes a preference key that belongs to one printer: the printer's identifier, then the key.
/// @param out  both are appended to it; empty at the call
/// @return false for a null argument, with `out` unchanged
bool CreateKeyWithCurrentPrinter(const QString &key, const QString &printer, QString *out);
/// Appends the current printer's identifier.
/// @return 0; 1 when `out` is null or there is no current printer
PMStatus SetPrinterString(PMPrintSession session, QString *out);
/// Stores an integer as decimal text; results as below.
PMStatus SetIntegerValueToSettings(int value, PMPrintSettings settings, const QString &key,
                                   bool locked);
/// Stores a text, with each U+FFE4 turned into "|": the wide bar carries a bar through the layers
/// where "|" separates fields.
/// @param value  UTF-8
/// @return the status of PMPrintSettingsSetValue; -50 for a null argument, -108 for invalid UTF-8
PMStatus SetValueToSettingsWithTicketKeyAndLock(const char *value, PMPrintSettings settings,
                                                const QString &key, bool locked);
