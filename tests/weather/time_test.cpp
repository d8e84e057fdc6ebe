#include "weather/time.h"

#include "settings/location_profiles.h"
#include "station.h"

namespace skyloft {
namespace {

class Times : public Station {};

TEST_F(Times, TheComputersTimeIsShiftedByItsStandardBiasAndOneHourOfDaylightTime) {
  const struct {
    int bias, code;
    const char *local, *gmt;
    int dst;
  } cases[] = {
      {300, 1, "3/7/2003 2:05:09 PM", "3/7/2003 7:05:09 PM", 0},
      {300, 2, "7/7/2003 2:05:09 PM", "7/7/2003 6:05:09 PM", 1},   // four hours, not five
      {300, 0, "3/7/2003 2:05:09 PM", "3/7/2003 7:05:09 PM", -1},  // unknown counts as standard time
      {210, 1, "3/7/2003 2:05:09 PM", "3/7/2003 6:05:09 PM", 0},   // three and a half hours are four
      {-210, 1, "3/7/2003 2:05:09 PM", "3/7/2003 10:05:09 AM", 0},
      {-60, 2, "7/7/2003 12:30:00 AM", "7/6/2003 10:30:00 PM", 1},
      {0, 1, "12/31/2003 11:00:00 PM", "12/31/2003 11:00:00 PM", 0},
      {480, 1, "12/31/2003 4:00:00 PM", "1/1/2004", 0},  // midnight tells no time
  };
  for (const auto& c : cases) {
    Doubles.zone = {c.bias, c.code};
    int dst = 7;
    EXPECT_EQ(GetGMT(c.local, dst), c.gmt) << c.bias;
    EXPECT_EQ(dst, c.dst) << c.bias;
    dst = 7;
    EXPECT_EQ(GMTtoLT(c.gmt, dst), c.local) << c.bias;
    EXPECT_EQ(dst, c.dst) << c.bias;
  }
}

TEST_F(Times, WhatIsNoDateRaises) {
  int dst = 0;
  for (const char* text : {"", "soon", "24:00", "2/30/2003"}) {
    EXPECT_THROW(GetGMT(text, dst), RuntimeError) << text;
    EXPECT_THROW(GMTtoLT(text, dst), RuntimeError) << text;
    EXPECT_THROW(GetWeekDayPeriod(text), RuntimeError) << text;
    EXPECT_THROW(GetWeekDayNightPeriod(text), RuntimeError) << text;
  }
}

TEST_F(Times, AZoneHasACodeByItsOffsetAndEveryOtherOffsetIsPacific) {
  const struct {
    double offset, dst;
    const char* code;
  } cases[] = {
      {-4, 1, "EDT"}, {-5, 1, "CDT"},  {-6, 1, "MDT"}, {-7, 1, "PDT"},   {-8, 1, "PDT"},  {3, 1, "PDT"},
      {-5, 0, "EST"}, {-6, 0, "CST"},  {-7, 0, "MST"}, {-8, 0, "PST"},   {3, 0, "PST"},   {-4, 0, "PST"},
      {-5, 2, "EST"}, {-6, -1, "CST"}, {0, 0, "PST"},  {-3.5, 1, "PDT"}, {-10, 0, "PST"},
  };
  for (const auto& c : cases) EXPECT_EQ(GetTimeZone(c.offset, c.dst), c.code) << c.offset << " " << c.dst;
}

TEST_F(Times, DaysAreNamedFromSundayAndAnyOtherNumberLeavesTheName) {
  const std::pair<const char*, const char*> names[] = {
      {"Sun", "Sunday"},   {"Mon", "Monday"}, {"Tue", "Tuesday"},  {"Wed", "Wednesday"},
      {"Thu", "Thursday"}, {"Fri", "Friday"}, {"Sat", "Saturday"},
  };
  for (int day = 1; day <= 7; ++day) {
    std::string name;
    GetWeekday(day, name);
    EXPECT_EQ(name, names[day - 1].first);
    GetWeekdayFull(day, name);
    EXPECT_EQ(name, names[day - 1].second);
  }
  for (const int day : {-1, 0, 8}) {
    std::string name = "old";
    GetWeekday(day, name);
    GetWeekdayFull(day, name);
    EXPECT_EQ(name, "old") << day;
  }
}

// 9 March 2003 was a Sunday.
TEST_F(Times, TheNightReachesToThreeInTheMorningAndFourAndFiveAreTheirOwnDaysNight) {
  const std::pair<const char*, const char*> cases[] = {
      {"3/9/2003", "Saturday Night"},
      {"3/9/2003 2:00:00 AM", "Saturday Night"},
      {"3/9/2003 3:59:59 AM", "Saturday Night"},
      {"3/9/2003 4:00:00 AM", "Sunday Night"},
      {"3/9/2003 5:00:00 AM", "Sunday Night"},
      {"3/9/2003 6:00:00 AM", "Sunday"},
      {"3/9/2003 5:59:59 PM", "Sunday"},
      {"3/9/2003 6:00:00 PM", "Sunday Night"},
      {"3/11/2003 4:00:00 AM", "Tuesday Night"},
      {"Mar  9 2003  2:00AM", "Saturday Night"},
  };
  for (const auto& [time, name] : cases) EXPECT_EQ(GetWeekDayNightPeriod(time), name) << time;
}

TEST_F(Times, ThePlainDayNameHasNoNightAndNoShift) {
  const std::pair<const char*, const char*> cases[] = {
      {"3/9/2003", "Sunday"},
      {"3/9/2003 2:00:00 AM", "Sunday"},
      {"3/8/2003 11:00:00 PM", "Saturday"},
  };
  for (const auto& [time, name] : cases) EXPECT_EQ(GetWeekDayPeriod(time), name) << time;
}

TEST_F(Times, AStampOfYesterdayFallsIntoTheMonthBeforeAndAnyOtherIntoThisOne) {
  const struct {
    const char* reference;
    int day, hour, minute;
    const char* expected;
  } cases[] = {
      {"1/1/2003 1:00:00 AM", 31, 23, 30, "12/31/2002 11:30:00 PM"},
      {"1/1/2003 1:00:00 AM", 20, 5, 0, "1/20/2003 5:00:00 AM"},
      {"3/1/2004 12:10:00 AM", 29, 22, 0, "2/29/2004 10:00:00 PM"},
      {"3/1/2003 12:10:00 AM", 29, 22, 0, "3/29/2003 10:00:00 PM"},
      {"3/7/2003 2:00:00 PM", 7, 18, 45, "3/7/2003 6:45:00 PM"},
      {"3/7/2003 2:00:00 PM", 6, 18, 45, "3/6/2003 6:45:00 PM"},
      {"3/7/2003 2:00:00 PM", 8, 0, 0, "3/8/2003"},
      {"2/7/2003 2:00:00 PM", 31, 9, 5, "2003/2/31 9:5:00"},  // no such day: the text as it is
  };
  for (const auto& c : cases) {
    EXPECT_EQ(GetExpirationGMT(c.reference, c.day, c.hour, c.minute), c.expected) << c.reference << c.day;
  }
}

TEST_F(Times, ALocationsTimeIsTheComputersMovedByItsOffset) {
  const struct {
    int bias, code;
    const char *zone, *dst;
    const char *time, *letters;
  } cases[] = {
      {360, 1, "-6", "0", "3/7/2003 2:05:09 PM", "CST"},
      {360, 1, "-5", "0", "3/7/2003 3:05:09 PM", "EST"},
      {360, 1, "-8", "0", "3/7/2003 12:05:09 PM", "PST"},
      {360, 2, "-6", "1", "3/7/2003 2:05:09 PM", "CDT"},
      {360, 2, "-7", "0", "3/7/2003 12:05:09 PM", "MST"},  // a place that keeps standard time
      {-60, 1, "-10", "0", "3/7/2003 3:05:09 AM", "PST"},
      {360, 1, "", "", "3/7/2003 8:05:09 PM", "PST"},  // no digits are 0
  };
  SetUpLocations(1);
  for (const auto& c : cases) {
    Doubles.zone = {c.bias, c.code};
    LocationProfile[ProfileRow::TimeZone][0] = c.zone;
    LocationProfile[ProfileRow::Dst][0] = c.dst;
    EXPECT_EQ(DateText(LocationTime(0)), c.time) << c.zone;
    EXPECT_EQ(LocationZone(0), c.letters) << c.zone;
  }
}

}  // namespace
}  // namespace skyloft
