#include "feedserver/sites.h"

#include <algorithm>
#include <vector>

#include "base/values.h"
#include "feedserver/sphere.h"

namespace skyloft::feed {
namespace {

template <class Site>
const Site& Nearest(std::span<const Site> sites, const std::vector<Direction>& directions, Point point) {
  const Direction wanted = DirectionOf(point);
  const auto nearest = std::ranges::max_element(
      directions, {}, [&](const Direction& direction) { return Nearness(direction, wanted); });
  return sites[static_cast<std::size_t>(nearest - directions.begin())];
}

template <class Site>
std::vector<Direction> DirectionsOf(std::span<const Site> sites) {
  std::vector<Direction> directions;
  for (const Site& site : sites) directions.push_back(DirectionOf(site.point));
  return directions;
}

}  // namespace

const RadarSite* FindRadarSite(std::string_view code) {
  const auto found = std::ranges::find(RadarSites(), UpperCase(code), &RadarSite::code);
  return found == RadarSites().end() ? nullptr : &*found;
}

const RadarSite& NearestRadarSite(Point point) {
  static const std::vector<Direction> directions = DirectionsOf(RadarSites());
  return Nearest(RadarSites(), directions, point);
}

const Office& NearestOffice(Point point) {
  static const std::vector<Direction> directions = DirectionsOf(Offices());
  return Nearest(Offices(), directions, point);
}

}  // namespace skyloft::feed
