// The tray icons of the desktop.
#pragma once

namespace skyloft {

// Brings the icons in the tray up to their models.
void ShowTray();

}  // namespace skyloft
