// Whether the desktop starts the program with its session.
#pragma once

namespace skyloft {

// Writes or removes the program's entry in the user's autostart folder, by the desktop's own rules (Desktop
// Application Autostart Specification). The entry starts this very program. False when it cannot be written or
// removed.
bool StartWithSession(bool on);

}  // namespace skyloft
