// A picture in memory, and the few things that are drawn on one.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace skyloft::feed {

struct Colour {
  std::uint8_t red = 0, green = 0, blue = 0;
  bool operator==(const Colour&) const = default;
};

// The colour that lies `share` (0 to 1) of the way from one to another.
Colour Mix(Colour from, Colour to, double share);

// A place on a picture, in pixels from its upper left corner: pixel (i, j) reaches from i to i + 1 and j to j
// + 1.
struct Pixel {
  double x = 0, y = 0;
};

// All drawing is cut off at the edges of the canvas.
class Canvas {
 public:
  Canvas(int width, int height, Colour ground);
  int Width() const { return width_; }
  int Height() const { return height_; }
  // The pixels of a row, from the left. The row must exist.
  std::span<Colour> Row(int y);
  std::span<const Colour> Row(int y) const;

  void FillBox(int left, int top, int width, int height, Colour colour, double share = 1);
  // Lines from place to place: one pixel wide with no colour but the given one, or of any width with soft
  // edges. A path of one place is a dot.
  void DrawHard(std::span<const Pixel> path, Colour colour);
  void DrawSoft(std::span<const Pixel> path, double width, Colour colour);

 private:
  void DrawSoftLine(Pixel from, Pixel to, double width, Colour colour);
  void Blend(int x, int y, Colour colour, double share);

  int width_, height_;
  std::vector<Colour> pixels_;
};

// Whether the middle of each pixel lies inside closed lines: inside is what an odd number of them encloses.
class Mask {
 public:
  Mask(int width, int height) : width_(width), crossings_(static_cast<std::size_t>(height)) {}
  // Adds a piece of a closed line; the order of the pieces does not matter.
  void AddLine(Pixel from, Pixel to);
  // A row of the mask, 1 inside and 0 outside.
  std::vector<std::uint8_t> Row(int y) const;

 private:
  int width_;
  std::vector<std::vector<double>> crossings_;  // of the middle of each row, pixels
};

}  // namespace skyloft::feed
