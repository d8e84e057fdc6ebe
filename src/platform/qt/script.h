// Drives the program by a file of commands, one a line; "#" begins a comment. docs/driving.md tells the
// commands.
#pragma once

#include <string>

namespace skyloft {

// Reads the file and queues the answers at its head, which are for the boxes of start-up. False when it
// cannot be read.
bool LoadScript(const std::string& file);

// Runs the lines from the event loop: a line starts when the one before has returned. Ends the process with
// code 3 at a line that fails, and says which on stderr. `finished` is called after the last line.
void RunScript(void (*finished)());

}  // namespace skyloft
