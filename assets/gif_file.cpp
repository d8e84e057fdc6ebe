#include <gif_lib.h>

#include <QFile>
#include <array>
#include <map>
#include <memory>
#include <stdexcept>

#include "drawing.h"

namespace skyloft::assets {
namespace {

constexpr int kTransparent = 255;  // the last entry of the 256 colours
constexpr int kDelay = 60;         // hundredths of a second that a frame stays
constexpr QRgb kWindow = qRgb(0x0d, 0x1b, 0x36);

struct Palette {
  std::array<GifColorType, 256> colors{};
  std::vector<GifByteType> pixels;  // an index for each pixel
};

// The exact colours when there are at most 255 of them, otherwise the median cut of giflib.
Palette MakePalette(const QImage& picture) {
  const int width = picture.width(), height = picture.height();
  std::vector<GifByteType> red, green, blue;
  std::map<QRgb, GifByteType> seen;
  Palette palette;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const QRgb pixel = picture.pixel(x, y);
      red.push_back(static_cast<GifByteType>(qRed(pixel)));
      green.push_back(static_cast<GifByteType>(qGreen(pixel)));
      blue.push_back(static_cast<GifByteType>(qBlue(pixel)));
      const auto next = static_cast<GifByteType>(seen.size());
      if (seen.size() < 256) seen.emplace(pixel, next);
    }
  }
  palette.pixels.resize(red.size());
  if (seen.size() > kTransparent) {
    int count = kTransparent;
    if (GifQuantizeBuffer(static_cast<unsigned>(width), static_cast<unsigned>(height), &count, red.data(),
                          green.data(), blue.data(), palette.pixels.data(),
                          palette.colors.data()) == GIF_ERROR) {
      throw std::runtime_error("too few colours");
    }
    return palette;
  }
  for (const auto& [rgb, index] : seen) {
    palette.colors[index] = {static_cast<GifByteType>(qRed(rgb)), static_cast<GifByteType>(qGreen(rgb)),
                             static_cast<GifByteType>(qBlue(rgb))};
  }
  for (std::size_t i = 0; i < red.size(); ++i) {
    palette.pixels[i] = seen.at(qRgb(red[i], green[i], blue[i]));
  }
  return palette;
}

void Check(int result, const QString& path) {
  if (result == GIF_ERROR) throw std::runtime_error("cannot write " + path.toStdString());
}

struct Frame {
  Palette palette;
  std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> map;
};

Frame MakeFrame(const QImage& picture) {
  QImage opaque(picture.size(), QImage::Format_RGB32);
  opaque.fill(kWindow);
  QPainter(&opaque).drawImage(0, 0, picture);
  Palette palette = MakePalette(opaque);
  for (int y = 0, i = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x, ++i) {
      if (qAlpha(picture.pixel(x, y)) < 128) palette.pixels[static_cast<std::size_t>(i)] = kTransparent;
    }
  }
  ColorMapObject* const map = GifMakeMapObject(256, palette.colors.data());
  return {std::move(palette), {map, &GifFreeMapObject}};
}

// That the frames take turns for ever.
void PutLoop(GifFileType* file, const QString& path) {
  constexpr GifByteType kForEver[] = {1, 0, 0};
  Check(EGifPutExtensionLeader(file, APPLICATION_EXT_FUNC_CODE), path);
  Check(EGifPutExtensionBlock(file, 11, "NETSCAPE2.0"), path);
  Check(EGifPutExtensionBlock(file, sizeof kForEver, kForEver), path);
  Check(EGifPutExtensionTrailer(file), path);
}

void PutFrame(GifFileType* file, QSize size, const Frame& frame, int delay, const QString& path) {
  const GraphicsControlBlock control{DISPOSE_BACKGROUND, false, delay, kTransparent};
  std::array<GifByteType, 4> extension{};
  EGifGCBToExtension(&control, extension.data());
  Check(EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, 4, extension.data()), path);
  Check(EGifPutImageDesc(file, 0, 0, size.width(), size.height(), false, frame.map.get()), path);
  std::vector<GifByteType> pixels = frame.palette.pixels;
  Check(EGifPutLine(file, pixels.data(), static_cast<int>(pixels.size())), path);
}

}  // namespace

void WriteGif(const QString& path, const std::vector<QImage>& frames) {
  const QSize size = frames.front().size();
  int error = 0;
  GifFileType* file = EGifOpenFileName(QFile::encodeName(path).constData(), false, &error);
  if (!file) throw std::runtime_error("cannot write " + path.toStdString());
  const auto close = [](GifFileType* open) { EGifCloseFile(open, nullptr); };
  const std::unique_ptr<GifFileType, decltype(close)> closer(file, close);
  EGifSetGifVersion(file, true);
  Check(EGifPutScreenDesc(file, size.width(), size.height(), 8, 0, nullptr), path);
  const int delay = frames.size() > 1 ? kDelay : 0;
  if (delay > 0) PutLoop(file, path);
  for (const QImage& frame : frames) PutFrame(file, size, MakeFrame(frame), delay, path);
}

}  // namespace skyloft::assets
