#include "feedserver/places.h"

#include <algorithm>
#include <array>

#include "base/values.h"
#include "feedserver/place_search.h"
#include "feedserver/place_table.h"

namespace skyloft::feed {
namespace {

// Towns whose weather is observed at a station that there is, at minutes of their own. Their radar is that of
// their forecast office, though Lawrence has another one as near, and Los Angeles and New York a nearer one.
struct Observed {
  std::string_view postal_code, station;
  int minute;
  std::string_view radar;
};
constexpr auto kObserved = std::to_array<Observed>({
    {"00901", "Luis Munoz Marin Airport", 18, "TJUA"},
    {"04101", "Portland International Jetport", 7, "KGYX"},
    {"10001", "Central Park", 2, "KOKX"},
    {"33131", "Miami International Airport", 15, "KAMX"},
    {"60601", "Chicago Midway Airport", 9, "KLOT"},
    {"66044", "Lawrence Municipal Airport", 4, "KTWX"},
    {"80202", "Denver International Airport", 11, "KFTG"},
    {"85003", "Phoenix Sky Harbor Airport", 14, "KIWA"},
    {"90012", "Los Angeles Downtown", 5, "KVTX"},
    {"96813", "Honolulu International Airport", 13, "PHMO"},
    {"98101", "Seattle Boeing Field", 0, "KATX"},
    {"99501", "Anchorage Merrill Field", 17, "PAHG"},
});

// Null for most places.
const Observed* FindObserved(std::string_view postal_code) {
  const auto* const found = std::ranges::find(kObserved, postal_code, &Observed::postal_code);
  return found == kObserved.end() ? nullptr : found;
}

const PlaceTable& Table() {
  static const PlaceTable table;
  return table;
}

Place PlaceOf(const PlaceRecord& record) {
  const PlaceTable& table = Table();
  const Point point = record.Middle();
  const bool has_daylight_time = record.zone % 2 != 0;
  const Observed* const observed = FindObserved(record.PostalCode());
  return {.postal_code = record.PostalCode(),
          .city = table.City(record),
          .state = table.State(record),
          .state_name = table.StateName(table.State(record)),
          .county = table.County(record),
          .area_code = record.AreaCode(),
          .point = point,
          .gmt_offset = (record.zone - (has_daylight_time ? 1 : 0)) / 2,
          .has_daylight_time = has_daylight_time,
          .office = NearestOffice(point).code,
          .radar = observed ? FindRadarSite(observed->radar) : &NearestRadarSite(point),
          .minute = observed ? observed->minute : WholeNumber(record.PostalCode()) % 20};
}

// Null when there is no such place.
const PlaceRecord* FindRecord(std::string_view postal_code) {
  const auto& records = Table().Records();
  const auto found = std::ranges::lower_bound(records, postal_code, {}, &PlaceRecord::PostalCode);
  return found == records.end() || found->PostalCode() != postal_code ? nullptr : &*found;
}

// The `number`-th Sunday of a month, midnight.
Date SundayOf(int year, int month, int number) {
  const int weekday = PartsOf(MakeDate(year, month, 1)).weekday;
  return MakeDate(year, month, 1 + (8 - weekday) % 7 + 7 * (number - 1));
}

// The midnights before the clocks change.
struct DaylightDays {
  Date first, last;
};

DaylightDays DaylightDaysOf(int year) {
  if (year >= 2007) return {SundayOf(year, 3, 2), SundayOf(year, 11, 1)};
  return {SundayOf(year, 4, 1), DateAdd(DateUnit::Hours, -7 * 24, SundayOf(year, 11, 1))};
}

}  // namespace

std::size_t PlaceCount() { return Table().Records().size(); }

Place PlaceAt(std::size_t index) { return PlaceOf(Table().Records().at(index)); }

std::optional<Place> FindPlace(std::string_view postal_code) {
  const PlaceRecord* const found = FindRecord(TrimText(postal_code));
  return found ? std::optional(PlaceOf(*found)) : std::nullopt;
}

std::optional<Place> FindPlace(std::string_view city, std::string_view state) {
  static const NameIndex names(Table());
  const PlaceRecord* const found = names.Find(city, state);
  if (!found) return {};
  return PlaceOf(*found);
}

Place NearestPlace(Point point) {
  static const PointIndex points(Table());
  return PlaceOf(points.Nearest(point));
}

std::vector<Place> TownsOverCounty(const Place& place) {
  static const CountyIndex counties(Table());
  std::vector<Place> towns;
  for (const PlaceRecord* const record : counties.TownsOver(*FindRecord(place.postal_code)))
    towns.push_back(PlaceOf(*record));
  return towns;
}

std::string StationOf(const Place& place) {
  const Observed* const observed = FindObserved(place.postal_code);
  return observed ? std::string(observed->station) : std::string(place.city) + " Airport";
}

bool IsDaylightTime(const Place& place, Date gmt) {
  if (!place.has_daylight_time) return false;
  const Date standard = DateAdd(DateUnit::Hours, place.gmt_offset, gmt);
  const DaylightDays days = DaylightDaysOf(PartsOf(standard).year);
  const Date begin = DateAdd(DateUnit::Hours, 2, days.first);
  const Date end = DateAdd(DateUnit::Hours, 1, days.last);  // 2 AM of daylight time
  return begin <= standard && standard < end;
}

Date LocalTime(const Place& place, Date gmt) {
  return DateAdd(DateUnit::Hours, place.gmt_offset + (IsDaylightTime(place, gmt) ? 1 : 0), gmt);
}

Date GmtOf(const Place& place, Date local) {
  const Date standard = DateAdd(DateUnit::Hours, -place.gmt_offset, local);
  const Date daylight = DateAdd(DateUnit::Hours, -1, standard);
  return LocalTime(place, daylight) == local ? daylight : standard;
}

}  // namespace skyloft::feed
