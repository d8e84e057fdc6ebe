// A point of the earth.
#pragma once

namespace skyloft::feed {

// Degrees; north and east are positive.
struct Point {
  double latitude = 0, longitude = 0;
};

}  // namespace skyloft::feed
