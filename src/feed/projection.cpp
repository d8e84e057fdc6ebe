#include "feed/projection.h"

#include <cmath>

#include "base/values.h"
#include "settings/location_profiles.h"

namespace skyloft {
namespace {

constexpr double kRadians = 0.017453292;
constexpr double kRadius = 6370997;
constexpr double kCentreLatitude = 50 * kRadians, kCentreLongitude = -100;

}  // namespace

MapPoint LocationToMap(double longitude, double latitude) {
  const double phi = latitude * kRadians;
  const double lambda = (longitude - kCentreLongitude) * kRadians;
  const double sin_centre = std::sin(kCentreLatitude);
  const double cos_centre = std::cos(kCentreLatitude);
  const double k =
      SquareRoot(Divide(2, 1 + sin_centre * std::sin(phi) + cos_centre * std::cos(phi) * std::cos(lambda)));
  return {kRadius * k * std::cos(phi) * std::sin(lambda),
          kRadius * k * (cos_centre * std::sin(phi) - sin_centre * std::cos(phi) * std::cos(lambda))};
}

GeoPoint MapToLocation(double x, double y) {
  const double rho = std::hypot(x, y);
  if (rho == 0) return {kCentreLatitude / kRadians, kCentreLongitude};
  const double half = rho / (2 * kRadius);
  const double sin_c = 2 * half * SquareRoot(1 - half * half);
  const double cos_c = 1 - 2 * half * half;
  const double sin_centre = std::sin(kCentreLatitude);
  const double cos_centre = std::cos(kCentreLatitude);
  const double phi = std::asin(cos_c * sin_centre + y * sin_c * cos_centre / rho);
  const double lambda = std::atan2(x * sin_c, rho * cos_centre * cos_c - y * sin_centre * sin_c);
  return {phi / kRadians, kCentreLongitude + lambda / kRadians};
}

MapPoint LocationOnMap(int slot) {
  return LocationToMap(LenientNumber(LocationProfile[ProfileRow::Longitude][slot]),
                       LenientNumber(LocationProfile[ProfileRow::Latitude][slot]));
}

}  // namespace skyloft
