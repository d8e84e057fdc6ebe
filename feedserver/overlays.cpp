#include "feedserver/overlays.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numbers>
#include <string>

#include "base/values.h"
#include "feedserver/cities.h"
#include "feedserver/lettering.h"

namespace skyloft::feed {
namespace {

constexpr Colour kInk{32, 36, 44}, kWhite{255, 255, 255};

// The least important cities that a map of this width has room for.
int LowestRank(const Sector& sector) { return sector.MetresPerPixel() > 5000 ? 1 : 2; }

constexpr double kNameHeight = 7, kNumberHeight = 10;

// Draws a city with its texts from `left` on.
void DrawCity(const Sheet& sheet, const City& city, Pixel at, double left, bool has_numbers) {
  Canvas& canvas = sheet.canvas;
  canvas.DrawSoft(std::array{at}, 5.4, kWhite);
  canvas.DrawSoft(std::array{at}, 3.4, kInk);
  const double name_top = has_numbers ? at.y + 2 : at.y - kNameHeight / 2;
  WriteWithRim(canvas, city.name, {left, name_top}, kNameHeight, 1.1, kInk, kWhite);
  if (!has_numbers) return;
  const MapRequest& request = sheet.request;
  const double value = ValueOf(*request.layer, request.hours, city.point, request.valid, sheet.seed);
  WriteWithRim(canvas, NumberText(static_cast<double>(RoundHalfAway(value))),
               {left, at.y - kNumberHeight - 1}, kNumberHeight, 1.9, kInk, kWhite);
}

std::vector<std::vector<MapPoint>> ProjectedOutlines() {
  std::vector<std::vector<MapPoint>> projected;
  for (const Outline& outline : Outlines())
    std::ranges::transform(outline.points, std::back_inserter(projected.emplace_back()), Project);
  return projected;
}

}  // namespace

std::vector<DrawnOutline> OutlinesOn(const Sheet& sheet) {
  static const std::vector<std::vector<MapPoint>> projected = ProjectedOutlines();
  std::vector<DrawnOutline> drawn;
  drawn.reserve(projected.size());
  for (std::size_t i = 0; i < projected.size(); ++i) {
    std::vector<Pixel>& path = drawn.emplace_back(DrawnOutline{Outlines()[i], {}}).path;
    path.reserve(projected[i].size());
    for (const MapPoint& point : projected[i]) path.push_back(sheet.request.sector->PixelOf(point));
  }
  return drawn;
}

void DrawOutlines(Canvas& canvas, std::span<const DrawnOutline> outlines) {
  const struct {
    Stroke stroke;
    double width;
    Colour colour;
  } kPens[] = {{Stroke::State, 0.8, {122, 122, 124}},
               {Stroke::Coast, 1.1, {62, 78, 100}},
               {Stroke::Border, 1.3, {76, 70, 74}}};
  for (const auto& pen : kPens) {
    for (const DrawnOutline& drawn : outlines) {
      if (drawn.outline.stroke == pen.stroke) canvas.DrawSoft(drawn.path, pen.width, pen.colour);
    }
  }
}

void DrawCities(const Sheet& sheet, bool has_numbers, Room& room) {
  const double above = has_numbers ? kNumberHeight + 6 : 6, below = has_numbers ? 12 : 8;
  for (int rank = 1; rank <= LowestRank(*sheet.request.sector); ++rank) {
    for (const City& city : Cities()) {
      if (city.rank != rank) continue;
      const Pixel at = sheet.PixelOf(city.point);
      if (const auto left = room.TakeBeside(at, TextWidth(city.name, kNameHeight), above, below))
        DrawCity(sheet, city, at, *left, has_numbers);
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
