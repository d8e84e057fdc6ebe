#include "feedserver/maps.h"

#include <optional>
#include <vector>

#include "feedserver/lettering.h"
#include "feedserver/outlines.h"
#include "feedserver/overlays.h"

namespace skyloft::feed {
namespace {

constexpr Colour kLand{240, 236, 226}, kOutside{172, 186, 200};
constexpr Colour kBar{24, 40, 72}, kWhite{255, 255, 255};
constexpr double kFieldShare = 0.92;             // how much of a colour covers the land
constexpr double kOutsideShare = 0.4;            // and what lies outside
constexpr int kBarHeight = 42, kBarRight = 598;  // a client shows the first 604 pixels of a row
constexpr int kLegendWidth = 604, kLegendHeight = 40;

Samples Measure(const Sheet& sheet) {
  const MapRequest& request = sheet.request;
  const int step = request.hours > 0 ? 16 : 8;  // pixels; sums have no small features
  return Samples(kMapWidth, kMapHeight, step, [&](Pixel pixel) {
    return ValueOf(*request.layer, request.hours, sheet.PointOf(pixel), request.valid, sheet.seed);
  });
}

Mask CountryOf(const Sheet& sheet) {
  Mask mask(kMapWidth, kMapHeight);
  for (const Outline& outline : Outlines()) {
    if (!outline.is_edge) continue;
    for (std::size_t i = 1; i < outline.points.size(); ++i)
      mask.AddLine(sheet.PixelOf(outline.points[i - 1]), sheet.PixelOf(outline.points[i]));
  }
  return mask;
}

// The land, its surroundings, and over both the colours of the layer where `samples` are given.
void DrawGround(const Sheet& sheet, const Samples* samples) {
  const Mask country = CountryOf(sheet);
  std::vector<double> values(kMapWidth);
  for (int y = 0; y < kMapHeight; ++y) {
    const auto inside = country.Row(y);
    if (samples) samples->ReadRow(y, values);
    const auto row = sheet.canvas.Row(y);
    const Band* last = nullptr;
    Colour land = kLand, outside = kOutside;
    for (std::size_t x = 0; x < row.size(); ++x) {
      const Band* const band = samples ? sheet.request.layer->scale.BandOf(values[x]) : nullptr;
      if (band != last) {
        land = band ? Mix(kLand, band->colour, kFieldShare) : kLand;
        outside = band ? Mix(kOutside, band->colour, kOutsideShare) : kOutside;
        last = band;
      }
      row[x] = inside[x] ? land : outside;
    }
  }
}

void DrawMarks(const Sheet& sheet, const Samples* samples) {
  switch (sheet.request.layer->marks) {
    case Marks::Arrows: DrawArrows(sheet); break;
    case Marks::Isobars: DrawIsobars(sheet, *samples, 0.1); break;
    case Marks::Roads: DrawRoads(sheet); break;
    default: break;
  }
  DrawCities(sheet, sheet.request.layer->marks == Marks::Numbers);
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
  Canvas canvas(kMapWidth, kMapHeight, kOutside);
  const Sheet sheet{canvas, request, seed};
  std::optional<Samples> samples;
  if (request.layer->marks != Marks::Roads) samples = Measure(sheet);
  const Samples* const field = samples ? &*samples : nullptr;
  DrawGround(sheet, field);
  DrawOutlines(sheet);
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
