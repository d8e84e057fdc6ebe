// One family of pictures 40 by 30: a sky, sun or moon, clouds before it, and what falls below the clouds.
#include <cmath>
#include <numbers>
#include <string_view>

#include "drawing.h"
#include "sky_shapes.h"

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

}  // namespace

void DrawSkyIcons(const QString& icons) {
  for (const SkyIcon& icon : kSkyIcons) WriteGif(icons + "/" + icon.name + ".gif", DrawSkyIcon(icon));
}

}  // namespace skyloft::assets
