#include "weather/almanac.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "feed/forecast.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/almanac_day.h"

namespace skyloft {
namespace {

TEST(Almanac, ATimeIsRoundedToItsMinuteInPlace) {
  const struct {
    double time;
    int value;
    double rounded;
  } cases[] = {
      {0, 0, 0},
      {0.5, 30, 0.5},
      {6.75, 645, 6.75},
      {17.5, 1730, 17.5},
      {6 + 59.4 / 60, 659, 6 + 59.0 / 60},
      {6 + 59.5 / 60, 700, 7},
      {23.995, 2400, 24},
      {0.008, 0, 0},
      {12 + 1.0 / 3600, 1200, 12},
  };
  for (const auto& c : cases) {
    double time = c.time;
    EXPECT_EQ(HourMinuteValue(time), c.value) << c.time;
    EXPECT_DOUBLE_EQ(time, c.rounded) << c.time;
  }
}

// A height that is read off by hours, and how often it was asked for.
struct Asked {
  std::function<double(double)> height;
  int times = 0;
  RiseSet Search() {
    return FindRiseAndSet([this](double hour) {
      ++times;
      return height(hour);
    });
  }
};

TEST(Almanac, ADayIsSearchedByTwelveWindowsOfTwoHours) {
  Asked always_up{[](double hour) { return 1 + hour * hour; }};
  const RiseSet none = always_up.Search();
  EXPECT_EQ(none.rise, 0);
  EXPECT_EQ(none.set, 0);
  EXPECT_EQ(always_up.times, 25);
}

TEST(Almanac, AWindowWithTwoCrossingsSetsBothAndEndsTheSearch) {
  Asked dip{[](double hour) { return (hour - 10.25) * (hour - 10.75); }};
  const RiseSet below = dip.Search();
  EXPECT_NEAR(below.set, 10.25, 1e-9);
  EXPECT_NEAR(below.rise, 10.75, 1e-9);
  EXPECT_EQ(dip.times, 13);  // at midnight and twice in each of six windows
  Asked hop{[](double hour) { return (hour - 10.25) * (10.75 - hour); }};
  const RiseSet above = hop.Search();
  EXPECT_NEAR(above.rise, 10.25, 1e-9);
  EXPECT_NEAR(above.set, 10.75, 1e-9);
  EXPECT_EQ(hop.times, 13);
}

TEST(Almanac, TheSearchEndsWhenBothAreFoundSoThatALaterRiseIsNotSeen) {
  Asked wave{[](double hour) { return -std::cos(hour * 3.14159265358979 / 6); }};  // up from 3 to 9, 15 to 21
  const RiseSet found = wave.Search();
  EXPECT_NEAR(found.rise, 3, 0.01);
  EXPECT_NEAR(found.set, 9, 0.01);
  EXPECT_EQ(wave.times, 11);
}

TEST(Almanac, AGrazingTouchIsNoEvent) {
  Asked touch{[](double hour) { return (hour - 11) * (hour - 11); }};
  const RiseSet none = touch.Search();
  EXPECT_EQ(none.rise, 0);
  EXPECT_EQ(none.set, 0);
}

TEST(Almanac, OneThatIsUpAtMidnightMaySetBeforeItRises) {
  Asked night{[](double hour) { return std::cos(hour * 3.14159265358979 / 12); }};  // down from 6 to 18
  const RiseSet found = night.Search();
  EXPECT_NEAR(found.set, 6, 0.01);
  EXPECT_NEAR(found.rise, 18, 0.01);
}

TEST(Almanac, AStraightLineRaises) {
  EXPECT_THROW(FindRiseAndSet([](double) { return 1.0; }), RuntimeError);
}

TEST(Almanac, TimesArePrintedInTwelveHours) {
  EXPECT_EQ(DayAt(40, -75, -5, 2003, 3, 7).sunrise.substr(4), " AM");
  EXPECT_EQ(DayAt(40, -75, -5, 2003, 3, 7).sunset.substr(4), " PM");
}

TEST(Almanac, OnTheEquatorTheSunOfMarchRisesNearSixAndSetsNearEighteen) {
  for (int year = 1990; year <= 2040; ++year) {
    const Day day = DayAt(0, 0, 0, year, 3, 20);
    EXPECT_NEAR(MinuteOf(day.sunrise), 6 * 60, 15) << year;
    EXPECT_NEAR(MinuteOf(day.sunset), 18 * 60, 15) << year;
  }
}

TEST(Almanac, ASunThatStaysUpOrDownAllDayIsBlank) {
  const struct {
    double latitude;
    int month;
  } cases[] = {{70, 6}, {70, 12}, {-70, 6}, {-70, 12}, {89, 6}, {-89, 6}};
  for (const auto& c : cases) {
    const Day day = DayAt(c.latitude, 20, 1, 2003, c.month, 21);
    EXPECT_EQ(day.sunrise, "") << c.latitude << ' ' << c.month;
    EXPECT_EQ(day.sunset, "") << c.latitude << ' ' << c.month;
  }
}

// At noon the sun stands 3.4 degrees below the horizon there, far above -12.
// At noon the sun stands 1.8 degrees under the horizon: it passes 12 degrees twice.
TEST(Almanac, TheThirdAltitudeIsSearchedForNoBody) {
  const Day day = DayAt(70, 20, 1, 2003, 12, 1);
  EXPECT_EQ(day.sunrise, "");
  EXPECT_EQ(day.sunset, "");
}

// Further west the moon sets later, up to the end of the day and out of it.
TEST(Almanac, AnEventAtTheEndOfTheDayIsTwentyFourOClockUnchanged) {
  std::vector<std::string> seen;
  for (int step = 0; step < 200; ++step) {
    const std::string text = DayAt(40, -60 - step * 0.05, -5, 2003, 3, 9).moonset;
    if (seen.empty() || seen.back() != text) seen.push_back(text);
  }
  const auto midnight = std::find(seen.begin(), seen.end(), "24:00");
  ASSERT_NE(midnight, seen.end());
  ASSERT_NE(midnight, seen.begin());
  EXPECT_EQ(*(midnight - 1), "11:59 PM");
  ASSERT_NE(midnight + 1, seen.end());
  EXPECT_EQ(*(midnight + 1), "");
}

TEST(Almanac, AZoneOneHourFurtherEastIsOneHourLaterAndNotADay) {
  const Day here = DayAt(40, -75, -5, 2003, 3, 7), there = DayAt(40, -75, -4, 2003, 3, 7);
  EXPECT_NEAR(MinuteOf(there.sunrise), MinuteOf(here.sunrise) + 60, 1);
  EXPECT_NEAR(MinuteOf(there.sunset), MinuteOf(here.sunset) + 60, 1);
  EXPECT_NEAR(MinuteOf(there.moonset), MinuteOf(here.moonset) + 60, 1);
}

TEST(Almanac, AFailureInTheNumericsLeavesClearedTextsAndIsSilent) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  const Day cleared = {"", "", "", ""};
  EXPECT_EQ(DayAt(40, -75, infinite, 2003, 3, 7), cleared);
  EXPECT_EQ(DayAt(40, infinite, -5, 2003, 3, 7), cleared);
  EXPECT_EQ(DayAt(std::nan(""), -75, -5, 2003, 3, 7), cleared);
}

class AlmanacOfLocations : public Station {
 protected:
  static void Place(int i, const std::string& latitude, const std::string& longitude, const std::string& ut,
                    const std::string& lt) {
    LocationProfile[ProfileRow::Latitude][i] = latitude;
    LocationProfile[ProfileRow::Longitude][i] = longitude;
    ForecastHour[i][0].Ut = ut;
    ForecastHour[i][0].Lt = lt;
    Almanac.Sunrise[i] = Almanac.Sunset[i] = Almanac.Moonrise[i] = Almanac.Moonset[i] = "old";
  }
  static void Lawrence(int i) { Place(i, "38.97", "-95.24", "Mar 08 2003 01:00AM", "Mar 07 2003 07:00PM"); }
  static void Tokyo(int i) { Place(i, "35.68", "139.65", "Mar 07 2003 07:00PM", "Mar 08 2003 04:00AM"); }
  static Day Of(int i) {
    return {Almanac.Sunrise[i], Almanac.Sunset[i], Almanac.Moonrise[i], Almanac.Moonset[i]};
  }
};

TEST_F(AlmanacOfLocations, EachHasItsOwnTimesByItsPlaceAndTheHoursFromGmt) {
  SetUpLocations(2);
  Lawrence(0);
  Tokyo(1);
  Lawrence(2);
  GetAlmanac();
  EXPECT_EQ(Of(0), DayAt(38.97, -95.24, -6, 2003, 3, 7));
  EXPECT_EQ(Of(1), DayAt(35.68, 139.65, 9, 2003, 3, 7));
  EXPECT_EQ(Of(2), Day());  // not in use
  EXPECT_NE(Of(0), Of(1));
}

TEST_F(AlmanacOfLocations, HaveTheDateOfTheComputerAndNotTheirOwn) {
  SetUpLocations(2);
  Lawrence(0);
  Tokyo(1);
  Doubles.now = MakeDate(2003, 7, 1, 23, 59, 59);
  GetAlmanac();
  EXPECT_EQ(Of(0), DayAt(38.97, -95.24, -6, 2003, 7, 1));
  EXPECT_EQ(Of(1), DayAt(35.68, 139.65, 9, 2003, 7, 1));
}

TEST_F(AlmanacOfLocations, AreTheSameForTheSamePlaceInJanuaryAndFebruary) {
  for (const int month : {1, 2}) {
    SetUpLocations(5);
    for (int i = 0; i < 5; ++i) Lawrence(i);
    Doubles.now = MakeDate(2003, month, 15);
    GetAlmanac();
    for (int i = 0; i < 5; ++i) EXPECT_EQ(Of(i), DayAt(38.97, -95.24, -6, 2003, month, 15)) << i;
  }
}

TEST_F(AlmanacOfLocations, LatitudeOrLongitudeThatIsNoNumberEndsTheRun) {
  for (const char* text : {"", "north", "38.97 N", "38,97"}) {
    for (const int row : {ProfileRow::Latitude, ProfileRow::Longitude}) {
      SetUpLocations(3);
      for (int i = 0; i < 3; ++i) Lawrence(i);
      LocationProfile[row][1] = text;
      GetAlmanac();
      EXPECT_NE(Of(0), Day()) << text;
      EXPECT_EQ(Of(1), Day()) << text;
      EXPECT_EQ(Of(2), Day()) << text;
    }
  }
}

TEST_F(AlmanacOfLocations, WithoutAForecastStayAsTheyAre) {
  SetUpLocations(1);
  Lawrence(0);
  ForecastHour = {};
  GetAlmanac();
  EXPECT_EQ(Of(0), Day());
}

TEST_F(AlmanacOfLocations, NoneAtAllIsNoTrouble) {
  Settings.LocationIndexMax = "";
  Lawrence(0);
  GetAlmanac();
  EXPECT_EQ(Of(0), Day());
}

}  // namespace
}  // namespace skyloft
