// The computer's clock and time zone.
#pragma once

#include "base/dates.h"

namespace skyloft {

// The present local time, in whole seconds.
Date Now();

// How the computer's zone lies against GMT at this moment.
struct ZoneState {
  int bias_minutes;  // standard time: minutes to add to local time to reach GMT
  int code;          // 0 the zone has no daylight time, 1 standard time now, 2 daylight time now
};
ZoneState GetZoneState();

}  // namespace skyloft
