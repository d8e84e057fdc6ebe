// Time in even steps.
#pragma once

#include <cstdint>

#include "base/dates.h"

namespace skyloft::feed {

// The last moment, not after a date, that is a whole number of steps of so many seconds away from the
// calendar's day 0, on either side of it.
inline Date FloorTo(Date date, std::int64_t seconds) {
  const std::int64_t past = date.seconds % seconds;
  return {date.seconds - past - (past < 0 ? seconds : 0)};
}

}  // namespace skyloft::feed
