#include "feedserver/storms.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "base/values.h"
#include "feedserver/weather.h"

namespace skyloft::feed {
namespace {

constexpr std::int64_t kStep = 15 * 60;          // seconds; weather is looked at that often
constexpr std::int64_t kLongest = 24 * 3600;     // of one stretch of weather
constexpr int kWatchHours = 4, kFloodHours = 6;  // how far ahead a watch looks

// A place under a field of weather.
struct Sky {
  const Place& place;
  std::uint64_t seed;

  Weather At(Date gmt) const { return WeatherAt(place.point, gmt, seed); }
};

bool IsTornado(const Weather& weather) { return weather.thunder > 0.9 && weather.wind_speed > 18; }
bool IsSevere(const Weather& weather) { return weather.thunder > 0.7; }

bool TornadoNow(const Sky& sky, Date gmt) { return IsTornado(sky.At(gmt)); }
bool SevereNow(const Sky& sky, Date gmt) { return IsSevere(sky.At(gmt)); }
bool FloodNow(const Sky& sky, Date gmt) { return sky.At(gmt).rain > 0.45; }

bool Ahead(const Sky& sky, Date gmt, bool (*is_bad)(const Weather&)) {
  for (int hour = 1; hour <= kWatchHours; ++hour) {
    if (is_bad(sky.At(DateAdd(DateUnit::Hours, hour, gmt)))) return true;
  }
  return false;
}
bool TornadoAhead(const Sky& sky, Date gmt) { return Ahead(sky, gmt, IsTornado); }
bool SevereAhead(const Sky& sky, Date gmt) { return Ahead(sky, gmt, IsSevere); }
bool FloodAhead(const Sky& sky, Date gmt) {
  double inches = 0;
  for (int hour = 0; hour < kFloodHours; ++hour) inches += sky.At(DateAdd(DateUnit::Hours, hour, gmt)).rain;
  return inches > 1.0;
}

struct Kind {
  const char* type;
  const char* name;
  int minutes;  // that one bulletin is in force
  bool (*holds)(const Sky& sky, Date gmt);
  const char* advice;
};
constexpr std::array<Kind, 6> kKinds = {{
    {"TOR", "TORNADO WARNING", 45, TornadoNow,
     "A STORM THAT CAN BRING A TORNADO IS OVER THE AREA. TAKE COVER NOW IN A BASEMENT OR AN INNER ROOM."},
    {"SVR", "SEVERE THUNDERSTORM WARNING", 45, SevereNow,
     "LARGE HAIL AND DAMAGING WINDS ARE POSSIBLE. STAY INDOORS AND AWAY FROM WINDOWS."},
    {"FFW", "FLASH FLOOD WARNING", 120, FloodNow,
     "HEAVY RAIN IS FALLING. STAY AWAY FROM CREEKS AND DO NOT DRIVE INTO WATER."},
    {"WTO", "TORNADO WATCH", 240, TornadoAhead, "TORNADOES ARE POSSIBLE. WATCH THE SKY."},
    {"WSV", "SEVERE THUNDERSTORM WATCH", 240, SevereAhead,
     "SEVERE THUNDERSTORMS ARE POSSIBLE. WATCH THE SKY."},
    {"FFA", "FLASH FLOOD WATCH", 360, FloodAhead, "HEAVY RAIN IS EXPECTED. WATCH THE CREEKS."},
}};

// The step of the weather's present stretch at which it began: none holds in the length of a bulletin before
// it. A stretch is looked back over for a day at most. Nothing when there is no such weather.
std::optional<std::int64_t> BeginOf(const Kind& kind, const Sky& sky, std::int64_t latest,
                                    std::int64_t length) {
  std::optional<std::int64_t> begin;
  for (std::int64_t step = latest; step > (begin ? *begin : latest) - length && step > latest - kLongest;
       step -= kStep) {
    if (kind.holds(sky, Date{step})) begin = step;
  }
  return begin;
}

// The start of the bulletin that is in force. From the begin of a stretch on, each bulletin stands for its
// time, and the next begins where the weather then holds.
std::optional<Date> IssueOf(const Kind& kind, const Sky& sky, Date now) {
  const std::int64_t length = kind.minutes * 60;
  const std::int64_t latest = now.seconds / kStep * kStep;
  std::optional<std::int64_t> issued = BeginOf(kind, sky, latest, length);
  while (issued && *issued + length <= latest) {
    std::int64_t next = *issued + length;
    while (next <= latest && !kind.holds(sky, Date{next})) next += kStep;
    issued = next <= latest ? std::optional(next) : std::nullopt;
  }
  return issued ? std::optional(Date{*issued}) : std::nullopt;
}

// Where a wind blows to, in a word.
const char* CourseOf(double wind_from) {
  static constexpr const char* courses[] = {"SOUTH", "SOUTHWEST", "WEST", "NORTHWEST",
                                            "NORTH", "NORTHEAST", "EAST", "SOUTHEAST"};
  return courses[static_cast<int>(std::floor(wind_from / 45 + 0.5)) % 8];
}

std::string TextOf(const Kind& kind, const Sky& sky, Date issued, Date expires) {
  const Place& place = sky.place;
  const auto local = [&](Date gmt) { return Format(LocalTime(place, gmt), "h:nn AM/PM dddd"); };
  const Weather weather = sky.At(issued);
  return "SIMULATED. THE NATIONAL WEATHER SERVICE HAS ISSUED A " + std::string(kind.name) + " FOR " +
         UpperCase(place.county) + " COUNTY IN " + UpperCase(place.state_name) + " UNTIL " +
         UpperCase(local(expires)) + ". AT " + UpperCase(local(issued)) + " THE WEATHER NEAR " +
         UpperCase(place.city) + " WAS MOVING " + CourseOf(weather.wind_from) + " AT " +
         NumberText(std::max(5.0, std::round(weather.wind_speed / 5) * 5)) + " MPH. " + kind.advice;
}

}  // namespace

std::vector<Bulletin> StormBulletins(const Place& place, Date now, std::uint64_t seed) {
  const Sky sky{place, seed};
  std::vector<Bulletin> bulletins;
  for (const Kind& kind : kKinds) {
    const std::optional<Date> issued = IssueOf(kind, sky, now);
    if (!issued) continue;
    const Date expires = DateAdd(DateUnit::Minutes, kind.minutes, *issued);
    bulletins.push_back(
        {{std::string(place.postal_code)}, kind.type, *issued, expires, TextOf(kind, sky, *issued, expires)});
  }
  return bulletins;
}

}  // namespace skyloft::feed
