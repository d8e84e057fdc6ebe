// An act of the user by the keyboard.
#pragma once

#include <optional>

#include <QPoint>

namespace skyloft {

// While one lives, what the program does is the answer to a key, and a menu opens where the key acted: the
// mouse may be anywhere.
class KeyAct {
 public:
  explicit KeyAct(QPoint place) { ThePlace() = place; }  // on the screen
  ~KeyAct() { ThePlace().reset(); }
  KeyAct(const KeyAct&) = delete;
  KeyAct& operator=(const KeyAct&) = delete;
  // Of the act under way; nothing when there is none.
  static std::optional<QPoint> Place() { return ThePlace(); }

 private:
  static std::optional<QPoint>& ThePlace() {
    static std::optional<QPoint> place;
    return place;
  }
};

}  // namespace skyloft
