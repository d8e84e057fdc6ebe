// The shape of the country: coasts and the borders of its states, coarse enough for a map of 640 pixels.
#pragma once

#include <vector>

#include "feedserver/weather.h"

namespace skyloft::feed {

// One line of it. An edge has the country on one side only: a coast, or the border with a neighbour. All
// edges together enclose the country (a point is inside when a ray from it crosses an odd number of them).
struct Outline {
  bool is_edge;
  std::vector<Point> points;  // at least two
};

const std::vector<Outline>& Outlines();

}  // namespace skyloft::feed
