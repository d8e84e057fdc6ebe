// The page of twelve days: a table of the days above a table of the nights.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

// Ready texts. Date has one for each pair of columns; of the other lists even places are days, odd ones
// nights. What was never filled prints nothing.
struct ExtendedColumns {
  using List = Table<std::string, 25>;
  List Date, Day;
  List Icon, Sky;    // whole path; phrase
  List Temperature;  // high by day, low by night
  List Wind, Rain, Snow;
};

// The page over two pictures given by whole path.
std::string BuildExtendedPage(const std::string& day_band, const std::string& night_band,
                              const ExtendedColumns& columns);

}  // namespace skyloft
