// A display without a screen, and a client that looks at the windows on it and plays the mouse.
#pragma once

#include <xcb/xcb.h>

#include <vector>

#include <QByteArray>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>

namespace skyloft::program {

class XDisplay {
 public:
  XDisplay();
  ~XDisplay();
  XDisplay(const XDisplay&) = delete;
  XDisplay& operator=(const XDisplay&) = delete;

  static bool Installed();
  bool Up() const { return connection_ && xcb_connection_has_error(connection_) == 0; }
  QString Name() const { return name_; }  // such as ":7"

  struct Window {
    xcb_window_t id = 0;
    QRect place;  // on the screen
  };
  // The largest mapped window; its id is 0 when there is none.
  Window LargestWindow() const;
  bool Mapped(const Window& window) const;
  // The pixels of that part of the screen.
  QByteArray Pixels(const QRect& place) const;
  // A plain window above all others, and its end.
  xcb_window_t Cover(const QRect& place) const;
  void Uncover(xcb_window_t cover) const;
  // The mouse goes to a place on the screen and clicks there.
  void Click(const QPoint& place) const;

 private:
  QProcess server_;
  QString name_;
  xcb_connection_t* connection_ = nullptr;
  xcb_screen_t* screen_ = nullptr;
};

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
  QByteArray Pixels() const { return display_.Pixels(window_.place); }
  bool IsCovered() const;

  const XDisplay& display_;
  XDisplay::Window window_;
};

}  // namespace skyloft::program
