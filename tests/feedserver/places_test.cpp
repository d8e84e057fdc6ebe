#include "feedserver/places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <vector>

#include "sample_places.h"

namespace skyloft::feed {
namespace {

// Sources: the post office's and the Census' lists, the National Weather Service, the maps of the time zones
// and of the numbering plan.
TEST(Places, AreFoundByPostalCode) {
  const struct {
    std::string_view postal_code, city, state, county, area_code, office, radar;
    int gmt_offset;
    bool has_daylight_time;
  } cases[] = {
      {"66044", "Lawrence", "KS", "Douglas", "785", "TOP", "KTWX", -6, true},
      {"73102", "Oklahoma City", "OK", "Oklahoma", "405", "OUN", "KTLX", -6, true},
      {"70112", "New Orleans", "LA", "Orleans", "504", "LIX", "KHDC", -6, true},
      {"63101", "Saint Louis", "MO", "St. Louis City", "314", "LSX", "KLSX", -6, true},
      {"46204", "Indianapolis", "IN", "Marion", "317", "IND", "KIND", -5, true},
      {"47714", "Evansville", "IN", "Vanderburgh", "812", "PAH", "KVWX", -6, true},
      {"79901", "El Paso", "TX", "El Paso", "915", "EPZ", "KEPZ", -7, true},
      {"97914", "Ontario", "OR", "Malheur", "541", "BOI", "KCBX", -7, true},
      {"32501", "Pensacola", "FL", "Escambia", "850", "MOB", "KMOB", -6, true},
      {"59801", "Missoula", "MT", "Missoula", "406", "MSO", "KMSX", -7, true},
      {"20001", "Washington", "DC", "District of Columbia", "202", "LWX", "KLWX", -5, true},
      {"86001", "Flagstaff", "AZ", "Coconino", "928", "FGZ", "KFSX", -7, false},
      {"86004", "Flagstaff", "AZ", "Coconino", "928", "FGZ", "KFSX", -7, false},
      {"86503", "Chinle", "AZ", "Apache", "928", "FGZ", "KFSX", -7, true},  // of the Navajo Nation
      {"99546", "Adak", "AK", "Aleutians West", "907", "AFC", "PABC", -10, true},
      {"99701", "Fairbanks", "AK", "Fairbanks North Star", "907", "AFG", "PAPD", -9, true},
      {"96720", "Hilo", "HI", "Hawaii", "808", "HFO", "PHWA", -10, false},
      {"00680", "Mayaguez", "PR", "Mayaguez", "787", "SJU", "TJUA", -4, false},
      {"00802", "St Thomas", "VI", "St. Thomas", "340", "SJU", "TJUA", -4, false},
      {"96799", "Pago Pago", "AS", "Eastern", "684", "PPG", "PHWA", -11, false},
      {"96910", "Hagatna", "GU", "Guam", "671", "GUM", "PGUA", 10, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.postal_code);
    const auto place = FindPlace(c.postal_code);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->postal_code, c.postal_code);
    EXPECT_EQ(place->city, c.city);
    EXPECT_EQ(place->state, c.state);
    EXPECT_EQ(place->county, c.county);
    EXPECT_EQ(place->area_code, c.area_code);
    EXPECT_EQ(place->office, c.office);
    EXPECT_EQ(place->radar->code, c.radar);
    EXPECT_EQ(place->gmt_offset, c.gmt_offset);
    EXPECT_EQ(place->has_daylight_time, c.has_daylight_time);
  }
  EXPECT_EQ(FindPlace(" 66044\t")->city, "Lawrence");
}

TEST(Places, WhatIsNoPostalCodeIsNotFound) {
  // The third is of the military in Germany, the fourth of the Marshall Islands.
  for (const char* text :
       {"99999", "00000", "09007", "96960", "", " ", "6604", "660440", "66044-1234", "x6044", "66 044"})
    EXPECT_FALSE(FindPlace(text)) << text;
}

TEST(Places, StationBearsTheNameOfTheTownUnlessItIsKnown) {
  EXPECT_EQ(StationOf(*FindPlace("66044")), "Lawrence Municipal Airport");
  EXPECT_EQ(StationOf(*FindPlace("10001")), "Central Park");
  EXPECT_EQ(StationOf(*FindPlace("59801")), "Missoula Airport");
}

TEST(Places, RadarOfASampleTownIsWithinItsRange) {
  for (const char* postal_code : kSampleZips) {
    const auto place = FindPlace(postal_code);
    ASSERT_TRUE(place) << postal_code;
    EXPECT_EQ(FindPlace(NearestPlace(place->point).postal_code)->city, place->city);
    // 143 miles, about two degrees; Anchorage lies far north.
    EXPECT_NEAR(place->point.latitude, place->radar->point.latitude, 1.5) << postal_code;
    EXPECT_NEAR(place->point.longitude, place->radar->point.longitude, 1.6) << postal_code;
  }
}

TEST(Places, EachSampleTownIsObservedAtAMinuteOfItsOwn) {
  std::set<int> minutes;
  for (const char* postal_code : kSampleZips) {
    const int minute = FindPlace(postal_code)->minute;
    EXPECT_GE(minute, 0);
    EXPECT_LT(minute, 20);
    EXPECT_TRUE(minutes.insert(minute).second) << postal_code;
  }
}

TEST(Places, DaylightTimeFollowsTheRuleOfItsYear) {
  const struct {
    const char *postal_code, *gmt;
    bool is_daylight;
  } cases[] = {
      {"66044", "2008-03-09 07:59:59", false},  // 1:59:59 AM standard time
      {"66044", "2008-03-09 08:00:00", true},
      {"66044", "2008-11-02 06:59:59", true},  // 1:59:59 AM daylight time
      {"66044", "2008-11-02 07:00:00", false},
      {"66044", "2008-07-01 00:00:00", true},
      {"66044", "2007-03-11 08:00:00", true},  // the first year of the rule in force
      {"66044", "2006-04-02 07:59:59", false},
      {"66044", "2006-04-02 08:00:00", true},
      {"66044", "2006-10-29 06:59:59", true},
      {"66044", "2006-10-29 07:00:00", false},
      {"66044", "2003-03-09 08:00:00", false},
      {"66044", "2003-04-06 08:00:00", true},
      {"66044", "2003-10-26 06:59:59", true},
      {"66044", "2003-10-26 07:00:00", false},
      {"66044", "2004-10-31 06:59:59", true},  // the 31st is the latest
      {"66044", "2004-10-31 07:00:00", false},
      {"66044", "2001-04-01 08:00:00", true},  // the 1st is the earliest
      {"66044", "1987-04-05 07:59:59", false},
      {"66044", "1987-04-05 08:00:00", true},
      {"66044", "1987-10-25 07:00:00", false},
      {"86503", "2003-07-01 00:00:00", true},
      {"85003", "2003-07-01 00:00:00", false},
      {"96910", "2003-07-01 00:00:00", false},
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
      const Place place = *FindPlace(zip);
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

TEST(Places, TownsOverACountyReachFromItsMiddleToItsEnds) {
  std::map<std::pair<std::string, std::string>, std::vector<Place>> counties;
  for (std::size_t i = 0; i < PlaceCount(); ++i) {
    const Place place = PlaceAt(i);
    if (place.state == "KS" || place.state == "AZ" || place.state == "AK" || place.state == "PR")
      counties[{std::string(place.state), std::string(place.county)}].push_back(place);
  }
  ASSERT_GT(counties.size(), 200u);
  for (const auto& [county, places] : counties) {
    const auto towns = TownsOverCounty(places.front());
    ASSERT_GE(towns.size(), 1u) << county.second;
    ASSERT_LE(towns.size(), 5u) << county.second;
    const auto latitude = [](const Place& place) { return place.point.latitude; };
    const auto north = std::ranges::max(places, {}, latitude), south = std::ranges::min(places, {}, latitude);
    EXPECT_EQ(std::ranges::max(towns, {}, latitude).postal_code, north.postal_code) << county.second;
    EXPECT_EQ(std::ranges::min(towns, {}, latitude).postal_code, south.postal_code) << county.second;
    std::set<std::string_view> codes;
    for (const Place& town : towns) {
      EXPECT_EQ(town.state, county.first);
      EXPECT_EQ(town.county, county.second);
      EXPECT_TRUE(codes.insert(town.postal_code).second) << town.postal_code << " twice";
    }
    for (const Place& place : places) {
      const auto others = TownsOverCounty(place);
      EXPECT_TRUE(std::ranges::equal(towns, others, {}, &Place::postal_code, &Place::postal_code))
          << place.postal_code;
    }
  }
}

TEST(Places, FirstTownOverACountyLiesInItsMiddle) {
  // The mean of all places of Maricopa County, Arizona, lies in Phoenix; Douglas County, Kansas, is Lawrence
  // and three villages.
  EXPECT_EQ(TownsOverCounty(*FindPlace("85326")).front().city, "Phoenix");
  EXPECT_EQ(TownsOverCounty(*FindPlace("66006")).front().city, "Lawrence");
}

}  // namespace
}  // namespace skyloft::feed
