// The maps: a layer of the weather over a sector of the country, with what makes it readable.
#pragma once

#include <cstdint>
#include <string>

#include "base/dates.h"
#include "feedserver/canvas.h"
#include "feedserver/layers.h"
#include "feedserver/sectors.h"

namespace skyloft::feed {

struct MapRequest {
  const Layer* layer;
  const Sector* sector;
  std::string title;
  Date valid;  // GMT: the moment, or the end of the hours
  int hours;   // that it looks back on, 0 for a moment
};

// The whole canvas is the map, so that a point of the sector is found by proportion alone; title and scale
// lie on its upper edge.
Canvas DrawMap(const MapRequest& request, std::uint64_t seed);

// The scale of a layer alone, 604 by 40 pixels, for below a map.
Canvas DrawLegend(const Layer& layer);

}  // namespace skyloft::feed
