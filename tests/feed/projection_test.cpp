#include "feed/projection.h"

#include <cmath>

#include "settings/location_profiles.h"
#include "station.h"

namespace skyloft {
namespace {

class Projection : public Station {};

TEST_F(Projection, TheCentreIsTheOriginAndEastAndNorthArePositive) {
  EXPECT_NEAR(LocationToMap(-100, 50).x, 0, 1e-6);
  EXPECT_NEAR(LocationToMap(-100, 50).y, 0, 1e-6);
  EXPECT_GT(LocationToMap(-90, 50).x, 0);
  EXPECT_LT(LocationToMap(-110, 50).x, 0);
  EXPECT_GT(LocationToMap(-100, 60).y, 0);
}

// On the centre's meridian the distance from the centre is the chord: 2 R sin(c / 2).
TEST_F(Projection, OnTheMiddleMeridianTheDistanceIsTheChord) {
  for (const double degrees : {1.0, 10.0, 25.0, 40.0}) {
    const double chord = 2 * 6370997 * std::sin(degrees * 0.017453292 / 2);
    EXPECT_NEAR(LocationToMap(-100, 50 + degrees).y, chord, 0.01);
    EXPECT_NEAR(LocationToMap(-100, 50 - degrees).y, -chord, 0.01);
  }
}

// Equal areas: a cap of radius c has the area 2 pi R^2 (1 - cos c), the disc on the map pi rho^2.
TEST_F(Projection, APointLiesAsFarOutAsItsCapHasArea) {
  // 90 degrees of longitude along a great circle from the centre: the equator at 170 E lies 40 + 90 degrees
  // off.
  const MapPoint west = LocationToMap(-120, 40);
  const double cosine = std::sin(50 * 0.017453292) * std::sin(40 * 0.017453292) +
                        std::cos(50 * 0.017453292) * std::cos(40 * 0.017453292) * std::cos(20 * 0.017453292);
  EXPECT_NEAR(west.x * west.x + west.y * west.y, 2 * 6370997.0 * 6370997.0 * (1 - cosine), 1e6);
}

TEST_F(Projection, TheInverseFindsThePlaceAgain) {
  for (const auto& [longitude, latitude] :
       {std::pair{-95.24, 38.97}, {-80.19, 25.77}, {-122.33, 47.61}, {-70.26, 43.66}, {-100.0, 50.0}}) {
    const MapPoint point = LocationToMap(longitude, latitude);
    const GeoPoint place = MapToLocation(point.x, point.y);
    EXPECT_NEAR(place.latitude, latitude, 1e-6);
    EXPECT_NEAR(place.longitude, longitude, 1e-6);
  }
}

TEST_F(Projection, TheConstantForDegreesHasNineDigits) {
  // With all digits the result would differ in the second decimal of a metre at this distance.
  const double phi = 25 * 0.017453292;
  EXPECT_DOUBLE_EQ(
      LocationToMap(-100, 25).y,
      6370997 *
          std::sqrt(2 / (1 + std::sin(50 * 0.017453292) * std::sin(phi) +
                         std::cos(50 * 0.017453292) * std::cos(phi))) *
          (std::cos(50 * 0.017453292) * std::sin(phi) - std::sin(50 * 0.017453292) * std::cos(phi)));
  EXPECT_GT(std::abs(LocationToMap(-100, 25).y - 2 * 6370997 * std::sin(-25 * 3.14159265358979323846 / 360)),
            0.05);
}

TEST_F(Projection, APointOffTheMapRaises) { EXPECT_THROW(MapToLocation(2e7, 0), RuntimeError); }

TEST_F(Projection, ALocationsPlaceIsReadFromItsProfile) {
  SetUpLocations(1);
  LocationProfile[ProfileRow::Longitude][0] = "-95.24";
  LocationProfile[ProfileRow::Latitude][0] = "38.97";
  EXPECT_EQ(LocationOnMap(0).x, LocationToMap(-95.24, 38.97).x);
  EXPECT_EQ(LocationOnMap(0).y, LocationToMap(-95.24, 38.97).y);
}

}  // namespace
}  // namespace skyloft
