// What is drawn over the colours of a map.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "feedserver/maps.h"
#include "feedserver/outlines.h"
#include "feedserver/room.h"
#include "feedserver/samples.h"

namespace skyloft::feed {

// The canvas of a map under way.
struct Sheet {
  Canvas& canvas;
  const MapRequest& request;
  std::uint64_t seed;

  Pixel PixelOf(Point point) const { return request.sector->PixelOf(Project(point)); }
  Point PointOf(Pixel pixel) const { return Unproject(request.sector->PointOf(pixel)); }
};

// An outline as it lies on a sheet.
struct DrawnOutline {
  const Outline& outline;
  std::vector<Pixel> path;
};
std::vector<DrawnOutline> OutlinesOn(const Sheet& sheet);
// Coasts, borders and state lines.
void DrawOutlines(Canvas& canvas, std::span<const DrawnOutline> outlines);
// Cities with their names; with `has_numbers` the values of the layer too. What finds no room is left out.
void DrawCities(const Sheet& sheet, bool has_numbers, Room& room);
// Where the wind blows to.
void DrawArrows(const Sheet& sheet);
// The highs and lows of a quantity.
void DrawExtremes(Canvas& canvas, const Samples& samples, Room& room);
// Lines of equal value, one every `step`, and the value on them where there is room.
void DrawIsobars(Canvas& canvas, const Samples& samples, double step);
void LabelIsobars(Canvas& canvas, const Samples& samples, double step, Room& room);
// Highways, coloured by the layer.
void DrawRoads(const Sheet& sheet);
// The scale as a row of boxes with their numbers below.
void DrawScale(Canvas& canvas, const Scale& scale, Pixel corner, double width, double box_height);

}  // namespace skyloft::feed
