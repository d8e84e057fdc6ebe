// The menu of the main window and of the tray, and what the entries do that belong to no location.
#pragma once

namespace skyloft {

// Pops up the menu of the main window, with an entry for the ticker while that is hidden.
void OpenMainMenu();
// Pops up the same menu for the tray, with an entry for each of the two windows that is hidden.
void OpenTrayMenu();

// Shows the first product of a category in the main window: how Help and the links of the menu open a page.
void ShowCategory(int index);

// Saves everything, takes the icons out of the tray and ends the process, without asking.
void ExitSkyloft();
// The same, after asking. No caller.
void ExitProgram();

// Attaches the entries of all menus.
void ConnectMenu();

}  // namespace skyloft
