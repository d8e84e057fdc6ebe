#include "weather/periods.h"

namespace skyloft {

void GetPeriod(int) {}

}  // namespace skyloft
