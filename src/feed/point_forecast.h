// The forecast of one hour at any place of the map.
#pragma once

#include <string>

#include "base/dates.h"

namespace skyloft {

// Texts as received; all "" without a reply.
struct PointForecast {
  std::string city_state;                                        // nearest town, "Lawrence, KS"
  std::string Ut, Lt, Desc, Ic, Tf, Df, Rh, At, Wd, Ws, Rn, Sn;  // Wd in degrees, Ic a file name
};

// How the hour after midnight goes out: "0 AM", or "12 AM" by the clock of twelve.
enum class MidnightHour { Zero = 0, Twelve = 12 };

// Asks for the hour in which a time falls, at degrees given as texts.
PointForecast QueryPointForecast(const std::string& latitude, const std::string& longitude, Date time,
                                 MidnightHour midnight = MidnightHour::Zero);

}  // namespace skyloft
