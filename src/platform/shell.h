// What the desktop does for the program.
#pragma once

#include <string>

namespace skyloft {

// Opens an address in the user's program for it: http, https and mailto only; anything else is ignored.
void OpenLink(const std::string& address);
// Starts a downloaded update, hidden, without waiting. A file that is not signed by the makers is left where
// it is.
void StartUpdate(const std::string& path);

}  // namespace skyloft
