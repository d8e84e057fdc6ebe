#include "feedserver/place_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "feedserver/places.h"

namespace skyloft::feed {
namespace {

TEST(PlaceSearch, TownsAreFoldedToOneForm) {
  const struct {
    const char *name, *folded;
  } cases[] = {
      {"Saint Louis", "SAINT LOUIS"},
      {"St. Louis", "SAINT LOUIS"},
      {"st louis", "SAINT LOUIS"},
      {"St.Louis", "SAINT LOUIS"},
      {" \tFt. Worth ", "FORT WORTH"},
      {"Fort Worth", "FORT WORTH"},
      {"MT VERNON", "MOUNT VERNON"},
      {"East St. Louis", "EAST SAINT LOUIS"},
      {"Stillwater", "STILLWATER"},
      {"Mtn Home", "MTN HOME"},
      {"New  York", "NEW YORK"},
      {"O'Fallon", "O'FALLON"},
      {"Winston-Salem", "WINSTON-SALEM"},
      {". ", ""},
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(FoldedTown(c.name), c.folded) << c.name;
}

// The lowest postal codes of towns as their post offices tell them.
TEST(PlaceSearch, TownIsFoundByTheLowestPostalCodeHoweverItIsWritten) {
  const struct {
    const char *city, *state, *postal_code;
  } cases[] = {
      {"Lawrence", "KS", "66044"},     {"  pORTLAND ", " me", "04101"}, {"Portland", "OR", "97201"},
      {"St. Louis", "MO", "63101"},    {"saint louis", "mo", "63101"},  {"ST LOUIS", "MO", "63101"},
      {"Ft. Worth", "TX", "76101"},    {"Fort Worth", "TX", "76101"},   {"Mt. Vernon", "NY", "10550"},
      {"Mount Vernon", "NY", "10550"}, {"Saint Thomas", "VI", "00802"}, {"New York", "NY", "10001"},
      {"Chicago", "IL", "60601"},      {"Houston", "TX", "77001"},
  };
  for (const auto& c : cases) {
    const auto place = FindPlace(c.city, c.state);
    ASSERT_TRUE(place) << c.city;
    EXPECT_EQ(place->postal_code, c.postal_code) << c.city;
  }
}

TEST(PlaceSearch, NameNeedsItsState) {
  for (const auto& [city, state] :
       std::initializer_list<std::pair<const char*, const char*>>{{"Lawrence", ""},
                                                                  {"Lawrence", "K"},
                                                                  {"Lawrence", "HI"},
                                                                  {"Lawrence", "Kansas"},
                                                                  {"", "KS"},
                                                                  {"Nowhere", "KS"},
                                                                  {"Lawrenc", "KS"},
                                                                  {"Lawrence K", "KS"},
                                                                  {"", ""}}) {
    EXPECT_FALSE(FindPlace(city, state)) << city << ' ' << state;
  }
}

TEST(PlaceSearch, NearestIsByDistanceOnTheSphere) {
  const struct {
    Point point;
    const char* city;
  } cases[] = {
      {{38.9717, -95.2353}, "Lawrence"},
      {{25.5, -79}, "Miami Beach"},  // at sea
      {{30, -179}, "Makaweli"},      // over the date line: the island of Niihau is of it
      {{10, 150}, "Inarajan"},       // the south of Guam
      {{90, 0}, "Barrow"},
      {{-90, 0}, "Pago Pago"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(NearestPlace(c.point).city, c.city) << c.point.latitude << ' ' << c.point.longitude;
}

// The square of half the chord between them, by the haversine formula.
double HalfChordSquared(Point a, Point b) {
  const double north = std::sin((a.latitude - b.latitude) * kRadian / 2);
  const double east = std::sin((a.longitude - b.longitude) * kRadian / 2);
  return north * north + std::cos(a.latitude * kRadian) * std::cos(b.latitude * kRadian) * east * east;
}

TEST(PlaceSearch, NoPlaceIsNearerThanTheNearest) {
  std::vector<Point> points;
  for (std::size_t i = 0; i < PlaceCount(); ++i) points.push_back(PlaceAt(i).point);
  std::mt19937 random(7);
  std::uniform_real_distribution<double> latitude(-90, 90), longitude(-180, 180), north(24, 50),
      west(-126, -66);
  for (int i = 0; i < 60; ++i) {
    const Point point =
        i % 3 == 0 ? Point{latitude(random), longitude(random)} : Point{north(random), west(random)};
    const auto distance = [&](Point other) { return HalfChordSquared(point, other); };
    const double least = distance(*std::ranges::min_element(points, {}, distance));
    EXPECT_NEAR(distance(NearestPlace(point).point), least, 1e-12)
        << point.latitude << ' ' << point.longitude;
  }
}

}  // namespace
}  // namespace skyloft::feed
