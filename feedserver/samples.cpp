#include "feedserver/samples.h"

#include <algorithm>
#include <cmath>

#include "base/tables.h"

namespace skyloft::feed {

double Samples::Corner(int row, int column) const {
  return values_[CheckedIndex(row * columns_ + column, values_.size())];
}

double Samples::At(Pixel place) const {
  const int column = std::clamp(static_cast<int>(std::floor(place.x / step_)), 0, columns_ - 2);
  const int row = std::clamp(static_cast<int>(std::floor(place.y / step_)), 0, rows_ - 2);
  const double right = place.x / step_ - column, down = place.y / step_ - row;
  return std::lerp(std::lerp(Corner(row, column), Corner(row, column + 1), right),
                   std::lerp(Corner(row + 1, column), Corner(row + 1, column + 1), right), down);
}

void Samples::ReadRow(int y, std::span<double> row) const {
  const int above = std::clamp(y / step_, 0, rows_ - 2);
  const double down = (y + 0.5) / step_ - above;
  const auto crossing = [&](int column) {
    const double upper = Corner(above, column);
    return upper + (Corner(above + 1, column) - upper) * down;
  };
  double left = crossing(0);
  std::size_t x = 0;
  for (int column = 1; column < columns_; ++column) {
    const double right = crossing(column), slope = (right - left) / step_;
    for (int i = 0; i < step_ && x < row.size(); ++i) row[x++] = left + slope * (i + 0.5);
    left = right;
  }
}

}  // namespace skyloft::feed
