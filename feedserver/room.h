// The room on a picture, and what of it is taken by names and numbers.
#pragma once

#include <vector>

namespace skyloft::feed {

// In pixels.
struct Box {
  double left, top, right, bottom;
};

class Room {
 public:
  explicit Room(Box whole) : whole_(whole) {}
  // Whether a box lies within the room and covers nothing that is taken.
  bool IsFree(const Box& box) const;
  // Takes a box that is free; tells whether it was.
  bool Take(const Box& box);

 private:
  Box whole_;
  std::vector<Box> taken_;
};

}  // namespace skyloft::feed
