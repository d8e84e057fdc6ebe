#include "program/watched_window.h"

#include <gtest/gtest.h>

#include <utility>

#include <QElapsedTimer>
#include <QThread>

#include "program/program.h"

namespace skyloft::program {

// Of four bytes a pixel, all alike.
bool WatchedWindow::IsCovered() const {
  const QByteArray pixels = Pixels();
  return pixels.mid(4) == pixels.chopped(4);
}

QByteArray WatchedWindow::AwaitPainted() const {
  QByteArray painted;
  EXPECT_TRUE(Await(5000, [&] {
    const QByteArray before = std::exchange(painted, Pixels());
    QThread::msleep(200);
    return before == painted && !IsCovered();
  }));
  return painted;
}

qint64 WatchedWindow::TimeToRepaint(const QByteArray& painted) const {
  const xcb_window_t cover = display_.Cover(window_.place);
  EXPECT_TRUE(Await(1000, [&] { return IsCovered(); }));
  QElapsedTimer clock;
  clock.start();
  display_.Uncover(cover);
  EXPECT_TRUE(Await(1000, [&] { return Pixels() == painted; }));
  return clock.elapsed();
}

}  // namespace skyloft::program
