#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

QString PathOf(const std::string& name) { return QString(SHARE_DIR) + "/" + QString::fromStdString(name); }

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

const char* const kSkyIcons[] = {
    "ssunny",      "smostsun",        "sprtcloud", "spartsun",   "smstcloud",      "scloudy",   "sfoggy",
    "sliterain",   "smodrain",        "shevyrain", "ststorms",   "sfrezrain",      "sfrzrnsno", "srainsnow",
    "slitesnow",   "smodsnow",        "shevysnow", "schcshower", "schcsnowshower", "snclear",   "snmstclr",
    "snpartcld",   "snmostcld",       "sncloudy",  "snfoggy",    "snlitrain",      "snmodrain", "snhvyrain",
    "sntstorm",    "snfrzrain",       "snfrzrnsn", "snrainsno",  "snlitesno",      "snmodsno",  "snhvysnow",
    "snchcshower", "snchcsnowshower",
};

TEST(Assets, EveryButtonLookIsAGifOfItsSizeWithClearCorners) {
  for (const ButtonCase& buttons : kButtons) {
    for (const char* name : buttons.names) {
      for (const char* look : buttons.looks) {
        const std::string file = std::string("icons/") + name + look + ".gif";
        QImageReader reader(PathOf(file));
        EXPECT_EQ(reader.format(), "gif") << file;
        const QImage picture = reader.read();
        ASSERT_EQ(picture.size(), buttons.size) << file;
        EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0) << file;
        EXPECT_EQ(qAlpha(picture.pixel(picture.width() - 1, picture.height() - 1)), 0) << file;
        EXPECT_EQ(qAlpha(picture.pixel(picture.width() / 2, 2)), 255) << file;
      }
    }
  }
}

TEST(Assets, LooksOfAButtonDiffer) {
  for (const ButtonCase& buttons : kButtons) {
    for (const char* name : buttons.names) {
      std::vector<QImage> seen;
      for (const char* look : buttons.looks) {
        const QImage picture(PathOf(std::string("icons/") + name + look + ".gif"));
        EXPECT_EQ(std::count(seen.begin(), seen.end(), picture), 0) << name << look;
        seen.push_back(picture);
      }
    }
  }
}

TEST(Assets, SkyIconsAreOpaqueAndAllDifferent) {
  std::vector<QImage> seen;
  for (const char* name : kSkyIcons) {
    const QImage picture(PathOf(std::string("icons/") + name + ".gif"));
    ASSERT_EQ(picture.size(), QSize(40, 30)) << name;
    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 255) << name;
    EXPECT_EQ(std::count(seen.begin(), seen.end(), picture), 0) << name;
    seen.push_back(picture);
  }
}

// Names of night icons begin with "sn", and no day icon does.
// "n".
TEST(Assets, NightSkiesAreDarkerThanDaySkies) {
  for (const char* name : kSkyIcons) {
    const QImage picture(PathOf(std::string("icons/") + name + ".gif"));
    const int light = qGray(picture.pixel(39, 1));
    if (std::strncmp(name, "sn", 2) == 0) {
      EXPECT_LT(light, 60) << name;
    } else {
      EXPECT_GT(light, 90) << name;
    }
  }
}

TEST(Assets, SunAndMoonPicturesExist) {
  for (const char* name : {"sunrise", "sunset", "moonrise", "moonset", "sun", "moon"}) {
    EXPECT_EQ(QImage(PathOf(std::string("icons/") + name + ".gif")).size(), QSize(40, 30)) << name;
  }
}

