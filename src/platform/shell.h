// What the desktop does for the program.
#pragma once

#include <string>

namespace skyloft {

// Opens an address in the user's program for it: http, https and mailto only; anything else is ignored.
void OpenLink(const std::string& address);
// Starts a downloaded update as a process of its own, without input and output, and without waiting. Its last
// 64 bytes must be the makers' signature (Ed25519, RFC 8032) of all the bytes before them; their public key
// is given when the program is built, and without one no file is started. A file that is not started is left
// where it is, and one line on stderr says so.
void StartUpdate(const std::string& path);

}  // namespace skyloft
