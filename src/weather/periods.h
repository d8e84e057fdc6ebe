// The forecast in periods of twelve hours.
#pragma once

namespace skyloft {

// Sums up the periods of all locations (scope 0) or of the last one. Does nothing yet.
void GetPeriod(int scope);

}  // namespace skyloft
