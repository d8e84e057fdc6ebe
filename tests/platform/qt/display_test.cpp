// The timers of the models on the clock of the desktop.
#include "platform/qt/display.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>

#include "forms/main_form.h"

namespace skyloft {
namespace {

TEST(Display, TimersOfWholeSecondsTickTogetherWheneverTheyWereStarted) {
  int argc = 0;
  const QApplication application(argc, nullptr);
  Display::Get().Start();
  QElapsedTimer since;
  since.start();
  struct {
    Timer& timer;
    int ticks = 0;
    qint64 at = 0;
  } timers[] = {{MainForm.Clock}, {MainForm.UpdateTimer}};
  for (auto& one : timers) {
    one.timer.Tick = [&one, &since] {
      ++one.ticks;
      one.at = since.elapsed();
    };
    one.timer.Interval = 1000;
    one.timer.Enabled = true;
    Display::Get().ShowDirty();
    QThread::msleep(300);
  }
  // Once both have ticked, the next ticks of both are compared.
  QEventLoop loop;
  while ((timers[0].ticks < 2 || timers[1].ticks < 2) && since.elapsed() < 20000) loop.processEvents();
  EXPECT_EQ(timers[0].ticks, timers[1].ticks);
  EXPECT_LT(std::abs(timers[0].at - timers[1].at), 150) << "they were started 300 ms apart";
}

}  // namespace
}  // namespace skyloft
