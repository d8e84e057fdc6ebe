// Temperatures for the tray: white strokes with a dark rim, to be read on light and dark panels.
#include <QPainterPath>
#include <cmath>
#include <map>

#include "drawing.h"

namespace skyloft::assets {
namespace {

// Strokes as "xy" pairs on a grid 0..4 across and 0..6 down; a blank lifts the pen.
const std::map<char, const char*> kStrokes = {
    {'0', "00 40 46 06 00"},    {'1', "11 20 26"},       {'2', "00 40 43 03 06 46"},
    {'3', "00 40 46 06|13 43"}, {'4', "00 03 43|40 46"}, {'5', "40 00 03 43 46 06"},
    {'6', "40 00 06 46 43 03"}, {'7', "00 40 26"},       {'8', "00 40 46 06 00|03 43"},
    {'9', "43 03 00 40 46 06"}, {'-', "03 43"},          {'F', "46 46|40 00 06|03 33"},
};

// The middle of the pixel: lines of a pixel stay sharp.
double Snap(double at) { return std::floor(at) + 0.5; }

QPainterPath StrokesOf(char letter, const QRectF& cell) {
  QPainterPath path;
  bool down = false;
  for (const char* at = kStrokes.at(letter); *at; ++at) {
    if (*at == '|') {
      down = false;
    } else if (*at != ' ') {
      const QPointF point(Snap(cell.left() + cell.width() * (at[0] - '0') / 4),
                          Snap(cell.top() + cell.height() * (at[1] - '0') / 6));
      if (down) {
        path.lineTo(point);
      } else {
        path.moveTo(point);
      }
      down = true;
      ++at;
    }
  }
  return path;
}

QImage DrawTemperature(const std::string& text, int size) {
  QImage picture = NewCanvas(size, size);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale = size / 16.0, count = static_cast<double>(text.size());
  const double gap = (count > 2 ? 2 : 3) * scale, margin = 1.5 * scale;
  const double width = std::min((size - 2 * margin - (count - 1) * gap) / count, 5.5 * scale);
  const double left = (size - count * width - (count - 1) * gap) / 2;
  QPainterPath path;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const double x = left + static_cast<double>(i) * (width + gap);
    path.addPath(StrokesOf(text[i], {x, 2 * scale, width, size - 4 * scale}));
  }
  painter.strokePath(path, QPen(QColor(6, 14, 40), 3.4 * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.strokePath(
      path, QPen(Qt::white, (count > 2 ? 1.1 : 1.5) * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  return picture;
}

void WriteTrayIcon(const QString& icons, const std::string& text) {
  WriteIco(icons + "/" + QString::fromStdString(text) + ".ico",
           {DrawTemperature(text, 16), DrawTemperature(text, 22), DrawTemperature(text, 32)});
}

}  // namespace

void DrawTrayIcons(const QString& icons) {
  for (int degrees = -80; degrees <= 130; ++degrees) WriteTrayIcon(icons, std::to_string(degrees));
  for (int degrees = 0; degrees <= 9; ++degrees) WriteTrayIcon(icons, "0" + std::to_string(degrees));
  WriteTrayIcon(icons, "-");
  WriteTrayIcon(icons, "F");
}

}  // namespace skyloft::assets
