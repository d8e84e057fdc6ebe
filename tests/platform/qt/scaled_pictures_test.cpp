// Pictures on displays of more pixels. Each test is a process of its own, whose one display has twice the
// pixels.
#include "platform/qt/scaled_pictures.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include "forms/main_form.h"
#include "platform/pictures.h"
#include "platform/qt/drive.h"
#include "platform/qt/pictures_qt.h"

namespace skyloft {
namespace {

const std::string kPicture = "C:\\program files\\skyloft\\icons\\back.gif";
constexpr QRgb kOurs = qRgb(10, 20, 30), kOursLarger = qRgb(40, 50, 60), kUsers = qRgb(200, 100, 0),
               kUsersLarger = qRgb(200, 0, 100);

class ScaledPictures : public ::testing::Test {
 protected:
  ScaledPictures() {
    SetUpDrive(folder_.path() + "/root", folder_.path() + "/share");
    QDir().mkpath(kShare);
    QDir().mkpath(kUser);
  }
  ~ScaledPictures() override { MainForm = {}; }

  // A picture of one colour; PNG whatever the name says.
  static void Save(const QString& path, QRgb color, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    ASSERT_TRUE(image.save(path, "PNG"));
  }
  QRgb ColorShown() const { return LoadedPicture(kPicture).pixel(5, 5); }

  const int scale_ = qputenv("QT_SCALE_FACTOR", "2");
  int argc_ = 0;
  QGuiApplication application_{argc_, nullptr};
  QTemporaryDir folder_;
  const QString kShare = folder_.path() + "/share/icons/";
  const QString kUser = folder_.path() + "/root/program files/skyloft/icons/";
};

TEST_F(ScaledPictures, TheFileOfTheDisplaysScaleOrTheNextLargerOneIsTaken) {
  const struct {
    std::vector<const char*> beside;
    double ratio;
    const char* taken;
    int scale;
  } cases[] = {
      {{"@2x.png", "@3x.png"}, 1, ".gif", 1},
      {{"@2x.png", "@3x.png"}, 1.25, "@2x.png", 2},
      {{"@2x.png", "@3x.png"}, 2, "@2x.png", 2},
      {{"@2x.png", "@3x.png"}, 2.5, "@3x.png", 3},
      {{"@2x.png", "@3x.png"}, 4, "@3x.png", 3},
      {{"@3x.png"}, 2, "@3x.png", 3},
      {{"@2x.png"}, 3, "@2x.png", 2},
      {{"@2x.gif"}, 2, "@2x.gif", 2},
      {{"@2x.png", "@2x.gif"}, 2, "@2x.png", 2},
      {{}, 3, ".gif", 1},
  };
  int number = 0;
  for (const auto& c : cases) {
    const QString stem = kShare + "case" + QString::number(number++);
    Save(stem + ".gif", kOurs, {4, 4});
    for (const char* ending : c.beside) Save(stem + ending, kOurs, {8, 8});
    const ScaledFile found = FileForRatio(stem + ".gif", c.ratio);
    EXPECT_EQ(found.path, stem + c.taken) << number;
    EXPECT_EQ(found.scale, c.scale) << number;
  }
  EXPECT_EQ(FileForRatio(folder_.path() + "/without.dots/name", 2).scale, 1);
}

TEST_F(ScaledPictures, TheLargerPictureIsShownInThePlainOnesSize) {
  Save(kShare + "back.gif", kOurs, {34, 26});
  Save(kShare + "back@2x.png", kOursLarger, {68, 52});
  const QImage shown = LoadedPicture(kPicture);
  EXPECT_EQ(shown.size(), QSize(68, 52));
  EXPECT_EQ(shown.deviceIndependentSize(), QSizeF(34, 26));
  EXPECT_EQ(ColorShown(), kOursLarger);
  LoadPicture(MainForm.BackButton, kPicture);
  EXPECT_EQ(MainForm.BackButton.PictureWidth(), 34);
  EXPECT_EQ(MainForm.BackButton.PictureHeight(), 26);
  EXPECT_EQ(MainForm.BackButton.PicturePath(), kPicture);
}

TEST_F(ScaledPictures, AUsersOwnPictureGoesBeforeOurLargerOne) {
  Save(kShare + "back.gif", kOurs, {34, 26});
  Save(kShare + "back@2x.png", kOursLarger, {68, 52});
  Save(kUser + "back.gif", kUsers, {34, 26});
  EXPECT_EQ(ColorShown(), kUsers);
  EXPECT_EQ(LoadedPicture(kPicture).deviceIndependentSize(), QSizeF(34, 26));
  Save(kUser + "back@2x.png", kUsersLarger, {68, 52});
  EXPECT_EQ(ColorShown(), kUsersLarger) << "his own larger one";
}

TEST_F(ScaledPictures, ABrokenLargerPictureLeavesThePlainOne) {
  Save(kShare + "back.gif", kOurs, {34, 26});
  QFile broken(kShare + "back@2x.png");
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
  broken.close();
  EXPECT_EQ(ColorShown(), kOurs);
  EXPECT_EQ(LoadedPicture(kPicture).size(), QSize(34, 26));
}

TEST_F(ScaledPictures, WithoutThePlainPictureThereIsNone) {
  Save(kShare + "back@2x.png", kOursLarger, {68, 52});
  EXPECT_TRUE(LoadedPicture(kPicture).isNull());
  EXPECT_THROW(LoadPicture(MainForm.BackButton, kPicture), RuntimeError);
}

TEST_F(ScaledPictures, BodiesOfWindowsAreReadInTheSameWay) {
  Save(kShare + "body.png", kOurs, {8, 6});
  EXPECT_EQ(ReadScaledPicture(kShare + "body.png").deviceIndependentSize(), QSizeF(8, 6));
  Save(kShare + "body@2x.png", kOursLarger, {16, 12});
  const QImage larger = ReadScaledPicture(kShare + "body.png");
  EXPECT_EQ(larger.pixel(5, 5), kOursLarger);
  EXPECT_EQ(larger.deviceIndependentSize(), QSizeF(8, 6));
  EXPECT_TRUE(ReadScaledPicture(kShare + "none.png").isNull());
}

}  // namespace
}  // namespace skyloft
