// Dates and times: local, without a zone, in whole seconds.
#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace skyloft {

// A moment as seconds since 30 December 1899 00:00:00, the day whose dates print as a time alone.
struct Date {
  std::int64_t seconds = 0;
  auto operator<=>(const Date&) const = default;  // NOLINT(modernize-use-nullptr): sees a 0 in "<=>"
};

// Calendar fields. month 1 to 12, day 1 to 31, hour 0 to 23; weekday 1 is Sunday, 7 Saturday.
struct DateParts {
  int year, month, day, hour, minute, second, weekday;
};

enum class DateUnit { Seconds, Minutes, Hours };

// Raises when there is no such day or time (years 100 to 9999).
Date MakeDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
DateParts PartsOf(Date date);

// Reads a text as a date: "3/7/2003 2:15:00 PM" and its shorter forms, the time before the date, two-digit
// years as 20yy, "2003/3/7 14:05:00", "2003-03-07 14:05:00", "17:30", "Mar  7 2003  2:00PM". ReadDate raises
// for what is none of these ("", "24:00", "abc"); TryReadDate returns false and leaves `date`.
Date ReadDate(std::string_view text);
bool TryReadDate(std::string_view text, Date& date);

// The general form: "3/7/2003 2:15:00 PM", "3/7/2003" at exactly midnight, "2:15:00 PM" for a time alone.
// ReadDate reads back all that it writes.
std::string DateText(Date date);

// `amount` of `unit` later (earlier when negative). Raises beyond the years that MakeDate knows.
Date DateAdd(DateUnit unit, std::int64_t amount, Date date);
// From `first` to `second`: second - first. Seconds are exact; minutes and hours count the boundaries
// crossed, so 10:59 to 11:00 is 1 hour.
std::int64_t DateDiff(DateUnit unit, Date first, Date second);

// The date by a pattern of the letters d, m, y, h, n, s in any case and an AM/PM mark; all else is copied.
// "m" or "mm" directly after "h" or "hh" (only ":" between) is minutes, otherwise the month; "n" is always
// minutes. With a mark the hour is of twelve (0 reads 12); "AM/PM" and "AMPM" give upper case, "am/pm" lower
// case. "ddd", "dddd", "mmm", "mmmm" are English names, short and full; "yy" is two digits, "yyyy" four.
std::string Format(Date date, std::string_view pattern);
// A text that is no date is returned unchanged.
std::string Format(std::string_view date_text, std::string_view pattern);

}  // namespace skyloft
