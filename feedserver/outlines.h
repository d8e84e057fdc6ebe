// The shapes of land and water: coasts, borders and state lines of the country, and what of its neighbours a
// map of it shows.
#pragma once

#include <cstdint>
#include <vector>

#include "feedserver/weather.h"

namespace skyloft::feed {

// What a line is part of the rim of. All lines of an area together enclose it: a point is inside when a ray
// from it crosses an odd number of them. The country is land; of the neighbours' area the country and the
// lakes have to be taken away, and of the lakes the country.
enum class Area : std::uint8_t { None, Country, Neighbours, Lakes };
enum class Stroke : std::uint8_t { Unseen, Coast, Border, State };

struct Outline {
  Area area;
  Stroke stroke;
  std::vector<Point> points;  // at least two
};

std::vector<Outline> DecodedOutlines();
// The same, decoded at the first call.
const std::vector<Outline>& Outlines();

}  // namespace skyloft::feed
