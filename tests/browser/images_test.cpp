#include "browser/images.h"

#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/almanac.h"

namespace skyloft {
namespace {

// The computer and the selected location, the second, are at -6; the sun is up from 6:45 to 18:20.
class BackgroundTest : public Station {
 protected:
  BackgroundTest() {
    SetUpLocations(2);
    Settings.Location = "1";
    Doubles.zone = {360, 1};
    LocationProfile[ProfileRow::TimeZone][1] = "-6";
    Almanac.Sunrise[1] = "6:45 AM";
    Almanac.Sunset[1] = "6:20 PM";
  }
  // "a", "n", or "" when nothing came.
  static std::string LightAt(int hour, int minute) {
    Doubles.now = MakeDate(2003, 3, 7, hour, minute, 30);
    std::string hourly, daily;
    Background(hourly, daily);
    if (hourly.empty()) return daily;
    const std::string folder = "C:\\program files\\skyloft\\backgrounds\\";
    const std::string light = hourly.substr(hourly.size() - 5, 1);
    EXPECT_EQ(hourly, folder + "hourly" + light + ".jpg");
    EXPECT_EQ(daily, folder + "daily" + light + ".jpg");
    return light;
  }
};

TEST_F(BackgroundTest, ItIsNightMoreThanFortyMinutesBeforeSunriseAndAfterSunset) {
  const struct {
    int hour, minute;
    const char* light;
  } cases[] = {
      {0, 0, "n"},   {5, 30, "n"},  {5, 59, "n"}, {6, 4, "a"},  // in the hour of sunrise no hour is missing
      {6, 5, "a"},   {6, 45, "a"},  {7, 25, "a"}, {7, 26, "a"}, {12, 0, "a"},  {13, 0, "a"},  {17, 0, "a"},
      {17, 40, "a"}, {18, 20, "a"}, {19, 0, "a"}, {19, 1, "n"}, {21, 15, "n"}, {23, 59, "n"},
  };
  for (const auto& c : cases) EXPECT_EQ(LightAt(c.hour, c.minute), c.light) << c.hour << ":" << c.minute;
}

TEST_F(BackgroundTest, ThePresentTimeIsTheLocationsAndTodayIsTheComputers) {
  LocationProfile[ProfileRow::TimeZone][1] = "-10";
  EXPECT_EQ(LightAt(9, 0), "n") << "5:00 there";
  EXPECT_EQ(LightAt(12, 0), "a");
  LocationProfile[ProfileRow::TimeZone][1] = "-5";
  // 23:30 here is 0:30 of the next day there, six hours after the sunset of the computer's day.
  EXPECT_EQ(LightAt(23, 30), "n");
}

TEST_F(BackgroundTest, ASunTimeThatIsEmptyReadsAsMidnight) {
  Almanac.Sunrise[1] = Almanac.Sunset[1] = "";
  EXPECT_EQ(LightAt(12, 0), "a") << "both twelve hours away";
  Almanac.Sunset[1] = "6:20 PM";
  EXPECT_EQ(LightAt(20, 0), "n");
  EXPECT_EQ(LightAt(3, 0), "a") << "the sun rose at midnight";
}

TEST_F(BackgroundTest, TimesThatCannotBeReadLeaveThePicturesAlone) {
  Almanac.Sunrise[1] = "24:00";
  Doubles.now = MakeDate(2003, 3, 7, 12, 0, 0);
  std::string hourly = "old", daily = "former";
  Background(hourly, daily);
  EXPECT_EQ(hourly + daily, "oldformer");
  Settings.Location = "";
  Almanac.Sunrise[1] = "6:45 AM";
  Background(hourly, daily);
  EXPECT_EQ(hourly + daily, "oldformer");
}

}  // namespace
}  // namespace skyloft
