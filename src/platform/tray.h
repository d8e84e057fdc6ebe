// The desktop's tray.
#pragma once

#include <string>

#include "platform/controls.h"

namespace skyloft {

// Reads the file and sets it as the icon of a place in the tray. Raises, and leaves the control, when it is
// missing or no picture. Without a tray on this desktop all works the same and nothing is seen.
void LoadIcon(TrayIcon& icon, const std::string& path);

// Puts an icon into the tray, behind those that were put there before.
void AddToTray(TrayIcon& icon);

// The computer's system, as it tells of itself. The order in which icons join the tray follows it.
struct SystemVersion {
  int platform = 0;
  double version = 0;
  int build = 0;
};
SystemVersion GetSystemVersion();

}  // namespace skyloft
