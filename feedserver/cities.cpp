#include "feedserver/cities.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "base/guard.h"

namespace skyloft::feed {
namespace {

// Source: United States Census Bureau gazetteer of places.
constexpr auto kCities = std::to_array<City>({
    {"Albuquerque", {35.11, -106.65}, 2},
    {"Amarillo", {35.20, -101.83}, 3},
    {"Anchorage", {61.22, -149.88}, 1},
    {"Atlanta", {33.75, -84.39}, 1},
    {"Bangor", {44.80, -68.77}, 3},
    {"Billings", {45.78, -108.50}, 1},
    {"Birmingham", {33.52, -86.80}, 3},
    {"Bismarck", {46.81, -100.78}, 2},
    {"Boise", {43.62, -116.20}, 2},
    {"Boston", {42.36, -71.06}, 2},
    {"Buffalo", {42.89, -78.88}, 2},
    {"Charlotte", {35.23, -80.84}, 2},
    {"Cheyenne", {41.14, -104.82}, 2},
    {"Chicago", {41.89, -87.62}, 1},
    {"Cincinnati", {39.10, -84.51}, 2},
    {"Cleveland", {41.50, -81.69}, 2},
    {"Colorado Springs", {38.83, -104.82}, 3},
    {"Dallas", {32.78, -96.80}, 1},
    {"Denver", {39.75, -105.00}, 1},
    {"Des Moines", {41.59, -93.62}, 2},
    {"Detroit", {42.33, -83.05}, 2},
    {"El Paso", {31.76, -106.49}, 2},
    {"Erie", {42.13, -80.09}, 3},
    {"Eugene", {44.05, -123.09}, 3},
    {"Fairbanks", {64.84, -147.72}, 2},
    {"Flagstaff", {35.20, -111.65}, 3},
    {"Fort Myers", {26.64, -81.87}, 3},
    {"Hartford", {41.76, -72.67}, 3},
    {"Hilo", {19.71, -155.09}, 2},
    {"Homer", {59.64, -151.55}, 3},
    {"Honolulu", {21.31, -157.85}, 1},
    {"Houston", {29.76, -95.37}, 2},
    {"Indianapolis", {39.77, -86.16}, 2},
    {"Jacksonville", {30.33, -81.66}, 2},
    {"Juneau", {58.30, -134.42}, 2},
    {"Kahului", {20.89, -156.47}, 3},
    {"Kansas City", {39.10, -94.58}, 3},
    {"Key West", {24.56, -81.78}, 3},
    {"Las Vegas", {36.17, -115.14}, 2},
    {"Lawrence", {38.97, -95.24}, 1},
    {"Los Angeles", {34.06, -118.24}, 1},
    {"Mayaguez", {18.20, -67.14}, 3},
    {"Memphis", {35.15, -90.05}, 2},
    {"Miami", {25.76, -80.19}, 1},
    {"Milwaukee", {43.04, -87.91}, 3},
    {"Minneapolis", {44.98, -93.27}, 1},
    {"Nashville", {36.16, -86.78}, 2},
    {"New Orleans", {29.95, -90.07}, 1},
    {"New York", {40.75, -74.00}, 1},
    {"Oklahoma City", {35.47, -97.52}, 2},
    {"Omaha", {41.26, -95.94}, 2},
    {"Philadelphia", {39.95, -75.17}, 3},
    {"Phoenix", {33.45, -112.08}, 1},
    {"Pittsburgh", {40.44, -80.00}, 2},
    {"Ponce", {18.01, -66.61}, 3},
    {"Portland", {43.66, -70.26}, 1},
    {"Portland", {45.52, -122.68}, 2},
    {"Providence", {41.82, -71.41}, 3},
    {"Pueblo", {38.25, -104.61}, 3},
    {"Raleigh", {35.78, -78.64}, 2},
    {"Rapid City", {44.08, -103.23}, 2},
    {"Reno", {39.53, -119.81}, 2},
    {"Rockford", {42.27, -89.09}, 3},
    {"Sacramento", {38.58, -121.49}, 3},
    {"Salina", {38.84, -97.61}, 3},
    {"Salt Lake City", {40.76, -111.89}, 1},
    {"San Antonio", {29.42, -98.49}, 2},
    {"San Diego", {32.72, -117.16}, 2},
    {"San Francisco", {37.77, -122.42}, 1},
    {"San Juan", {18.47, -66.11}, 1},
    {"Santa Barbara", {34.42, -119.70}, 3},
    {"Seattle", {47.61, -122.33}, 1},
    {"Seward", {60.10, -149.44}, 3},
    {"Sioux Falls", {43.55, -96.73}, 2},
    {"South Bend", {41.68, -86.25}, 3},
    {"Spokane", {47.66, -117.43}, 2},
    {"St. Louis", {38.63, -90.20}, 2},
    {"Tampa", {27.95, -82.46}, 2},
    {"Topeka", {39.05, -95.68}, 3},
    {"Tucson", {32.22, -110.97}, 3},
    {"Victoria", {48.43, -123.37}, 3},
    {"Washington", {38.91, -77.04}, 1},
    {"West Palm Beach", {26.72, -80.05}, 3},
    {"Wichita", {37.69, -97.34}, 3},
});

// The first city of a name.
Point PointOf(std::string_view name) {
  const auto* found = std::ranges::find(kCities, name, &City::name);
  if (found == kCities.end()) throw RuntimeError("no such city: " + std::string(name));
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

std::span<const City> Cities() { return kCities; }

const std::vector<Highway>& Highways() {
  static const std::vector<Highway> highways = MakeHighways();
  return highways;
}

}  // namespace skyloft::feed
