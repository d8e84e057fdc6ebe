// The forecast feed: meta data, current and historical conditions, hourly and extended forecasts.
#include <algorithm>
#include <array>
#include <vector>

#include "base/guard.h"
#include "base/values.h"
#include "feedserver/phrases.h"
#include "feedserver/places.h"
#include "feedserver/products.h"
#include "feedserver/replies.h"
#include "feedserver/rows.h"
#include "feedserver/steps.h"
#include "feedserver/sun.h"
#include "feedserver/xml.h"

namespace skyloft::feed {
namespace {

constexpr int kHistoryRows = 48, kHourlyRows = 66, kExtendedRows = 25;
constexpr std::int64_t kPeriodHours = 12, kHourlyPeriods = 6;  // the last of them cut off
constexpr std::int64_t kMinute = 60, kHour = 60 * kMinute;     // seconds
constexpr std::int64_t kObservationSeconds = 20 * kMinute;

Date AddHours(Date date, std::int64_t hours) { return DateAdd(DateUnit::Hours, hours, date); }

constexpr auto kCurrentTags = std::to_array<std::string_view>(
    {"Lt", "SkyID", "Desc", "Ic", "Tf", "At", "Df", "Rh", "Wd", "Ws", "Vi", "Avg_H", "Avg_L", "Slp"});
constexpr auto kHistoryTags =
    std::to_array<std::string_view>({"Lt", "Ic", "Desc", "Tf", "Df", "Rh", "Wd", "Ws", "Vi"});
constexpr auto kHourlyTags = std::to_array<std::string_view>(
    {"Ut", "Lt", "Desc", "Ic", "Tf", "Df", "Rh", "At", "Wd", "Ws", "Rn", "Sn"});
constexpr auto kStopTags = std::to_array<std::string_view>({"city_state"});
constexpr auto kSkyTags = std::to_array<std::string_view>({"Desc", "Ic"});
constexpr auto kWindTags = std::to_array<std::string_view>({"Wd", "Ws"});

// Conditions are worded by the sun at the place.
Moment ReadingAt(const Spot& spot, Date gmt, std::uint64_t seed) {
  const Weather weather = WeatherAt(spot.point, gmt, seed);
  return {spot, gmt, weather, SkyCode(weather, SunHeight(spot.point, gmt) > 0)};
}

// Forecasts are worded by the clock: the hours from 13 to 00 GMT are the day of the whole country.
Moment ForecastAt(const Spot& spot, Date gmt, std::uint64_t seed) {
  const int hour = PartsOf(gmt).hour;
  const Weather weather = WeatherAt(spot.point, gmt, seed);
  return {spot, gmt, weather, SkyCode(weather, hour == 0 || hour > 12)};
}

// The newest observation: one every 20 minutes, in every town at minutes of its own.
Date ObservationTime(const Spot& spot, Date now) {
  const std::int64_t phase = spot.place.minute * kMinute;
  return {FloorTo({now.seconds - phase}, kObservationSeconds).seconds + phase};
}

std::string MetaXml(const std::vector<Spot>& spots, Date now) {
  XmlDocument xml("meta");
  for (const Spot& spot : spots) xml.Add("Obs_TS_UTC", Stamp(ObservationTime(spot, now)));
  xml.Add("Model_TS_UTC", Stamp(ModelRun(now)));
  xml.Add("Model_TS_UTC_Trip", Stamp(ModelRun(now)));
  return std::move(xml).Finish();
}

// The names of the station come first, then those of the place.
std::string CurrentXml(const std::vector<Spot>& spots, Date now, std::uint64_t seed) {
  XmlDocument xml("current");
  for (const Spot& spot : spots) {
    for (const std::string& city : {StationOf(spot.place), std::string(spot.place.city)}) {
      xml.Add("City", city);
      xml.Add("State", spot.place.state);
    }
    AddRow(xml, ReadingAt(spot, ObservationTime(spot, now), seed), kCurrentTags);
  }
  return std::move(xml).Finish();
}

std::string HistoryXml(const std::vector<Spot>& spots, Date now, std::uint64_t seed) {
  XmlDocument xml("historical");
  for (const Spot& spot : spots) {
    const Date newest = FloorTo(ObservationTime(spot, now), kHour);
    for (int i = 0; i < kHistoryRows; ++i)
      AddRow(xml, ReadingAt(spot, AddHours(newest, -i), seed), kHistoryTags);
  }
  return std::move(xml).Finish();
}

std::string HourlyXml(const std::vector<Spot>& spots, Date now, std::uint64_t seed) {
  XmlDocument xml("hourly");
  const Date first = AddHours(ModelRun(now), 1);
  for (const Spot& spot : spots) {
    for (int i = 0; i < kHourlyRows; ++i)
      AddRow(xml, ForecastAt(spot, AddHours(first, i), seed), kHourlyTags);
  }
  return std::move(xml).Finish();
}

// One stop of a trip, at an hour of the clock there. An hour that is no date, there or in GMT, has no row.
std::string SingleHourXml(const std::vector<Spot>& spots, std::string_view hour_text, std::uint64_t seed) {
  XmlDocument xml("hour");
  Date hour;
  if (!TryReadDate(hour_text, hour)) return std::move(xml).Finish();
  for (const Spot& spot : spots) {
    Date gmt;
    if (!Guarded([&] { gmt = GmtOf(spot.place, hour); })) continue;
    const Moment moment = ForecastAt(spot, gmt, seed);
    AddRow(xml, moment, kHourlyTags);
    AddRow(xml, moment, kStopTags);
  }
  return std::move(xml).Finish();
}

// The twelve hours that end at `end`: extremes and sums of the hours, worded by the wettest of them, or by
// the middle when all are dry.
void AddPeriod(XmlDocument& xml, const Spot& spot, Date end, std::uint64_t seed) {
  std::vector<Moment> hours;
  for (std::int64_t i = kPeriodHours - 1; i >= 0; --i)
    hours.push_back(ForecastAt(spot, AddHours(end, -i), seed));
  const auto temperature = [](const Moment& m) { return m.weather.temperature; };
  const auto water = [](const Moment& m) { return m.weather.rain + m.weather.snow / 10; };
  const Moment& wettest = *std::ranges::max_element(hours, {}, water);
  const Moment& teller = water(wettest) > 0 ? wettest : hours[kPeriodHours / 2];
  double rain = 0, snow = 0;
  for (const Moment& hour : hours) {
    rain += hour.weather.rain;
    snow += hour.weather.snow;
  }
  xml.Add("Ut", Stamp(end));
  AddRow(xml, teller, kSkyTags);
  xml.Add("Th", Whole(temperature(*std::ranges::max_element(hours, {}, temperature))));
  xml.Add("Tl", Whole(temperature(*std::ranges::min_element(hours, {}, temperature))));
  xml.Add("Rn", Amount(rain, 2));
  xml.Add("Sn", Amount(snow, 1));
  AddRow(xml, teller, kWindTags);
}

// Goes on where the hourly forecast ends, so that both together reach over twelve whole days.
std::string ExtendedXml(const std::vector<Spot>& spots, Date now, std::uint64_t seed) {
  XmlDocument xml("extended");
  const Date first = AddHours(FloorTo(ModelRun(now), kPeriodHours * kHour), kHourlyPeriods * kPeriodHours);
  for (const Spot& spot : spots) {
    for (int i = 0; i < kExtendedRows; ++i) AddPeriod(xml, spot, AddHours(first, i * kPeriodHours), seed);
  }
  return std::move(xml).Finish();
}

// The places asked for, in their order; unknown ones are left out.
std::vector<Spot> SpotsOf(const Query& query) {
  std::vector<Spot> spots;
  if (query.Has("lat") && query.Has("long")) {
    const Point point{std::clamp(LenientNumber(query.First("lat")), -90.0, 90.0),
                      std::clamp(LenientNumber(query.First("long")), -180.0, 180.0)};
    return {{point, NearestPlace(point)}};
  }
  for (const std::string_view postal_code : query.All("pc")) {
    const std::optional<Place> place = FindPlace(postal_code);
    if (place) spots.push_back({place->point, *place});
  }
  return spots;
}

}  // namespace

std::optional<std::string> ForecastXml(const Query& query, Date now, std::uint64_t seed) {
  const std::vector<Spot> spots = SpotsOf(query);
  const std::string_view kind = query.First("d");
  if (kind == "meta") return MetaXml(spots, now);
  if (kind == "current") return CurrentXml(spots, now, seed);
  if (kind == "currenthistorical") return HistoryXml(spots, now, seed);
  if (!kind.empty()) return {};
  if (query.First("fcsttype") == "extended") return ExtendedXml(spots, now, seed);
  if (!query.Has("st") || !query.Has("et")) return {};
  if (query.First("st") == query.First("et")) return SingleHourXml(spots, query.First("st"), seed);
  return HourlyXml(spots, now, seed);
}

}  // namespace skyloft::feed
