// Acts on a widget without a display, and what it paints.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace skyloft {

inline QImage Painted(QWidget& widget) {
  return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

inline void Mouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
  const bool is_move = type == QEvent::MouseMove;
  QMouseEvent event(type, at, widget.mapToGlobal(at), is_move ? Qt::NoButton : button,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

inline int CountOf(const QImage& image, QRgb color) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == color;
  }
  return count;
}

// A key, down and up.
inline void Key(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                const QString& text = {}) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers, text);
    QApplication::sendEvent(&widget, &event);
  }
}

}  // namespace skyloft
