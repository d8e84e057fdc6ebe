#include "weather/almanac.h"

#include <array>
#include <cmath>

#include "base/dates.h"
#include "base/guard.h"
#include "base/values.h"
#include "feed/forecast.h"
#include "platform/clock.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "weather/astronomy.h"

namespace skyloft {

AlmanacTables Almanac;

namespace {

// Degrees at which moon and sun rise. The third, of nautical twilight, is searched for no body; this is
// meant.
constexpr std::array kHorizons = {8.0 / 60, -50.0 / 60, -12.0};

// Of hours times 100 plus minutes. What happens from 0:00 to 0:59 has too few digits and reads as nothing,
// and 24:00 is no time of day and stays as it is; both are meant.
std::string TimeText(int hour_minute) {
  const std::string digits = std::to_string(hour_minute);
  if (digits.size() < 3) return "";
  const std::size_t hour_digits = digits.size() - 2;
  return Format(digits.substr(0, hour_digits) + ":" + digits.substr(hour_digits), "h:mm AMPM");
}

// From GMT to the clock of a location, by its first forecast hour.
double ZoneOf(int location) {
  const ForecastHourFields& first = ForecastHour[location][0];
  return static_cast<double>(DateDiff(DateUnit::Hours, ReadDate(first.Ut), ReadDate(first.Lt)));
}

}  // namespace

int HourMinuteValue(double& time) {
  time = std::floor(time * 60 + 0.5) / 60;
  const double hours = std::floor(time);
  const double minutes = std::floor((time - hours) * 60 + 0.5);
  return static_cast<int>(100 * hours + minutes);
}

RiseSet FindRiseAndSet(const std::function<double(double hour)>& height) {
  RiseSet found;
  bool is_risen = false, is_set = false;
  Crossings crossings;
  double ym = height(0);
  for (int hour = 1; hour != 25 && !(is_risen && is_set); hour += 2) {
    const double y0 = height(hour), yp = height(hour + 1);
    QuadraticCrossings(ym, y0, yp, crossings);
    const double first = hour + crossings.z1, second = hour + crossings.z2;
    if (crossings.nz == 1) {
      (ym < 0 ? found.rise : found.set) = first;
      (ym < 0 ? is_risen : is_set) = true;
    } else if (crossings.nz == 2) {
      found =
          crossings.ye < 0 ? RiseSet{.rise = second, .set = first} : RiseSet{.rise = first, .set = second};
      is_risen = is_set = true;
    }
    ym = yp;
  }
  return found;
}

void GetRiseSetTimes(int year, int month, int day, double zone, double latitude, double lambda,
                     std::string& sunrise, std::string& sunset, std::string& moonrise, std::string& moonset) {
  for (std::string* text : {&sunrise, &sunset, &moonrise, &moonset}) text->clear();
  Guarded([&] {
    const double midnight = ModifiedJulianDay(year, month, day, 0) - zone / 24;
    const double sphi = SinDegrees(latitude), cphi = CosDegrees(latitude);
    const auto search = [&](Body body) {
      const double horizon = SinDegrees(kHorizons[static_cast<std::size_t>(body) - 1]);
      return FindRiseAndSet(
          [&](double hour) { return SineAltitude(body, midnight, hour, lambda, cphi, sphi).sine - horizon; });
    };
    RiseSet moon = search(Body::Moon), sun = search(Body::Sun);
    sunrise = TimeText(HourMinuteValue(sun.rise));
    sunset = TimeText(HourMinuteValue(sun.set));
    moonrise = TimeText(HourMinuteValue(moon.rise));
    moonset = TimeText(HourMinuteValue(moon.set));
  });
}

void GetAlmanac() {
  Guarded([] {
    const DateParts today = PartsOf(Now());
    for (int i = 0; i <= LastLocation(); ++i) {
      const double zone = ZoneOf(i);
      const double latitude = StrictNumber(LocationProfile[ProfileRow::Latitude][i]);
      const double lambda = -StrictNumber(LocationProfile[ProfileRow::Longitude][i]);
      GetRiseSetTimes(today.year, today.month, today.day, zone, latitude, lambda, Almanac.Sunrise[i],
                      Almanac.Sunset[i], Almanac.Moonrise[i], Almanac.Moonset[i]);
    }
  });
}

}  // namespace skyloft
