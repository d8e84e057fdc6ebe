#include "feedserver/places.h"

#include <gtest/gtest.h>

#include <set>

namespace skyloft::feed {
namespace {

constexpr const char* kPostalCodes[] = {"66044", "33131", "80202", "98101", "04101", "85003",
                                        "99501", "96813", "00901", "60601", "10001", "90012"};

TEST(Places, AreFoundByPostalCode) {
  const Place* const place = FindPlace("66044");
  ASSERT_TRUE(place);
  EXPECT_EQ(place->city, "Lawrence");
  EXPECT_EQ(place->county, "Douglas");
  EXPECT_EQ(place->office, "TOP");
  EXPECT_EQ(place->radar.code, "KTWX");
  EXPECT_FALSE(FindPlace("99999"));
  EXPECT_FALSE(FindPlace(""));
}

TEST(Places, AreFoundByNameWithoutCaseAndOuterBlanks) {
  ASSERT_TRUE(FindPlace("  pORTLAND ", " me"));
  EXPECT_EQ(FindPlace("  pORTLAND ", " me")->postal_code, "04101");
  EXPECT_FALSE(FindPlace("Portland", "OR"));
  EXPECT_FALSE(FindPlace("Portland", ""));
}

TEST(Places, NearestIsByDistanceOnTheSphere) {
  EXPECT_EQ(NearestPlace({39.1, -94.6}).city, "Lawrence");
  EXPECT_EQ(NearestPlace({15, 170}).city, "Honolulu");  // over the date line
  EXPECT_EQ(NearestPlace({90, 0}).city, "Anchorage");
}

TEST(Places, EveryPlaceIsTheNearestToItself) {
  for (const char* postal_code : kPostalCodes) {
    const Place* const place = FindPlace(postal_code);
    ASSERT_TRUE(place) << postal_code;
    EXPECT_EQ(&NearestPlace(place->point), place);
    EXPECT_EQ(FindPlace(place->city, place->state), place);
    // The radar is within its range of 143 miles, about two degrees; Anchorage lies far north.
    EXPECT_NEAR(place->point.latitude, place->radar.point.latitude, 1.5) << postal_code;
    EXPECT_NEAR(place->point.longitude, place->radar.point.longitude, 1.6) << postal_code;
    // A zone is 15 degrees wide, and none of these towns is more than one off.
    EXPECT_NEAR(place->point.longitude / 15, place->gmt_offset, 1.2) << postal_code;
  }
}

TEST(Places, EachIsObservedAtAMinuteOfItsOwn) {
  std::set<int> minutes;
  for (const char* postal_code : kPostalCodes) {
    const int minute = FindPlace(postal_code)->minute;
    EXPECT_GE(minute, 0);
    EXPECT_LT(minute, 20);
    EXPECT_TRUE(minutes.insert(minute).second) << postal_code;
  }
}

TEST(Places, DaylightTimeRunsFromMarchToNovember) {
  const struct {
    const char *postal_code, *gmt;
    bool is_daylight;
  } cases[] = {
      {"66044", "2008-03-09 07:59:59", false},  // 1:59:59 AM standard time
      {"66044", "2008-03-09 08:00:00", true},
      {"66044", "2008-11-02 06:59:59", true},  // 1:59:59 AM daylight time
      {"66044", "2008-11-02 07:00:00", false},
      {"66044", "2008-07-01 00:00:00", true},
      {"66044", "2009-01-01 00:00:00", false},
      {"66044", "2009-03-08 08:00:00", true},  // the 8th is the earliest
      {"66044", "2010-03-14 07:59:59", false},
      {"66044", "2010-03-14 08:00:00", true},  // the 14th the latest
      {"66044", "2009-11-01 07:00:00", false},
      {"66044", "2010-11-07 06:59:59", true},
      {"99501", "2008-03-09 10:59:59", false},
      {"99501", "2008-03-09 11:00:00", true},
      {"33131", "2008-03-09 07:00:00", true},
      {"85003", "2008-07-01 00:00:00", false},
      {"96813", "2008-07-01 00:00:00", false},
      {"00901", "2008-07-01 00:00:00", false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(IsDaylightTime(*FindPlace(c.postal_code), ReadDate(c.gmt)), c.is_daylight)
        << c.postal_code << ' ' << c.gmt;
  }
}

TEST(Places, AnHourOfAPlacesClockIsFoundAgain) {
  const Date moments[] = {MakeDate(2008, 1, 1, 3), MakeDate(2008, 7, 1, 3), MakeDate(2008, 3, 9, 7),
                          MakeDate(2008, 3, 9, 8), MakeDate(2008, 11, 2, 6)};
  for (const char* zip : {"66044", "33131", "80202", "98101", "96813"}) {
    for (const Date gmt : moments) {
      const Place& place = *FindPlace(zip);
      EXPECT_EQ(LocalTime(place, GmtOf(place, LocalTime(place, gmt))), LocalTime(place, gmt)) << zip;
    }
  }
  // At 1:00 the clocks of Lawrence go round twice; the first time is meant.
  EXPECT_EQ(GmtOf(*FindPlace("66044"), MakeDate(2008, 11, 2, 1)), MakeDate(2008, 11, 2, 6));
  EXPECT_EQ(GmtOf(*FindPlace("66044"), MakeDate(2008, 7, 1, 10)), MakeDate(2008, 7, 1, 15));
}

TEST(Places, LocalTimeFollowsTheZone) {
  const Date winter = MakeDate(2008, 1, 1, 3, 30, 0), summer = MakeDate(2008, 7, 1, 3, 30, 0);
  EXPECT_EQ(LocalTime(*FindPlace("66044"), winter), MakeDate(2007, 12, 31, 21, 30, 0));
  EXPECT_EQ(LocalTime(*FindPlace("66044"), summer), MakeDate(2008, 6, 30, 22, 30, 0));
  EXPECT_EQ(LocalTime(*FindPlace("96813"), summer), MakeDate(2008, 6, 30, 17, 30, 0));
  EXPECT_EQ(LocalTime(*FindPlace("00901"), summer), MakeDate(2008, 6, 30, 23, 30, 0));
}

}  // namespace
}  // namespace skyloft::feed
