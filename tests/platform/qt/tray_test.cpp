#include "platform/tray.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "forms/main_form.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/qt/drive.h"
#include "platform/qt/tray_qt.h"

namespace skyloft {
namespace {

const std::string kIcons = "C:\\program files\\skyloft\\icons\\";

// A desktop without a tray.
class RealTray : public ::testing::Test {
 protected:
  RealTray() {
    SetUpDrive(folder.path(), SKYLOFT_SHARE);
    MainForm = {};
  }
  ~RealTray() override { MainForm = {}; }

  int argc = 0;
  QApplication application{argc, nullptr};
  QTemporaryDir folder;
};

TEST_F(RealTray, EveryTemperatureHasAnIcon) {
  for (int degrees = -80; degrees <= 130; ++degrees) {
    EXPECT_NO_THROW(LoadIcon(MainForm.SysTray[1], kIcons + std::to_string(degrees) + ".ico")) << degrees;
  }
  for (const char* file : {"-.ico", "F.ico", "00.ico", "09.ico"}) {
    EXPECT_NO_THROW(LoadIcon(MainForm.SysTray[1], kIcons + file)) << file;
  }
}

TEST_F(RealTray, AMissingOrBrokenIconRaisesAndLeavesTheControl) {
  LoadIcon(MainForm.SysTray[1], kIcons + "72.ico");
  WriteFile("C:\\program files\\skyloft\\temp\\broken.ico", "no icon");
  for (const std::string& path : {kIcons + ".ico", kIcons + "999.ico", std::string(),
                                 std::string("C:\\program files\\skyloft\\temp\\broken.ico")}) {
    EXPECT_THROW(LoadIcon(MainForm.SysTray[1], path), RuntimeError) << path;
    EXPECT_EQ(MainForm.SysTray[1].Icon.Get(), kIcons + "72.ico");
  }
}

TEST_F(RealTray, WithoutATrayEveryCallSucceeds) {
  for (int i = 2; i >= 0; --i) {
    LoadIcon(MainForm.SysTray[i], kIcons + std::to_string(i) + ".ico");
    AddToTray(MainForm.SysTray[i]);
    MainForm.SysTray[i].ToolTip = "Town 1 F";
  }
  EXPECT_NO_THROW(ShowTray());
  MainForm.SysTray[0].Added = false;
  EXPECT_NO_THROW(ShowTray());
  EXPECT_TRUE(MainForm.SysTray[1].Added);
  EXPECT_FALSE(MainForm.SysTray[0].Added);
}

}  // namespace
}  // namespace skyloft
