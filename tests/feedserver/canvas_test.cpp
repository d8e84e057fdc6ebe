#include "feedserver/canvas.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "decode.h"
#include "feedserver/encode.h"
#include "feedserver/lettering.h"

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

}  // namespace
}  // namespace skyloft::feed
