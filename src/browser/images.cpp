#include "browser/images.h"

#include <cstdlib>

#include "base/dates.h"
#include "base/guard.h"
#include "platform/clock.h"
#include "settings/settings.h"
#include "weather/almanac.h"
#include "weather/time.h"

namespace skyloft {
namespace {

constexpr std::int64_t kTwilightMinutes = 40;

bool IsNight(Date now, Date sunrise, Date sunset) {
  const auto since = [&](DateUnit unit, Date event) { return DateDiff(unit, event, now); };
  if (std::abs(since(DateUnit::Minutes, sunrise)) <= kTwilightMinutes) return false;
  if (std::abs(since(DateUnit::Minutes, sunset)) <= kTwilightMinutes) return false;
  const std::int64_t rise_hours = since(DateUnit::Hours, sunrise);
  const std::int64_t set_hours = since(DateUnit::Hours, sunset);
  return (std::abs(rise_hours) > std::abs(set_hours) && set_hours > 0) ||
         (std::abs(rise_hours) < std::abs(set_hours) && rise_hours < 0);
}

}  // namespace

void ImageFetch() {}

void ThumbnailDisplay(const std::string&, const std::string&) {}

void Background(std::string& hourly, std::string& daily) {
  Guarded([&] {
    const int location = SelectedLocation();
    const std::string today = " " + Format(Now(), "mm/dd/yyyy");
    const bool night = IsNight(LocationTime(location), ReadDate(Almanac.Sunrise[location] + today),
                               ReadDate(Almanac.Sunset[location] + today));
    const std::string folder = Settings.InstallPath + "\\backgrounds\\";
    hourly = folder + (night ? "hourlyn.jpg" : "hourlya.jpg");
    daily = folder + (night ? "dailyn.jpg" : "dailya.jpg");
  });
}

}  // namespace skyloft
