// The main window on a display while a fetch hangs.
#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <algorithm>

#include "program/program_on_a_display.h"

namespace skyloft::program {
namespace {

constexpr QPoint kExitButton(733, 23);  // its middle, in the window

class WindowDuringAHangingFetch : public ProgramOnADisplay {
 protected:
  void SetUp() override {
    // The refresh asks for the stamps a second time after 15 minutes.
    ASSERT_NO_FATAL_FAILURE(
        StartAgainst("/forecast.asp?d=meta=hang@2", "async tick MainForm.UpdateTimer 30\n"));
    ASSERT_TRUE(Await(30000, [&] {
      return Only(ReadLog(folder_.Path("log")), "/forecast.asp", "d=meta").size() == 2;
    })) << "the fetch that hangs";
    ASSERT_TRUE(AwaitWindow());
  }

  bool AwaitWindow() {
    return Await(5000, [&] {
      window_ = display_.LargestWindow();
      return window_.place.width() == 800;
    });
  }

  // Clicks the exit button: milliseconds until the window is gone.
  qint64 TimeToHide() const {
    QElapsedTimer clock;
    clock.start();
    display_.Click(window_.place.topLeft() + kExitButton);
    while (display_.Mapped(window_) && clock.elapsed() < 2000) {
    }
    return clock.elapsed();
  }
};

TEST_F(WindowDuringAHangingFetch, IsHiddenWithin100MillisecondsOfAClickOnExit) {
  // A busy machine may take the processor away once or twice.
  qint64 best = 2000;
  for (int i = 0; i < 3 && best > 100; ++i) {
    if (i > 0) {
      ASSERT_EQ(ProgramRun(folder_, InRoot(folder_, {})).Wait().code, 0) << "a second start shows it again";
      ASSERT_TRUE(AwaitWindow());
    }
    WatchedWindow(display_, window_).AwaitPainted();
    best = std::min(best, TimeToHide());
  }
  EXPECT_LE(best, 100);
  EXPECT_TRUE(run_->Running(0));
}

TEST_F(WindowDuringAHangingFetch, IsPaintedAgainWithin100MillisecondsAfterItWasCovered) {
  const WatchedWindow watched(display_, window_);
  const QByteArray painted = watched.AwaitPainted();
  qint64 best = 2000;
  for (int i = 0; i < 5 && best > 100; ++i) best = std::min(best, watched.TimeToRepaint(painted));
  EXPECT_LE(best, 100);
}

}  // namespace
}  // namespace skyloft::program
