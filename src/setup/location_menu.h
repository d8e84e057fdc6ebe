// The menu's entries for the locations: adding, deleting and editing one, and choosing the tray's.
#pragma once

namespace skyloft {

// Attaches the entries. Adding is refused with five locations, deleting with one; deleting asks first, and
// what it leaves reaches the store as a whole. While the wizard is at work it shows itself instead of all
// three.
void ConnectLocationMenu();

}  // namespace skyloft
