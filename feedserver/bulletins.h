// Bulletins of the National Weather Service as the server makes them up: those that a file asks for. Those of
// its own storms are made in storms.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/dates.h"

namespace skyloft::feed {

struct Bulletin {
  std::vector<std::string> places;  // each a postal code, a state and a county ("KS Douglas"), or "*" for all
  std::string type;                 // three letters
  Date issued, expires;             // GMT
  std::string text;                 // begins with "SIMULATED. "
};

// Reads a file of bulletins, a line each: PLACE, PLACE | TYPE | ISSUED | EXPIRES | TEXT. A time is one in GMT
// or minutes from `now` with their sign ("+45"); "\n" in the text is a line end, "\\" a backslash. Empty
// lines and those that begin with "#" are passed over. UTF-8 or windows-1252. Raises, naming the line, for
// any other.
std::vector<Bulletin> ReadBulletins(std::string_view file, Date now);

}  // namespace skyloft::feed
