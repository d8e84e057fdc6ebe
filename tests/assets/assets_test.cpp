// Bands, skin, sound, the desktop's icons, and what holds for all of them.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <algorithm>
#include <set>
#include <string>

#include "assets/drawn_pictures.h"

namespace skyloft::assets {
namespace {

// Names in the sources such as "back.gif"; what begins otherwise is a piece of a name or the feed's.
std::set<QString> NamesInTheSources() {
  const QRegularExpression name("\"([a-zA-Z0-9]+\\.(gif|ico|jpg|wav))\"");
  std::set<QString> names;
  QDirIterator files(SOURCE_DIR, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    QFile file(files.next());
    if (!file.open(QIODevice::ReadOnly)) continue;
    auto matches = name.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext()) names.insert(matches.next().captured(1));
  }
  return names;
}

TEST(Assets, EveryPictureThatTheProgramNamesIsThere) {
  const std::set<QString> names = NamesInTheSources();
  EXPECT_GT(names.size(), 80u);
  for (const QString& name : names) {
    const bool there =
        std::ranges::any_of(std::initializer_list<const char*>{"icons/", "backgrounds/", "wav/", "skin/"},
                            [&](const char* folder) { return QFile::exists(PathOf(folder) + name); });
    EXPECT_TRUE(there) << name.toStdString();
  }
}

TEST(Assets, ThePictureOfAScaledDisplayIsThePlainOneInMorePixels) {
  int compared = 0;
  for (const char* folder : {"icons", "backgrounds", "skin"}) {
    for (const QFileInfo& scaled : QDir(PathOf(folder)).entryInfoList({"*@2x.*"})) {
      const QStringList plain = QDir(PathOf(folder)).entryList({scaled.completeBaseName().chopped(3) + ".*"});
      ASSERT_EQ(plain.size(), 1) << scaled.fileName().toStdString();
      const QImage small = PictureOf(std::string(folder) + "/" + plain.first().toStdString());
      const QImage large = QImage(scaled.filePath());
      ASSERT_EQ(large.size(), small.size() * 2) << scaled.fileName().toStdString();
      const QImage shrunk = large.scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                .convertToFormat(QImage::Format_ARGB32);
      EXPECT_LT(MeanDistance(small, shrunk), small.width() < 20 ? 16 : 10) << scaled.fileName().toStdString();
      ++compared;
    }
  }
  EXPECT_GT(compared, 100);
}

TEST(Assets, BackgroundsAreBandsOfThePlanners) {
  for (const char* name : {"hourlya", "hourlyn", "dailya", "dailyn", "weeklya", "weeklyn"}) {
    const std::string file = std::string("backgrounds/") + name + ".jpg";
    QImageReader reader(PathOf(file));
    EXPECT_EQ(reader.format(), "jpeg") << name;
    EXPECT_EQ(reader.size(), QSize(540, 22)) << name;
    EXPECT_EQ(PictureOf(Scaled(file, 2)).size(), QSize(1080, 44)) << name;
  }
  for (const char* name : {"hourly", "daily", "weekly"}) {
    const std::string stem = std::string("backgrounds/") + name;
    const auto light = [](QRgb pixel) { return qGray(pixel) > 100; };
    EXPECT_GT(Share(PictureOf(stem + "a.jpg"), light), 3 * Share(PictureOf(stem + "n.jpg"), light)) << name;
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
}

TEST(Assets, DesktopHasTheProgramsIconInItsSizesAndAsADrawing) {
  const QString name = "apps/example.skyloft.Skyloft";
  const QString theme = PathOf("../icons/hicolor/");
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
    const QImage icon(theme + QString("%1x%1/").arg(size) + name + ".png");
    ASSERT_EQ(icon.size(), QSize(size, size));
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0) << size;
    EXPECT_EQ(qAlpha(icon.pixel(size / 2, size / 2)), 255) << size;
  }
  QFile drawing(theme + "scalable/" + name + ".svg");
  ASSERT_TRUE(drawing.open(QIODevice::ReadOnly));
  EXPECT_TRUE(drawing.readAll().contains("<svg"));
  EXPECT_EQ(QImageReader(PathOf("skin/app.ico")).imageCount(), 7) << "16 to 128, for the window";
}

TEST(Assets, LegendsFolderIsThere) { EXPECT_TRUE(QDir(PathOf("legends")).exists()); }

TEST(Assets, AllTogetherAreSmallerThan8Megabytes) {
  qint64 bytes = 0;
  QDirIterator files(PathOf(".."), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) bytes += QFileInfo(files.next()).size();
  EXPECT_GT(bytes, 1'000'000);
  EXPECT_LT(bytes, 8'000'000);
}

}  // namespace
}  // namespace skyloft::assets
