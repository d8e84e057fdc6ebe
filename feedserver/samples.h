// A quantity over a picture: known at the corners of a coarse net, and smooth between them.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "feedserver/canvas.h"

namespace skyloft::feed {

// Between the corners it follows the uniform cubic B-spline, which has no corners of its own: a quantity that
// rises evenly is exact, a peak narrower than two squares is lower than it was. Source: C. de Boor, A
// Practical Guide to Splines, 1978.
class Samples {
 public:
  // Asks `value` for each corner of a net of squares of `step` pixels that covers the picture and one square
  // more on each side.
  template <class Value>
  Samples(int width, int height, int step, Value value)
      : step_(step), columns_((width + step - 1) / step + 3), rows_((height + step - 1) / step + 3) {
    for (int row = 0; row < rows_; ++row) {
      for (int column = 0; column < columns_; ++column) {
        values_.push_back(
            value(Pixel{static_cast<double>((column - 1) * step), static_cast<double>((row - 1) * step)}));
      }
    }
  }
  // The values at the middle of the pixels of a row of the picture, from the left.
  void ReadRow(int y, std::span<double> row) const;
  double At(Pixel place) const;

 private:
  // The squares and weights that make up a value: those of corners `first` to `first` + 3.
  struct Mixture {
    std::size_t first;
    std::array<double, 4> weights;
  };
  Mixture MixtureOf(double place, int count) const;
  double Crossing(const Mixture& rows, std::size_t column) const;

  int step_, columns_, rows_;
  std::vector<double> values_;  // row after row
};

}  // namespace skyloft::feed
