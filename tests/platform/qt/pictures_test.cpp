#include "platform/pictures.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include "feed/radar_colors.h"
#include "forms/main_form.h"
#include "platform/files.h"
#include "platform/qt/drive.h"
#include "platform/qt/pictures_qt.h"

namespace skyloft {
namespace {

const std::string kTemp = "C:\\program files\\skyloft\\temp\\";

class RealPictures : public ::testing::Test {
 protected:
  RealPictures() { SetUpDrive(folder.path(), folder.path() + "/share"); }
  ~RealPictures() override { MainForm = {}; }

  QString Local(const char* name) const { return folder.path() + "/program files/skyloft/temp/" + name; }
  // A picture file of one colour but for its first pixel.
  void Save(const char* name, QRgb color, QRgb first, const char* format = "PNG",
            QSize size = {40, 30}) const {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    image.setPixel(0, 0, first);
    ASSERT_TRUE(image.save(Local(name), format));
  }
  // Lets a file seem to have been written then.
  void SetTime(const char* name, int seconds) const {
    QFile file(Local(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::fromSecsSinceEpoch(1000000000 + seconds),
                                 QFileDevice::FileModificationTime));
  }

  int argc = 0;
  QGuiApplication application{argc, nullptr};
  QTemporaryDir folder;
};

TEST_F(RealPictures, ColoursAreReplacedExactlyAndOneReplacementAfterTheOther) {
  QImage radar(5, 1, QImage::Format_RGB32);
  const QRgb before[] = {qRgb(0, 0, 0), qRgb(0, 139, 0), qRgb(205, 0, 0), qRgb(0, 138, 0), qRgb(90, 90, 80)};
  // The new black of the second step is not the black that the first step cleared.
  const QRgb after[] = {qRgb(90, 90, 80), qRgb(0, 0, 0), qRgb(255, 75, 75), qRgb(0, 138, 0),
                        qRgb(90, 90, 80)};
  for (int x = 0; x < 5; ++x) radar.setPixel(x, 0, before[x]);
  ASSERT_TRUE(radar.save(Local("radar.bmp"), "BMP"));
  ConvertPicture(kTemp + "radar.bmp", kTemp + "radar.png", RadarColors());
  const QImage png(Local("radar.png"), "PNG");
  ASSERT_EQ(png.size(), radar.size());
  for (int x = 0; x < 5; ++x) EXPECT_EQ(png.pixel(x, 0), after[x]) << x;
}

TEST_F(RealPictures, APictureOfManyColoursIsConvertedToo) {
  QImage picture(64, 64, QImage::Format_RGB32);
  for (int i = 0; i < 4096; ++i) picture.setPixel(i % 64, i / 64, qRgb(i % 256, i / 256, 7));
  picture.setPixel(63, 63, qRgb(0, 139, 0));
  ASSERT_TRUE(picture.save(Local("many.png"), "PNG"));
  ConvertPicture(kTemp + "many.png", kTemp + "out.png", RadarColors());
  const QImage png(Local("out.png"));
  EXPECT_EQ(png.pixel(63, 63), qRgb(0, 0, 0));
  EXPECT_EQ(png.pixel(62, 63), picture.pixel(62, 63));
}

TEST_F(RealPictures, WhatIsNoPictureRaisesAndWritesNothing) {
  WriteFile(kTemp + "garbage.gif", "not a picture");
  // The head of a GIF of 60000 by 60000 pixels.
  WriteFile(kTemp + "bomb.gif", std::string("GIF89a\x60\xea\x60\xea\x80\0\0", 13) + std::string(100, ','));
  for (const char* name : {"missing.gif", "garbage.gif", "bomb.gif"}) {
    EXPECT_THROW(ConvertPicture(kTemp + name, kTemp + "out.png", RadarColors()), RuntimeError) << name;
    EXPECT_FALSE(FileExists(kTemp + "out.png"));
    MainForm.Display1.SetPicture("former", 3, 4);
    EXPECT_THROW(LoadPicture(MainForm.Display1, kTemp + name), RuntimeError) << name;
    EXPECT_EQ(MainForm.Display1.PicturePath(), "former");
    EXPECT_EQ(MainForm.Display1.PictureWidth(), 3);
  }
}

TEST_F(RealPictures, AControlKnowsTheSizeOfItsPicture) {
  Save("map.png", qRgb(1, 2, 3), qRgb(4, 5, 6));
  LoadPicture(MainForm.Display1, kTemp + "map.png");
  EXPECT_EQ(MainForm.Display1.PictureWidth(), 40);
  EXPECT_EQ(MainForm.Display1.PictureHeight(), 30);
}

TEST_F(RealPictures, EveryKindOfTheCatalogueIsShownAndConverted) {
  const QRgb red = qRgb(255, 0, 0);
  // A GIF of one red pixel.
  WriteFile(kTemp + "map.gif",
            std::string("GIF89a\1\0\1\0\x80\0\0\xff\0\0\0\0\xff,\0\0\0\0\1\0\1\0\0\2\2\x44\1\0;", 35));
  Save("map.png", red, red);
  Save("map.jpg", red, red, "JPG");
  for (const std::string type : {"gif", "png", "jpg"}) {
    const std::string path = kTemp + "map." + type;
    LoadPicture(MainForm.Display1, path);
    EXPECT_EQ(MainForm.Display1.PicturePath(), path);
    ConvertPicture(path, kTemp + "out.png", {});
    for (const QImage& image : {LoadedPicture(path), QImage(Local("out.png"), "PNG")}) {
      ASSERT_FALSE(image.isNull()) << type;
      EXPECT_NEAR(qRed(image.pixel(0, 0)), 255, 3) << type;  // JPEG does not keep a colour exactly
      EXPECT_LE(qGreen(image.pixel(0, 0)) + qBlue(image.pixel(0, 0)), 3) << type;
    }
  }
}

TEST_F(RealPictures, AFileIsDecodedOnceForEachChangeOfIt) {
  Save("map.png", qRgb(1, 2, 3), qRgb(255, 0, 0));
  SetTime("map.png", 0);
  const QImage first = LoadedPicture(kTemp + "map.png");
  EXPECT_EQ(LoadedPicture(kTemp + "map.png").cacheKey(), first.cacheKey())
      << "the same picture, not a new one";
  Save("map.png", qRgb(1, 2, 3), qRgb(0, 255, 0));
  SetTime("map.png", 60);
  EXPECT_EQ(LoadedPicture(kTemp + "map.png").pixel(0, 0), qRgb(0, 255, 0));
}

TEST_F(RealPictures, APictureOnShowOutlivesAFileThatGoesOrBreaks) {
  Save("map.png", qRgb(1, 2, 3), qRgb(255, 0, 0));
  LoadPicture(MainForm.Display1, kTemp + "map.png");
  WriteFile(kTemp + "map.png", "garbage");
  EXPECT_THROW(LoadPicture(MainForm.Display1, kTemp + "map.png"), RuntimeError);
  EXPECT_EQ(LoadedPicture(kTemp + "map.png").pixel(0, 0), qRgb(255, 0, 0));
  ASSERT_TRUE(QFile::remove(Local("map.png")));
  EXPECT_THROW(LoadPicture(MainForm.Display1, kTemp + "map.png"), RuntimeError);
  EXPECT_EQ(LoadedPicture(kTemp + "map.png").pixel(0, 0), qRgb(255, 0, 0));
  EXPECT_TRUE(LoadedPicture(kTemp + "never.png").isNull());
}

// Two frames of 2 by 2 pixels, a tenth of a second each, for ever.
const QByteArray kTwoFrames = QByteArray::fromHex(
    "474946383961"
    "02000200800000"
    "0a141ec86432"
    "21ff0b4e45545343415045322e300301000000"
    "21f904000a000000"
    "2c000000000200020000"
    "020304401400"
    "21f904000a000000"
    "2c000000000200020000"
    "02034cc21400"
    "3b");

TEST_F(RealPictures, AnAnimationHasFramesThatFlashNoFasterThanTheEyeBears) {
  WriteFile(kTemp + "two.gif", kTwoFrames.toStdString());
  const PictureFrames frames = LoadedFrames(kTemp + "two.gif");
  ASSERT_EQ(frames.images.size(), 2);
  EXPECT_EQ(frames.images[0].pixel(0, 0), qRgb(10, 20, 30));
  EXPECT_EQ(frames.images[1].pixel(0, 0), qRgb(200, 100, 50));
  EXPECT_EQ(frames.delay, 200);
  EXPECT_EQ(LoadedPicture(kTemp + "two.gif"), frames.images[0]);
  Save("one.png", qRgb(1, 2, 3), 0);
  EXPECT_EQ(LoadedFrames(kTemp + "one.png").images.size(), 1);
}

TEST_F(RealPictures, OnlyTheOnesUsedLastAreKept) {
  for (int i = 0; i < 8; ++i) {  // 4 MB each
    Save(("big" + std::to_string(i) + ".png").c_str(), qRgb(i, 0, 0), 0, "PNG", {1000, 1000});
  }
  const auto key = [](int i) { return LoadedPicture(kTemp + "big" + std::to_string(i) + ".png").cacheKey(); };
  const auto oldest = key(0);
  for (int i = 1; i < 8; ++i) key(i);
  const auto newest = key(7);
  EXPECT_EQ(key(7), newest);
  EXPECT_NE(key(0), oldest) << "it was read again";
}

}  // namespace
}  // namespace skyloft
