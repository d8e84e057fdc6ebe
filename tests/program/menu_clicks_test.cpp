// The menus on a display, by a real mouse and real keys.
#include <gtest/gtest.h>

#include <QThread>

#include "program/program.h"
#include "x_display.h"

namespace skyloft::program {
namespace {

constexpr xcb_keysym_t kDown = 0xff54, kUp = 0xff52, kRight = 0xff53, kReturn = 0xff0d;

// The program with five towns on a display of 1024 by 768, its bar at the bottom.
class MenuClicks : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(display_.Up()) << "Xvfb and openbox must be installed";
    SetUpTowns(folder_);
    run_ = std::make_unique<ProgramRun>(folder_, QStringList{"--root", folder_.Root()},
                                        QStringList{"QT_QPA_PLATFORM=xcb", "DISPLAY=" + display_.Name()});
    ASSERT_TRUE(Await(20000, [&] { return display_.LargestWindow().place.width() == 800; }));
    window_ = display_.LargestWindow();
    QThread::msleep(500);  // the bar follows the window
  }
  void OpenMainMenu() { display_.Click(window_.place.topLeft() + QPoint(701, 23)); }
  void OpenBarMenu() {
    display_.MoveMouse({500, 768 - 17});
    display_.PressButton(XCB_BUTTON_INDEX_3);
    display_.ReleaseButton(XCB_BUTTON_INDEX_3);
  }
  // A menu takes keys once it is there.
  void Tap(std::initializer_list<xcb_keysym_t> keys) {
    QThread::msleep(400);
    for (const xcb_keysym_t key : keys) {
      display_.TapKey(key);
      QThread::msleep(60);
    }
  }
  bool Stored(const char* key, const std::string& value) {
    return Await(5000, [&] { return folder_.Setting(key) == value; });
  }

  XDisplay display_{XDisplay::Manager::Openbox};
  Folder folder_;
  std::unique_ptr<ProgramRun> run_;
  XDisplay::Window window_;
};

TEST_F(MenuClicks, TheTraysTownIsChosenFromItsSubmenu) {
  OpenMainMenu();
  Tap({kDown, kDown, kDown, kDown, kRight, kDown, kDown, kReturn});
  EXPECT_TRUE(Stored("Settings/TrayLocationIndex", "2"));
}

TEST_F(MenuClicks, TheLastEntryEndsTheProgram) {
  OpenMainMenu();
  Tap({kUp, kReturn});
  EXPECT_FALSE(run_->Running(5000));
  EXPECT_EQ(run_->Wait().code, 0);
}

TEST_F(MenuClicks, TheBarsMenuMovesHidesAndFillsIt) {
  OpenBarMenu();
  Tap({kDown, kDown, kDown, kDown, kRight, kReturn});
  EXPECT_TRUE(Stored("Options/ShowCurrentConditions", "0"));
  OpenBarMenu();
  Tap({kDown, kDown, kDown, kReturn});
  EXPECT_TRUE(Stored("Options/AlwaysOnTop", "1"));
  OpenBarMenu();
  Tap({kDown, kReturn});
  EXPECT_TRUE(Stored("Options/ShowTicker", "0"));
}

TEST_F(MenuClicks, TheMainMenuBringsAHiddenBarBack) {
  OpenBarMenu();
  Tap({kDown, kReturn});
  ASSERT_TRUE(Stored("Options/ShowTicker", "0"));
  OpenMainMenu();
  Tap({kUp, kUp, kReturn});
  EXPECT_TRUE(Stored("Options/ShowTicker", "1"));
}

}  // namespace
}  // namespace skyloft::program
