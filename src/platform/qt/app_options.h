// The command line of the program and the environment that stands in for it.
#pragma once

#include <optional>
#include <string>

namespace skyloft {

struct AppOptions {
  std::string root;       // folder that is drive C: and holds registry.ini; "" for the user's own folders
  std::string hosts;      // web host of the host table; "" starts a server of our own
  std::string bulletins;  // file of what our own server tells; "" for none
  bool demo = false;      // five towns at once
  std::string now;        // local moment at which the clock stands; "" for the running clock
  std::string zone;       // name of the computer's time zone; "" for its own
  int dots_per_inch = 0;  // 0 for the display's own
  std::string snapshot;   // folder for pictures of all windows; "" for none
  std::string print;      // file that prints go to; "" for a printer that the user chooses
  std::string script;     // file of commands; "" for none
  std::string autostart;  // "on" or "off" sets whether the desktop starts the program; "" leaves it
  bool version = false, help = false;
};

// Reads the arguments, then SKYLOFT_ROOT and SKYLOFT_HOSTS for what they leave open. On a bad one, says so on
// stderr and returns nothing.
std::optional<AppOptions> ReadOptions(int argc, char** argv);

// The text of --help.
std::string HelpText();

}  // namespace skyloft
