#include "platform/qt/pictures_qt.h"

#include <map>

#include <QBuffer>
#include <QImageReader>

#include "base/guard.h"
#include "platform/files.h"
#include "platform/pictures.h"

namespace skyloft {
namespace {

constexpr int kLargestSide = 8192;
constexpr qint64 kLargestArea = 32 * 1024 * 1024;

std::map<std::string, QImage>& Loaded() {
  static std::map<std::string, QImage> pictures;
  return pictures;
}

bool IsSane(QSize size) {
  return size.isValid() && size.width() <= kLargestSide && size.height() <= kLargestSide &&
         qint64{size.width()} * size.height() <= kLargestArea;
}

}  // namespace

QImage LoadedPicture(const std::string& path) {
  const auto found = Loaded().find(path);
  return found == Loaded().end() ? QImage() : found->second;
}

QImage ReadPicture(const std::string& path) {
  const QList<QImage> images = ReadPictures(path, 1);
  return images.isEmpty() ? QImage() : images.first();
}

QList<QImage> ReadPictures(const std::string& path, int most) {
  QList<QImage> images;
  Guarded([&] {
    QByteArray bytes = QByteArray::fromStdString(ReadFile(path));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    while (images.size() < most && IsSane(reader.size())) {
      const QImage image = reader.read();
      if (image.isNull()) break;
      images << image;
      if (!reader.jumpToNextImage()) break;
    }
  });
  return images;
}

void LoadPicture(Picture& control, const std::string& path) {
  QImage image = ReadPicture(path);
  if (image.isNull()) throw RuntimeError("no picture: " + path);
  Loaded()[path] = std::move(image);
  control.SetPicture(path);
}

}  // namespace skyloft
