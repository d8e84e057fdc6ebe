#include "drawing.h"
#include "sky_shapes.h"

namespace skyloft::assets {
namespace {

// Rising and setting: half a disc over the horizon and an arrow; still: the disc alone.
struct HorizonIcon {
  const char* name;
  bool moon;
  int arrow;  // 1 rises, -1 sets, 0 neither
};

const HorizonIcon kHorizonIcons[] = {{"sunrise", false, 1}, {"sunset", false, -1}, {"moonrise", true, 1},
                                     {"moonset", true, -1}, {"sun", false, 0},     {"moon", true, 0}};

QImage DrawHorizonIcon(const HorizonIcon& icon) {
  QImage picture = NewCanvas(40, 30);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawSky(painter, icon.moon, false);
  const QPointF center = icon.arrow ? QPointF(15, 20) : QPointF(20, 15);
  if (icon.moon) {
    DrawMoon(painter, center, 9);
  } else {
    if (icon.arrow)
      painter.fillRect(picture.rect(), Downward(30, QColor(0x2a, 0x3d, 0x86), QColor(0xff, 0x9a, 0x4a)));
    DrawSun(painter, center, 8);
  }
  if (icon.arrow == 0) return picture;
  painter.fillRect(QRect(0, 22, 40, 8), icon.moon ? QColor(0x06, 0x0b, 0x1c) : QColor(0x2b, 0x22, 0x30));
  painter.translate(32, 12);
  painter.scale(1, icon.arrow);
  painter.setPen(QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawLine(QPointF(0, 6), QPointF(0, -6));
  painter.drawPolyline(QPolygonF(QList<QPointF>{{-4, -2}, {0, -6}, {4, -2}}));
  return picture;
}

}  // namespace

void DrawHorizonIcons(const QString& icons) {
  for (const HorizonIcon& icon : kHorizonIcons)
    WriteGif(icons + "/" + icon.name + ".gif", DrawHorizonIcon(icon));
}

}  // namespace skyloft::assets
