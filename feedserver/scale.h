// How a quantity becomes colours: bands of it, each with a colour and the number at its lower end.
#pragma once

#include <span>
#include <string_view>

#include "feedserver/canvas.h"

namespace skyloft::feed {

struct Band {
  double from;
  Colour colour;
  std::string_view label{};  // "" where a number would be too many
};

// Bands from the lowest to the highest.
struct Scale {
  std::string_view unit;
  std::span<const Band> bands;

  // The band of a value; null below the lowest.
  const Band* BandOf(double value) const {
    const Band* found = nullptr;
    for (const Band& band : bands) {
      if (value < band.from) break;
      found = &band;
    }
    return found;
  }
};

}  // namespace skyloft::feed
