// What the maps show: quantities of the weather, over which time, in which colours.
#pragma once

#include <string_view>

#include "feedserver/scale.h"
#include "feedserver/weather.h"

namespace skyloft::feed {

enum class Over { Moment, Highest, Lowest, Sum };  // of the hours that end at the map's moment
enum class Marks { None, Numbers, Arrows, Isobars, Roads };

struct Layer {
  std::string_view title;
  Scale scale;
  double (*quantity)(Point point, Date gmt, std::uint64_t seed);
  Over over = Over::Moment;
  int hours = 0;              // of the time that it looks back on
  Marks marks = Marks::None;  // what is drawn over the colours; of roads alone the colours are on them
  bool is_echo = false;       // of a radar, which no smooth field looks like
};

enum class LayerId {
  Temperature,
  High,
  Low,
  Precipitation,
  HalfDayPrecipitation,
  DayPrecipitation,
  RunPrecipitation,
  DaySnow,
  Radar,
  Wind,
  Cloud,
  Pressure,
  Thunder,
  Roads
};

const Layer& LayerOf(LayerId id);

// The quantity of a layer at a point; `hours` are those that it looks back on.
double ValueOf(const Layer& layer, int hours, Point point, Date end, std::uint64_t seed);

}  // namespace skyloft::feed
