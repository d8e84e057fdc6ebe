// The menu of the bar, and the entries of the menus that show, hide, move and fill it. Each saves the options
// that it changes, and no others.
#pragma once

namespace skyloft {

// Brings the entries up to the options and pops up the menu on the bar.
void OpenTickerMenu();

// Attaches the entries.
void ConnectTickerMenu();

}  // namespace skyloft
