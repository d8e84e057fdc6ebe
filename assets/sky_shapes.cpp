#include "sky_shapes.h"

#include <QPainterPath>

namespace skyloft::assets {
namespace {

void DrawStars(QPainter& painter) {
  constexpr QPointF kStars[] = {{4, 5}, {11, 2}, {33, 4}, {37, 12}, {29, 9}, {7, 14}, {2, 22}, {36, 24}};
  for (const QPointF& star : kStars) painter.fillRect(QRectF(star, QSizeF(1, 1)), QColor(255, 255, 255, 200));
}

}  // namespace

void DrawSun(QPainter& painter, QPointF center, double radius) {
  painter.save();
  painter.translate(center);
  painter.setPen(QPen(QColor(0xff, 0xe4, 0x7a), 1.6, Qt::SolidLine, Qt::RoundCap));
  for (int ray = 0; ray < 12; ++ray) {
    painter.drawLine(QPointF(0, radius + 1.6), QPointF(0, radius + (ray % 2 ? 3 : 4.2)));
    painter.rotate(30);
  }
  QRadialGradient disc(QPointF(-radius / 3, -radius / 3), radius * 1.4);
  disc.setColorAt(0, QColor(0xff, 0xf2, 0x9a));
  disc.setColorAt(1, QColor(0xff, 0xae, 0x12));
  painter.setPen(Qt::NoPen);
  painter.setBrush(disc);
  painter.drawEllipse(QPointF(0, 0), radius, radius);
  painter.restore();
}

void DrawMoon(QPainter& painter, QPointF center, double radius) {
  QPainterPath disc, bite;
  disc.addEllipse(center, radius, radius);
  bite.addEllipse(center + QPointF(radius * 0.55, -radius * 0.3), radius * 0.9, radius * 0.9);
  painter.fillPath(disc.subtracted(bite), QColor(0xff, 0xf1, 0xc0));
}

// A cloud with a flat base whose middle is at `base`.
void DrawCloud(QPainter& painter, QPointF base, double width, const QColor& top, const QColor& bottom) {
  const double unit = width / 10;
  QPainterPath cloud;
  cloud.setFillRule(Qt::WindingFill);
  cloud.addEllipse(QPointF(-2.8, -1.9) * unit, 1.9 * unit, 1.9 * unit);
  cloud.addEllipse(QPointF(-0.4, -3.1) * unit, 2.5 * unit, 2.5 * unit);
  cloud.addEllipse(QPointF(2.9, -1.8) * unit, 1.8 * unit, 1.8 * unit);
  cloud.addRoundedRect(QRectF(-4.8 * unit, -2.4 * unit, 9.6 * unit, 2.4 * unit), unit, unit);
  QLinearGradient shade(0, -5.6 * unit, 0, 0);
  shade.setColorAt(0, top);
  shade.setColorAt(1, bottom);
  painter.save();
  painter.translate(base);
  painter.setBrush(shade);
  painter.setPen(QPen(QColor(20, 35, 70, 90), 0.8));
  painter.drawPath(cloud.simplified());
  painter.restore();
}

void DrawSky(QPainter& painter, bool night, bool gray) {
  const QColor top = night  ? QColor(0x08, 0x10, 0x30)
                     : gray ? QColor(0x5d, 0x86, 0xb8)
                            : QColor(0x2f, 0x86, 0xe8);
  const QColor bottom = night  ? QColor(0x22, 0x35, 0x70)
                        : gray ? QColor(0xa9, 0xc4, 0xdf)
                               : QColor(0xa6, 0xd8, 0xff);
  painter.fillRect(QRect(0, 0, 40, 30), Downward(30, top, bottom));
  if (night) DrawStars(painter);
}

}  // namespace skyloft::assets
