#include "services/date_time.h"

#include <gtest/gtest.h>

TEST(DateTime, StandardOffsetInEachSeason) {
    // clang-format off
    const std::tuple<const char *, int, int, std::string, int> rows[] = {
        {"UTC", 0, 0, "00:00:00 +0000", 0},         {"America/New_York", 9, 10, "09:10:00 -0500", 3600},
        {"Asia/Tokyo", 10, 9, "10:09:00 +0900", 0}, {"Australia/Sydney", 23, 59, "23:59:00 +1000", 3600},
        {"Asia/Kathmandu", 0, 1, "00:01:00 +0545", 0},   {"America/St_Johns", 1, 0, "01:00:00 -0330", 3600},
        {"Pacific/Honolulu", 0, 0, "00:00:00 -1000", 0}, {"Australia/Lord_Howe", 0, 0, "00:00:00 +1030", 1800},
        {"XXX-0:30", 0, 0, "00:00:00 +030", 0},     {"XXX0:30", 0, 0, "00:00:00 -030", 0},
        {"No/Such_Zone", 0, 0, "00:00:00 +0000", 0},
        {"Europe/Dublin", 0, 0, "00:00:00 +0000", 3600},   // its flag is set in winter
        {"Europe/Istanbul", 0, 0, "00:00:00 +0300", 3600}, // its clocks no longer change
        {"UTC", -32768, 32767, "0-32768:32767:", 0}};      // cut
    // clang-format on
    const QByteArray former = qgetenv("TZ");
    for (const auto &[zone, hour, minute, text, shift] : rows) {
        qputenv("TZ", zone);
        LongDateRec record{};
        record.hour = hour, record.minute = minute;
        char out[kDateTextSize];
        ConvertLongDateToNSDate(&record, out);
        EXPECT_EQ(out, "2001-01-01 " + text) << zone;
        EXPECT_EQ(GetActualDSTSecondOffset(), shift) << zone;
        for (int month : {1, 7}) // what the text says of today holds in both
            EXPECT_EQ(timeZoneStringAt(QDateTime({2024, month, 15}, {})),
                      GetActualTimeZoneString());
        const QDateTime date({2020, 7, 1}, QTime(hour, minute), Qt::OffsetFromUTC, -12600);
        EXPECT_EQ(ConvertNSDateToLongDate(date, &record), date.time().minute());
        EXPECT_EQ(record.hour, date.time().hour());
    }
    former.isNull() ? qunsetenv("TZ") : qputenv("TZ", former);
}
