// The room on a picture, and what of it is taken by names and numbers.
#pragma once

#include <optional>
#include <vector>

#include "feedserver/canvas.h"

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
  // Takes the room of a text beside a dot, right of it or else left of it, that reaches from so far above to
  // so far below it. The left edge of the text; nothing when neither is free.
  std::optional<double> TakeBeside(Pixel dot, double width, double above, double below);

 private:
  Box whole_;
  std::vector<Box> taken_;
};

}  // namespace skyloft::feed
