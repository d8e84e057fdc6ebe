#include "base/dates.h"

#include <algorithm>
#include <chrono>

#include "base/calendar.h"
#include "base/guard.h"

namespace skyloft {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kFirstDay = sys_days{std::chrono::year{1899} / 12 / 30};

constexpr std::int64_t DayStart(year_month_day date) {
  return (sys_days{date} - kFirstDay).count() * calendar::kDaySeconds;
}
constexpr std::int64_t kEarliest = DayStart(std::chrono::year{100} / 1 / 1);
constexpr std::int64_t kLatest = DayStart(std::chrono::year{9999} / 12 / 31) + calendar::kDaySeconds - 1;

std::int64_t SecondsOfUnit(DateUnit unit) {
  return unit == DateUnit::Hours ? 3600 : unit == DateUnit::Minutes ? 60 : 1;
}

Date CheckedDate(std::int64_t seconds) {
  if (seconds < kEarliest || seconds > kLatest) throw RuntimeError("date outside the known years");
  return {seconds};
}

}  // namespace

bool calendar::SameWord(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Lower, Lower);
}

std::optional<std::int64_t> calendar::SecondsOfDay(int year, int month, int day) {
  if (year < 100 || year > 9999 || month < 1 || day < 1) return {};
  const year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                            std::chrono::day{static_cast<unsigned>(day)}};
  if (month > 12 || day > 31 || !date.ok()) return {};
  return DayStart(date);
}

std::optional<std::int64_t> calendar::SecondsOfTime(int hour, int minute, int second) {
  if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) return {};
  return hour * 3600 + minute * 60 + second;
}

Date MakeDate(int year, int month, int day, int hour, int minute, int second) {
  const auto midnight = calendar::SecondsOfDay(year, month, day);
  const auto time = calendar::SecondsOfTime(hour, minute, second);
  if (!midnight || !time) throw RuntimeError("no such day or time");
  return {*midnight + *time};
}

DateParts PartsOf(Date date) {
  const std::int64_t day_count =
      calendar::FloorDivide(CheckedDate(date.seconds).seconds, calendar::kDaySeconds);
  const int time = static_cast<int>(date.seconds - day_count * calendar::kDaySeconds);
  const sys_days calendar_day = kFirstDay + std::chrono::days{day_count};
  const year_month_day fields{calendar_day};
  return {.year = static_cast<int>(fields.year()),
          .month = static_cast<int>(static_cast<unsigned>(fields.month())),
          .day = static_cast<int>(static_cast<unsigned>(fields.day())),
          .hour = time / 3600,
          .minute = time / 60 % 60,
          .second = time % 60,
          .weekday = static_cast<int>(std::chrono::weekday{calendar_day}.c_encoding()) + 1};
}

Date DateAdd(DateUnit unit, std::int64_t amount, Date date) {
  constexpr std::int64_t most = kLatest - kEarliest;
  if (amount < -most || amount > most) throw RuntimeError("date outside the known years");
  return CheckedDate(date.seconds + amount * SecondsOfUnit(unit));
}

std::int64_t DateDiff(DateUnit unit, Date first, Date second) {
  const std::int64_t unit_seconds = SecondsOfUnit(unit);
  return calendar::FloorDivide(second.seconds, unit_seconds) -
         calendar::FloorDivide(first.seconds, unit_seconds);
}

}  // namespace skyloft
