#include "feedserver/room.h"

#include <algorithm>

namespace skyloft::feed {

bool Room::IsFree(const Box& box) const {
  const bool is_within = box.left >= whole_.left && box.top >= whole_.top && box.right <= whole_.right &&
                         box.bottom <= whole_.bottom;
  return is_within && std::ranges::none_of(taken_, [&](const Box& other) {
           return box.left < other.right && other.left < box.right && box.top < other.bottom &&
                  other.top < box.bottom;
         });
}

bool Room::Take(const Box& box) {
  const bool is_free = IsFree(box);
  if (is_free) taken_.push_back(box);
  return is_free;
}

std::optional<double> Room::TakeBeside(Pixel dot, double width, double above, double below) {
  constexpr double kGap = 6, kMargin = 3;  // between the dot and its text; around both
  for (const double left : {dot.x + kGap, dot.x - kGap - width}) {
    if (Take({std::min(left, dot.x) - kMargin, dot.y - above, std::max(left + width, dot.x) + kMargin,
              dot.y + below})) {
      return left;
    }
  }
  return {};
}

}  // namespace skyloft::feed
