#include "feedserver/climate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "feedserver/curves.h"
#include "feedserver/unpacker.h"

// What data.S puts into the program.
extern "C" {
extern const unsigned char skyloft_climate_begin[], skyloft_climate_end[];
}

namespace skyloft::feed {
namespace {

// 6.5 kelvin a kilometre. Source: U.S. Standard Atmosphere, 1976.
constexpr double kLapse = 6.5 * 1.8 / 3280.84;  // Fahrenheit a foot
constexpr double kPerDegree = 2;                // nodes of the net
constexpr double kRim = 3;                      // degrees over which the net fades into the formula

// What the table holds, by its numbers: feet, four of Fahrenheit, the natural logarithm of inches, percent.
enum Part { kHeight, kMean, kSwing, kWinterRange, kSummerRange, kInches, kWinterShare, kParts };
constexpr std::array<double, kParts> kUnits = {10, 0.1, 0.1, 0.1, 0.1, 0.01, 0.1};
using Node = std::array<std::int16_t, kParts>;

class Net {
 public:
  Net() {
    const std::vector<unsigned char> bytes = Inflated({skyloft_climate_begin, skyloft_climate_end});
    Unpacker data(bytes);
    north_ = data.Next<std::int16_t>();
    west_ = data.Next<std::int16_t>();
    rows_ = data.Next<std::int16_t>();
    columns_ = data.Next<std::int16_t>();
    nodes_.resize(static_cast<std::size_t>(rows_ * columns_));
    for (std::size_t part = 0; part < kParts; ++part) Read(data, part);
  }

  // How far a point is inside, degrees; 0 at the rim.
  double Depth(Point point) const {
    const double y = north_ - point.latitude, x = point.longitude - west_;
    return std::min({y, x, (rows_ - 1) / kPerDegree - y, (columns_ - 1) / kPerDegree - x});
  }

  // Inside the net: along straight lines between its nodes.
  Climate At(Point point) const {
    const double y = (north_ - point.latitude) * kPerDegree, x = (point.longitude - west_) * kPerDegree;
    const int row = std::clamp(static_cast<int>(y), 0, rows_ - 2);
    const int column = std::clamp(static_cast<int>(x), 0, columns_ - 2);
    const double down = y - row, right = x - column;
    const Node* above = &nodes_[static_cast<std::size_t>(row * columns_ + column)];
    const Node* below = above + columns_;
    std::array<double, kParts> parts;
    for (std::size_t i = 0; i < kParts; ++i) {
      const double upper = above[0][i] + (above[1][i] - above[0][i]) * right;
      const double lower = below[0][i] + (below[1][i] - below[0][i]) * right;
      parts[i] = (upper + (lower - upper) * down) * kUnits[i];
    }
    return {parts[kMean] - kLapse * parts[kHeight],
            parts[kSwing],
            parts[kWinterRange],
            parts[kSummerRange],
            std::exp(parts[kInches]),
            parts[kWinterShare] / 100};
  }

 private:
  // Values are stored as what they differ from the plane through those left and above.
  void Read(Unpacker& data, std::size_t part) {
    const auto value = [&](int row, int column) {
      return row < 0 || column < 0 ? 0 : nodes_[static_cast<std::size_t>(row * columns_ + column)][part];
    };
    for (int row = 0; row < rows_; ++row) {
      for (int column = 0; column < columns_; ++column) {
        const int plane = value(row, column - 1) + value(row - 1, column) - value(row - 1, column - 1);
        nodes_[static_cast<std::size_t>(row * columns_ + column)][part] =
            static_cast<std::int16_t>(plane + data.Next<std::int16_t>());
      }
    }
  }

  int north_, west_, rows_, columns_;  // degrees, nodes
  std::vector<Node> nodes_;            // row after row
};

// Rough, for the seas and for other continents.
Climate ByLatitude(double latitude) {
  const double away = std::abs(latitude);
  const double warmth = SmoothStep(15, 35, away);
  Climate climate;
  climate.mean = 80 - 1.1 * std::max(0.0, away - 20);
  climate.swing = std::min(0.2 * away + 0.75 * std::max(0.0, away - 20), 28.0);
  climate.winter_range = climate.summer_range = std::lerp(10, 17, warmth);
  climate.inches = std::lerp(90, 35, warmth);
  climate.winter_share = 0.5;
  return climate;
}

}  // namespace

Climate ClimateAt(Point point) {
  static const Net net;
  const double share = SmoothStep(0, kRim, net.Depth(point));
  if (share == 1) return net.At(point);
  Climate climate = ByLatitude(point.latitude);
  if (share == 0) return climate;
  const Climate inside = net.At(point);
  for (const auto member : {&Climate::mean, &Climate::swing, &Climate::winter_range, &Climate::summer_range,
                            &Climate::inches, &Climate::winter_share})
    climate.*member = std::lerp(climate.*member, inside.*member, share);
  return climate;
}

}  // namespace skyloft::feed
