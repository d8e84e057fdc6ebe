#include "feedserver/maps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "feedserver/grain.h"
#include "feedserver/lettering.h"
#include "feedserver/overlays.h"

namespace skyloft::feed {
namespace {

// What lies under the colours of a layer, and how much of it they cover.
struct Ground {
  Colour colour;
  double share;
};
constexpr Ground kWater{{176, 194, 212}, 0.5}, kNeighbours{{222, 219, 211}, 0.68},
    kLand{{240, 236, 226}, 0.92};
constexpr Colour kBar{24, 40, 72}, kWhite{255, 255, 255};
constexpr int kBarHeight = 42, kBarRight = 598;  // a client shows the first 604 pixels of a row
constexpr int kLegendWidth = 604, kLegendHeight = 40;

Samples Measure(const Sheet& sheet) {
  const MapRequest& request = sheet.request;
  const int step = request.hours > 0 ? 16 : 8;  // pixels; sums have no small features
  return Samples(kMapWidth, kMapHeight, step, [&](Pixel pixel) {
    return ValueOf(*request.layer, request.hours, sheet.PointOf(pixel), request.valid, sheet.seed);
  });
}

// dBZ that a factor of the rain is worth: Z goes with the rain to the power of 1.6.
double EchoOfFactor(double factor) { return 16 * std::log10(factor); }

// The ground of each pixel, row by row.
class Grounds {
 public:
  explicit Grounds(std::span<const DrawnOutline> outlines) {
    for (const DrawnOutline& drawn : outlines) {
      if (drawn.outline.area == Area::None) continue;
      Mask& mask = masks_[static_cast<std::size_t>(drawn.outline.area) - 1];
      for (std::size_t i = 1; i < drawn.path.size(); ++i) mask.AddLine(drawn.path[i - 1], drawn.path[i]);
    }
  }

  std::vector<const Ground*> Row(int y) const {
    const auto country = masks_[0].Row(y), neighbours = masks_[1].Row(y), lakes = masks_[2].Row(y);
    std::vector<const Ground*> row;
    row.reserve(country.size());
    for (std::size_t x = 0; x < country.size(); ++x)
      row.push_back(country[x] ? &kLand : neighbours[x] && !lakes[x] ? &kNeighbours : &kWater);
    return row;
  }

 private:
  std::array<Mask, 3> masks_ = {Mask(kMapWidth, kMapHeight), Mask(kMapWidth, kMapHeight),
                                Mask(kMapWidth, kMapHeight)};  // in the order of Area
};

// Gives a row of echoes the grain that those of a radar have; none disappears.
void Roughen(int y, const Scale& scale, std::span<double> echoes) {
  const double least = scale.bands.front().from;
  for (int x = 0; double& echo : echoes) {
    if (echo >= least) echo = std::max(least, echo + EchoOfFactor(GrainAt(x, y)));
    ++x;
  }
}

// Land and water, and over both the colours of the layer where `samples` are given.
void DrawGround(const Sheet& sheet, std::span<const DrawnOutline> outlines, const Samples* samples) {
  const Grounds grounds(outlines);
  std::vector<double> values(kMapWidth);
  for (int y = 0; y < kMapHeight; ++y) {
    const auto below = grounds.Row(y);
    if (samples) samples->ReadRow(y, values);
    if (sheet.request.layer->is_echo) Roughen(y, sheet.request.layer->scale, values);
    const auto row = sheet.canvas.Row(y);
    const Ground* last_ground = nullptr;
    const Band* last_band = nullptr;
    Colour colour;
    for (std::size_t x = 0; x < row.size(); ++x) {
      const Band* const band = samples ? sheet.request.layer->scale.BandOf(values[x]) : nullptr;
      if (band != last_band || below[x] != last_ground) {
        last_band = band;
        last_ground = below[x];
        colour = band ? Mix(last_ground->colour, band->colour, last_ground->share) : last_ground->colour;
      }
      row[x] = colour;
    }
  }
}

void DrawMarks(const Sheet& sheet, const Samples* samples) {
  constexpr double kMargin = 4, kIsobarStep = 0.1;  // inches
  const Marks marks = sheet.request.layer->marks;
  // A client cuts off what is right of the bar.
  Room room({kMargin, kBarHeight + kMargin, kBarRight, kMapHeight - kMargin});
  if (marks == Marks::Arrows) DrawArrows(sheet);
  if (marks == Marks::Roads) DrawRoads(sheet);
  if (marks == Marks::Isobars) {
    DrawIsobars(sheet.canvas, *samples, kIsobarStep);
    DrawExtremes(sheet.canvas, *samples, room);
  }
  DrawCities(sheet, marks == Marks::Numbers, room);
  if (marks == Marks::Isobars) LabelIsobars(sheet.canvas, *samples, kIsobarStep, room);
}

std::string TimeText(const MapRequest& request) {
  const std::string moment = Format(request.valid, "ddd mmm d yyyy hh:nn") + " UTC";
  return request.hours > 0 ? std::to_string(request.hours) + " hours to " + moment : "Valid " + moment;
}

void DrawBar(const MapRequest& request, Canvas& canvas) {
  canvas.FillBox(0, 0, kMapWidth, kBarHeight, kBar);
  canvas.FillBox(0, kBarHeight, kMapWidth, 1, kWhite, 0.7);
  WriteSoft(canvas, request.title, {9, 6}, 11, 1.8, kWhite);
  const std::string time = TimeText(request);
  constexpr double kTimeHeight = 8;
  WriteSoft(canvas, time, {kBarRight - TextWidth(time, kTimeHeight), 8}, kTimeHeight, 1.2, {206, 220, 240});
  WriteSoft(canvas, "SIMULATED", {9, 27}, 7, 1.1, {244, 196, 96});
  DrawScale(canvas, request.layer->scale, {80, 23}, kBarRight - 80, 8);
}

}  // namespace

Canvas DrawMap(const MapRequest& request, std::uint64_t seed) {
  Canvas canvas(kMapWidth, kMapHeight, kWater.colour);
  const Sheet sheet{canvas, request, seed};
  std::optional<Samples> samples;
  if (request.layer->marks != Marks::Roads) samples = Measure(sheet);
  const Samples* const field = samples ? &*samples : nullptr;
  const auto outlines = OutlinesOn(sheet);
  DrawGround(sheet, outlines, field);
  DrawOutlines(canvas, outlines);
  DrawMarks(sheet, field);
  DrawBar(request, canvas);
  return canvas;
}

Canvas DrawLegend(const Layer& layer) {
  Canvas canvas(kLegendWidth, kLegendHeight, kBar);
  WriteSoft(canvas, layer.title, {8, 5}, 7.5, 1.2, kWhite);
  DrawScale(canvas, layer.scale, {8, 17}, kLegendWidth - 16, 11);
  return canvas;
}

}  // namespace skyloft::feed
