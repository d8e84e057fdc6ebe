// What is drawn over the colours of a map.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "feedserver/maps.h"
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

// Borders and coasts.
void DrawOutlines(const Sheet& sheet);
// Cities with their names; with `has_numbers` the values of the layer too. What would cover another is left
// out.
void DrawCities(const Sheet& sheet, bool has_numbers);
// Where the wind blows to.
void DrawArrows(const Sheet& sheet);
// Lines of equal value, one every `step`, with the highs and lows between them.
void DrawIsobars(const Sheet& sheet, const Samples& samples, double step);
// Highways, coloured by the layer.
void DrawRoads(const Sheet& sheet);
// The scale as a row of boxes with their numbers below.
void DrawScale(Canvas& canvas, const Scale& scale, Pixel corner, double width, double box_height);

}  // namespace skyloft::feed
