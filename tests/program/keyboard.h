// Real keys on a display.
#pragma once

#include <QByteArray>
#include <QStringList>

#include "x_display.h"

namespace skyloft::program {

class Keyboard {
 public:
  explicit Keyboard(const XDisplay& display) : display_(display) {}

  // Keys by their names, such as "alt+t"; what begins with "=" is typed.
  void Press(const QStringList& keys) const;
  // The title of the window that has the focus.
  bool HasFocus(const char* title) const;
  bool AwaitFocus(const char* title) const;

 private:
  // Runs xdotool; what it prints.
  QByteArray Tool(const QStringList& arguments) const;

  const XDisplay& display_;
};

}  // namespace skyloft::program
