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

// Where the line of a level crosses the sides of a square of `step` pixels: none, two or four places.
std::vector<Pixel> Crossings(const Samples& samples, Pixel corner, double step, double level) {
  const std::array<Pixel, 5> corners = {{corner,
                                         {corner.x + step, corner.y},
                                         {corner.x + step, corner.y + step},
                                         {corner.x, corner.y + step},
                                         corner}};
  std::vector<Pixel> places;
  for (std::size_t side = 0; side < 4; ++side) {
    const Pixel from = corners[side], to = corners[side + 1];
    const double first = samples.At(from), second = samples.At(to);
    if ((first < level) == (second < level)) continue;
    const double share = (level - first) / (second - first);
    places.push_back({std::lerp(from.x, to.x, share), std::lerp(from.y, to.y, share)});
  }
  return places;
}

// Writes H and L where nothing around is higher or lower.
void DrawExtremes(const Sheet& sheet, const Samples& samples) {
  constexpr int kStep = 16, kReach = 6;
  constexpr double kTop = 80, kSide = 40;
  for (double y = kTop; y < kMapHeight - kSide; y += kStep) {
    for (double x = kSide; x < kMapWidth - kSide; x += kStep) {
      const double value = samples.At({x, y});
      bool is_high = true, is_low = true;
      for (int i = -kReach; i <= kReach; ++i) {
        for (int j = -kReach; j <= kReach; ++j) {
          const double other = samples.At({std::clamp(x + i * kStep, 0.0, kMapWidth * 1.0),
                                           std::clamp(y + j * kStep, 0.0, kMapHeight * 1.0)});
          is_high &= other <= value;
          is_low &= other >= value;
        }
      }
      if (is_high == is_low) continue;
      const Colour colour = is_high ? Colour{28, 60, 168} : Colour{184, 32, 40};
      WriteWithRim(sheet.canvas, is_high ? "H" : "L", {x - 6, y - 9}, 18, 3.4, colour, kRim);
      const std::string number = Amount(value, 2);
      WriteWithRim(sheet.canvas, number, {x - TextWidth(number, 7) / 2, y + 14}, 7, 1.2, colour, kRim);
    }
  }
}

}  // namespace

void DrawIsobars(const Sheet& sheet, const Samples& samples, double step) {
  constexpr int kSquare = 8;
  for (int y = 0; y < kMapHeight; y += kSquare) {
    for (int x = 0; x < kMapWidth; x += kSquare) {
      const Pixel corner{static_cast<double>(x), static_cast<double>(y)};
      const double middle = samples.At({corner.x + kSquare / 2.0, corner.y + kSquare / 2.0});
      for (int i = -2; i <= 2; ++i) {
        const double level = (std::round(middle / step) + i) * step;
        const auto places = Crossings(samples, corner, kSquare, level);
        for (std::size_t j = 0; j + 1 < places.size(); j += 2)
          sheet.canvas.DrawSoft(std::array{places[j], places[j + 1]}, 1.2, kLine);
      }
    }
  }
  DrawExtremes(sheet, samples);
}

}  // namespace skyloft::feed
