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

// Asks for the hour in which a time falls, at degrees given as texts. Hour 0 goes out as "0 AM".
PointForecast QueryPointForecast(const std::string& latitude, const std::string& longitude, Date time);

}  // namespace skyloft
