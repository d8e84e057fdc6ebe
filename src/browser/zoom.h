// The view over a picture: zooming, the local and the national map, and the marks of the locations.
#pragma once

#include "feed/projection.h"
#include "platform/controls.h"

namespace skyloft {

// Puts the view of a radar picture over the selected location: 100 pixels a degree of longitude and 140 a
// degree of latitude from the site, with a fixed trim. Uses SectorXMax and SectorYMax for the moment, which
// is meant. A location without a site counts as 0 degrees.
void NEXRADZoom();
// The same for a map, by the edges of its sector.
void ImageZoom();

inline constexpr int kPointRadius = 3;  // of a mark, pixels

// Puts a mark to a point of the sector on show.
void PlaceMark(Mark& mark, const MapPoint& point);
// Marks the locations on a map.
void PlaceLocationPoints();

// Mark the locations on a radar picture by a "+"; they differ by two pixels. No caller.
void NEXRADOverlay1();
void NEXRADOverlay2();

// Attaches the buttons of the map.
void ConnectZoom();

}  // namespace skyloft
