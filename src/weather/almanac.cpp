#include "weather/almanac.h"

namespace skyloft {

AlmanacTables Almanac;

void GetAlmanac() {}

}  // namespace skyloft
