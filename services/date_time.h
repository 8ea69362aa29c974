#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>

// A time of day between the record of older date interfaces and a date text of the form
// "YYYY-MM-DD HH:MM:SS +HHMM", with the local zone's standard offset whatever the season. The zone
// is that of localtime(3): TZ or the system's, and UTC without zone data. Nothing reports an error.

/// Of these fields only `hour` and `minute` are read or written here.
struct LongDateRec {
    int16_t era, year, month, day, hour, minute, second;
    int16_t dayOfWeek, dayOfYear, weekOfYear, pm, res1, res2, res3;
};

inline constexpr int kDateTextSize = 26; ///< bytes of a date text, with its final NUL

/// Makes the date text of a time of day on 2001-01-01, with 0 seconds.
/// @param out  room for kDateTextSize bytes; a text that hour, minute or zone make longer is cut
void ConvertLongDateToNSDate(const LongDateRec *record, char *out);
/// Takes hour and minute as the date's own offset tells them; 0 and 0 from an invalid date.
/// @return the minute
int16_t ConvertNSDateToLongDate(const QDateTime &date, LongDateRec *record);
/// @return the standard offset of the local zone as it holds now, as in "+0900", "-0330". An offset
///         of less than an hour lacks a digit, "+030", and 0 is "+0000"
QString GetActualTimeZoneString();
/// The same for another moment.
QString timeZoneStringAt(const QDateTime &moment);
/// @return how far the local zone's clocks were shifted between January and July of 2005, in
///         seconds, never negative
int32_t GetActualDSTSecondOffset();
