#include "feedserver/samples.h"

#include <algorithm>
#include <cmath>

namespace skyloft::feed {

Samples::Mixture Samples::MixtureOf(double place, int count) const {
  const double squares = place / step_;
  const int square = std::clamp(static_cast<int>(std::floor(squares)), 0, count - 4);
  const double t = squares - square, s = 1 - t;
  return {static_cast<std::size_t>(square),
          {s * s * s / 6, (4 - 3 * t * t * (1 + s)) / 6, (4 - 3 * s * s * (1 + t)) / 6, t * t * t / 6}};
}

double Samples::Crossing(const Mixture& rows, std::size_t column) const {
  double sum = 0;
  for (std::size_t i = 0; i < 4; ++i)
    sum += rows.weights[i] * values_[(rows.first + i) * static_cast<std::size_t>(columns_) + column];
  return sum;
}

double Samples::At(Pixel place) const {
  const Mixture rows = MixtureOf(place.y, rows_), columns = MixtureOf(place.x, columns_);
  double sum = 0;
  for (std::size_t i = 0; i < 4; ++i) sum += columns.weights[i] * Crossing(rows, columns.first + i);
  return sum;
}

void Samples::ReadRow(int y, std::span<double> row) const {
  const Mixture rows = MixtureOf(y + 0.5, rows_);
  std::vector<double> crossings(static_cast<std::size_t>(columns_));
  for (std::size_t column = 0; column < crossings.size(); ++column)
    crossings[column] = Crossing(rows, column);
  for (std::size_t x = 0; x < row.size(); ++x) {
    const Mixture columns = MixtureOf(static_cast<double>(x) + 0.5, columns_);
    row[x] = 0;
    for (std::size_t i = 0; i < 4; ++i) row[x] += columns.weights[i] * crossings[columns.first + i];
  }
}

}  // namespace skyloft::feed
