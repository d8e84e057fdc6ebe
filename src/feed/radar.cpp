#include "feed/radar.h"

namespace skyloft {

void GetNexradData(int) {}

}  // namespace skyloft
