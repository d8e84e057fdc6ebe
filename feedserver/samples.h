// A quantity over a picture: known at the corners of a coarse net, and between them along straight lines.
#pragma once

#include <span>
#include <vector>

#include "feedserver/canvas.h"

namespace skyloft::feed {

class Samples {
 public:
  // Asks `value` for each corner of a net of squares of `step` pixels that covers the picture.
  template <class Value>
  Samples(int width, int height, int step, Value value)
      : step_(step), columns_((width + step - 1) / step + 1), rows_((height + step - 1) / step + 1) {
    for (int row = 0; row < rows_; ++row) {
      for (int column = 0; column < columns_; ++column)
        values_.push_back(value(Pixel{static_cast<double>(column * step), static_cast<double>(row * step)}));
    }
  }
  // The values at the middle of the pixels of a row of the picture, from the left.
  void ReadRow(int y, std::span<double> row) const;
  double At(Pixel place) const;

 private:
  double Corner(int row, int column) const;

  int step_, columns_, rows_;
  std::vector<double> values_;  // row after row
};

}  // namespace skyloft::feed
