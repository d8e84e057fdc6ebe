// Lines of equal pressure, with the highs and lows between them.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "feedserver/lettering.h"
#include "feedserver/overlays.h"
#include "feedserver/rows.h"

namespace skyloft::feed {
namespace {

constexpr Colour kLine{70, 84, 120}, kRim{255, 255, 255};

constexpr double kSquare = 8;  // pixels

// A square of the picture with the values at its corners, clockwise, and the first once more.
struct Square {
  std::array<Pixel, 5> corners;
  std::array<double, 5> values;
};

Square SquareAt(const Samples& samples, double x, double y) {
  Square square{{{{x, y}, {x + kSquare, y}, {x + kSquare, y + kSquare}, {x, y + kSquare}, {x, y}}}, {}};
  std::ranges::transform(square.corners, square.values.begin(), [&](Pixel at) { return samples.At(at); });
  return square;
}

// Where the line of a level crosses the sides: none, two or four places.
std::vector<Pixel> Crossings(const Square& square, double level) {
  std::vector<Pixel> places;
  for (std::size_t side = 0; side < 4; ++side) {
    const Pixel from = square.corners[side], to = square.corners[side + 1];
    const double first = square.values[side], second = square.values[side + 1];
    if ((first < level) == (second < level)) continue;
    const double share = (level - first) / (second - first);
    places.push_back({std::lerp(from.x, to.x, share), std::lerp(from.y, to.y, share)});
  }
  return places;
}

// How far the values around a place, as far as `reach` pixels, lie above it and below it.
struct Around {
  double rise = 0, fall = 0;
};

Around AroundOf(const Samples& samples, Pixel place, double reach, double step) {
  const double value = samples.At(place);
  Around around;
  for (double y = place.y - reach; y <= place.y + reach; y += step) {
    for (double x = place.x - reach; x <= place.x + reach; x += step) {
      const double other =
          samples.At({std::clamp(x, 0.0, kMapWidth * 1.0), std::clamp(y, 0.0, kMapHeight * 1.0)});
      around.rise = std::max(around.rise, other - value);
      around.fall = std::max(around.fall, value - other);
    }
  }
  return around;
}

// Calls `draw` with every piece of the lines: its ends and its level.
template <class Draw>
void ForPieces(const Samples& samples, double step, Draw draw) {
  for (double y = 0; y < kMapHeight; y += kSquare) {
    for (double x = 0; x < kMapWidth; x += kSquare) {
      const Square square = SquareAt(samples, x, y);
      const auto [least, most] = std::ranges::minmax(square.values);
      for (double number = std::ceil(least / step); number * step <= most; ++number) {
        const auto places = Crossings(square, number * step);
        for (std::size_t i = 0; i + 1 < places.size(); i += 2) draw(places[i], places[i + 1], number * step);
      }
    }
  }
}

}  // namespace

void DrawExtremes(Canvas& canvas, const Samples& samples, Room& room) {
  constexpr int kStep = 16, kReach = 96;
  constexpr double kTop = 80, kSide = 40, kLeast = 0.05;  // inches
  for (double y = kTop; y < kMapHeight - kSide; y += kStep) {
    for (double x = kSide; x < kMapWidth - kSide; x += kStep) {
      const Around around = AroundOf(samples, {x, y}, kReach, kStep);
      const bool is_high = around.rise == 0 && around.fall > kLeast;
      const bool is_low = around.fall == 0 && around.rise > kLeast;
      const std::string number = Amount(samples.At({x, y}), 2);
      const double half = TextWidth(number, 7) / 2;
      if (is_high == is_low || !room.Take({x - half - 3, y - 12, x + half + 3, y + 24})) continue;
      const Colour colour = is_high ? Colour{28, 60, 168} : Colour{184, 32, 40};
      WriteWithRim(canvas, is_high ? "H" : "L", {x - 6, y - 9}, 18, 3.4, colour, kRim);
      WriteWithRim(canvas, number, {x - half, y + 14}, 7, 1.2, colour, kRim);
    }
  }
}

void DrawIsobars(Canvas& canvas, const Samples& samples, double step) {
  ForPieces(samples, step, [&](Pixel from, Pixel to, double) {
    canvas.DrawSoft(std::array{from, to}, 1.2, kLine);
  });
}

void LabelIsobars(Canvas& canvas, const Samples& samples, double step, Room& room) {
  constexpr double kHeight = 6, kApart = 60;  // of a letter; around a label, pixels
  Room apart({-kApart, -kApart, kMapWidth + kApart, kMapHeight + kApart});
  ForPieces(samples, step, [&](Pixel from, Pixel, double level) {
    const std::string number = Amount(level, 1);
    const double half = TextWidth(number, kHeight) / 2;
    const Box box{from.x - half - 2, from.y - kHeight / 2 - 2, from.x + half + 2, from.y + kHeight / 2 + 2};
    const Box wide{box.left - kApart, box.top - kApart, box.right + kApart, box.bottom + kApart};
    if (!apart.IsFree(wide) || !room.Take(box)) return;
    apart.Take(wide);
    WriteWithRim(canvas, number, {box.left + 2, box.top + 2}, kHeight, 1, kLine, kRim);
  });
}

}  // namespace skyloft::feed
