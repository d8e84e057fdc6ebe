// The pop-up menus and what their entries do.
#pragma once

namespace skyloft {

// Pops up the menu of the main window, with an entry for the ticker while that is hidden.
void OpenMainMenu();

// Saves everything, takes the icons out of the tray and ends the process, without asking.
void ExitSkyloft();

// Attaches the entries. So far only "Exit Skyloft" acts.
void ConnectMenu();

}  // namespace skyloft
