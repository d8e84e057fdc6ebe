// The colours that a radar picture gets.
#pragma once

#include <vector>

#include "platform/pictures.h"

namespace skyloft {

// In their order: the black of the second step must not be the one that the first step clears.
inline const std::vector<ColorReplacement>& RadarColors() {
  static const std::vector<ColorReplacement> colors = {
      {{0, 0, 0}, {90, 90, 80}},
      {{0, 139, 0}, {0, 0, 0}},
      {{205, 0, 0}, {255, 75, 75}},
  };
  return colors;
}

}  // namespace skyloft
