#include "feedserver/layers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace skyloft::feed {
namespace {

// Fahrenheit
constexpr auto kTemperatures = std::to_array<Band>({
    {-1e9, {196, 154, 208}, ""},
    {-20, {166, 110, 190}, "-20"},
    {-10, {122, 84, 186}, ""},
    {0, {84, 84, 204}, "0"},
    {10, {64, 118, 220}, "10"},
    {20, {72, 156, 232}, "20"},
    {30, {110, 196, 236}, "30"},
    {40, {120, 212, 190}, "40"},
    {50, {112, 196, 112}, "50"},
    {60, {190, 220, 96}, "60"},
    {70, {250, 226, 104}, "70"},
    {80, {248, 174, 72}, "80"},
    {90, {236, 112, 60}, "90"},
    {100, {206, 52, 52}, "100"},
    {110, {146, 28, 60}, "110"},
});
// Inches of water an hour
constexpr auto kRates = std::to_array<Band>({
    {0.01, {196, 232, 184}, ".01"},
    {0.03, {140, 208, 128}, ".03"},
    {0.06, {72, 172, 84}, ".06"},
    {0.10, {32, 128, 72}, ".10"},
    {0.15, {96, 180, 220}, ".15"},
    {0.20, {52, 128, 212}, ".20"},
    {0.30, {44, 76, 172}, ".30"},
    {0.50, {150, 84, 190}, ".50"},
    {0.80, {204, 60, 140}, ".80"},
});
// Inches of water of many hours
constexpr auto kSums = std::to_array<Band>({
    {0.01, {214, 238, 204}, ".01"},
    {0.10, {160, 218, 148}, ".10"},
    {0.25, {92, 184, 100}, ".25"},
    {0.50, {36, 136, 76}, ".50"},
    {0.75, {120, 200, 232}, ".75"},
    {1.00, {68, 150, 224}, "1"},
    {1.50, {48, 96, 192}, "1.5"},
    {2.00, {112, 72, 180}, "2"},
    {3.00, {168, 76, 190}, "3"},
    {4.00, {220, 76, 150}, "4"},
    {6.00, {236, 120, 80}, "6"},
    {8.00, {250, 190, 90}, "8"},
});
// Inches of snow
constexpr auto kSnows = std::to_array<Band>({
    {0.1, {222, 232, 244}, ".1"},
    {1, {176, 206, 240}, "1"},
    {2, {126, 174, 232}, "2"},
    {4, {78, 132, 216}, "4"},
    {6, {58, 92, 188}, "6"},
    {8, {92, 72, 172}, "8"},
    {12, {142, 76, 182}, "12"},
    {18, {194, 84, 176}, "18"},
    {24, {230, 120, 160}, "24"},
});
// dBZ
constexpr auto kEchoes = std::to_array<Band>({
    {10, {150, 190, 214}, "10"},
    {15, {96, 166, 214}, "15"},
    {20, {48, 128, 208}, "20"},
    {25, {88, 204, 96}, "25"},
    {30, {40, 158, 60}, "30"},
    {35, {250, 232, 80}, "35"},
    {40, {246, 168, 48}, "40"},
    {45, {232, 76, 48}, "45"},
    {50, {178, 28, 60}, "50"},
    {55, {206, 72, 196}, "55"},
});
// Miles an hour
constexpr auto kWinds = std::to_array<Band>({
    {-1e9, {226, 236, 226}, "0"},
    {5, {190, 222, 204}, "5"},
    {10, {146, 206, 196}, "10"},
    {15, {110, 184, 204}, "15"},
    {20, {104, 150, 208}, "20"},
    {25, {122, 112, 198}, "25"},
    {30, {166, 96, 186}, "30"},
    {40, {212, 92, 150}, "40"},
    {50, {238, 128, 96}, "50"},
});
// Percent of the sky
constexpr auto kClouds = std::to_array<Band>({
    {-1e9, {92, 138, 96}, "0"},
    {10, {108, 150, 116}, "10"},
    {20, {126, 162, 136}, "20"},
    {30, {144, 174, 156}, "30"},
    {40, {160, 186, 174}, "40"},
    {50, {176, 198, 190}, "50"},
    {60, {192, 208, 204}, "60"},
    {70, {208, 220, 218}, "70"},
    {80, {226, 233, 233}, "80"},
    {90, {246, 248, 250}, "90"},
});
// Inches of mercury
constexpr auto kPressures = std::to_array<Band>({
    {-1e9, {120, 136, 196}, ""},
    {29.4, {142, 160, 210}, "29.4"},
    {29.6, {166, 186, 222}, "29.6"},
    {29.8, {194, 210, 226}, "29.8"},
    {30.0, {224, 226, 208}, "30.0"},
    {30.2, {238, 218, 172}, "30.2"},
    {30.4, {238, 196, 140}, "30.4"},
    {30.6, {228, 168, 116}, "30.6"},
});
// Percent
constexpr auto kChances = std::to_array<Band>({
    {5, {252, 240, 176}, "5"},
    {20, {250, 214, 120}, "20"},
    {40, {246, 170, 84}, "40"},
    {60, {232, 114, 68}, "60"},
    {80, {196, 52, 60}, "80"},
});
// The state of a road, from good to worst
constexpr auto kRoads = std::to_array<Band>({
    {0, {64, 160, 80}, "Good"},
    {1, {70, 140, 220}, "Wet"},
    {2, {242, 190, 60}, "Fog or wind"},
    {3, {226, 110, 60}, "Snow"},
    {4, {196, 40, 110}, "Ice"},
});

// After Marshall and Palmer, 1948: Z = 200 R^1.6, R in millimetres an hour. Dry air is not far below the
// least rain, so that the rim of an echo is found by proportion.
double Echo(Point point, Date gmt, std::uint64_t seed) {
  constexpr double kDry = 6;
  const double millimetres = WaterAt(point, gmt, seed) * 25.4;
  return millimetres > 0 ? 10 * std::log10(200 * std::pow(millimetres, 1.6)) : kDry;
}

double RoadOf(const Weather& w) {
  switch (w.fall) {
    case Fall::FreezingRain:
    case Fall::FreezingRainAndSnow: return 4;
    case Fall::Snow:
    case Fall::RainAndSnow: return 3;
    default: break;
  }
  if (w.visibility < 1 || w.wind_speed > 35) return 2;
  return w.fall == Fall::Rain ? 1 : 0;
}

// A part of the weather as a layer's quantity.
template <double (*part)(const Weather&)>
double Of(Point point, Date gmt, std::uint64_t seed) {
  return part(WeatherAt(point, gmt, seed));
}

double Temperature(const Weather& w) { return w.temperature; }
double Snow(const Weather& w) { return w.snow; }
double Wind(const Weather& w) { return w.wind_speed; }
double Cloud(const Weather& w) { return w.cloud * 100; }
double Pressure(const Weather& w) { return w.pressure; }
double Thunder(const Weather& w) { return w.thunder * 100; }

constexpr Scale kFahrenheit{
    "\xB0"
    "F",
    kTemperatures};

// In the order of LayerId.
constexpr auto kLayers = std::to_array<Layer>({
    {"Surface Temperature", kFahrenheit, Of<Temperature>, Over::Moment, 0, Marks::Numbers},
    {"Daily High Temperature", kFahrenheit, Of<Temperature>, Over::Highest, 12, Marks::Numbers},
    {"Daily Low Temperature", kFahrenheit, Of<Temperature>, Over::Lowest, 12, Marks::Numbers},
    {"Precipitation", {"in/h", kRates}, WaterAt},
    {"12-Hour Precipitation", {"in", kSums}, WaterAt, Over::Sum, 12},
    {"24-Hour Precipitation", {"in", kSums}, WaterAt, Over::Sum, 24},
    {"Precipitation of the Whole Run", {"in", kSums}, WaterAt, Over::Sum},
    {"24-Hour Snowfall", {"in", kSnows}, Of<Snow>, Over::Sum, 24},
    {"Radar", {"dBZ", kEchoes}, Echo, Over::Moment, 0, Marks::None, true},
    {"Wind", {"mph", kWinds}, Of<Wind>, Over::Moment, 0, Marks::Arrows},
    {"Cloud Cover", {"%", kClouds}, Of<Cloud>},
    {"Surface Analysis", {"in", kPressures}, Of<Pressure>, Over::Moment, 0, Marks::Isobars},
    {"Thunderstorm Outlook", {"%", kChances}, Of<Thunder>, Over::Highest, 24},
    {"Driving Conditions", {"", kRoads}, Of<RoadOf>, Over::Highest, 12, Marks::Roads},
});

}  // namespace

const Layer& LayerOf(LayerId id) { return kLayers[static_cast<std::size_t>(id)]; }

double ValueOf(const Layer& layer, int hours, Point point, Date end, std::uint64_t seed) {
  if (layer.over == Over::Moment) return layer.quantity(point, end, seed);
  const int step = hours > 24 ? 3 : 2;  // hours
  double sum = 0, least = std::numeric_limits<double>::max(), most = -least;
  for (int hour = 0; hour < hours; hour += step) {
    const double value = layer.quantity(point, DateAdd(DateUnit::Hours, -hour, end), seed);
    sum += value * std::min(step, hours - hour);
    least = std::min(least, value);
    most = std::max(most, value);
  }
  return layer.over == Over::Sum ? sum : layer.over == Over::Lowest ? least : most;
}

}  // namespace skyloft::feed
