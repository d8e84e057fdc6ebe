// A display without a screen, and a client that looks at the windows on it and plays the mouse.
#pragma once

#include <xcb/xcb.h>

#include <vector>

#include <QByteArray>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>

namespace skyloft {

class XDisplay {
 public:
  enum class Manager { None, Openbox };  // what places and decorates the windows
  explicit XDisplay(Manager manager = Manager::None);
  ~XDisplay();
  XDisplay(const XDisplay&) = delete;
  XDisplay& operator=(const XDisplay&) = delete;

  bool Up() const { return up_; }
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
  // The values of a window's property; empty when it has none.
  std::vector<std::uint32_t> Property(xcb_window_t window, const char* name) const;
  // The names that a property lists.
  QStringList Names(xcb_window_t window, const char* property) const;

  // The mouse: its place on the screen, its buttons from 1, and a click with the left one.
  void MoveMouse(const QPoint& place) const;
  void PressButton(std::uint8_t button) const;
  void ReleaseButton(std::uint8_t button) const;
  void Click(const QPoint& place) const;
  // A key by its symbol, down and up.
  void TapKey(xcb_keysym_t symbol) const;

 private:
  bool Connect();
  bool StartManager();
  void Fake(std::uint8_t event, std::uint8_t detail, const QPoint& place) const;

  QProcess server_, manager_;
  QString name_;
  bool up_ = false;
  xcb_connection_t* connection_ = nullptr;
  xcb_screen_t* screen_ = nullptr;
};

}  // namespace skyloft
