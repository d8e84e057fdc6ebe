#include "platform/speech.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

namespace skyloft {
namespace {

// The only folder on the PATH, with a program that writes its arguments to "said", a line each.
class Speech : public ::testing::Test {
 protected:
  Speech() { qputenv("PATH", folder_.path().toLocal8Bit()); }

  void AddSpeaker() const {
    QFile file(folder_.filePath("spd-say"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QByteArray said = folder_.filePath("said").toLocal8Bit();
    file.write("#!/bin/sh\nfor word; do echo \"[$word]\"; done >" + said + ".new\n/bin/mv " + said + ".new " +
               said + "\n");
    file.close();
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  }
  std::string Said() const {
    QElapsedTimer clock;
    clock.start();
    QFile file(folder_.filePath("said"));
    while (!file.exists() && clock.elapsed() < 10000) QThread::msleep(10);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(nothing)";
  }

  const QTemporaryDir folder_;
};

TEST_F(Speech, HandsOverTheTextAsOneArgumentThatNoShellReads) {
  AddSpeaker();
  Speak("-w Wend Chill , 5 ; $(touch x) `y` \"z\" '\n caf\xE9");
  EXPECT_EQ(Said(), "[--]\n[-w Wend Chill , 5 ; $(touch x) `y` \"z\" '\n caf\xC3\xA9]\n");
}

TEST_F(Speech, DoesNotWaitForTheSpeaker) {
  QFile file(folder_.filePath("spd-say"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("#!/bin/sh\nexec /bin/sleep 5\n");
  file.close();
  ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
  QElapsedTimer clock;
  clock.start();
  Speak("x");
  EXPECT_LE(clock.elapsed(), 2000);
}

TEST_F(Speech, IsSilentWhereNothingSpeaks) {
  testing::internal::CaptureStderr();
  Speak("x");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_FALSE(QFile::exists(folder_.filePath("said")));
}

}  // namespace
}  // namespace skyloft
