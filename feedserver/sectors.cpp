#include "feedserver/sectors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace skyloft::feed {
namespace {

struct Family {
  char id;
  double width;  // metres
};
constexpr std::array<Family, 3> kFamilies = {{{'1', 2000e3}, {'3', 1600e3}, {'4', 1280e3}}};

// The middles of the regions.
constexpr auto kRegions = std::to_array<Point>({
    {45.8, -117.5},  // Northwest
    {35.3, -114.8},  // Southwest
    {41.8, -105.5},  // Rocky Mountains
    {39.2, -96.5},   // Plains
    {32.2, -97.5},   // Texas and its neighbours
    {41.8, -88.5},   // Middle West
    {42.0, -74.0},   // Northeast
    {28.2, -82.0},   // Southeast
    {62.0, -150.5},  // Alaska
    {20.8, -157.3},  // Hawaii
    {18.3, -66.4},   // Puerto Rico
    {34.0, -86.5},   // South
    // Between them, so that every town lies on a map of each family.
    {46.0, -97.0},
    {37.0, -78.0},
    {41.0, -117.0},
    {35.0, -106.0},
    {47.0, -75.0},
    {37.0, -88.0},
    {44.0, -87.0},
    {29.0, -96.0},
    {65.0, -161.0},
    {35.0, -97.0},
    {46.0, -106.0},
    {42.0, -97.0},
    {32.0, -89.0},
    {56.0, -139.0},
    {33.0, -79.0},
    {55.0, -167.0},
    {41.0, -77.0},
    {32.0, -107.0},
    {38.0, -106.0},
    {38.0, -116.0},
    {48.0, -116.0},
    {40.0, -88.0},
    {42.0, -66.0},
    {68.0, -155.0},
    {38.0, -129.0},
    {43.0, -77.0},
    {31.0, -114.0},
    {29.0, -86.0},
    {44.0, -118.0},
    {28.0, -99.0},
    {47.0, -97.0},
    {63.0, -156.0},
    {48.0, -108.0},
    {45.0, -88.0},
    {52.0, -176.0},
    {14.3, 145.2},    // Guam and the Northern Marianas
    {-14.3, -170.7},  // American Samoa
});

// The middle of what a client shows of a map at scale: its first 604 by 415 pixels, less the title above and
// the legend below.
constexpr Pixel kInSight{302, 209};

double WholeKilometres(double metres) { return std::round(metres / 1000) * 1000; }

std::vector<Sector> MakeSectors() {
  // The lower 48 states, which reach from -2034 to 2514 km and from -2663 to 186 km.
  std::vector<Sector> sectors = {{"200", -2478e3, 3282e3, -3678e3, 642e3}};
  for (const Family& family : kFamilies) {
    const double height = family.width * kMapHeight / kMapWidth;
    const double metres = family.width / kMapWidth;
    int number = 1;
    for (const Point& region : kRegions) {
      const MapPoint middle = Project(region);
      const double left = WholeKilometres(middle.x - kInSight.x * metres);
      const double bottom = WholeKilometres(middle.y + kInSight.y * metres - height);
      std::string id = std::to_string(100 + number++);
      id[0] = family.id;
      sectors.push_back({id, left, left + family.width, bottom, bottom + height});
    }
  }
  return sectors;
}

}  // namespace

Pixel Sector::PixelOf(MapPoint point) const {
  return {(point.x - xmin) / (xmax - xmin) * kMapWidth, (ymax - point.y) / (ymax - ymin) * kMapHeight};
}

MapPoint Sector::PointOf(Pixel pixel) const {
  return {xmin + pixel.x / kMapWidth * (xmax - xmin), ymax - pixel.y / kMapHeight * (ymax - ymin)};
}

const std::vector<Sector>& Sectors() {
  static const std::vector<Sector> sectors = MakeSectors();
  return sectors;
}

const Sector* FindSector(std::string_view id) {
  const auto found = std::ranges::find(Sectors(), id, &Sector::id);
  return found == Sectors().end() ? nullptr : &*found;
}

}  // namespace skyloft::feed