TEST(Assets, TrayIconsHoldTheirSizesAndReadOnAnyGround) {
  std::vector<std::string> names{"-", "F", "00", "01", "02", "03", "04", "05", "06", "07", "08", "09"};
  for (int degrees = -80; degrees <= 130; ++degrees) names.push_back(std::to_string(degrees));
  for (const std::string& name : names) {
    QImageReader reader(PathOf("icons/" + name + ".ico"));
    ASSERT_EQ(reader.imageCount(), 3) << name;
    for (const int size : {16, 22, 32}) {
      const QImage picture = reader.read();
      ASSERT_EQ(picture.size(), QSize(size, size)) << name;
      bool light = false, dark = false;
      for (int i = 0; i < size * size; ++i) {
        const QRgb pixel = picture.pixel(i % size, i / size);
        light = light || (qAlpha(pixel) > 200 && qGray(pixel) > 200);
        dark = dark || (qAlpha(pixel) > 200 && qGray(pixel) < 60);
      }
      EXPECT_TRUE(light && dark) << name << " at " << size;
      reader.jumpToNextImage();
    }
  }
}

TEST(Assets, BackgroundsAreBandsOfThePlanners) {
  for (const char* name : {"hourlya", "hourlyn", "dailya", "dailyn", "weeklya", "weeklyn"}) {
    QImageReader reader(PathOf(std::string("backgrounds/") + name + ".jpg"));
    EXPECT_EQ(reader.format(), "jpeg") << name;
    EXPECT_EQ(reader.size(), QSize(540, 22)) << name;
  }
  const QColor day(QImage(PathOf("backgrounds/hourlya.jpg")).pixel(270, 11));
  EXPECT_GT(day.red(), day.blue());  // warm
  for (const char* name : {"hourlyn", "dailya", "dailyn"}) {
    const QColor cool(QImage(PathOf(std::string("backgrounds/") + name + ".jpg")).pixel(270, 11));
    EXPECT_GT(cool.blue(), cool.red()) << name;
  }
}

TEST(Assets, WarningIsAMonoWaveOfASecondAndAHalf) {
  QFile file(PathOf("wav/warning.wav"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray bytes = file.readAll();
  const auto number = [&](qsizetype at, int size) {
    unsigned value = 0;
    for (int i = size - 1; i >= 0; --i) value = value * 256 + static_cast<unsigned char>(bytes[at + i]);
    return value;
  };
  ASSERT_GT(bytes.size(), 44);
  EXPECT_EQ(bytes.left(4), "RIFF");
  EXPECT_EQ(number(4, 4), bytes.size() - 8);
  EXPECT_EQ(bytes.mid(8, 8), "WAVEfmt ");
  EXPECT_EQ(number(20, 2), 1u);      // PCM
  EXPECT_EQ(number(22, 2), 1u);      // mono
  EXPECT_EQ(number(24, 4), 22050u);  // samples a second
  EXPECT_EQ(number(34, 2), 16u);     // bits
  EXPECT_EQ(number(40, 4), bytes.size() - 44);
  EXPECT_NEAR(number(40, 4) / 44100.0, 1.5, 0.1);
  short loudest = 0;
  for (qsizetype at = 44; at < bytes.size(); at += 2)
    loudest = std::max(loudest, static_cast<short>(number(at, 2)));
  EXPECT_GT(loudest, 8000);
}

TEST(Assets, SkinFitsTheShapeOfTheWindow) {
  const QImage body(PathOf("skin/mainform.png"));
  ASSERT_EQ(body.size(), QSize(800, 590));
  // Corner ellipses of 110 by 96 leave the corners clear; the sides are filled to the edge.
  EXPECT_EQ(qAlpha(body.pixel(3, 3)), 0);
  EXPECT_EQ(qAlpha(body.pixel(796, 586)), 0);
  EXPECT_EQ(qAlpha(body.pixel(0, 300)), 255);
  EXPECT_EQ(qAlpha(body.pixel(400, 0)), 255);
  EXPECT_LT(qGray(body.pixel(400, 300)), 60);
  EXPECT_EQ(QImage(PathOf("skin/splash.png")).size(), QSize(420, 200));
  EXPECT_EQ(QImage(PathOf("skin/app.png")).size(), QSize(128, 128));
  EXPECT_EQ(QImage(PathOf("skin/tray.png")).size(), QSize(22, 22));
}

TEST(Assets, LegendsFolderIsThere) { EXPECT_TRUE(QDir(PathOf("legends")).exists()); }

}  // namespace
