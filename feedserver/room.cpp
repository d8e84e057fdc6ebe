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

}  // namespace skyloft::feed
