// The bar at the edge of the screen: which page it shows.
#pragma once

namespace skyloft {

struct TickerState {
  int TickerPage = 0;  // next step of the rotation
};
extern TickerState TickerRotation;

// One step of the rotation. Does nothing yet.
void TickerDisplay();

}  // namespace skyloft
