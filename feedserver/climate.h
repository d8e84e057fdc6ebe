// The usual weather of a point of the earth, which the weather of a moment departs from.
#pragma once

#include "feedserver/point.h"

namespace skyloft::feed {

// Temperatures in Fahrenheit at the height of the ground. Summer and winter are those of the point's own half
// of the earth.
struct Climate {
  double mean = 0;   // of the year
  double swing = 0;  // half of what the middle of summer is above the middle of winter; small at the equator
  double winter_range = 0;  // usual high less usual low, in the middle of winter
  double summer_range = 0;
  double inches = 0;        // of water a year, above 0
  double winter_share = 0;  // of that, what falls from October to March, 0 to 1
};

// From stations between 15 and 73 degrees north, 180 and 60 west; the farther from them, the more it goes by
// the latitude alone, as it does elsewhere. How near the sea is and how high the land is known by the
// stations and the heights of airports (data/README.md). Without a step anywhere.
Climate ClimateAt(Point point);

}  // namespace skyloft::feed
