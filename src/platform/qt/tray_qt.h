// The tray icons of the desktop.
#pragma once

#include "platform/controls.h"

namespace skyloft {

// Brings an icon of the tray up to its model.
void ShowTrayIcon(TrayIcon& model);

}  // namespace skyloft
