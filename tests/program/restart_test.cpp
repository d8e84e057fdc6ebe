// What a run leaves behind for the next.
#include <gtest/gtest.h>

#include <QFile>

#include "program/program.h"

namespace skyloft::program {
namespace {

constexpr int kLinesOfATown = 1143;  // of sklt.dat

TEST(Restart, KeepsTheSelectedTown) {
  const Folder folder;
  ASSERT_EQ(RunInRoot(folder, {"--demo"}, "select MainForm.LocationSelection 3\nmenu ExitSkyloft\n").code, 0);
  EXPECT_EQ(folder.Setting("Settings/Location"), "3");
  ASSERT_EQ(RunInRoot(folder, {"--snapshot", folder.Path("s")}).code, 0);
  const Snapshot shown(folder.Path("s"));
  EXPECT_EQ(shown.Number("MainForm.LocationSelection", "index"), 3);
  EXPECT_EQ(shown.Text("MainForm.LocationLabel", "caption"), "Seattle, WA");
}

TEST(Restart, KeepsThePlaceOfTheWindow) {
  const Folder folder;
  SetUpTowns(folder);
  // The store is an INI file whose keys are those of the program, and twips are whole.
  const QByteArray store = ReadBytes(folder.Path("root/registry.ini"));
  EXPECT_TRUE(store.contains("[HKCU]"));
  EXPECT_TRUE(store.contains("Software\\Aerolume\\Skyloft\\Settings\\Top=" +
                             QByteArray::fromStdString(folder.Setting("Settings/Top"))));
  folder.SetSetting("Settings/Top", "1200");
  folder.SetSetting("Settings/Left", "-450");
  const Ending ending =
      RunInRoot(folder, {}, "snapshot " + folder.Path("s").toUtf8() + "\nmenu ExitSkyloft\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  const Snapshot shown(folder.Path("s"));
  EXPECT_EQ(shown.Number("MainForm", "top"), 1200);
  EXPECT_EQ(shown.Number("MainForm", "left"), -450);
  EXPECT_EQ(folder.Setting("Settings/Top"), "1200");
  EXPECT_EQ(folder.Setting("Settings/Left"), "-450");
}

TEST(Restart, DataFileHasTheLinesOfItsTowns) {
  const Folder folder;
  SetUpTowns(folder);
  const auto expect_lines = [&](int towns) {
    const QByteArray data = ReadBytes(folder.DataFile());
    EXPECT_EQ(data.count("\r\n"), towns * kLinesOfATown);
    EXPECT_EQ(data.count('\n'), towns * kLinesOfATown);
    EXPECT_TRUE(data.endsWith("\r\n"));
  };
  expect_lines(5);
  folder.SetSetting("Settings/LocationIndexMax", "1");
  ASSERT_EQ(RunInRoot(folder, {}, "menu ExitSkyloft\n").code, 0);
  expect_lines(2);
}

TEST(Restart, StoredLocationOutsideTheListEndsTheProgram) {
  const Folder folder;
  SetUpTowns(folder);
  ASSERT_TRUE(QFile::exists(folder.DataFile()));
  folder.SetSetting("Settings/Location", "7");
  const Ending ending = RunInRoot(folder, {"--snapshot", folder.Path("s")}, "no command\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_FALSE(QFile::exists(folder.DataFile()));
  EXPECT_FALSE(QFile::exists(folder.Path("s")));
  EXPECT_EQ(ending.errors.find("box "), std::string::npos) << ending.errors;
}

TEST(ExitButton, HidesTheWindowAndTheProgramGoesOn) {
  const Folder folder;
  const QByteArray script =
      "expect MainForm visible 1\nclick MainForm.ExitButton\nexpect MainForm visible 0\nwait 200\nsnapshot " +
      folder.Path("s").toUtf8() + "\nmenu ExitSkyloft\n";
  const Ending ending = RunInRoot(folder, {"--demo"}, script);
  ASSERT_EQ(ending.code, 0) << ending.errors;
  const Snapshot shown(folder.Path("s"));
  EXPECT_FALSE(shown.Flag("MainForm", "visible"));
  EXPECT_FALSE(shown.HasPicture("MainForm"));
  EXPECT_TRUE(shown.Flag("MainForm.Clock", "enabled"));
  EXPECT_TRUE(shown.Flag("MainForm.UpdateTimer", "enabled"));
}

}  // namespace
}  // namespace skyloft::program
