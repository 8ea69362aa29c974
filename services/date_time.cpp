#include "services/date_time.h"

#include <algorithm>
#include <cstdlib>

namespace {

int secondsFromGmt(const QDateTime &moment) {
    return moment.toLocalTime().offsetFromUtc();
}

int secondsFromGmt(int year, int month) {
    return secondsFromGmt(QDateTime(QDate(year, month, 1), QTime(12, 0), Qt::UTC));
}

/// The clocks are ahead of what they show in the other half of the year. The zone's own flag won't
/// do: Europe/Dublin sets it in winter.
bool isDaylightSavingTime(const QDateTime &moment) {
    const int year = moment.toUTC().date().year();
    return secondsFromGmt(moment) > std::min(secondsFromGmt(year, 1), secondsFromGmt(year, 7));
}

} // namespace

void ConvertLongDateToNSDate(const LongDateRec *record, char *out) {
    if (!record || !out)
        return;
    const auto lead = [](int16_t number) { return number > 9 ? "" : "0"; };
    const QString text = QString::asprintf("2001-01-01 %s%d:%s%d:00 ", lead(record->hour),
                                           record->hour, lead(record->minute), record->minute);
    qstrncpy(out, (text + GetActualTimeZoneString()).toUtf8().constData(), kDateTextSize);
}

int16_t ConvertNSDateToLongDate(const QDateTime &date, LongDateRec *record) {
    const QTime time = date.isValid() ? date.time() : QTime(0, 0);
    if (record) {
        record->hour = static_cast<int16_t>(time.hour());
        record->minute = static_cast<int16_t>(time.minute());
    }
    return static_cast<int16_t>(time.minute());
}

QString GetActualTimeZoneString() {
    return timeZoneStringAt(QDateTime::currentDateTimeUtc());
}

QString timeZoneStringAt(const QDateTime &moment) {
    int seconds = secondsFromGmt(moment);
    if (isDaylightSavingTime(moment))
        seconds -= GetActualDSTSecondOffset();
    const float hours = seconds / 3600.0f;
    const int whole = static_cast<int>(hours);
    const int value = static_cast<int>(whole * 100 + (hours - whole) * 60.0f);
    if (value == 0)
        return QStringLiteral("+0000");
    const char *format = value < -999 ? "%d" : value < 0 ? "-0%d" : value > 999 ? "+%d" : "+0%d";
    return QString::asprintf(format, value < -999 ? value : std::abs(value));
}

int32_t GetActualDSTSecondOffset() {
    return std::abs(secondsFromGmt(2005, 7) - secondsFromGmt(2005, 1));
}
