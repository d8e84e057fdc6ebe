#include <gtest/gtest.h>

#include <QImageReader>
#include <QPainter>
#include <map>
#include <string>
#include <vector>

#include "assets/drawn_pictures.h"

namespace skyloft::assets {
namespace {

constexpr int kSizes[] = {16, 22, 24, 32, 44, 48, 64};

std::vector<std::string> Names() {
  std::vector<std::string> names{"-", "F", "00", "01", "02", "03", "04", "05", "06", "07", "08", "09"};
  for (int degrees = -80; degrees <= 130; ++degrees) names.push_back(std::to_string(degrees));
  return names;
}

std::map<int, QImage> SizesOf(const std::string& name) {
  std::map<int, QImage> pictures;
  QImageReader reader(PathOf("icons/" + name + ".ico"));
  for (int i = 0; i < reader.imageCount(); ++i, reader.jumpToNextImage()) {
    const QImage picture = reader.read().convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(picture.width(), picture.height()) << name;
    pictures[picture.width()] = picture;
  }
  return pictures;
}

TEST(TrayIcons, EachHoldsTheSizesOfPlainAndOfScaledTrays) {
  for (const std::string& name : Names()) {
    const std::map<int, QImage> pictures = SizesOf(name);
    EXPECT_EQ(pictures.size(), std::size(kSizes)) << name;
    for (const int size : kSizes) EXPECT_EQ(pictures.count(size), 1u) << name << " " << size;
  }
}

// The letters are the lightest; what lies around them in the box that they fill is their ground, on any
// panel.
TEST(TrayIcons, LettersStandOutOnLightAndOnDarkPanels) {
  for (const std::string& name : Names()) {
    const std::map<int, QImage> pictures = SizesOf(name);
    for (const int size : {16, 22}) {
      for (const QRgb panel : {qRgb(0xf0, 0xf0, 0xf0), qRgb(0x20, 0x20, 0x20)}) {
        QImage shown(size, size, QImage::Format_RGB32);
        shown.fill(panel);
        QPainter(&shown).drawImage(0, 0, pictures.at(size));
        QRect box;
        for (int i = 0; i < size * size; ++i) {
          const QPoint at(i % size, i / size);
          if (qAlpha(pictures.at(size).pixel(at)) == 255 && qGray(shown.pixel(at)) > 240)
            box |= QRect(at, QSize(1, 1));
        }
        ASSERT_GE(box.width(), 2) << name;
        box = box.adjusted(-1, -1, 1, 1) & shown.rect();
        double letters = 0, ground = 0;
        int letter_pixels = 0, ground_pixels = 0;
        for (int y = box.top(); y <= box.bottom(); ++y) {
          for (int x = box.left(); x <= box.right(); ++x) {
            const bool is_letter = qGray(shown.pixel(x, y)) > 200;
            (is_letter ? letters : ground) += Luminance(shown.pixel(x, y));
            ++(is_letter ? letter_pixels : ground_pixels);
          }
        }
        ASSERT_GT(ground_pixels, 0) << name;
        EXPECT_GT(Contrast(letters / letter_pixels, ground / ground_pixels), 4.5) << name << " " << size;
      }
    }
  }
}

TEST(TrayIcons, EveryTemperatureLooksDifferentInTheSmallestSize) {
  std::map<std::string, QImage> seen;
  for (const std::string& name : Names()) {
    const QImage picture = SizesOf(name).at(16);
    for (const auto& [other, known] : seen) EXPECT_NE(picture, known) << name << " " << other;
    seen[name] = picture;
  }
}

}  // namespace
}  // namespace skyloft::assets
