// What the command line asks of the server.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "feedserver/answer.h"
#include "feedserver/faults.h"

namespace skyloft::feed {

struct Options {
  std::string address = "127.0.0.1";  // that it listens on
  int port = 8080;                    // 0 is any free one
  int threads = 4;                    // that answer at once, 1 to 64
  World world;                        // no file of it is read yet
  std::optional<Date> now;            // the clock stands there; GMT
  std::string log_file, update_file, bulletins_file;
  std::vector<Fault> faults;
  bool stays = false;  // does not end with its standard input
  bool wants_help = false, wants_version = false;
};

// Raises, with a text for the user, for what it does not understand.
Options ReadOptions(const std::vector<std::string>& arguments);
std::string_view HelpText();

}  // namespace skyloft::feed
