// The rows of the forecast feed: how the weather of a moment is written under the feed's tags.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/dates.h"
#include "feedserver/places.h"
#include "feedserver/weather.h"
#include "feedserver/xml.h"

namespace skyloft::feed {

// A point asked for, and the place whose names and clock it has.
struct Spot {
  Point point;
  Place place;
};

// One row of a table: the weather of a moment, and the code of its sky.
struct Moment {
  Spot spot;
  Date gmt;
  Weather weather;
  int code;
};

// Writes the elements of a moment, in the order of the tags. Known are Ut and Lt (GMT and local time), SkyID,
// Desc, Ic, Tf, Df, At, Rh, Wd, Ws, Vi, Slp, Rn, Sn, Avg_H, Avg_L and city_state.
void AddRow(XmlDocument& xml, const Moment& moment, std::span<const std::string_view> tags);

// The pieces of it: "Mar 07 2003 02:05PM"; a whole number, halves away from zero; an amount of rain or snow
// with decimals, of which nothing is a plain "0".
std::string Stamp(Date date);
std::string Whole(double value);
std::string Amount(double value, int decimals);

}  // namespace skyloft::feed
