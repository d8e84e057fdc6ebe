// Cities and highways that a map shows for orientation. Places of the forecast are in places.h.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "feedserver/weather.h"

namespace skyloft::feed {

struct City {
  std::string_view name;
  Point point;
  int rank;  // 1 is on every map, 2 on those of a region, 3 on radar pictures
};

std::span<const City> Cities();

// The interstate highways, each as the cities that it joins.
struct Highway {
  std::string_view name;
  std::vector<Point> points;
};

const std::vector<Highway>& Highways();

}  // namespace skyloft::feed
