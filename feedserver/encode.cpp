#include "feedserver/encode.h"

#include <gif_lib.h>
#include <png.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unordered_map>

#include "base/guard.h"

// After <cstdio>, which it needs.
#include <jpeglib.h>

namespace skyloft::feed {
namespace {

constexpr std::size_t kMostColours = 256;
constexpr int kJpegQuality = 90;

void Require(bool is_done, const char* what) {
  if (!is_done) throw RuntimeError(std::string("cannot encode a picture: ") + what);
}

std::uint32_t KeyOf(Colour colour) {
  return static_cast<std::uint32_t>(colour.red << 16 | colour.green << 8 | colour.blue);
}

int Distance(Colour a, Colour b) {
  const int red = a.red - b.red, green = a.green - b.green, blue = a.blue - b.blue;
  return red * red + green * green + blue * blue;
}

// The colours of a GIF and which of them stands for a colour of the canvas.
struct ColourTable {
  std::vector<Colour> colours;
  std::unordered_map<std::uint32_t, GifByteType> places;
};

ColourTable TableOf(const Canvas& canvas) {
  struct Use {
    Colour colour;
    int count;
  };
  std::unordered_map<std::uint32_t, Use> uses;
  Use* last = nullptr;
  for (int y = 0; y < canvas.Height(); ++y) {
    for (const Colour colour : canvas.Row(y)) {
      if (!last || last->colour != colour)
        last = &uses.try_emplace(KeyOf(colour), Use{colour, 0}).first->second;
      ++last->count;
    }
  }
  std::vector<Use> sorted;
  sorted.reserve(uses.size());
  for (const auto& [key, use] : uses) sorted.push_back(use);
  std::ranges::sort(sorted, [](const Use& a, const Use& b) {
    return a.count != b.count ? a.count > b.count : KeyOf(a.colour) < KeyOf(b.colour);
  });

  ColourTable table;
  for (const Use& use : sorted) {
    if (table.colours.size() < kMostColours) table.colours.push_back(use.colour);
    const auto nearest =
        std::ranges::min_element(table.colours, {}, [&](Colour c) { return Distance(c, use.colour); });
    table.places[KeyOf(use.colour)] = static_cast<GifByteType>(nearest - table.colours.begin());
  }
  return table;
}

int AppendBytes(GifFileType* gif, const GifByteType* bytes, int count) {
  static_cast<std::string*>(gif->UserData)
      ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
  return count;
}

}  // namespace

std::string EncodeGif(const Canvas& canvas) {
  const ColourTable table = TableOf(canvas);
  std::array<GifColorType, kMostColours> colours{};
  std::ranges::transform(table.colours, colours.begin(), [](Colour c) {
    return GifColorType{c.red, c.green, c.blue};
  });
  const std::unique_ptr<ColorMapObject, void (*)(ColorMapObject*)> map(
      GifMakeMapObject(static_cast<int>(colours.size()), colours.data()), GifFreeMapObject);
  Require(map != nullptr, "colours");

  std::string bytes;
  GifFileType* const gif = EGifOpen(&bytes, AppendBytes, nullptr);
  Require(gif != nullptr, "GIF");
  bool is_done = EGifPutScreenDesc(gif, canvas.Width(), canvas.Height(), 8, 0, map.get()) == GIF_OK &&
                 EGifPutImageDesc(gif, 0, 0, canvas.Width(), canvas.Height(), false, nullptr) == GIF_OK;
  std::vector<GifByteType> line;
  Colour last;
  GifByteType place = 0;
  for (int y = 0; is_done && y < canvas.Height(); ++y) {
    line.clear();
    for (const Colour colour : canvas.Row(y)) {
      if (line.empty() || colour != last) place = table.places.at(KeyOf(last = colour));
      line.push_back(place);
    }
    is_done = EGifPutLine(gif, line.data(), canvas.Width()) == GIF_OK;
  }
  const bool is_closed = EGifCloseFile(gif, nullptr) == GIF_OK;
  Require(is_done && is_closed, "GIF");
  return bytes;
}

std::string EncodePng(const Canvas& canvas) {
  std::vector<Colour> pixels;
  for (int y = 0; y < canvas.Height(); ++y) {
    const auto row = canvas.Row(y);
    pixels.insert(pixels.end(), row.begin(), row.end());
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(canvas.Width());
  image.height = static_cast<png_uint_32>(canvas.Height());
  image.format = PNG_FORMAT_RGB;
  png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
  std::string bytes(size, '\0');
  Require(png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels.data(), 0, nullptr) != 0, "PNG");
  bytes.resize(size);
  return bytes;
}

std::string EncodeJpeg(const Canvas& canvas) {
  jpeg_compress_struct jpeg;
  jpeg_error_mgr errors;
  jpeg.err = jpeg_std_error(&errors);
  errors.error_exit = [](j_common_ptr) { throw RuntimeError("cannot encode a picture: JPEG"); };
  jpeg_create_compress(&jpeg);
  unsigned char* buffer = nullptr;
  unsigned long size = 0;
  const auto write = [&] {
    jpeg_mem_dest(&jpeg, &buffer, &size);
    jpeg.image_width = static_cast<JDIMENSION>(canvas.Width());
    jpeg.image_height = static_cast<JDIMENSION>(canvas.Height());
    jpeg.input_components = 3;
    jpeg.in_color_space = JCS_RGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, kJpegQuality, true);
    jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = 1;  // keeps coloured letters sharp
    jpeg_start_compress(&jpeg, true);
    for (int y = 0; y < canvas.Height(); ++y) {
      std::vector<Colour> row(canvas.Row(y).begin(), canvas.Row(y).end());
      JSAMPROW line = reinterpret_cast<JSAMPROW>(row.data());
      jpeg_write_scanlines(&jpeg, &line, 1);
    }
    jpeg_finish_compress(&jpeg);
  };
  const bool is_done = Guarded(write);
  std::string bytes(reinterpret_cast<const char*>(buffer), is_done ? size : 0);
  jpeg_destroy_compress(&jpeg);
  std::free(buffer);
  Require(is_done, "JPEG");
  return bytes;
}

}  // namespace skyloft::feed
