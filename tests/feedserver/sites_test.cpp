#include "feedserver/sites.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace skyloft::feed {
namespace {

// The country with its islands in both oceans.
void ExpectInTheCountry(Point point, std::string_view code) {
  EXPECT_TRUE(point.latitude > -15 && point.latitude < 72) << code;
  EXPECT_TRUE((point.longitude > -180 && point.longitude < -65) ||
              (point.longitude > 144 && point.longitude < 146))
      << code;
}

template <class Sites>
void ExpectACodeEach(const Sites& sites, std::size_t letters) {
  std::set<std::string_view> codes;
  for (const auto& site : sites) {
    EXPECT_EQ(site.code.size(), letters) << site.code;
    EXPECT_TRUE(std::ranges::all_of(site.code, [](char c) { return c >= 'A' && c <= 'Z'; })) << site.code;
    EXPECT_TRUE(codes.insert(site.code).second) << site.code;
    ExpectInTheCountry(site.point, site.code);
  }
}

TEST(Sites, RadarSitesHaveFourLettersEach) {
  EXPECT_EQ(RadarSites().size(), 156u);
  ExpectACodeEach(RadarSites(), 4);
}

TEST(Sites, OfficesHaveThreeLettersEach) {
  EXPECT_EQ(Offices().size(), 123u);  // 122 and the service office of American Samoa
  ExpectACodeEach(Offices(), 3);
}

TEST(Sites, RadarSiteIsFoundByItsCodeInAnyCase) {
  ASSERT_TRUE(FindRadarSite("kTwX"));
  EXPECT_EQ(FindRadarSite("kTwX")->code, "KTWX");
  EXPECT_FALSE(FindRadarSite("KXXX"));
  EXPECT_FALSE(FindRadarSite(""));
}

TEST(Sites, NearestIsByDistanceOnTheSphere) {
  const struct {
    Point point;
    std::string_view radar, office;
  } cases[] = {
      {{38.97, -95.24}, "KTWX", "TOP"},   // Lawrence
      {{35.22, -97.44}, "KTLX", "OUN"},   // Norman
      {{44.48, -73.21}, "KCXX", "BTV"},   // Burlington
      {{64.84, -147.72}, "PAPD", "AFG"},  // Fairbanks
      {{13.47, 144.75}, "PGUA", "GUM"},   // Hagatna
      {{13.47, -179}, "PHKI", "HFO"},     // over the date line it is 3300 km to Hawaii and 3900 to Guam
      {{64, -179.9}, "PAEC", "AFG"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(NearestRadarSite(c.point).code, c.radar);
    EXPECT_EQ(NearestOffice(c.point).code, c.office);
  }
}

}  // namespace
}  // namespace skyloft::feed
