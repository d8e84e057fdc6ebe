// Sun and moon of each location.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

// Times of today as they are printed, one text a location.
struct AlmanacTables {
  Table<std::string, 5> Sunrise, Sunset, Moonrise, Moonset;
};
extern AlmanacTables Almanac;

// Computes the four times for every location. Does nothing yet.
void GetAlmanac();

}  // namespace skyloft
