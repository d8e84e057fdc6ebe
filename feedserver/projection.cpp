#include "feedserver/projection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace skyloft::feed {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kRadius = 6370997, kCentreLatitude = 50 * kRadian, kCentreLongitude = -100 * kRadian;

}  // namespace

MapPoint Project(Point point) {
  const double phi = point.latitude * kRadian, lambda = point.longitude * kRadian - kCentreLongitude;
  const double sin0 = std::sin(kCentreLatitude), cos0 = std::cos(kCentreLatitude);
  const double cosine = sin0 * std::sin(phi) + cos0 * std::cos(phi) * std::cos(lambda);
  const double k = std::sqrt(2 / (1 + cosine));
  return {kRadius * k * std::cos(phi) * std::sin(lambda),
          kRadius * k * (cos0 * std::sin(phi) - sin0 * std::cos(phi) * std::cos(lambda))};
}

Point Unproject(MapPoint point) {
  const double distance = std::hypot(point.x, point.y);
  if (distance == 0) return {kCentreLatitude / kRadian, kCentreLongitude / kRadian};
  const double angle = 2 * std::asin(std::min(1.0, distance / (2 * kRadius)));
  const double sin0 = std::sin(kCentreLatitude), cos0 = std::cos(kCentreLatitude);
  const double phi = std::asin(std::cos(angle) * sin0 + point.y * std::sin(angle) * cos0 / distance);
  const double lambda = std::atan2(point.x * std::sin(angle),
                                   distance * cos0 * std::cos(angle) - point.y * sin0 * std::sin(angle));
  return {phi / kRadian, (lambda + kCentreLongitude) / kRadian};
}

}  // namespace skyloft::feed
