#include "platform/qt/indexed_pictures.h"

#include <gif_lib.h>
#include <png.h>
#include <zlib.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "base/guard.h"
#include "platform/qt/pictures_qt.h"

namespace skyloft {
namespace {

constexpr int kMostColors = 256;

struct GifSource {
  const std::string& bytes;
  std::size_t at = 0;
};

int ReadGifBytes(GifFileType* gif, GifByteType* to, int size) {
  auto& from = *static_cast<GifSource*>(gif->UserData);
  const std::size_t count = std::min(static_cast<std::size_t>(size), from.bytes.size() - from.at);
  std::copy_n(from.bytes.begin() + static_cast<std::ptrdiff_t>(from.at), count, to);
  from.at += count;
  return static_cast<int>(count);
}

// Goes past an extension; false when it cannot be read or makes a colour transparent.
bool SkipExtension(GifFileType* gif) {
  int code = 0;
  GifByteType* block = nullptr;
  if (DGifGetExtension(gif, &code, &block) != GIF_OK) return false;
  while (block) {
    GraphicsControlBlock control;
    if (code == GRAPHICS_EXT_FUNC_CODE && (DGifExtensionToGCB(block[0], block + 1, &control) != GIF_OK ||
                                           control.TransparentColor != NO_TRANSPARENT_COLOR)) {
      return false;
    }
    if (DGifGetExtensionNext(gif, &block) != GIF_OK) return false;
  }
  return true;
}

// Goes to the first picture; false when there is none that fills the screen.
bool FindPicture(GifFileType* gif) {
  for (GifRecordType record;;) {
    if (DGifGetRecordType(gif, &record) != GIF_OK) return false;
    if (record == IMAGE_DESC_RECORD_TYPE) break;
    if (record != EXTENSION_RECORD_TYPE || !SkipExtension(gif)) return false;
  }
  return DGifGetImageDesc(gif) == GIF_OK && gif->Image.Left == 0 && gif->Image.Top == 0 &&
         gif->Image.Width == gif->SWidth && gif->Image.Height == gif->SHeight;
}

bool ReadLines(GifFileType* gif, QImage& image, int first, int step) {
  for (int y = first; y < image.height(); y += step) {
    if (DGifGetLine(gif, image.scanLine(y), image.width()) != GIF_OK) return false;
  }
  return true;
}

bool ReadAllLines(GifFileType* gif, QImage& image) {
  if (!gif->Image.Interlace) return ReadLines(gif, image, 0, 1);
  return ReadLines(gif, image, 0, 8) && ReadLines(gif, image, 4, 8) && ReadLines(gif, image, 2, 4) &&
         ReadLines(gif, image, 1, 2);
}

QList<QRgb> TableOf(const ColorMapObject& map) {
  QList<QRgb> table;
  std::for_each_n(map.Colors, map.ColorCount, [&](GifColorType c) { table << qRgb(c.Red, c.Green, c.Blue); });
  return table;
}

// The highest place in the table that a pixel has.
int HighestPlace(const QImage& image) {
  uchar highest = 0;
  for (int y = 0; y < image.height(); ++y) {
    const uchar* const line = image.constScanLine(y);
    highest = std::max(highest, *std::max_element(line, line + image.width()));
  }
  return highest;
}

[[noreturn]] void RaisePngError(png_structp, png_const_charp message) {
  throw RuntimeError(std::string("cannot write a PNG: ") + message);
}

void AppendPngBytes(png_structp png, png_bytep bytes, std::size_t count) {
  static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(bytes), count);
}

}  // namespace

QImage ReadPlainGif(const std::string& file) {
  GifSource source{file};
  const auto close = [](GifFileType* gif) { DGifCloseFile(gif, nullptr); };
  const std::unique_ptr<GifFileType, decltype(close)> gif(DGifOpen(&source, ReadGifBytes, nullptr), close);
  if (!gif || !IsSane({gif->SWidth, gif->SHeight}) || !FindPicture(gif.get())) return {};
  const ColorMapObject* const map = gif->Image.ColorMap ? gif->Image.ColorMap : gif->SColorMap;
  QImage image(gif->SWidth, gif->SHeight, QImage::Format_Indexed8);
  if (!map || image.isNull() || !ReadAllLines(gif.get(), image)) return {};
  if (map->ColorCount < kMostColors && HighestPlace(image) >= map->ColorCount) return {};
  image.setColorTable(TableOf(*map));
  return image;
}

bool IsPlainIndexed(const QImage& image) {
  return image.format() == QImage::Format_Indexed8 && !image.hasAlphaChannel();
}

std::string WriteIndexedPng(const QImage& image) {
  struct Writer {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, RaisePngError, nullptr);
    png_infop info = png_create_info_struct(png);
    ~Writer() { png_destroy_write_struct(&png, &info); }
  } const writer;
  const auto [png, info] = std::pair(writer.png, writer.info);
  std::vector<png_color> colors;
  for (const QRgb color : image.colorTable()) {
    colors.push_back({static_cast<png_byte>(qRed(color)), static_cast<png_byte>(qGreen(color)),
                      static_cast<png_byte>(qBlue(color))});
  }
  const int depth = colors.size() > 16 ? 8 : 4;  // bits a pixel
  std::string file;
  png_set_write_fn(png, &file, AppendPngBytes, nullptr);
  png_set_IHDR(png, info, static_cast<png_uint_32>(image.width()), static_cast<png_uint_32>(image.height()),
               depth, PNG_COLOR_TYPE_PALETTE, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE,
               PNG_FILTER_TYPE_BASE);
  png_set_PLTE(png, info, colors.data(), static_cast<int>(colors.size()));
  png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_NO_FILTERS);
  png_set_compression_level(png, Z_BEST_SPEED);
  png_set_compression_strategy(png, Z_RLE);
  png_write_info(png, info);
  png_set_packing(png);
  for (int y = 0; y < image.height(); ++y) png_write_row(png, image.constScanLine(y));
  png_write_end(png, info);
  return file;
}

}  // namespace skyloft
