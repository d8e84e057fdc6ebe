#include "platform/doubles.h"

namespace skyloft {

Date Now() { return Doubles.now; }
ZoneState GetZoneState() { return Doubles.zone; }

}  // namespace skyloft
