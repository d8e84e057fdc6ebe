// The bar at the edge of the screen: which page it shows.
#pragma once

namespace skyloft {

struct TickerState {
  int TickerPage = 0;  // next step of the rotation
};
extern TickerState TickerRotation;

// One step of the rotation. So far it only lets the bar's presses through to the form.
void TickerDisplay();

// Attaches the bar's left press, which shows the main window.
void ConnectTicker();

}  // namespace skyloft
