// The interstate highways.
#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "base/guard.h"
#include "feedserver/cities.h"

namespace skyloft::feed {
namespace {

// The first city of a name.
Point PointOf(std::string_view name) {
  const auto found = std::ranges::find(Cities(), name, &City::name);
  if (found == Cities().end()) throw RuntimeError("no such city: " + std::string(name));
  return found->point;
}

std::vector<Highway> MakeHighways() {
  const struct {
    std::string_view name;
    std::vector<std::string_view> cities;
  } kRoutes[] = {
      {"5", {"Seattle", "Eugene", "Sacramento", "Los Angeles", "San Diego"}},
      {"10",
       {"Los Angeles", "Phoenix", "Tucson", "El Paso", "San Antonio", "Houston", "New Orleans",
        "Jacksonville"}},
      {"15", {"San Diego", "Las Vegas", "Salt Lake City", "Billings"}},
      {"25", {"El Paso", "Albuquerque", "Pueblo", "Colorado Springs", "Denver", "Cheyenne", "Billings"}},
      {"35",
       {"San Antonio", "Dallas", "Oklahoma City", "Wichita", "Kansas City", "Des Moines", "Minneapolis"}},
      {"40",
       {"Las Vegas", "Flagstaff", "Albuquerque", "Amarillo", "Oklahoma City", "Memphis", "Nashville",
        "Charlotte", "Raleigh"}},
      {"55", {"New Orleans", "Memphis", "St. Louis", "Chicago"}},
      {"65", {"New Orleans", "Birmingham", "Nashville", "Indianapolis", "Chicago"}},
      {"70",
       {"Denver", "Salina", "Topeka", "Lawrence", "Kansas City", "St. Louis", "Indianapolis", "Pittsburgh",
        "Philadelphia"}},
      {"75", {"Miami", "Fort Myers", "Tampa", "Atlanta", "Cincinnati", "Detroit"}},
      {"80",
       {"San Francisco", "Sacramento", "Reno", "Salt Lake City", "Cheyenne", "Omaha", "Des Moines", "Chicago",
        "South Bend", "Cleveland", "New York"}},
      {"84", {"Salt Lake City", "Boise", "Seattle"}},
      {"90",
       {"Seattle", "Spokane", "Billings", "Rapid City", "Sioux Falls", "Rockford", "Chicago", "South Bend",
        "Cleveland", "Erie", "Buffalo", "Boston"}},
      {"94", {"Billings", "Bismarck", "Minneapolis", "Milwaukee", "Chicago", "Detroit"}},
      {"95",
       {"Bangor", "Portland", "Boston", "Providence", "New York", "Philadelphia", "Washington", "Raleigh",
        "Jacksonville", "West Palm Beach", "Miami"}},
  };
  std::vector<Highway> highways;
  for (const auto& route : kRoutes) {
    std::vector<Point> points;
    std::ranges::transform(route.cities, std::back_inserter(points), PointOf);
    highways.push_back({route.name, std::move(points)});
  }
  return highways;
}

}  // namespace

const std::vector<Highway>& Highways() {
  static const std::vector<Highway> highways = MakeHighways();
  return highways;
}

}  // namespace skyloft::feed
