#include "platform/sound.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include "platform/qt/drive.h"
#include "platform/qt/html/html_view.h"
#include "platform/qt/page_services.h"

namespace skyloft {
namespace {

const std::string kWarning = "C:\\program files\\skyloft\\wav\\warning.wav";

// The computer's sound device is a file that takes what is played as it is.
class Sound : public ::testing::Test {
 protected:
  Sound() {
    SetUpDrive(folder_.filePath("root"), SKYLOFT_SHARE);
    UseDevices("pcm.!default { type file slave.pcm null file \"" + Device().toUtf8() +
               "\" format raw }\npcm.null { type null }\n");
  }

  QString Device() const { return folder_.filePath("device"); }
  void UseDevices(const QByteArray& configuration) const {
    QFile file(folder_.filePath("devices"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(configuration);
    qputenv("ALSA_CONFIG_PATH", file.fileName().toLocal8Bit());
    qputenv("CANBERRA_DRIVER", "alsa");
  }
  // What the device was given, once that is so many bytes.
  QByteArray Heard(qsizetype bytes) const {
    QElapsedTimer clock;
    clock.start();
    QByteArray heard;
    while (heard.size() < bytes && clock.elapsed() < 10000) {
      QThread::msleep(10);
      QFile file(Device());
      if (file.open(QIODevice::ReadOnly)) heard = file.readAll();
    }
    return heard;
  }
  // The samples of the warning.
  static QByteArray Warning() {
    QFile file(QString(SKYLOFT_SHARE) + "/wav/warning.wav");
    return file.open(QIODevice::ReadOnly) ? file.readAll().mid(44) : QByteArray();
  }
  bool StaysSilent() const {
    QThread::msleep(300);
    return !QFile::exists(Device());
  }

  const QTemporaryDir folder_;
};

TEST_F(Sound, OfTheWarningIsPlayedWholeWithoutWaiting) {
  const QByteArray warning = Warning();
  ASSERT_GT(warning.size(), 44100) << "a second at least";
  PlaySound(kWarning);
  EXPECT_EQ(Heard(warning.size()), warning);
}

TEST_F(Sound, OfAPageIsPlayedByTheDisplay) {
  int argc = 0;
  const QApplication application(argc, nullptr);
  HtmlView view(PageServices());
  view.SetDocument("<html><head><bgsound src='file:" + kWarning + "'></head><body>x</body></html>");
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
  EXPECT_EQ(Heard(Warning().size()), Warning());
}

TEST_F(Sound, OfAMissingOrRefusedFileIsSilence) {
  QFile::copy(QString(SKYLOFT_SHARE) + "/wav/warning.wav", folder_.filePath("out.wav"));
  for (const char* path : {"", "C:\\program files\\skyloft\\wav\\no.wav", "C:\\program files\\skyloft\\wav",
                           "C:\\..\\out.wav", "D:\\out.wav", "out.wav"})
    PlaySound(path);
  EXPECT_TRUE(StaysSilent());
}

TEST_F(Sound, OnAComputerWithoutADeviceIsSilence) {
  UseDevices("");
  QElapsedTimer clock;
  clock.start();
  testing::internal::CaptureStderr();
  PlaySound(kWarning);
  PlaySound(kWarning);
  EXPECT_LE(clock.elapsed(), 1000);
  EXPECT_TRUE(StaysSilent());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace skyloft
