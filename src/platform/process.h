// The program as a process.
#pragma once

#include <string>

namespace skyloft {

// The application's own path, as one of the program's: "C:\...\skyloft".
std::string ApplicationPath();

// Ends the process at once, from wherever it is called: the store is synced and the tray icons go.
[[noreturn]] void EndProcess();

}  // namespace skyloft
