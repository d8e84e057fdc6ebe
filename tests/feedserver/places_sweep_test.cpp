// All places, and what must hold for each of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "feedserver/place_table.h"
#include "feedserver/places.h"
#include "feedserver/sphere.h"

namespace skyloft::feed {
namespace {

bool IsOverseas(std::string_view state) {
  return std::string_view(" AK HI PR VI AS GU MP ").find(' ' + std::string(state) + ' ') !=
         std::string_view::npos;
}

double Kilometres(Point a, Point b) {
  return std::acos(std::min(1.0, Nearness(DirectionOf(a), DirectionOf(b)))) * 6371;
}

template <class Check>
void ForEachPlace(Check check) {
  for (std::size_t i = 0; i < PlaceCount(); ++i) {
    const Place place = PlaceAt(i);
    SCOPED_TRACE(std::string(place.postal_code) + ' ' + std::string(place.city));
    check(place);
    if (testing::Test::HasFailure()) return;
  }
}

TEST(AllPlaces, AreAboutFortyOneThousand) {
  EXPECT_GT(PlaceCount(), 40500u);
  EXPECT_LT(PlaceCount(), 42000u);
}

TEST(AllPlaces, HaveEveryField) {
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  ForEachPlace([&](const Place& place) {
    EXPECT_EQ(place.postal_code.size(), 5u);
    EXPECT_TRUE(std::ranges::all_of(place.postal_code, is_digit));
    EXPECT_EQ(place.area_code.size(), 3u);
    EXPECT_TRUE(std::ranges::all_of(place.area_code, is_digit));
    EXPECT_GE(place.area_code, "201");  // the numbering plan's first
    EXPECT_FALSE(place.city.empty());
    EXPECT_FALSE(place.county.empty());
    EXPECT_FALSE(place.county.ends_with(" County"));
    EXPECT_EQ(place.state.size(), 2u);
    EXPECT_GE(place.state_name.size(), 4u);
    EXPECT_EQ(place.office.size(), 3u);
    EXPECT_EQ(place.radar->code.size(), 4u);
    EXPECT_GT(StationOf(place).size(), place.city.size() / 2);
    EXPECT_TRUE(place.minute >= 0 && place.minute < 20);
    for (const std::string_view text : {place.city, place.county, place.state_name})
      EXPECT_TRUE(std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; })) << text;
  });
}

TEST(AllPlaces, LieInTheCountry) {
  const struct {
    std::string_view state;
    double south, north, west, east;
  } overseas[] = {
      {"AK", 51, 71.5, -180, -129},     {"HI", 18.8, 22.3, -160.5, -154.7}, {"PR", 17.8, 18.6, -67.5, -65.2},
      {"VI", 17.6, 18.5, -65.2, -64.5}, {"AS", -14.6, -11, -171.2, -168},   {"GU", 13.2, 13.7, 144.6, 145},
      {"MP", 14, 20.6, 144.8, 146.1},
  };
  ForEachPlace([&](const Place& place) {
    const auto [latitude, longitude] = place.point;
    const auto* const box = std::ranges::find(overseas, place.state, [](const auto& b) { return b.state; });
    ASSERT_EQ(box != std::end(overseas), IsOverseas(place.state));
    if (box == std::end(overseas)) {
      EXPECT_TRUE(latitude > 24.4 && latitude < 49.5 && longitude > -124.8 && longitude < -66.9);
    } else {
      EXPECT_TRUE(latitude > box->south && latitude < box->north && longitude > box->west &&
                  longitude < box->east);
    }
  });
}

TEST(AllPlaces, HaveTheTimeOfTheirLongitude) {
  ForEachPlace([](const Place& place) {
    const bool is_beyond_the_date_line = place.state == "GU" || place.state == "MP";
    EXPECT_GE(place.gmt_offset, is_beyond_the_date_line ? 10 : -11);
    EXPECT_LE(place.gmt_offset, is_beyond_the_date_line ? 10 : -4);
    // A zone is 15 degrees wide; the west of Alaska keeps the time of its east, two zones away.
    EXPECT_NEAR(place.point.longitude / 15, place.gmt_offset, place.state == "AK" ? 2.6 : 1.3);
  });
}

TEST(AllPlaces, OfArizonaAndTheIslandsKeepStandardTime) {
  std::map<std::string_view, int> changing, keeping;
  ForEachPlace([&](const Place& place) { ++(place.has_daylight_time ? changing : keeping)[place.state]; });
  for (const char* state : {"HI", "PR", "VI", "AS", "GU", "MP"})
    EXPECT_FALSE(changing.contains(state)) << state;
  EXPECT_LT(changing["AZ"], 30);  // of the Navajo Nation
  EXPECT_GT(keeping["AZ"], 480);
  for (const char* state : {"HI", "PR", "VI", "AS", "GU", "MP", "AZ"}) keeping.erase(state);
  for (const auto& [state, count] : keeping)
    ADD_FAILURE() << count << " of " << state << " keep standard time";
}

TEST(AllPlaces, OfTheLower48HaveARadarWithin500Kilometres) {
  ForEachPlace([](const Place& place) {
    EXPECT_TRUE(IsOverseas(place.state) || Kilometres(place.point, place.radar->point) < 500);
  });
}

// The first digits of postal codes, as the country's post has dealt them out.
TEST(AllPlaces, HavePostalCodesOfTheirStates) {
  constexpr std::string_view kStates[] = {"CT MA ME NH NJ PR RI VT VI",
                                          "DE NY PA",
                                          "DC MD NC SC VA WV",
                                          "AL FL GA MS TN",
                                          "IN KY MI OH",
                                          "IA MN MT ND SD WI",
                                          "IL KS MO NE",
                                          "AR LA OK TX",
                                          "AZ CO ID NM NV UT WY",
                                          "AK AS CA GU HI MP OR WA"};
  int elsewhere = 0;  // El Paso with 76 of 885, some of the government, Fishers Island
  ForEachPlace([&](const Place& place) {
    const auto digit = static_cast<std::size_t>(place.postal_code[0] - '0');
    elsewhere += kStates[digit].find(place.state) == std::string_view::npos;
  });
  EXPECT_LT(elsewhere, 90);
}

TEST(AllPlaces, AreFoundByPostalCodeAndByName) {
  std::map<std::pair<std::string_view, std::string_view>, std::string_view> lowest;
  ForEachPlace([&](const Place& place) {
    lowest.emplace(std::pair(place.city, place.state), place.postal_code);
    ASSERT_TRUE(FindPlace(place.postal_code));
    EXPECT_EQ(FindPlace(place.postal_code)->city, place.city);
    const auto found = FindPlace(place.city, place.state);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->state, place.state);
    // Lower still where the town is written in two ways.
    const std::string_view own = lowest[std::pair(place.city, place.state)];
    EXPECT_TRUE(found->postal_code == own || (found->postal_code < own && found->city != place.city));
  });
}

TEST(AllPlaces, AreTheNearestToThemselves) {
  ForEachPlace([](const Place& place) {
    const Place nearest = NearestPlace(place.point);
    EXPECT_EQ(nearest.point.latitude, place.point.latitude);
    EXPECT_EQ(nearest.point.longitude, place.point.longitude);
    EXPECT_LE(nearest.postal_code, place.postal_code);
  });
}

}  // namespace
}  // namespace skyloft::feed
