// The bar at the edge of the screen: which page it shows, and for how long.
#pragma once

#include <optional>

namespace skyloft {

struct TickerState {
  // Calls that the present page has stood; none forces a rotation on the next call.
  std::optional<int> TickerCounter;
  // Next step of the rotation: 0 current conditions, 1 hourly, 2 three days, 3 almanac, 4 the location's end.
  int TickerPage = 0;
  int TickerLocationIndex = 0;  // the location on show
};
extern TickerState TickerRotation;

// One call a second. A page stands for six calls; a page that is switched off costs none. The end of a
// location has no page, so that its last one stands twice; behind the last location a message of the server
// may take that place. Ends quietly on any failure.
void TickerDisplay();

// Attaches the bar's presses: the left button shows the main window, any other opens its menu.
void ConnectTicker();

}  // namespace skyloft
