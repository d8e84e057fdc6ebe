// The pop-up menus and what their entries do.
#pragma once

namespace skyloft {

// Pops up the menu of the main window, with an entry for the ticker while that is hidden.
void OpenMainMenu();
// Pops up the same menu for the tray, with an entry for each of the two windows that is hidden.
void OpenTrayMenu();

// Saves everything, takes the icons out of the tray and ends the process, without asking.
void ExitSkyloft();

// Attaches the entries. So far only "Show Skyloft" and "Exit Skyloft" act.
void ConnectMenu();

}  // namespace skyloft
