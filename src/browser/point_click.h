// A click on a forecast map tells the forecast of that point.
#pragma once

#include "feed/projection.h"

namespace skyloft {

// Whether a click picks a place of the picture: no tool is on, and the picture stands at its own scale.
bool IsPointerAtScale();

// The place under a pixel of the view, degrees with two decimals. The two directions are meant to differ in
// their sign of the origin. Raises without a map.
GeoPoint PlaceAt(int x, int y);

// Attaches the press on Display1, which picks a stop of a route too.
void ConnectPointClick();

}  // namespace skyloft
