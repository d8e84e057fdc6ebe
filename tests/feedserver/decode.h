// Reads the feed's pictures for the tests, each with the library of its format.
#pragma once

#include <gif_lib.h>
#include <gtest/gtest.h>
#include <png.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

// After <cstdio>, which it needs.
#include <jpeglib.h>

#include "feedserver/canvas.h"

namespace skyloft::feed {

inline Canvas DecodeGif(const std::string& bytes) {
  struct Source {
    const std::string& bytes;
    std::size_t at = 0;
  } source{bytes};
  GifFileType* const gif = DGifOpen(
      &source,
      [](GifFileType* file, GifByteType* to, int size) {
        auto& from = *static_cast<Source*>(file->UserData);
        const std::size_t count = std::min(static_cast<std::size_t>(size), from.bytes.size() - from.at);
        std::copy_n(from.bytes.begin() + static_cast<std::ptrdiff_t>(from.at), count, to);
        from.at += count;
        return static_cast<int>(count);
      },
      nullptr);
  EXPECT_NE(gif, nullptr);
  if (!gif) return Canvas(1, 1, {});
  EXPECT_EQ(DGifSlurp(gif), GIF_OK);
  EXPECT_EQ(gif->ImageCount, 1);
  Canvas canvas(gif->SWidth, gif->SHeight, {});
  for (int y = 0; y < gif->SHeight; ++y) {
    for (int x = 0; x < gif->SWidth; ++x) {
      const auto index = gif->SavedImages[0].RasterBits[y * gif->SWidth + x];
      const GifColorType& colour = gif->SColorMap->Colors[index];
      canvas.Row(y)[static_cast<std::size_t>(x)] = {colour.Red, colour.Green, colour.Blue};
    }
  }
  DGifCloseFile(gif, nullptr);
  return canvas;
}

inline Canvas DecodePng(const std::string& bytes) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  EXPECT_TRUE(png_image_begin_read_from_memory(&image, bytes.data(), bytes.size())) << image.message;
  image.format = PNG_FORMAT_RGB;
  std::vector<Colour> pixels(static_cast<std::size_t>(image.width) * image.height);
  EXPECT_TRUE(png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr)) << image.message;
  Canvas canvas(static_cast<int>(image.width), static_cast<int>(image.height), {});
  auto from = pixels.begin();
  for (int y = 0; y < canvas.Height(); ++y, from += canvas.Width())
    std::copy_n(from, canvas.Width(), canvas.Row(y).begin());
  return canvas;
}

inline Canvas DecodeJpeg(const std::string& bytes) {
  jpeg_decompress_struct jpeg;
  jpeg_error_mgr errors;
  jpeg.err = jpeg_std_error(&errors);  // ends the test's process when the file is broken
  jpeg_create_decompress(&jpeg);
  jpeg_mem_src(&jpeg, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
  jpeg_read_header(&jpeg, TRUE);
  jpeg_start_decompress(&jpeg);
  Canvas canvas(static_cast<int>(jpeg.output_width), static_cast<int>(jpeg.output_height), {});
  while (jpeg.output_scanline < jpeg.output_height) {
    auto line = reinterpret_cast<JSAMPROW>(canvas.Row(static_cast<int>(jpeg.output_scanline)).data());
    jpeg_read_scanlines(&jpeg, &line, 1);
  }
  EXPECT_EQ(errors.num_warnings, 0);
  jpeg_finish_decompress(&jpeg);
  jpeg_destroy_decompress(&jpeg);
  return canvas;
}

inline Colour PixelAt(const Canvas& canvas, int x, int y) {
  return canvas.Row(y)[static_cast<std::size_t>(x)];
}

}  // namespace skyloft::feed
