// A window of the program as a user sees it.
#pragma once

#include <QByteArray>

#include "x_display.h"

namespace skyloft::program {

// What a window shows, and how soon it shows it again: only a program whose events run paints it.
class WatchedWindow {
 public:
  WatchedWindow(const XDisplay& display, const XDisplay::Window& window)
      : display_(display), window_(window) {}

  // Its pixels as soon as they stand.
  QByteArray AwaitPainted() const;
  // Covers it for a moment: milliseconds until it is painted again.
  qint64 TimeToRepaint(const QByteArray& painted) const;

 private:
  // Without the strip at the foot, where a text may run.
  QByteArray Pixels() const { return display_.Pixels(window_.place.adjusted(0, 0, 0, -40)); }
  bool IsCovered() const;

  const XDisplay& display_;
  XDisplay::Window window_;
};

}  // namespace skyloft::program
