#include "weather/time.h"

#include "base/calendar.h"
#include "base/values.h"
#include "platform/clock.h"
#include "settings/location_profiles.h"

namespace skyloft {
namespace {

// Hours to add to the computer's local time to reach GMT.
long long ShiftToGmt(int& dst) {
  const ZoneState zone = GetZoneState();
  dst = zone.code - 1;
  const long long hours = RoundHalfAway(zone.bias_minutes / 60.0);
  return dst == 1 ? hours - 1 : hours;
}

std::string Shifted(const std::string& time, long long hours) {
  return DateText(DateAdd(DateUnit::Hours, hours, ReadDate(time)));
}

int FoldDay(int day) {
  if (day > 7) return day - 7;
  return day < 1 ? day + 7 : day;
}

struct ZoneRow {
  double offset;
  const char* code;
};
constexpr ZoneRow kDaylight[] = {{-4, "EDT"}, {-5, "CDT"}, {-6, "MDT"}};
constexpr ZoneRow kStandard[] = {{-5, "EST"}, {-6, "CST"}, {-7, "MST"}};

double ProfileNumber(int row, int slot) { return LenientNumber(LocationProfile[row][slot]); }

}  // namespace

std::string GetGMT(const std::string& local, int& dst) { return Shifted(local, ShiftToGmt(dst)); }

std::string GMTtoLT(const std::string& gmt, int& dst) { return Shifted(gmt, -ShiftToGmt(dst)); }

std::string GetTimeZone(double offset, double dst) {
  for (const ZoneRow& row : dst == 1 ? kDaylight : kStandard) {
    if (row.offset == offset) return row.code;
  }
  return dst == 1 ? "PDT" : "PST";
}

void GetWeekday(int day, std::string& name) {
  if (day >= 1 && day <= 7) name = calendar::kWeekdays[static_cast<size_t>(day - 1)].substr(0, 3);
}

void GetWeekdayFull(int day, std::string& name) {
  if (day >= 1 && day <= 7) name = calendar::kWeekdays[static_cast<size_t>(day - 1)];
}

std::string GetWeekDayPeriod(const std::string& time) {
  std::string name;
  GetWeekdayFull(FoldDay(PartsOf(ReadDate(time)).weekday), name);
  return name;
}

std::string GetWeekDayNightPeriod(const std::string& time) {
  const DateParts parts = PartsOf(ReadDate(time));
  std::string name;
  GetWeekdayFull(FoldDay(parts.hour <= 3 ? parts.weekday - 1 : parts.weekday), name);
  return parts.hour >= 6 && parts.hour < 18 ? name : name + " Night";
}

std::string GetExpirationGMT(const std::string& reference, int day, int hour, int minute) {
  const Date now = ReadDate(reference);
  const DateParts parts = PartsOf(now);
  const bool yesterday = day > parts.day && day == PartsOf(DateAdd(DateUnit::Hours, -24, now)).day;
  const int month = !yesterday ? parts.month : parts.month == 1 ? 12 : parts.month - 1;
  const int year = parts.month == 1 && month == 12 ? parts.year - 1 : parts.year;
  const std::string stamp = std::to_string(year) + "/" + std::to_string(month) + "/" + std::to_string(day) +
                            " " + std::to_string(hour) + ":" + std::to_string(minute) + ":00";
  Date date;
  return TryReadDate(stamp, date) ? DateText(date) : stamp;
}

long long LocationOffset(int slot) {
  return RoundHalfEven(ProfileNumber(ProfileRow::TimeZone, slot) + ProfileNumber(ProfileRow::Dst, slot));
}

Date LocationTime(int slot) {
  int dst = 0;
  const Date now = Now();
  const std::int64_t computer_offset = DateDiff(DateUnit::Hours, ReadDate(GetGMT(DateText(now), dst)), now);
  return DateAdd(DateUnit::Hours, LocationOffset(slot) - computer_offset, now);
}

std::string LocationZone(int slot) {
  const double dst = ProfileNumber(ProfileRow::Dst, slot);
  return GetTimeZone(ProfileNumber(ProfileRow::TimeZone, slot) + dst, dst);
}

}  // namespace skyloft
