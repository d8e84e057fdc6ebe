#include <gtest/gtest.h>

#include <QImageReader>
#include <string>
#include <vector>

#include "assets/drawn_pictures.h"

namespace skyloft::assets {
namespace {

struct ButtonCase {
  std::vector<const char*> names;
  std::vector<const char*> looks;
  QSize size;
};

const ButtonCase kButtons[] = {
    {{"back", "next", "play", "stop", "zmarea", "zoomin", "zoomout", "reset"}, {"", "r", "d"}, {34, 26}},
    {{"local", "national"}, {"", "r", "d"}, {50, 26}},
    {{"exit", "help", "menu", "minimize"}, {"", "r"}, {26, 26}},
    {{"legend"}, {"", "r"}, {50, 26}},
    {{"tornado", "tstorm", "flood"}, {"", "s", "d"}, {46, 34}},
    {{"personal"}, {"", "s", "d"}, {150, 28}},
};

template <typename Look>
void ForEachLook(Look look) {
  for (const ButtonCase& buttons : kButtons) {
    for (const char* name : buttons.names) {
      for (const char* letter : buttons.looks)
        look(std::string("icons/") + name + letter + ".gif", buttons.size);
    }
  }
}

bool IsWaiting(const std::string& file) {
  const std::string stem = file.substr(file.find('/') + 1);
  return stem == "tornados.gif" || stem == "tstorms.gif" || stem == "floods.gif" || stem == "personals.gif";
}

TEST(ButtonPictures, EveryLookIsAGifOfItsSizeWithClearCorners) {
  ForEachLook([](const std::string& file, QSize size) {
    QImageReader reader(PathOf(file));
    EXPECT_EQ(reader.format(), "gif") << file;
    const QImage picture = reader.read();
    ASSERT_EQ(picture.size(), size) << file;
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0) << file;
    EXPECT_EQ(qAlpha(picture.pixel(size.width() - 1, size.height() - 1)), 0) << file;
    EXPECT_EQ(qAlpha(picture.pixel(size.width() / 2, 2)), 255) << file;
  });
}

TEST(ButtonPictures, EveryLookIsThereForScaledDisplays) {
  ForEachLook([](const std::string& file, QSize size) {
    for (const int scale : {2, 3}) {
      EXPECT_EQ(PictureOf(Scaled(file, scale, IsWaiting(file) ? "gif" : "png")).size(), size * scale) << file;
    }
  });
}

TEST(ButtonPictures, LooksOfAButtonDiffer) {
  for (const ButtonCase& buttons : kButtons) {
    for (const char* name : buttons.names) {
      for (std::size_t a = 0; a < buttons.looks.size(); ++a) {
        for (std::size_t b = a + 1; b < buttons.looks.size(); ++b) {
          const std::string stem = std::string("icons/") + name;
          const QImage one = PictureOf(stem + buttons.looks[a] + ".gif");
          const QImage other = PictureOf(stem + buttons.looks[b] + ".gif");
          EXPECT_GT(Difference(one, other), 0.1)
              << name << " " << buttons.looks[a] << " " << buttons.looks[b];
        }
      }
    }
  }
}

// What stands on a button against the middle of its face.
TEST(ButtonPictures, LettersAreLegibleInEveryLook) {
  ForEachLook([](const std::string& file, QSize size) {
    const QImage middle = PictureOf(file).copy(size.width() / 2 - 10, 5, 20, size.height() - 10);
    std::vector<double> lights;
    for (int i = 0; i < middle.width() * middle.height(); ++i) {
      lights.push_back(Luminance(middle.pixel(i % middle.width(), i / middle.width())));
    }
    std::sort(lights.begin(), lights.end());
    const double best = std::max(Contrast(lights.back(), lights[lights.size() / 4]),
                                 Contrast(lights.front(), lights[lights.size() * 3 / 4]));
    EXPECT_GT(best, 3) << file;
  });
}

TEST(ButtonPictures, AWaitingWarningBlinksBetweenALitAndADimFrame) {
  for (const char* name : {"tornado", "tstorm", "flood", "personal"}) {
    for (const std::string& file : {std::string(name) + "s.gif", std::string(name) + "s@2x.gif"}) {
      QImageReader reader(PathOf("icons/" + file));
      ASSERT_EQ(reader.imageCount(), 2) << file;
      EXPECT_EQ(reader.loopCount(), -1) << file << " for ever";
      const QImage lit = reader.read(), dim = reader.read();
      EXPECT_GE(reader.nextImageDelay(), 334) << file << " fewer than three flashes a second";
      EXPECT_GT(Difference(lit, dim), 0.5) << file;
      const QPoint face(lit.width() / 8, lit.height() / 2);
      EXPECT_GT(Luminance(lit.pixel(face)), 2 * Luminance(dim.pixel(face))) << file;
    }
  }
}

}  // namespace
}  // namespace skyloft::assets
