#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Where a PPD file breaks off.
struct PpdFault {
    int line; ///< from 1
    QString reason;
};

/// Looks for the traces of a PPD file that was cut off, which libcups loads without a word: a last
/// line without an end, a quoted value, UI or group that isn't closed. A cut between whole entries
/// can't be seen.
/// @param text  the file; lines end in LF, CR LF or CR
/// @return the first trace, or nothing
std::optional<PpdFault> findTruncation(const QByteArray &text);
