#include "platform/files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "base/guard.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/drive.h"
#include "platform/qt/files_qt.h"

namespace skyloft {
namespace {

// First, before any test stops the clock.
TEST(RunningClock, IsTheComputersAndIsNotMoved) {
  const Date before = ToLocal(QDateTime::currentDateTimeUtc());
  MoveClock(1000);
  EXPECT_GE(Now(), before);
  EXPECT_LE(Now().seconds, before.seconds + 5);
  EXPECT_FALSE(ClockStands());
}

const std::string kInstall = "C:\\program files\\skyloft";

class RealFiles : public ::testing::Test {
 protected:
  RealFiles() {
    Put(share.path() + "/icons/play.gif", "installed");
    SetUpDrive(root.path(), share.path());
  }
  static void Put(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QString Install(const QString& name) const { return root.path() + "/program files/skyloft/" + name; }
  QTemporaryDir root, share;
};

TEST_F(RealFiles, TheInstallFolderItsTempAndItsLegendsAreMade) {
  EXPECT_TRUE(QFileInfo(Install("temp")).isDir());
  EXPECT_TRUE(QFileInfo(Install("legends")).isDir());
}

TEST_F(RealFiles, WhatIsWrittenIsReadBackWordForWord) {
  const std::string bytes = std::string("a\r\n\0b\xE9", 6);
  WriteFile(kInstall + "\\sklt.dat", bytes);
  EXPECT_TRUE(FileExists(kInstall + "\\sklt.dat"));
  EXPECT_EQ(ReadFile(kInstall + "\\sklt.dat"), bytes);
  EXPECT_TRUE(QFileInfo::exists(Install("sklt.dat")));
}

TEST_F(RealFiles, NamesMatchWithoutRegardToCase) {
  WriteFile(kInstall + "\\temp\\Picture.GIF", "x");
  EXPECT_TRUE(FileExists("c:\\PROGRAM FILES\\Skyloft\\TEMP\\picture.gif"));
  WriteFile(kInstall + "\\temp\\PICTURE.gif", "y");
  EXPECT_EQ(QDir(Install("temp")).entryList(QDir::Files), QStringList{"Picture.GIF"});
}

TEST_F(RealFiles, AnInstallFolderOfOtherCaseIsTheInstallFolder) {
  QTemporaryDir other;
  Put(other.path() + "/Program Files/Skyloft/sklt.dat", "data");
  EXPECT_TRUE(SetUpDrive(other.path(), share.path()));
  EXPECT_EQ(ReadFile(kInstall + "\\sklt.dat"), "data");
  EXPECT_EQ(QDir(other.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{"Program Files"});
}

TEST_F(RealFiles, ADriveThatCannotBeMadeIsTold) { EXPECT_FALSE(SetUpDrive("/dev/null/x", share.path())); }

TEST_F(RealFiles, InstalledPicturesStandBehindTheRootsOwn) {
  EXPECT_EQ(ReadFile(kInstall + "\\icons\\play.gif"), "installed");
  EXPECT_EQ(ReadFile(kInstall + "\\Icons\\PLAY.gif"), "installed");
  Put(Install("icons/play.gif"), "own");
  EXPECT_EQ(ReadFile(kInstall + "\\icons\\play.gif"), "own");
  EXPECT_FALSE(FileExists(kInstall + "\\temp\\play.gif"));
}

TEST_F(RealFiles, InstalledPicturesAreReadOnly) {
  EXPECT_THROW(DeleteFile(kInstall + "\\icons\\play.gif"), RuntimeError);
  EXPECT_TRUE(QFile::exists(share.path() + "/icons/play.gif"));
}

TEST_F(RealFiles, APathThatLeavesTheDriveIsRefused) {
  Put(root.path() + "/../skyloft-outside.txt", "outside");
  QFile::link("/etc", Install("temp/link"));
  QFile::link("/etc/passwd", Install("temp/passwd"));
  const std::string paths[] = {
      "C:\\..\\skyloft-outside.txt",
      kInstall + "\\temp\\..\\..\\..\\..\\skyloft-outside.txt",
      "D:\\program files\\skyloft\\sklt.dat",
      "/etc/passwd",
      "etc/passwd",
      "C:",
      "C:\\",
      "",
      kInstall + "\\temp\\link\\passwd",
      kInstall + "\\temp\\passwd",
      kInstall + "\\temp\\C:\\x",
      kInstall + "\\temp\\a\nb",
      std::string("C:\\a\0b", 6),
      kInstall + "\\temp\\" + std::string(4096, 'x'),
      kInstall + "\\temp\\" + std::string(300, 'x'),
  };
  for (const std::string& path : paths) {
    EXPECT_FALSE(FileExists(path)) << path;
    EXPECT_THROW(ReadFile(path), RuntimeError) << path;
    EXPECT_THROW(WriteFile(path, "x"), RuntimeError) << path;
    EXPECT_THROW(DeleteFile(path), RuntimeError) << path;
  }
  QFile::remove(root.path() + "/../skyloft-outside.txt");
}

TEST_F(RealFiles, EitherWriteReplacesTheFileOrLeavesTheOldOneAndNothingBeside) {
  for (const auto write : {WriteFile, WriteFileSoon}) {
    write(kInstall + "\\temp\\a.txt", "old");
    write(kInstall + "\\temp\\A.TXT", "replaced");
    EXPECT_THROW(write(kInstall + "\\temp\\missing folder\\a.txt", "new"), RuntimeError);
    EXPECT_THROW(write(kInstall + "\\temp\\..\\..\\..\\..\\a.txt", "new"), RuntimeError);
    ASSERT_TRUE(QDir(Install("temp")).mkdir("folder"));
    EXPECT_THROW(write(kInstall + "\\temp\\folder", "new"), RuntimeError);
    ASSERT_TRUE(QDir(Install("temp")).rmdir("folder"));
    EXPECT_EQ(ReadFile(kInstall + "\\temp\\a.txt"), "replaced");
    EXPECT_EQ(QDir(Install("temp")).entryList(QDir::Files | QDir::Hidden), QStringList{"a.txt"});
  }
}

TEST_F(RealFiles, AMissingFileIsARunTimeError) {
  EXPECT_THROW(ReadFile(kInstall + "\\none"), RuntimeError);
  EXPECT_THROW(DeleteFile(kInstall + "\\none"), RuntimeError);
  EXPECT_THROW(FileTime(kInstall + "\\none"), RuntimeError);
  EXPECT_TRUE(ListFiles(kInstall + "\\none").empty());
}

TEST_F(RealFiles, AFoldersNamesComeSorted) {
  for (const char* name : {"b", "a", "C"}) WriteFile(kInstall + "\\temp\\" + name, "x");
  EXPECT_EQ(ListFiles(kInstall + "\\temp\\"), (std::vector<std::string>{"C", "a", "b"}));
}

TEST_F(RealFiles, FilesTakeTheirTimesFromAStandingClock) {
  ASSERT_TRUE(SetZone("America/Chicago"));
  StopClock(MakeDate(2003, 3, 7, 14, 5, 0));
  WriteFile(kInstall + "\\temp\\a.txt", "x");
  EXPECT_EQ(FileTime(kInstall + "\\temp\\a.txt"), MakeDate(2003, 3, 7, 14, 5, 0));
  EXPECT_EQ(QFileInfo(Install("temp/a.txt")).lastModified().toUTC().toString(Qt::ISODate),
            "2003-03-07T20:05:00Z");
  MoveClock(90);
  EXPECT_EQ(Now(), MakeDate(2003, 3, 7, 14, 6, 30));
}

struct ZoneCase {
  const char* zone;
  Date moment;
  int bias, code;
};

TEST(RealClock, TheZonesStateIsThatOfTheMoment) {
  const ZoneCase cases[] = {
      {"America/Chicago", MakeDate(2003, 1, 15, 12), 360, 1},
      {"America/Chicago", MakeDate(2003, 7, 15, 12), 360, 2},
      {"America/St_Johns", MakeDate(2003, 1, 15, 12), 210, 1},
      {"America/Phoenix", MakeDate(2003, 7, 15, 12), 420, 0},
      {"Asia/Kolkata", MakeDate(2003, 7, 15, 12), -330, 0},
  };
  for (const ZoneCase& each : cases) {
    ASSERT_TRUE(SetZone(each.zone));
    StopClock(each.moment);
    EXPECT_EQ(GetZoneState().bias_minutes, each.bias) << each.zone;
    EXPECT_EQ(GetZoneState().code, each.code) << each.zone;
  }
  EXPECT_FALSE(SetZone("Nowhere/Town"));
}

}  // namespace
}  // namespace skyloft
