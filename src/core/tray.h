// The temperature in the desktop's tray, and the way back into the program from there.
#pragma once

namespace skyloft {

// Spells the temperature of the tray's location with up to three ready-made icons: a sign or hundreds digit,
// the number, the letter. A temperature without an icon of its own leaves no icon at all.
void SystemTray();

// Takes the three icons out of the tray, 0 first.
void RemoveTrayIcons();

// Attaches the clicks: one shows the main window above all others, the other opens the menu.
void ConnectTray();

}  // namespace skyloft
