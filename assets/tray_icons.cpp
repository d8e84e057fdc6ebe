// Temperatures for the tray: white strokes on a dark plate, to be read on light and dark panels.
#include <QPainterPath>
#include <cmath>
#include <map>

#include "drawing.h"

namespace skyloft::assets {
namespace {

constexpr int kSizes[] = {16, 22, 24, 32, 44, 48, 64};  // of the trays of plain and of scaled displays

// Strokes as "xy" pairs on a grid 0..4 across and 0..6 down; a blank lifts the pen.
const std::map<char, const char*> kStrokes = {
    {'0', "00 40 46 06 00"},    {'1', "11 20 26"},       {'2', "00 40 43 03 06 46"},
    {'3', "00 40 46 06|13 43"}, {'4', "00 03 43|40 46"}, {'5', "40 00 03 43 46 06"},
    {'6', "40 00 06 46 43 03"}, {'7', "00 40 26"},       {'8', "00 40 46 06 00|03 43"},
    {'9', "43 03 00 40 46 06"}, {'-', "03 43"},          {'F', "40 00 06|03 33"},
};

// Where the letters of a text lie, in whole pixels, so that their strokes are sharp.
struct Layout {
  Layout(int size, int letters)
      : stroke(Part(size, letters > 2 ? 0.095 : 0.14)),
        gap(Part(size, letters > 2 ? 0.07 : 0.13)),
        top(static_cast<int>(std::lround(size * 0.16))),
        width(std::min((size - 2 * Part(size, 0.07) - (letters - 1) * gap) / letters, Part(size, 0.38))),
        left((size - letters * width - (letters - 1) * gap) / 2) {}

  static int Part(int size, double share) { return std::max(1, static_cast<int>(size * share)); }

  int stroke, gap, top, width, left;
};

// The middle of a stroke whose edges lie between pixels.
double Snap(double at, int stroke) { return std::round(at) + stroke / 2.0; }

QPainterPath StrokesOf(char letter, const QRect& cell, int stroke) {
  QPainterPath path;
  bool down = false;
  for (const char* at = kStrokes.at(letter); *at; ++at) {
    if (*at == '|') {
      down = false;
    } else if (*at != ' ') {
      const QPointF point(Snap(cell.x() + (cell.width() - stroke) * (at[0] - '0') / 4.0, stroke),
                          Snap(cell.y() + (cell.height() - stroke) * (at[1] - '0') / 6.0, stroke));
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

void DrawTemperature(QPainter& painter, const std::string& text, int size) {
  const Layout layout(size, static_cast<int>(text.size()));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x0b, 0x1a, 0x3c));
  painter.drawRoundedRect(QRect(0, 0, size, size), size * 0.19, size * 0.19);
  QPainterPath path;
  for (int i = 0; const char letter : text) {
    const int x = layout.left + i++ * (layout.width + layout.gap);
    path.addPath(StrokesOf(letter, {x, layout.top, layout.width, size - 2 * layout.top}, layout.stroke));
  }
  painter.strokePath(path, QPen(Qt::white, layout.stroke, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
}

void WriteTrayIcon(const QString& icons, const std::string& text) {
  std::vector<QImage> pictures;
  for (const int size : kSizes) {
    pictures.push_back(
        Paint({size, size}, 1, [&](QPainter& painter) { DrawTemperature(painter, text, size); }));
  }
  WriteIco(icons + "/" + QString::fromStdString(text) + ".ico", pictures);
}

}  // namespace

void DrawTrayIcons(const QString& share) {
  const QString icons = share + "/icons";
  for (int degrees = -80; degrees <= 130; ++degrees) WriteTrayIcon(icons, std::to_string(degrees));
  for (int degrees = 0; degrees <= 9; ++degrees) WriteTrayIcon(icons, "0" + std::to_string(degrees));
  WriteTrayIcon(icons, "-");
  WriteTrayIcon(icons, "F");
}

}  // namespace skyloft::assets
