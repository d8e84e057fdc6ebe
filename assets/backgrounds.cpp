#include <random>

#include "drawing.h"

namespace skyloft::assets {
namespace {

// The bands behind the planners' headings, from their left end to their right one.
struct Band {
  const char* name;
  QColor left, right;
  int stars;
};

const Band kBands[] = {
    {"hourlya", {0xc4, 0x5a, 0x10}, {0xff, 0xd9, 0x78}, 0},
    {"hourlyn", {0x06, 0x0f, 0x33}, {0x35, 0x58, 0xa8}, 26},
    {"dailya", {0x0e, 0x4c, 0xa8}, {0x74, 0xd2, 0xfa}, 0},
    {"dailyn", {0x0a, 0x0a, 0x2c}, {0x3f, 0x3f, 0x94}, 26},
    {"weeklya", {0x0b, 0x62, 0x74}, {0x7f, 0xdd, 0xc8}, 0},
    {"weeklyn", {0x05, 0x1c, 0x2c}, {0x27, 0x66, 0x84}, 26},
};

QImage DrawBand(const Band& band) {
  QImage picture = NewCanvas(540, 22);
  QPainter painter(&picture);
  QLinearGradient across(0, 0, 540, 0);
  across.setColorAt(0, band.left);
  across.setColorAt(1, band.right);
  painter.fillRect(picture.rect(), across);
  painter.fillRect(picture.rect(), Downward(22, QColor(255, 255, 255, 60), QColor(0, 0, 0, 50)));
  std::minstd_rand random(7);
  for (int star = 0; star < band.stars; ++star) {
    const auto x = static_cast<int>(180 + random() % 350), y = static_cast<int>(2 + random() % 18);
    painter.fillRect(x, y, 1, 1, QColor(255, 255, 255, static_cast<int>(90 + random() % 160)));
  }
  return picture;
}

}  // namespace

void DrawBackgrounds(const QString& backgrounds) {
  for (const Band& band : kBands) WritePicture(backgrounds + "/" + band.name + ".jpg", DrawBand(band), 92);
}

}  // namespace skyloft::assets
