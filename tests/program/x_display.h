// A display without a screen, and a client that looks at the windows on it.
#pragma once

#include <xcb/xcb.h>

#include <vector>

#include <QByteArray>
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
  // The pixels of that part of the screen.
  QByteArray Pixels(const QRect& place) const;
  // A plain window above all others, and its end.
  xcb_window_t Cover(const QRect& place) const;
  void Uncover(xcb_window_t cover) const;

 private:
  QProcess server_;
  QString name_;
  xcb_connection_t* connection_ = nullptr;
  xcb_screen_t* screen_ = nullptr;
};

}  // namespace skyloft::program
