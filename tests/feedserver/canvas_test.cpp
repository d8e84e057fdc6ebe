#include "feedserver/canvas.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "decode.h"
#include "feedserver/encode.h"
#include "feedserver/lettering.h"
#include "feedserver/outlines.h"
#include "feedserver/samples.h"

namespace skyloft::feed {
namespace {

constexpr Colour kWhite{255, 255, 255}, kBlack{0, 0, 0}, kRed{255, 0, 0};

// How many pixels have exactly a colour.
int CountOf(const Canvas& canvas, Colour colour) {
  int count = 0;
  for (int y = 0; y < canvas.Height(); ++y)
    count += static_cast<int>(std::ranges::count(canvas.Row(y), colour));
  return count;
}

TEST(Canvas, HardLinesHaveOneColourAndOnePixel) {
  Canvas canvas(20, 10, kWhite);
  canvas.DrawHard(std::vector<Pixel>{{2.5, 3.5}, {12.5, 3.5}}, kRed);
  EXPECT_EQ(CountOf(canvas, kRed), 11);
  EXPECT_EQ(CountOf(canvas, kWhite), 200 - 11);
  EXPECT_EQ(PixelAt(canvas, 2, 3), kRed);
  EXPECT_EQ(PixelAt(canvas, 12, 3), kRed);
}

TEST(Canvas, SoftLinesAreFullInTheirMiddleAndFadeAtTheirEdges) {
  Canvas canvas(9, 9, kWhite);
  canvas.DrawSoft(std::vector<Pixel>{{-5, 4.5}, {20, 4.5}}, 2, kBlack);
  EXPECT_EQ(PixelAt(canvas, 4, 4), kBlack);
  EXPECT_EQ(PixelAt(canvas, 4, 3), (Colour{128, 128, 128}));  // half of it is covered
  EXPECT_EQ(PixelAt(canvas, 4, 2), kWhite);
}

TEST(Canvas, WhatLiesOutsideIsCutOff) {
  Canvas canvas(8, 8, kWhite);
  canvas.DrawHard(std::vector<Pixel>{{-1e9, 4}, {1e9, 4}}, kRed);
  canvas.DrawHard(std::vector<Pixel>{{-50, -50}, {-10, 90}}, kRed);
  canvas.DrawSoft(std::vector<Pixel>{{-40, -3}, {60, -3}}, 2, kRed);
  canvas.FillBox(-5, -5, 6, 6, kBlack);
  EXPECT_EQ(PixelAt(canvas, 0, 0), kBlack);
  EXPECT_EQ(CountOf(canvas, kBlack), 1);
  EXPECT_EQ(CountOf(canvas, kWhite) + CountOf(canvas, kRed), 63);
  EXPECT_THROW((void)canvas.Row(8), std::exception);
}

TEST(Mask, InsideIsWhatAnOddNumberOfLinesEncloses) {
  Mask mask(12, 12);
  const auto add_box = [&](double from, double to) {
    mask.AddLine({from, from}, {to, from});
    mask.AddLine({to, from}, {to, to});
    mask.AddLine({from, to}, {to, to});
    mask.AddLine({from, to}, {from, from});
  };
  add_box(1, 11);
  add_box(4, 8);
  EXPECT_EQ(mask.Row(0), std::vector<std::uint8_t>(12));
  EXPECT_EQ(mask.Row(2), (std::vector<std::uint8_t>{0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0}));
  EXPECT_EQ(mask.Row(6), (std::vector<std::uint8_t>{0, 1, 1, 1, 0, 0, 0, 0, 1, 1, 1, 0}));
}

TEST(Samples, AreExactAtTheirCornersAndStraightBetween) {
  const Samples samples(30, 20, 10, [](Pixel pixel) { return 2 * pixel.x - 3 * pixel.y + 7; });
  EXPECT_DOUBLE_EQ(samples.At({10, 10}), 20 - 30 + 7);
  EXPECT_DOUBLE_EQ(samples.At({29, 1}), 58 - 3 + 7);
  std::vector<double> row(30);
  for (const int y : {0, 9, 10, 19}) {
    samples.ReadRow(y, row);
    for (int x = 0; x < 30; ++x)
      EXPECT_NEAR(row[static_cast<std::size_t>(x)], 2 * (x + 0.5) - 3 * (y + 0.5) + 7, 1e-9) << x << ' ' << y;
  }
}

TEST(Lettering, WritesWithinItsWidthAndHeight) {
  for (const char sign :
       std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789.,:-+/%()'\xB0")) {
    const std::string text(1, sign);
    const auto strokes = LettersOf(text, {10, 20}, 12);
    EXPECT_FALSE(strokes.empty()) << sign;
    for (const auto& stroke : strokes) {
      EXPECT_FALSE(stroke.empty()) << sign;
      for (const Pixel& place : stroke) {
        EXPECT_GE(place.x, 10) << sign;
        EXPECT_LE(place.x, 10 + TextWidth(text, 12)) << sign;
        EXPECT_GE(place.y, 20) << sign;
        EXPECT_LE(place.y, 36) << sign;
      }
    }
  }
  EXPECT_TRUE(LettersOf(" \x01", {0, 0}, 12).empty());
  EXPECT_DOUBLE_EQ(TextWidth("", 12), 0);
  EXPECT_GT(TextWidth("WW", 12), 2 * TextWidth("W", 12));
}

TEST(Encode, GifKeepsEveryColourOfUpTo256) {
  Canvas canvas(16, 16, kWhite);
  for (int i = 0; i < 256; ++i)
    canvas.Row(i / 16)[static_cast<std::size_t>(i % 16)] = {static_cast<std::uint8_t>(i), 7,
                                                            static_cast<std::uint8_t>(255 - i)};
  const Canvas read = DecodeGif(EncodeGif(canvas));
  for (int y = 0; y < 16; ++y) EXPECT_TRUE(std::ranges::equal(read.Row(y), canvas.Row(y))) << y;
}

TEST(Encode, GifOfMoreColoursKeepsTheFrequentOnesAndTakesTheNearestForOthers) {
  Canvas canvas(300, 3, {200, 0, 0});
  for (int i = 0; i < 300; ++i)
    canvas.Row(0)[static_cast<std::size_t>(i)] = {0, static_cast<std::uint8_t>(i / 2),
                                                  static_cast<std::uint8_t>(i % 2)};
  const Canvas read = DecodeGif(EncodeGif(canvas));
  EXPECT_EQ(CountOf(read, {200, 0, 0}), 600);
  for (int x = 0; x < 300; ++x) {
    const Colour colour = PixelAt(read, x, 0);
    EXPECT_EQ(colour.red, 0);
    EXPECT_NEAR(colour.green, x / 2.0, 25) << x;
  }
}

TEST(Encode, PngIsExactAndJpegNearlySo) {
  Canvas canvas(40, 30, {30, 60, 90});
  canvas.FillBox(8, 8, 16, 16, {220, 180, 40});
  const Canvas png = DecodePng(EncodePng(canvas));
  for (int y = 0; y < 30; ++y) EXPECT_TRUE(std::ranges::equal(png.Row(y), canvas.Row(y))) << y;
  const Canvas jpeg = DecodeJpeg(EncodeJpeg(canvas));
  ASSERT_EQ(jpeg.Width(), 40);
  ASSERT_EQ(jpeg.Height(), 30);
  EXPECT_NEAR(PixelAt(jpeg, 16, 16).red, 220, 4);
  EXPECT_NEAR(PixelAt(jpeg, 36, 26).blue, 90, 4);
}

// Whether a point lies inside the country, by a ray to the east.
bool IsInland(Point point) {
  bool is_inside = false;
  for (const Outline& outline : Outlines()) {
    if (!outline.is_edge) continue;
    for (std::size_t i = 1; i < outline.points.size(); ++i) {
      const Point a = outline.points[i - 1], b = outline.points[i];
      if ((a.latitude > point.latitude) == (b.latitude > point.latitude)) continue;
      const double share = (point.latitude - a.latitude) / (b.latitude - a.latitude);
      if (a.longitude + share * (b.longitude - a.longitude) > point.longitude) is_inside = !is_inside;
    }
  }
  return is_inside;
}

TEST(Outlines, EncloseTheCountry) {
  const struct {
    const char* name;
    Point point;
    bool is_inside;
  } cases[] = {{"Kansas", {38.5, -98}, true},
               {"Nevada", {39.5, -117}, true},
               {"Maine", {45.3, -69}, true},
               {"the Everglades", {25.8, -80.8}, true},
               {"Upper Michigan", {46.4, -87.5}, true},
               {"Big Island", {19.6, -155.5}, true},
               {"Puerto Rico", {18.2, -66.4}, true},
               {"inner Alaska", {64, -150}, true},
               {"Lake Michigan", {43.5, -87}, false},
               {"Lake Superior", {47.8, -88}, false},
               {"the Gulf", {27, -90}, false},
               {"the Atlantic", {35, -70}, false},
               {"Ontario", {48.5, -84}, false},
               {"Sonora", {30, -111}, false},
               {"Alberta", {52, -114}, false},
               {"the Pacific", {40, -127}, false}};
  for (const auto& c : cases) EXPECT_EQ(IsInland(c.point), c.is_inside) << c.name;
}

}  // namespace
}  // namespace skyloft::feed
