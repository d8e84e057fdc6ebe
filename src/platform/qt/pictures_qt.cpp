#include "platform/qt/pictures_qt.h"

#include <algorithm>
#include <list>

#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>

#include "base/guard.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/qt/drive.h"
#include "platform/qt/files_qt.h"
#include "platform/qt/indexed_pictures.h"
#include "platform/qt/scaled_pictures.h"

namespace skyloft {
namespace {

constexpr int kLargestSide = 8192;
constexpr qint64 kLargestArea = qint64{32} * 1024 * 1024;
constexpr qsizetype kKeptBytes = qsizetype{8} * 1024 * 1024;
constexpr int kFastPng = 80;  // quality: little compression in little time
constexpr qint64 kMostFrames = 8;
constexpr qint64 kAnimatedArea = qint64{1024} * 1024;  // pixels of all frames; what is larger stands still
constexpr int kShortestDelay = 200;                    // milliseconds; nothing on the screen may flash faster

// A picture that was read, and the file as it was then.
struct KeptPicture {
  std::string path;
  QString file;
  QDateTime time;
  qint64 size;
  PictureFrames frames;
};

// The pictures read last, the newest first; together at most kKeptBytes, but always the newest.
std::list<KeptPicture>& Kept() {
  static std::list<KeptPicture> pictures;
  return pictures;
}

void DropOldest() {
  qsizetype bytes = 0;
  auto& kept = Kept();
  for (auto picture = kept.begin(); picture != kept.end();) {
    for (const QImage& image : picture->frames.images) bytes += image.sizeInBytes();
    picture = bytes > kKeptBytes && picture != kept.begin() ? kept.erase(picture) : std::next(picture);
  }
}

std::list<KeptPicture>::iterator FindKept(const std::string& path) {
  return std::ranges::find(Kept(), path, &KeptPicture::path);
}

// The frames of an animation, as many as are shown, or the one picture that a file holds.
PictureFrames FramesIn(const ScaledFile& shown) {
  QFile file(shown.path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  PictureFrames frames;
  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  if (!IsSane(reader.size())) return {};
  const qint64 most = kAnimatedArea / (qint64{reader.size().width()} * reader.size().height());
  do {
    QImage image = reader.read();
    if (image.isNull()) break;
    image.setDevicePixelRatio(shown.scale);
    frames.images << image;
    frames.delay = std::max(reader.nextImageDelay(), kShortestDelay);
  } while (reader.supportsAnimation() && frames.images.size() < std::min(most, kMostFrames));
  return frames;
}

// The picture of a file, decoded once for each change of the file; empty when there is none now.
PictureFrames PictureOf(const std::string& path) {
  const auto file = PathForReading(path);
  if (!file) return {};
  const ScaledFile shown = FileForDisplays(*file);
  const QFileInfo info(shown.path);
  if (!info.exists()) return {};
  auto& kept = Kept();
  const auto found = FindKept(path);
  if (found != kept.end() && found->file == shown.path && found->time == info.lastModified() &&
      found->size == info.size()) {
    kept.splice(kept.begin(), kept, found);
    return found->frames;
  }
  PictureFrames frames = FramesIn(shown);
  if (frames.images.isEmpty() && shown.scale > 1) frames = FramesIn({*file, 1});
  if (frames.images.isEmpty()) return frames;
  if (found != kept.end()) kept.erase(found);
  kept.push_front({path, shown.path, info.lastModified(), info.size(), frames});
  DropOldest();
  return frames;
}

QRgb RgbOf(PictureColor color) { return qRgb(color.red, color.green, color.blue); }

// The picture with a table of its colours, which replaces and writes fast; as it is when it has more than
// 256.
QImage WithColorTable(const QImage& image) {
  if (image.isNull() || image.colorCount() > 0) return image;
  QImage source = image.convertToFormat(QImage::Format_ARGB32);
  QImage out(source.size(), QImage::Format_Indexed8);
  QList<QRgb> table;
  QHash<QRgb, uchar> places;
  for (int y = 0; y < source.height(); ++y) {
    const auto* const from = reinterpret_cast<const QRgb*>(source.constScanLine(y));
    uchar* const to = out.scanLine(y);
    for (int x = 0; x < source.width(); ++x) {
      if (x > 0 && from[x] == from[x - 1]) {
        to[x] = to[x - 1];
        continue;
      }
      auto place = places.find(from[x]);
      if (place == places.end()) {
        if (table.size() == 256) return source;
        place = places.insert(from[x], static_cast<uchar>(table.size()));
        table << from[x];
      }
      to[x] = *place;
    }
  }
  out.setColorTable(table);
  return out;
}

// The same pixels change, whether the picture has a table of colours or not.
void Replace(QImage& image, const ColorReplacement& replacement) {
  const QRgb from = RgbOf(replacement.from);
  const QRgb to = RgbOf(replacement.to);
  if (image.colorCount() > 0) {
    QList<QRgb> table = image.colorTable();
    std::ranges::replace(table, from, to);
    image.setColorTable(table);
    return;
  }
  for (int y = 0; y < image.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
    std::replace(line, line + image.width(), from, to);
  }
}

// The pictures that a file's bytes hold.
QList<QImage> PicturesIn(const std::string& file, int most) {
  QList<QImage> images;
  QByteArray bytes = QByteArray::fromStdString(file);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer);
  while (images.size() < most && IsSane(reader.size())) {
    const QImage image = reader.read();
    if (image.isNull()) break;
    images << image;
    if (!reader.jumpToNextImage()) break;
  }
  return images;
}

// The picture that a file's bytes hold, by a table of its colours if that can be.
QImage IndexedPictureIn(const std::string& file) {
  QImage image = ReadPlainGif(file);
  return image.isNull() ? WithColorTable(PicturesIn(file, 1).value(0)) : image;
}

std::string PngOf(const QImage& image) {
  if (IsPlainIndexed(image)) return WriteIndexedPng(image);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "PNG", kFastPng)) throw RuntimeError("cannot write a PNG");
  return bytes.toStdString();
}

}  // namespace

