#include "platform/shell.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include "platform/qt/drive.h"
#include "platform/qt/shell_qt.h"
#include "platform/qt/signing_key.h"

namespace skyloft {
namespace {

constexpr const char* kPath = "C:\\program files\\skyloft\\temp\\update";
constexpr const char* kNotSigned =
    "skyloft: the update C:\\program files\\skyloft\\temp\\update is not signed; "
    "it was not started\n";

// A drive whose update, when it runs, leaves a marker with what it finds open.
class Update : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(SetUpDrive(directory_.filePath("root"), directory_.filePath("share")));
    ASSERT_FALSE(QFile::exists(Marker()));
  }

  QString File() const { return directory_.filePath("root/program files/skyloft/temp/update"); }
  QString Marker() const { return directory_.filePath("marker"); }
  // Ends before the signature that follows it.
  std::string Script() const {
    const std::string marker = Marker().toStdString();
    return "#!/bin/sh\nopen=$(readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2)\necho \"$open\" >" +
           marker + ".new\nmv " + marker + ".new " + marker + "\nexit 0\n";
  }
  void Write(const std::string& bytes) const {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes.data(), static_cast<qint64>(bytes.size())), static_cast<qint64>(bytes.size()));
  }
  bool RunsWithin(int milliseconds) const {
    QElapsedTimer clock;
    clock.start();
    while (!QFile::exists(Marker()) && clock.elapsed() < milliseconds) QThread::msleep(10);
    return QFile::exists(Marker());
  }
  // Starts the update; what it says on stderr.
  static std::string Start(const std::string& key_hex, const std::string& path = kPath) {
    testing::internal::CaptureStderr();
    StartUpdateWithKey(path, key_hex);
    return testing::internal::GetCapturedStderr();
  }
  void ExpectLeftAlone(const std::string& bytes, const std::string& key_hex) const {
    Write(bytes);
    EXPECT_EQ(Start(key_hex), kNotSigned);
    EXPECT_FALSE(RunsWithin(300));
    EXPECT_FALSE(QFile::permissions(File()).testFlag(QFile::ExeOwner));
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(), bytes);
  }

  SigningKey key_;
  QTemporaryDir directory_;
};

TEST_F(Update, ThatIsSignedRunsWithoutInputAndOutput) {
  Write(key_.Sign(Script()));
  EXPECT_EQ(Start(key_.PublicHex()), "");
  ASSERT_TRUE(RunsWithin(10000));
  QFile marker(Marker());
  ASSERT_TRUE(marker.open(QIODevice::ReadOnly));
  EXPECT_EQ(marker.readAll().toStdString(), "/dev/null\n/dev/null\n/dev/null\n");
}

TEST_F(Update, ThatIsNotSignedIsLeftWhereItIs) { ExpectLeftAlone(Script(), key_.PublicHex()); }

TEST_F(Update, ThatAnotherHasSignedIsLeftWhereItIs) {
  ExpectLeftAlone(SigningKey().Sign(Script()), key_.PublicHex());
}

TEST_F(Update, WithoutAKeyIsLeftWhereItIs) { ExpectLeftAlone(key_.Sign(Script()), ""); }

TEST_F(Update, OutsideTheDriveIsNotReached) {
  Write(key_.Sign(Script()));
  ASSERT_TRUE(QFile::rename(File(), directory_.filePath("update")));
  for (const std::string& path :
       {directory_.filePath("update").toStdString(), std::string("C:\\..\\update")}) {
    EXPECT_EQ(Start(key_.PublicHex(), path),
              "skyloft: the update " + path + " is not signed; it was not started\n");
  }
  ASSERT_TRUE(QFile::link(directory_.filePath("update"), File()));
  EXPECT_EQ(Start(key_.PublicHex()), kNotSigned);
  EXPECT_FALSE(RunsWithin(300));
}

TEST_F(Update, ThatIsMissingIsToldAndNothingElse) { EXPECT_EQ(Start(key_.PublicHex()), kNotSigned); }

TEST_F(Update, ThatIsSignedButNoProgramIsTold) {
  Write(key_.Sign("no program"));
  EXPECT_NE(Start(key_.PublicHex()).find("cannot be run"), std::string::npos);
}

}  // namespace
}  // namespace skyloft
