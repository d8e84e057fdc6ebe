// The built-in weather server: a skyloft-feed process of our own.
#pragma once

#include <optional>
#include <string>

namespace skyloft {

// Starts the skyloft-feed that stands beside this program, on a free port of this computer; returns its
// "HOST:PORT". It ends when this process does, whatever the way. `now` is its standing clock, GMT, or "".
std::optional<std::string> StartFeed(const std::string& now);

// The folder of this program's own file.
std::string ProgramFolder();

}  // namespace skyloft
