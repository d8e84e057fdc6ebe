#include "feedserver/overlays.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include "base/values.h"
#include "feedserver/cities.h"
#include "feedserver/lettering.h"
#include "feedserver/outlines.h"

namespace skyloft::feed {
namespace {

constexpr Colour kInk{32, 36, 44}, kBorder{104, 104, 108}, kWhite{255, 255, 255};

struct Box {
  double left, top, right, bottom;

  bool Covers(const Box& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
};

// The least important cities that a map of this width has room for.
int LowestRank(const Sector& sector) { return sector.MetresPerPixel() > 5000 ? 1 : 2; }

constexpr double kNameHeight = 7, kNumberHeight = 10;

Box LabelBox(Pixel at, double width, bool has_numbers) {
  return {at.x - 3, at.y - (has_numbers ? kNumberHeight + 6 : 6), at.x + width + 8,
          at.y + (has_numbers ? 12 : 8)};
}

void DrawCity(const Sheet& sheet, const City& city, Pixel at, bool has_numbers) {
  Canvas& canvas = sheet.canvas;
  canvas.DrawSoft(std::array{at}, 5.4, kWhite);
  canvas.DrawSoft(std::array{at}, 3.4, kInk);
  const double name_top = has_numbers ? at.y + 2 : at.y - kNameHeight / 2;
  WriteWithRim(canvas, city.name, {at.x + 6, name_top}, kNameHeight, 1.1, kInk, kWhite);
  if (!has_numbers) return;
  const MapRequest& request = sheet.request;
  const double value = ValueOf(*request.layer, request.hours, city.point, request.valid, sheet.seed);
  WriteWithRim(canvas, NumberText(static_cast<double>(RoundHalfAway(value))),
               {at.x + 6, at.y - kNumberHeight - 1}, kNumberHeight, 1.9, kInk, kWhite);
}

}  // namespace

void DrawOutlines(const Sheet& sheet) {
  std::vector<Pixel> path;
  for (const bool is_edge : {false, true}) {  // coasts over borders
    for (const Outline& outline : Outlines()) {
      if (outline.is_edge != is_edge) continue;
      path.clear();
      for (const Point& point : outline.points) path.push_back(sheet.PixelOf(point));
      sheet.canvas.DrawSoft(path, is_edge ? 1.5 : 0.9, is_edge ? kInk : kBorder);
    }
  }
}

void DrawCities(const Sheet& sheet, bool has_numbers) {
  constexpr double kMargin = 4, kBarHeight = 46;
  std::vector<Box> taken;
  for (int rank = 1; rank <= LowestRank(*sheet.request.sector); ++rank) {
    for (const City& city : Cities()) {
      const Pixel at = sheet.PixelOf(city.point);
      const Box box = LabelBox(at, TextWidth(city.name, kNameHeight), has_numbers);
      const bool is_on_map = box.left > kMargin && box.top > kBarHeight && box.right < kMapWidth - kMargin &&
                             box.bottom < kMapHeight - kMargin;
      const bool is_free = std::ranges::none_of(taken, [&](const Box& other) { return box.Covers(other); });
      if (city.rank != rank || !is_on_map || !is_free) continue;
      taken.push_back(box);
      DrawCity(sheet, city, at, has_numbers);
    }
  }
}

void DrawArrows(const Sheet& sheet) {
  constexpr int kStep = 32;
  constexpr double kReach = 0.05;  // degrees that the direction is measured over
  for (int y = kStep / 2; y < kMapHeight; y += kStep) {
    for (int x = kStep / 2; x < kMapWidth; x += kStep) {
      const Pixel at{static_cast<double>(x), static_cast<double>(y)};
      const Point point = sheet.PointOf(at);
      const Weather weather = WeatherAt(point, sheet.request.valid, sheet.seed);
      if (weather.wind_speed < 1) continue;
      const double angle = weather.wind_from * std::numbers::pi / 180;
      const Pixel ahead = sheet.PixelOf(
          {point.latitude - kReach * std::cos(angle),
           point.longitude - kReach * std::sin(angle) / std::cos(point.latitude * std::numbers::pi / 180)});
      const double distance = std::hypot(ahead.x - at.x, ahead.y - at.y);
      const double dx = (ahead.x - at.x) / distance, dy = (ahead.y - at.y) / distance;
      const double half = 4 + std::min(weather.wind_speed, 40.0) * 0.22;
      const Pixel tip{at.x + dx * half, at.y + dy * half}, tail{at.x - dx * half, at.y - dy * half};
      const Pixel left{tip.x - dx * 5 - dy * 3, tip.y - dy * 5 + dx * 3};
      const Pixel right{tip.x - dx * 5 + dy * 3, tip.y - dy * 5 - dx * 3};
      sheet.canvas.DrawSoft(std::array{tail, tip}, 1.2, kInk);
      sheet.canvas.DrawSoft(std::array{left, tip, right}, 1.2, kInk);
    }
  }
}

void DrawRoads(const Sheet& sheet) {
  constexpr double kPiece = 12;  // pixels
  const MapRequest& request = sheet.request;
  for (const bool is_rim : {true, false}) {
    for (const Highway& highway : Highways()) {
      for (std::size_t i = 1; i < highway.points.size(); ++i) {
        const Pixel from = sheet.PixelOf(highway.points[i - 1]), to = sheet.PixelOf(highway.points[i]);
        const int pieces = 1 + static_cast<int>(std::hypot(to.x - from.x, to.y - from.y) / kPiece);
        for (int piece = 0; piece < pieces; ++piece) {
          const auto at = [&](double share) {
            return Pixel{std::lerp(from.x, to.x, share), std::lerp(from.y, to.y, share)};
          };
          const std::array line = {at(1.0 * piece / pieces), at((piece + 1.0) / pieces)};
          if (is_rim) {
            sheet.canvas.DrawSoft(line, 5.5, kInk);
            continue;
          }
          const Point middle = sheet.PointOf(at((piece + 0.5) / pieces));
          const double value = ValueOf(*request.layer, request.hours, middle, request.valid, sheet.seed);
          const Band* const band = request.layer->scale.BandOf(value);
          if (band) sheet.canvas.DrawSoft(line, 3.6, band->colour);
        }
      }
    }
  }
}

void DrawScale(Canvas& canvas, const Scale& scale, Pixel corner, double width, double box_height) {
  constexpr double kLetters = 6;
  const double unit_width = scale.unit.empty() ? 0 : TextWidth(scale.unit, kLetters) + 8;
  const double box_width = (width - unit_width) / static_cast<double>(scale.bands.size());
  double left = corner.x;
  for (const Band& band : scale.bands) {
    const int from = static_cast<int>(std::round(left)), to = static_cast<int>(std::round(left + box_width));
    canvas.FillBox(from, static_cast<int>(corner.y), to - from, static_cast<int>(box_height), band.colour);
    WriteSoft(canvas, band.label, {left, corner.y + box_height + 2.5}, kLetters, 1, {214, 224, 240});
    left += box_width;
  }
  WriteSoft(canvas, scale.unit, {left + 8, corner.y + box_height - kLetters}, kLetters, 1, kWhite);
}

}  // namespace skyloft::feed
