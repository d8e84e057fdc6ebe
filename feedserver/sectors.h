// The pieces of the earth that maps show, and the size of a map.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "feedserver/canvas.h"
#include "feedserver/projection.h"

namespace skyloft::feed {

constexpr int kMapWidth = 640, kMapHeight = 480;  // pixels

// Edges in metres of the projection; their proportions are those of a map.
struct Sector {
  std::string id;  // "104": its first character is its family
  double xmin, xmax, ymin, ymax;

  double MetresPerPixel() const { return (xmax - xmin) / kMapWidth; }
  Pixel PixelOf(MapPoint point) const;
  MapPoint PointOf(Pixel pixel) const;
};

// The national one first, "200"; then the same regions in three families of different width: "1" is the
// widest, "4" the narrowest.
const std::vector<Sector>& Sectors();
// Null when there is none.
const Sector* FindSector(std::string_view id);

}  // namespace skyloft::feed
