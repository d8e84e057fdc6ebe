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

}  // namespace

QImage LoadedPicture(const std::string& path) {
  const auto found = Loaded().find(path);
  return found == Loaded().end() ? QImage() : found->second;
}

QImage ReadPicture(const std::string& path) {
  QImage image;
  Guarded([&] {
    QByteArray bytes = QByteArray::fromStdString(ReadFile(path));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    const bool sane = size.isValid() && size.width() <= kLargestSide && size.height() <= kLargestSide &&
                      qint64{size.width()} * size.height() <= kLargestArea;
    if (sane) image = reader.read();
  });
  return image;
}

void LoadPicture(Picture& control, const std::string& path) {
  QImage image = ReadPicture(path);
  if (image.isNull()) throw RuntimeError("no picture: " + path);
  Loaded()[path] = std::move(image);
  control.SetPicture(path);
}

}  // namespace skyloft
