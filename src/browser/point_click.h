// A click on a forecast map tells the forecast of that point.
#pragma once

namespace skyloft {

// Attaches the click on Display1.
void ConnectPointClick();

}  // namespace skyloft
