#include "feedserver/outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "feedserver/projection.h"

namespace skyloft::feed {
namespace {

// Whether a point lies inside the rim of an area on the maps' plane, by a ray to the right.
bool IsIn(Area area, Point point) {
  const MapPoint at = Project(point);
  bool is_inside = false;
  for (const Outline& outline : Outlines()) {
    if (outline.area != area) continue;
    for (std::size_t i = 1; i < outline.points.size(); ++i) {
      const MapPoint a = Project(outline.points[i - 1]), b = Project(outline.points[i]);
      if ((a.y > at.y) == (b.y > at.y)) continue;
      const double share = (at.y - a.y) / (b.y - a.y);
      if (a.x + share * (b.x - a.x) > at.x) is_inside = !is_inside;
    }
  }
  return is_inside;
}

TEST(Outlines, EncloseTheCountryItsNeighboursAndTheLakesBetween) {
  enum Ground { kCountry, kNeighbour, kWater };
  const struct {
    const char* name;
    Point point;
    Ground ground;
  } cases[] = {{"Kansas", {38.5, -98}, kCountry},
               {"Nevada", {39.5, -117}, kCountry},
               {"Maine", {45.3, -69}, kCountry},
               {"the Everglades", {25.8, -80.8}, kCountry},
               {"Upper Michigan", {46.4, -87.5}, kCountry},
               {"Long Island", {40.85, -73.0}, kCountry},
               {"Big Island", {19.6, -155.5}, kCountry},
               {"Puerto Rico", {18.2, -66.4}, kCountry},
               {"Guam", {13.42, 144.76}, kCountry},
               {"inner Alaska", {64, -150}, kCountry},
               {"Lake Michigan", {43.5, -87}, kWater},
               {"Lake Superior", {47.8, -88}, kWater},
               {"the northern half of Lake Ontario", {43.75, -78}, kWater},
               {"Georgian Bay", {45.3, -80.9}, kWater},
               {"Lake Okeechobee", {26.95, -80.8}, kWater},
               {"the Great Salt Lake", {41.2, -112.6}, kWater},
               {"Lake Winnipeg", {52.5, -97.8}, kWater},
               {"the Gulf", {27, -90}, kWater},
               {"the Atlantic", {35, -70}, kWater},
               {"the Pacific", {40, -127}, kWater},
               {"the Bering Sea", {58, -177}, kWater},
               {"the Gulf of California", {27, -111.2}, kWater},
               {"Hudson Bay", {59, -86}, kWater},
               {"Ontario", {48.5, -84}, kNeighbour},
               {"the peninsula of Ontario", {43.0, -81}, kNeighbour},
               {"Sonora", {30, -111}, kNeighbour},
               {"Alberta", {52, -114}, kNeighbour},
               {"Yukon", {63, -137}, kNeighbour},
               {"Vancouver Island", {49.7, -125.6}, kNeighbour},
               {"Newfoundland", {48.5, -56}, kNeighbour},
               {"Cuba", {22.3, -79.5}, kNeighbour},
               {"the far end of Asia", {66.5, -173.5}, kNeighbour},
               {"west of the date line", {67, 178}, kNeighbour},
               {"north of the 49th parallel", {49.03, -105}, kNeighbour},
               {"south of the 49th parallel", {48.97, -105}, kCountry}};
  for (const auto& c : cases) {
    const Ground ground = IsIn(Area::Country, c.point)                                     ? kCountry
                          : IsIn(Area::Neighbours, c.point) && !IsIn(Area::Lakes, c.point) ? kNeighbour
                                                                                           : kWater;
    EXPECT_EQ(ground, c.ground) << c.name;
  }
}

TEST(Outlines, LeaveNoGapAlongTheBorders) {
  // Hundredths of a degree across the borders on land, whatever the sources think of their course.
  for (double longitude = -122.5; longitude < -95.3; longitude += 0.37) {
    for (double latitude = 48.9; latitude < 49.1; latitude += 0.01) {
      const Point point{latitude, longitude};
      EXPECT_TRUE(IsIn(Area::Country, point) || IsIn(Area::Neighbours, point))
          << latitude << ' ' << longitude;
    }
  }
  for (double longitude = -140.9; longitude > -141.1; longitude -= 0.01) {
    const Point point{64.5, longitude};
    EXPECT_TRUE(IsIn(Area::Country, point) || IsIn(Area::Neighbours, point)) << longitude;
  }
}

// Degrees from the nearest line of a stroke, of latitude.
double Distance(Stroke stroke, Point point) {
  double nearest = std::numeric_limits<double>::max();
  const double shrink = std::cos(point.latitude * 0.017453292);
  for (const Outline& outline : Outlines()) {
    if (outline.stroke != stroke) continue;
    for (std::size_t i = 1; i < outline.points.size(); ++i) {
      const auto east = [&](Point p) { return (p.longitude - point.longitude) * shrink; };
      const auto north = [&](Point p) { return p.latitude - point.latitude; };
      const Point a = outline.points[i - 1], b = outline.points[i];
      const double dx = east(b) - east(a), dy = north(b) - north(a), length = dx * dx + dy * dy;
      const double share = length > 0 ? std::clamp(-(east(a) * dx + north(a) * dy) / length, 0.0, 1.0) : 0;
      nearest = std::min(nearest, std::hypot(east(a) + share * dx, north(a) + share * dy));
    }
  }
  return nearest;
}

TEST(Outlines, RunWhereShoresAndBordersAre) {
  const struct {
    const char* name;
    Stroke stroke;
    Point point;
  } cases[] = {{"Kansas and Nebraska", Stroke::State, {40.0, -98.5}},
               {"Colorado and Kansas", Stroke::State, {38.5, -102.045}},
               {"the four corners", Stroke::State, {36.999, -109.045}},
               {"the 49th parallel", Stroke::Border, {49.0, -110.3}},
               {"the California border", Stroke::Border, {32.63, -116.1}},
               {"the tip of Cape Cod", Stroke::Coast, {42.08, -70.2}},
               {"Key Biscayne", Stroke::Coast, {25.666, -80.156}},
               {"Point Reyes", Stroke::Coast, {37.995, -123.02}},
               {"the Chicago shore", Stroke::Coast, {41.885, -87.61}},
               {"the Toronto shore", Stroke::Coast, {43.63, -79.38}}};
  for (const auto& c : cases) EXPECT_LT(Distance(c.stroke, c.point), 0.03) << c.name;
}

TEST(Outlines, HaveNoPieceTooLongToBendWithAMap) {
  for (const Outline& outline : Outlines()) {
    ASSERT_GE(outline.points.size(), 2u);
    for (std::size_t i = 1; i < outline.points.size(); ++i) {
      const Point a = outline.points[i - 1], b = outline.points[i];
      ASSERT_LE(std::hypot(a.latitude - b.latitude, a.longitude - b.longitude), 2.02);
    }
  }
}

}  // namespace
}  // namespace skyloft::feed
