// The built-in weather server: a skyloft-feed process of our own.
#pragma once

#include <optional>
#include <string>

namespace skyloft {

// Starts the skyloft-feed that stands beside this program, on a free port of this computer; returns its
// "HOST:PORT". It ends when this process does, whatever the way. Its clock stands where ours does, if ours
// stands. `bulletins` is the file of those that it tells, "" for none.
std::optional<std::string> StartFeed(const std::string& bulletins);
// Lets the feed's clock follow ours, which has moved; on return it has. Without a feed of our own or a
// standing clock nothing happens.
void MoveFeedClock();

// The folder of this program's own file.
std::string ProgramFolder();

}  // namespace skyloft
