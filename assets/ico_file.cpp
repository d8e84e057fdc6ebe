#include <QBuffer>
#include <QDataStream>

#include "drawing.h"

namespace skyloft::assets {

void WriteIco(const QString& path, const std::vector<QImage>& pictures) {
  std::vector<QByteArray> entries;
  for (const QImage& picture : pictures) {
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    picture.convertToFormat(QImage::Format_ARGB32).save(&png, "PNG");
    entries.push_back(png.data());
  }
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  const auto count = static_cast<quint16>(pictures.size());
  out << quint16{0} << quint16{1} << count;  // reserved, an icon, entries
  auto offset = static_cast<quint32>(6 + 16 * pictures.size());
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const auto size = static_cast<quint32>(entries[i].size());
    out << static_cast<quint8>(pictures[i].width()) << static_cast<quint8>(pictures[i].height());
    out << quint8{0} << quint8{0} << quint16{1} << quint16{32} << size
        << offset;  // no palette, 1 plane, 32 bits
    offset += size;
  }
  for (const QByteArray& entry : entries) out.writeRawData(entry.constData(), static_cast<int>(entry.size()));
  WriteBytes(path, bytes);
}

}  // namespace skyloft::assets
