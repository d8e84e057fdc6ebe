// The temperature in the desktop's tray.
#pragma once

namespace skyloft {

// Shows the temperature of the tray's location. Does nothing yet.
void SystemTray();

// Takes the three icons out of the tray, 0 first.
void RemoveTrayIcons();

}  // namespace skyloft
