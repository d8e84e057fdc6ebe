#include "drawing.h"

#include <QFile>
#include <QFileInfo>
#include <stdexcept>

namespace skyloft::assets {
namespace {

constexpr int kScales[] = {2, 3};  // beside the plain one
constexpr int kQuality = 92;       // of JPEG

QImage PaintAt(QSize size, int scale, const Draw& draw) { return Paint(size * scale, scale, draw); }

void WritePicture(const QString& path, const QImage& picture) {
  if (path.endsWith(".gif")) return WriteGif(path, {picture});
  if (path.endsWith(".png")) return WritePng(path, picture);
  if (!picture.save(path, "JPEG", kQuality)) throw std::runtime_error("cannot write " + path.toStdString());
}

QString NameAt(const QString& path, int scale, const QString& ending) {
  const QFileInfo plain(path);
  return QString("%1/%2@%3x.%4").arg(plain.path(), plain.completeBaseName()).arg(scale).arg(ending);
}

}  // namespace

QImage Paint(QSize pixels, double scale, const Draw& draw) {
  QImage canvas(pixels, QImage::Format_ARGB32_Premultiplied);
  canvas.fill(Qt::transparent);
  QPainter painter(&canvas);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  draw(painter);
  return canvas;
}

void WriteScaled(const QString& path, QSize size, const Draw& draw) {
  WritePicture(path, PaintAt(size, 1, draw));
  for (const int scale : kScales) WritePicture(NameAt(path, scale, "png"), PaintAt(size, scale, draw));
}

void WriteBlinking(const QString& path, QSize size, const Draw& first, const Draw& second) {
  WriteGif(path, {PaintAt(size, 1, first), PaintAt(size, 1, second)});
  for (const int scale : kScales) {
    WriteGif(NameAt(path, scale, "gif"), {PaintAt(size, scale, first), PaintAt(size, scale, second)});
  }
}

void WritePng(const QString& path, const QImage& picture) {
  if (!picture.save(path, "PNG")) throw std::runtime_error("cannot write " + path.toStdString());
}

void WriteBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
    throw std::runtime_error("cannot write " + path.toStdString());
  }
}

}  // namespace skyloft::assets
