#include "feedserver/radar.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "base/values.h"
#include "feedserver/cities.h"
#include "feedserver/grain.h"
#include "feedserver/lettering.h"
#include "feedserver/noise.h"
#include "feedserver/outlines.h"
#include "feedserver/room.h"
#include "feedserver/samples.h"
#include "feedserver/scale.h"
#include "feedserver/steps.h"

namespace skyloft::feed {
namespace {

constexpr int kSize = 620;                                 // pixels, both ways
constexpr double kPerLongitude = 100, kPerLatitude = 140;  // pixels a degree
constexpr Pixel kSitePixel{322, 308};
constexpr double kRange = 230, kKilometresPerDegree = 111.2;
constexpr Colour kGround{0, 0, 0}, kLines{0, 139, 0}, kMarks{205, 0, 0};
constexpr double kLetters = 8;  // height of a capital, pixels
constexpr Box kTitleBox{0, 0, 320, 38}, kLegendBox{0, 390, 60, 600};

// Reflectivity in dBZ after the rain rate: Z = 200 R^1.6, R in millimetres an hour. Source: Marshall and
// Palmer, The Distribution of Raindrops with Size, Journal of Meteorology 5, 1948.
constexpr auto kEchoes = std::to_array<Band>({
    {-1e9, {64, 96, 140}, "5"},
    {15, {72, 152, 200}, "15"},
    {20, {40, 200, 232}, "20"},
    {23, {24, 228, 120}, ""},
    {26, {16, 196, 60}, "26"},
    {29, {12, 160, 40}, ""},
    {32, {255, 244, 64}, "32"},
    {35, {244, 204, 24}, ""},
    {38, {255, 156, 16}, "38"},
    {41, {250, 100, 24}, ""},
    {44, {240, 36, 36}, "44"},
    {48, {176, 12, 40}, "48"},
    {52, {228, 60, 200}, "52"},
    {58, {160, 96, 228}, "58"},
});
constexpr auto kHour = std::to_array<Band>({
    {0.01, {90, 150, 170}, ".01"},
    {0.03, {64, 190, 220}, ".03"},
    {0.06, {56, 140, 240}, ".06"},
    {0.10, {64, 84, 224}, ".10"},
    {0.15, {40, 220, 110}, ".15"},
    {0.20, {24, 176, 60}, ".20"},
    {0.30, {255, 240, 60}, ".30"},
    {0.40, {250, 190, 30}, ".40"},
    {0.60, {250, 120, 24}, ".60"},
    {0.80, {232, 40, 40}, ".80"},
    {1.00, {214, 60, 190}, "1.0"},
    {1.50, {166, 110, 240}, "1.5"},
});
constexpr auto kDay = std::to_array<Band>({
    {0.05, {90, 150, 170}, ".05"},
    {0.15, {64, 190, 220}, ".15"},
    {0.30, {56, 140, 240}, ".30"},
    {0.50, {64, 84, 224}, ".50"},
    {0.75, {40, 220, 110}, ".75"},
    {1.00, {24, 176, 60}, "1.0"},
    {1.50, {255, 240, 60}, "1.5"},
    {2.00, {250, 190, 30}, "2.0"},
    {3.00, {250, 120, 24}, "3.0"},
    {4.00, {232, 40, 40}, "4.0"},
    {6.00, {214, 60, 190}, "6.0"},
    {8.00, {166, 110, 240}, "8.0"},
});

// How a product is sampled: the mean of moments `minutes` apart, times the hours that they span.
struct Kind {
  RadarProduct product;
  std::string_view folder, title;
  Scale scale;
  int step;  // pixels between two samples
  int moments, minutes;
  double hours;  // 1 for what is a rate
  double grain;  // how much of it there is, 0 to 1
};
constexpr std::array<Kind, 3> kKinds = {{
    {RadarProduct::Reflectivity, "DS.p19r0", "REFLECTIVITY", {"DBZ", kEchoes}, 10, 1, 0, 1, 1},
    {RadarProduct::HourPrecipitation, "DS.78ohp", "1 HOUR PRECIPITATION", {"IN", kHour}, 20, 5, 15, 1, 0.5},
    {RadarProduct::TotalPrecipitation,
     "DS.80stp",
     "24 HOUR PRECIPITATION",
     {"IN", kDay},
     20,
     9,
     180,
     24,
     0.25},
}};

const Kind& KindOf(RadarProduct product) { return *std::ranges::find(kKinds, product, &Kind::product); }

constexpr std::string_view kFolder = "/radar/images/", kSite = "/SI.", kFile = "/latest.gif";

Point PointOf(const RadarSite& site, Pixel pixel) {
  return {site.point.latitude - (pixel.y - kSitePixel.y) / kPerLatitude,
          site.point.longitude + (pixel.x - kSitePixel.x) / kPerLongitude};
}

// Half the width and height of a circle around the site, pixels.
Pixel Radii(const RadarSite& site, double kilometres) {
  const double degrees = kilometres / kKilometresPerDegree;
  return {degrees / std::cos(site.point.latitude * std::numbers::pi / 180) * kPerLongitude,
          degrees * kPerLatitude};
}

// The lower ends of a scale's bands, in the quantity that is sampled.
std::vector<double> Steps(const Kind& kind) {
  std::vector<double> steps;
  for (const Band& band : kind.scale.bands) {
    const double inches = std::pow(std::pow(10, band.from / 10) / 200, 1 / 1.6) / 25.4;
    steps.push_back(kind.product == RadarProduct::Reflectivity ? inches : band.from);
  }
  return steps;
}

Samples Measure(const Kind& kind, const RadarSite& site, Date time, std::uint64_t seed) {
  return Samples(kSize, kSize, kind.step, [&](Pixel pixel) {
    const Point point = PointOf(site, pixel);
    double sum = 0;
    for (int i = 0; i < kind.moments; ++i) {
      const int minutes = i * kind.minutes;
      sum += WaterAt(point, DateAdd(DateUnit::Minutes, -minutes, time), seed);
    }
    return sum / kind.moments * kind.hours;
  });
}

void DrawEchoes(Canvas& canvas, const Kind& kind, const RadarSite& site, Date time, std::uint64_t seed) {
  constexpr double kLeast = 0.01;  // inches
  constexpr double kDriftPerDay = kDrift * kPerLongitude;
  const Samples samples = Measure(kind, site, time, seed);
  const std::vector<double> steps = Steps(kind);
  const double days = static_cast<double>(time.seconds) / 86400;
  const int drift = static_cast<int>(std::fmod(days * kDriftPerDay, kGrainSide));
  const Pixel radii = Radii(site, kRange);
  std::vector<double> row(kSize);
  for (int y = 0; y < kSize; ++y) {
    const double height = (y + 0.5 - kSitePixel.y) / radii.y;
    if (std::abs(height) >= 1) continue;
    const double reach = radii.x * std::sqrt(1 - height * height);
    const int first = std::max(0, static_cast<int>(std::ceil(kSitePixel.x - reach)));
    const int end = std::min(kSize, static_cast<int>(std::floor(kSitePixel.x + reach)));
    samples.ReadRow(y, row);
    const auto pixels = canvas.Row(y);
    for (int x = first; x < end; ++x) {
      const auto place = static_cast<std::size_t>(x);
      if (row[place] < kLeast) continue;
      const double value = row[place] * std::lerp(1, GrainAt(x - drift, y), kind.grain);
      std::size_t band = 0;
      while (band + 1 < steps.size() && value >= steps[band + 1]) ++band;
      pixels[place] = kind.scale.bands[band].colour;
    }
  }
}

void DrawLines(Canvas& canvas, const RadarSite& site) {
  std::vector<Pixel> path;
  for (const Outline& outline : Outlines()) {
    if (outline.stroke == Stroke::Unseen) continue;
    path.clear();
    for (const Point& point : outline.points) path.push_back(RadarPixel(site, point));
    canvas.DrawHard(path, kLines);
  }
  for (const double share : {0.25, 0.5, 0.75, 1.0}) {
    const Pixel radii = Radii(site, kRange * share);
    path.clear();
    for (int degree = 0; degree <= 360; degree += 2) {
      const double angle = degree * std::numbers::pi / 180;
      path.push_back({kSitePixel.x + radii.x * std::cos(angle), kSitePixel.y + radii.y * std::sin(angle)});
    }
    canvas.DrawHard(path, kLines);
  }
}

void DrawMarks(Canvas& canvas, const RadarSite& site) {
  const auto cross = [&](Pixel at, double arm) {
    canvas.DrawHard(std::array{Pixel{at.x - arm, at.y}, Pixel{at.x + arm, at.y}}, kMarks);
    canvas.DrawHard(std::array{Pixel{at.x, at.y - arm}, Pixel{at.x, at.y + arm}}, kMarks);
  };
  cross(kSitePixel, 6);
  Room room({0, 0, kSize, kSize});
  room.Take(kTitleBox);
  room.Take(kLegendBox);
  for (const int rank : {1, 2, 3}) {
    for (const City& city : Cities()) {
      const Pixel at = RadarPixel(site, city.point);
      if (city.rank != rank || at.x < 0 || at.x > kSize || at.y < 0 || at.y > kSize) continue;
      cross(at, 2);
      const double half = kLetters / 2;
      if (const auto left = room.TakeBeside(at, TextWidth(city.name, kLetters), half + 2, half + 4))
        WriteHard(canvas, city.name, {*left, at.y - half}, kLetters, kMarks);
    }
  }
}

void DrawLegend(Canvas& canvas, const RadarRequest& request, const Kind& kind, Date time) {
  constexpr int kLeft = 8, kTop = 440, kWidth = 14, kHeight = 11;
  const std::string site(request.site->code);
  WriteHard(canvas, site + "  " + std::string(kind.title) + "  SIMULATED", {8, 8}, kLetters, kMarks);
  WriteHard(canvas, UpperCase(Format(time, "mmm dd yyyy  hh:nn")) + " UTC", {8, 22}, kLetters, kMarks);
  const auto bands = kind.scale.bands;
  int top = kTop - static_cast<int>(bands.size() / 2) * 2;
  WriteHard(canvas, kind.scale.unit, {kLeft, top - 13.0}, kLetters, kMarks);
  for (std::size_t i = bands.size(); i-- > 0; top += kHeight) {
    canvas.FillBox(kLeft, top, kWidth, kHeight, bands[i].colour);
    WriteHard(canvas, bands[i].label, {kLeft + kWidth + 5.0, top + 2.0}, 7, kMarks);
  }
}

}  // namespace

std::optional<RadarRequest> ReadRadarPath(std::string_view path) {
  for (const Kind& kind : kKinds) {
    const std::string start = std::string(kFolder).append(kind.folder).append(kSite);
    if (!path.starts_with(start) || !path.ends_with(kFile)) continue;
    if (path.size() != start.size() + 4 + kFile.size()) continue;
    const RadarSite* const site = FindRadarSite(path.substr(start.size(), 4));
    if (site && path == RadarPath({kind.product, site})) return RadarRequest{kind.product, site};
  }
  return {};
}

std::string RadarPath(const RadarRequest& request) {
  return std::string(kFolder)
      .append(KindOf(request.product).folder)
      .append(kSite)
      .append(LowerCase(request.site->code))
      .append(kFile);
}

Date RadarTime(Date now) { return FloorTo(now, 300); }

Pixel RadarPixel(const RadarSite& site, Point point) {
  return {kSitePixel.x + kPerLongitude * (point.longitude - site.point.longitude),
          kSitePixel.y - kPerLatitude * (point.latitude - site.point.latitude)};
}

Canvas DrawRadar(const RadarRequest& request, Date now, std::uint64_t seed) {
  const Kind& kind = KindOf(request.product);
  Canvas canvas(kSize, kSize, kGround);
  DrawEchoes(canvas, kind, *request.site, RadarTime(now), seed);
  DrawLines(canvas, *request.site);
  DrawMarks(canvas, *request.site);
  DrawLegend(canvas, request, kind, RadarTime(now));
  return canvas;
}

}  // namespace skyloft::feed
