#include "feedserver/storms.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "base/values.h"
#include "feedserver/steps.h"
#include "feedserver/weather.h"

namespace skyloft::feed {
namespace {

constexpr std::int64_t kStep = 15 * 60;          // seconds; weather is looked at that often
constexpr std::int64_t kLongest = 30 * 86400;    // of one stretch of weather; none was seen to be as long
constexpr int kWatchHours = 4, kFloodHours = 6;  // how far ahead a watch looks

bool IsTornado(const Weather& weather) { return weather.thunder > 0.9 && weather.wind_speed > 18; }
bool IsSevere(const Weather& weather) { return weather.thunder > 0.7; }

// A town under a field of weather; what it has looked at it remembers, for six kinds look at the same hours.
class Sky {
 public:
  Sky(const Place& town, std::uint64_t seed) : town_(town), seed_(seed) {}

  const Place& Town() const { return town_; }
  const Weather& At(Date gmt) {
    const auto [found, is_new] = seen_.try_emplace(gmt);
    if (is_new) found->second = WeatherAt(town_.point, gmt, seed_);
    return found->second;
  }

 private:
  Place town_;
  std::uint64_t seed_;
  std::map<Date, Weather> seen_;
};

bool TornadoNow(Sky& sky, Date gmt) { return IsTornado(sky.At(gmt)); }
bool SevereNow(Sky& sky, Date gmt) { return IsSevere(sky.At(gmt)); }
bool FloodNow(Sky& sky, Date gmt) { return sky.At(gmt).rain > 0.45; }

bool Ahead(Sky& sky, Date gmt, bool (*is_bad)(const Weather&)) {
  for (int hour = 1; hour <= kWatchHours; ++hour) {
    if (is_bad(sky.At(DateAdd(DateUnit::Hours, hour, gmt)))) return true;
  }
  return false;
}
bool TornadoAhead(Sky& sky, Date gmt) { return Ahead(sky, gmt, IsTornado); }
bool SevereAhead(Sky& sky, Date gmt) { return Ahead(sky, gmt, IsSevere); }
bool FloodAhead(Sky& sky, Date gmt) {
  double inches = 0;
  for (int hour = 0; hour < kFloodHours; ++hour) inches += sky.At(DateAdd(DateUnit::Hours, hour, gmt)).rain;
  return inches > 1.0;
}

struct Kind {
  const char* type;
  const char* name;
  int minutes;                        // that one bulletin is in force
  bool (*holds)(Sky& sky, Date gmt);  // in one town
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

using Skies = std::vector<Sky>;  // over the towns of a county

// The first town that has the weather of a kind; null when none has.
Sky* FindUnder(const Kind& kind, Skies& skies, Date gmt) {
  const auto found = std::ranges::find_if(skies, [&](Sky& sky) { return kind.holds(sky, gmt); });
  return found == skies.end() ? nullptr : &*found;
}

// The step of the weather's present stretch at which it began: none holds in the length of a bulletin before
// it. Nothing when there is no such weather.
std::optional<std::int64_t> BeginOf(const Kind& kind, Skies& skies, std::int64_t latest,
                                    std::int64_t length) {
  std::optional<std::int64_t> begin;
  for (std::int64_t step = latest; step > (begin ? *begin : latest) - length && step > latest - kLongest;
       step -= kStep) {
    if (FindUnder(kind, skies, Date{step})) begin = step;
  }
  return begin;
}

// The start of the bulletin that is in force. From the begin of a stretch on, each bulletin stands for its
// time, and the next begins where the weather then holds.
std::optional<Date> IssueOf(const Kind& kind, Skies& skies, Date now) {
  const std::int64_t length = kind.minutes * 60;
  const std::int64_t latest = FloorTo(now, kStep).seconds;
  std::optional<std::int64_t> issued = BeginOf(kind, skies, latest, length);
  while (issued && *issued + length <= latest) {
    std::int64_t next = *issued + length;
    while (next <= latest && !FindUnder(kind, skies, Date{next})) next += kStep;
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

std::string TextOf(const Kind& kind, Sky& sky, Date issued, Date expires) {
  const Place& place = sky.Town();
  const auto local = [&](Date gmt) { return Format(LocalTime(place, gmt), "h:nn AM/PM dddd"); };
  const Weather& weather = sky.At(issued);
  return "SIMULATED. THE NATIONAL WEATHER SERVICE HAS ISSUED A " + std::string(kind.name) + " FOR " +
         UpperCase(place.county) + " COUNTY IN " + UpperCase(place.state_name) + " UNTIL " +
         UpperCase(local(expires)) + ". AT " + UpperCase(local(issued)) + " THE WEATHER NEAR " +
         UpperCase(place.city) + " WAS MOVING " + CourseOf(weather.wind_from) + " AT " +
         NumberText(std::max(5.0, std::round(weather.wind_speed / 5) * 5)) + " MPH. " + kind.advice;
}

std::string CountyOf(const Place& place) {
  return std::string(place.state) + ' ' + std::string(place.county);
}

}  // namespace

std::vector<Bulletin> StormBulletins(const Place& place, Date now, std::uint64_t seed) {
  Skies skies;
  for (const Place& town : TownsOverCounty(place)) skies.emplace_back(town, seed);
  std::vector<Bulletin> bulletins;
  for (const Kind& kind : kKinds) {
    const std::optional<Date> issued = IssueOf(kind, skies, now);
    if (!issued) continue;
    const Date expires = DateAdd(DateUnit::Minutes, kind.minutes, *issued);
    bulletins.push_back({{CountyOf(place)},
                         kind.type,
                         *issued,
                         expires,
                         TextOf(kind, *FindUnder(kind, skies, *issued), *issued, expires)});
  }
  return bulletins;
}

std::vector<Bulletin> StormBulletins(const std::vector<Place>& places, Date now, std::uint64_t seed) {
  std::vector<Bulletin> bulletins;
  std::set<std::string> counties;
  for (const Place& place : places) {
    if (counties.insert(CountyOf(place)).second)
      std::ranges::move(StormBulletins(place, now, seed), std::back_inserter(bulletins));
  }
  return bulletins;
}

}  // namespace skyloft::feed
