// One family of pictures 40 by 30: a sky, sun or moon, clouds before it, and what falls below the clouds.
#include <QPainterPath>
#include <cmath>
#include <numbers>
#include <string_view>

#include "drawing.h"

namespace skyloft::assets {
namespace {

enum Cover { Clear, Few, Scattered, Broken, Mostly, Overcast };

// falls: a letter for each thing that falls, spread over the picture: r rain, s snow, i ice, b a bolt, f a
// band of fog (fog lies over all of the picture).
struct SkyIcon {
  const char* name;
  bool night;
  Cover cover;
  const char* falls;
};

const SkyIcon kSkyIcons[] = {
    {"ssunny", false, Clear, ""},
    {"smostsun", false, Few, ""},
    {"sprtcloud", false, Scattered, ""},
    {"spartsun", false, Broken, ""},
    {"smstcloud", false, Mostly, ""},
    {"scloudy", false, Overcast, ""},
    {"sfoggy", false, Few, "fff"},
    {"sliterain", false, Overcast, "rr"},
    {"smodrain", false, Overcast, "rrrr"},
    {"shevyrain", false, Overcast, "rrrrrrr"},
    {"ststorms", false, Overcast, "rrbrr"},
    {"sfrezrain", false, Overcast, "iriri"},
    {"sfrzrnsno", false, Overcast, "isisi"},
    {"srainsnow", false, Overcast, "rsrsr"},
    {"slitesnow", false, Overcast, "ss"},
    {"smodsnow", false, Overcast, "ssss"},
    {"shevysnow", false, Overcast, "sssssss"},
    {"schcshower", false, Broken, "rrr"},
    {"schcsnowshower", false, Broken, "sss"},
    {"snclear", true, Clear, ""},
    {"snmstclr", true, Few, ""},
    {"snpartcld", true, Scattered, ""},
    {"snmostcld", true, Mostly, ""},
    {"sncloudy", true, Overcast, ""},
    {"snfoggy", true, Few, "fff"},
    {"snlitrain", true, Overcast, "rr"},
    {"snmodrain", true, Overcast, "rrrr"},
    {"snhvyrain", true, Overcast, "rrrrrrr"},
    {"sntstorm", true, Overcast, "rrbrr"},
    {"snfrzrain", true, Overcast, "iriri"},
    {"snfrzrnsn", true, Overcast, "isisi"},
    {"snrainsno", true, Overcast, "rsrsr"},
    {"snlitesno", true, Overcast, "ss"},
    {"snmodsno", true, Overcast, "ssss"},
    {"snhvysnow", true, Overcast, "sssssss"},
    {"snchcshower", true, Broken, "rrr"},
    {"snchcsnowshower", true, Broken, "sss"},
};

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

void DrawStars(QPainter& painter) {
  constexpr QPointF kStars[] = {{4, 5}, {11, 2}, {33, 4}, {37, 12}, {29, 9}, {7, 14}, {2, 22}, {36, 24}};
  for (const QPointF& star : kStars) painter.fillRect(QRectF(star, QSizeF(1, 1)), QColor(255, 255, 255, 200));
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

// Clouds grow with the cover, until they hide the sun.
void DrawClouds(QPainter& painter, const SkyIcon& icon) {
  const bool wet = icon.cover == Overcast && *icon.falls;
  const QColor top = icon.night ? QColor(0xb9, 0xc4, 0xda)
                     : wet      ? QColor(0xd5, 0xdc, 0xe6)
                                : QColor(Qt::white);
  const QColor bottom = icon.night ? QColor(0x62, 0x70, 0x92)
                        : wet      ? QColor(0x7d, 0x8c, 0xa4)
                                   : QColor(0xb7, 0xc7, 0xdd);
  const double lift = *icon.falls ? -7 : 0;
  switch (icon.cover) {
    case Clear: break;
    case Few: DrawCloud(painter, {29, 27}, 14, top, bottom); break;
    case Scattered: DrawCloud(painter, {26, 27 + lift}, 20, top, bottom); break;
    case Broken:
      DrawCloud(painter, {31, 20 + lift * 0.6}, 15, top, bottom);
      DrawCloud(painter, {20, 27 + lift}, 23, top, bottom);
      break;
    case Mostly:
      DrawCloud(painter, {31, 20}, 17, top, bottom);
      DrawCloud(painter, {19, 27}, 31, top, bottom);
      break;
    case Overcast:
      DrawCloud(painter, {28, 18 + lift / 2}, 24, bottom, bottom.darker(112));
      DrawCloud(painter, {18, 26 + lift}, 31, top, bottom);
      break;
  }
}

void DrawFlake(QPainter& painter, QPointF at) {
  painter.setPen(QPen(Qt::white, 1.1, Qt::SolidLine, Qt::RoundCap));
  for (int arm = 0; arm < 3; ++arm) {
    const double angle = arm * std::numbers::pi / 3 + std::numbers::pi / 2;
    const QPointF tip = QPointF(std::cos(angle), std::sin(angle)) * 2.2;
    painter.drawLine(at - tip, at + tip);
  }
}

void DrawFalling(QPainter& painter, char kind, QPointF at, bool night) {
  switch (kind) {
    case 'r':
      painter.setPen(QPen(night ? QColor(0x6a, 0xb4, 0xff) : QColor(0x0b, 0x4a, 0xc4), 1.7, Qt::SolidLine,
                          Qt::RoundCap));
      painter.drawLine(at + QPointF(1.2, -2.2), at + QPointF(-1.2, 2.4));
      break;
    case 's': DrawFlake(painter, at); break;
    case 'i': {
      const QPointF diamond[] = {at + QPointF(0, -3), at + QPointF(2.2, 0), at + QPointF(0, 3),
                                 at + QPointF(-2.2, 0)};
      painter.setPen(QPen(QColor(0x0a, 0x58, 0x78), 0.7));
      painter.setBrush(QColor(0x9a, 0xf4, 0xff));
      painter.drawPolygon(diamond, 4);
      break;
    }
    case 'b': {
      const QPointF bolt[] = {at + QPointF(2, -7),   at + QPointF(-4, 1), at + QPointF(-0.5, 1),
                              at + QPointF(-2.5, 6), at + QPointF(4, -2), at + QPointF(0.5, -2)};
      painter.setPen(QPen(QColor(0x6a, 0x42, 0), 0.6));
      painter.setBrush(QColor(0xff, 0xdd, 0x2e));
      painter.drawPolygon(bolt, 6);
      break;
    }
    default: break;
  }
}

void DrawFalls(QPainter& painter, std::string_view falls, bool night) {
  const auto count = static_cast<double>(falls.size());
  const double step = std::min(7.0, 30 / std::max(count, 1.0));
  for (std::size_t i = 0; i < falls.size(); ++i) {
    const auto place = static_cast<double>(i);
    if (falls[i] == 'f') {
      painter.setPen(QPen(QColor(236, 240, 246, 225), 3, Qt::SolidLine, Qt::RoundCap));
      const double y = 13 + 6 * place, shift = i % 2 ? 3 : 0;
      painter.drawLine(QPointF(4 + shift, y), QPointF(33 + shift, y));
    } else {
      const double x = 19.5 + (place - (count - 1) / 2) * step;
      DrawFalling(painter, falls[i], {x, i % 2 ? 26.2 : 23.0}, night);
    }
  }
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

QImage DrawSkyIcon(const SkyIcon& icon) {
  QImage picture = NewCanvas(40, 30);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawSky(painter, icon.night, icon.cover == Overcast);
  const QPointF center = icon.cover == Clear ? QPointF(20, 15) : QPointF(15, *icon.falls ? 9 : 12);
  const double radius = icon.cover == Clear ? 8 : icon.cover == Mostly ? 6 : 7;
  if (icon.cover != Overcast) {
    if (icon.night) {
      DrawMoon(painter, center, radius + 1);
    } else {
      DrawSun(painter, center, radius);
    }
  }
  DrawClouds(painter, icon);
  DrawFalls(painter, icon.falls, icon.night);
  return picture;
}

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

void DrawSkyIcons(const QString& icons) {
  for (const SkyIcon& icon : kSkyIcons) WriteGif(icons + "/" + icon.name + ".gif", DrawSkyIcon(icon));
  for (const HorizonIcon& icon : kHorizonIcons)
    WriteGif(icons + "/" + icon.name + ".gif", DrawHorizonIcon(icon));
}

}  // namespace skyloft::assets
