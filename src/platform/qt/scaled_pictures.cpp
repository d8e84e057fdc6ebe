#include "platform/qt/scaled_pictures.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QFile>
#include <QGuiApplication>

namespace skyloft {
namespace {

constexpr int kMostScale = 3;

// The file beside `file` for a scale; "" when there is none.
QString FileBeside(const QString& file, int scale) {
  const qsizetype dot = file.lastIndexOf('.');
  if (dot <= file.lastIndexOf('/')) return {};
  const QString name = file.left(dot) + QString("@%1x").arg(scale);
  for (const QString& ending : {QString(".png"), file.mid(dot)}) {
    if (QFile::exists(name + ending)) return name + ending;
  }
  return {};
}

}  // namespace

ScaledFile FileForRatio(const QString& file, double ratio) {
  if (ratio <= 1 || !QFile::exists(file)) return {file, 1};
  const int wanted = std::min(static_cast<int>(std::ceil(ratio)), kMostScale);
  std::vector<int> scales;
  for (int scale = wanted; scale <= kMostScale; ++scale) scales.push_back(scale);
  for (int scale = wanted - 1; scale > 1; --scale) scales.push_back(scale);
  for (const int scale : scales) {
    if (const QString beside = FileBeside(file, scale); !beside.isEmpty()) return {beside, scale};
  }
  return {file, 1};
}

ScaledFile FileForDisplays(const QString& file) {
  const auto* const application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
  return FileForRatio(file, application ? application->devicePixelRatio() : 1);
}

QImage ReadScaledPicture(const QString& file) {
  const ScaledFile shown = FileForDisplays(file);
  QImage image(shown.path);
  image.setDevicePixelRatio(shown.scale);
  return image;
}

}  // namespace skyloft
