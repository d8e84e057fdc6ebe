#include "feedserver/canvas.h"

#include <algorithm>
#include <cmath>

#include "base/tables.h"

namespace skyloft::feed {
namespace {

int Floor(double value) { return static_cast<int>(std::floor(std::clamp(value, -1e6, 1e6))); }

std::uint8_t MixPart(std::uint8_t from, std::uint8_t to, double share) {
  return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
}

double DistanceToLine(Pixel place, Pixel from, Pixel to) {
  const double dx = to.x - from.x, dy = to.y - from.y;
  const double length = dx * dx + dy * dy;
  const double along = length > 0 ? ((place.x - from.x) * dx + (place.y - from.y) * dy) / length : 0;
  const double share = std::clamp(along, 0.0, 1.0);
  return std::hypot(place.x - from.x - share * dx, place.y - from.y - share * dy);
}

}  // namespace

Colour Mix(Colour from, Colour to, double share) {
  return {MixPart(from.red, to.red, share), MixPart(from.green, to.green, share),
          MixPart(from.blue, to.blue, share)};
}

Canvas::Canvas(int width, int height, Colour ground)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height), ground) {}

std::span<Colour> Canvas::Row(int y) {
  return std::span(pixels_).subspan(
      CheckedIndex(y, static_cast<std::size_t>(height_)) * static_cast<std::size_t>(width_),
      static_cast<std::size_t>(width_));
}

std::span<const Colour> Canvas::Row(int y) const { return const_cast<Canvas*>(this)->Row(y); }

void Canvas::Blend(int x, int y, Colour colour, double share) {
  if (x < 0 || x >= width_ || y < 0 || y >= height_ || share <= 0) return;
  const int place = y * width_ + x;
  Colour& pixel = pixels_[static_cast<std::size_t>(place)];
  pixel = share >= 1 ? colour : Mix(pixel, colour, share);
}

void Canvas::FillBox(int left, int top, int width, int height, Colour colour, double share) {
  for (int y = top; y < top + height; ++y) {
    for (int x = left; x < left + width; ++x) Blend(x, y, colour, share);
  }
}

void Canvas::DrawHard(std::span<const Pixel> path, Colour colour) {
  for (std::size_t i = 0; i < path.size(); ++i) {
    const Pixel from = path[i], to = path[std::min(i + 1, path.size() - 1)];
    if (std::max(from.x, to.x) < 0 || std::min(from.x, to.x) >= width_ || std::max(from.y, to.y) < 0 ||
        std::min(from.y, to.y) >= height_) {
      continue;
    }
    const int steps = 1 + Floor(std::max(std::abs(to.x - from.x), std::abs(to.y - from.y)));
    for (int step = 0; step <= steps; ++step) {
      const double share = static_cast<double>(step) / steps;
      Blend(Floor(from.x + share * (to.x - from.x)), Floor(from.y + share * (to.y - from.y)), colour, 1);
    }
  }
}

void Canvas::DrawSoftLine(Pixel from, Pixel to, double width, Colour colour) {
  const double reach = width / 2 + 0.5;
  const int left = std::max(0, Floor(std::min(from.x, to.x) - reach));
  const int right = std::min(width_ - 1, Floor(std::max(from.x, to.x) + reach));
  const int top = std::max(0, Floor(std::min(from.y, to.y) - reach));
  const int bottom = std::min(height_ - 1, Floor(std::max(from.y, to.y) + reach));
  for (int y = top; y <= bottom; ++y) {
    for (int x = left; x <= right; ++x) {
      Blend(x, y, colour, std::min(1.0, reach - DistanceToLine({x + 0.5, y + 0.5}, from, to)));
    }
  }
}

void Canvas::DrawSoft(std::span<const Pixel> path, double width, Colour colour) {
  if (path.size() == 1) DrawSoftLine(path[0], path[0], width, colour);
  for (std::size_t i = 1; i < path.size(); ++i) DrawSoftLine(path[i - 1], path[i], width, colour);
}

void Mask::AddLine(Pixel from, Pixel to) {
  if (from.y > to.y) std::swap(from, to);
  // The rows whose middle lies from the upper end up to but not at the lower one, so that where two lines
  // meet only one of them counts.
  const int first = std::max(0, Floor(std::ceil(from.y - 0.5)));
  const int end = std::min(static_cast<int>(crossings_.size()), Floor(std::ceil(to.y - 0.5)));
  for (int y = first; y < end; ++y) {
    const double share = (y + 0.5 - from.y) / (to.y - from.y);
    crossings_[static_cast<std::size_t>(y)].push_back(from.x + share * (to.x - from.x));
  }
}

std::vector<std::uint8_t> Mask::Row(int y) const {
  std::vector<double> crossings = crossings_[CheckedIndex(y, crossings_.size())];
  std::ranges::sort(crossings);
  std::vector<std::uint8_t> row(static_cast<std::size_t>(width_));
  for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
    const int first = std::max(0, Floor(std::ceil(crossings[i] - 0.5)));
    const int end = std::min(width_, Floor(std::ceil(crossings[i + 1] - 0.5)));
    for (int x = first; x < end; ++x) row[static_cast<std::size_t>(x)] = 1;
  }
  return row;
}

}  // namespace skyloft::feed