bool IsSane(QSize size) {
  return size.isValid() && size.width() <= kLargestSide && size.height() <= kLargestSide &&
         qint64{size.width()} * size.height() <= kLargestArea;
}

PictureFrames LoadedFrames(const std::string& path) {
  if (path.empty()) return {};
  PictureFrames now = PictureOf(path);
  if (!now.images.isEmpty()) return now;
  const auto kept = FindKept(path);
  if (kept == Kept().end()) return now;
  Kept().splice(Kept().begin(), Kept(), kept);
  return kept->frames;
}

QImage LoadedPicture(const std::string& path) { return LoadedFrames(path).images.value(0); }

QImage ReadPicture(const std::string& path) {
  const QList<QImage> images = ReadPictures(path, 1);
  return images.isEmpty() ? QImage() : images.first();
}

QList<QImage> ReadPictures(const std::string& path, int most) {
  QList<QImage> images;
  Guarded([&] { images = PicturesIn(ReadFile(path), most); });
  return images;
}

void LoadPicture(Picture& control, const std::string& path) {
  const QImage image = PictureOf(path).images.value(0);
  if (image.isNull()) throw RuntimeError("no picture: " + path);
  const QSize size = image.deviceIndependentSize().toSize();
  control.SetPicture(path, size.width(), size.height());
}

void ConvertPicture(const std::string& source, const std::string& target,
                    const std::vector<ColorReplacement>& replacements) {
  QImage image = IndexedPictureIn(ReadFile(source));
  if (image.isNull()) throw RuntimeError("no picture: " + source);
  for (const ColorReplacement& replacement : replacements) Replace(image, replacement);
  WriteFileSoon(target, PngOf(image));
}

}  // namespace skyloft
