// The picture of the main window's display, and the marks on it.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QEvent>
#include <QImage>
#include <QWidget>

#include "platform/controls.h"

namespace skyloft {

// A picture, zoomed and moved, with texts laid over it. The mouse can span a rectangle. For the keyboard
// there is a cross: the arrows move it, by a pixel with Shift, and what the mouse would do there Space does
// for the left button (with the rectangle tool once for each corner), Enter for a double click, and the menu
// key for the right button, on a mark that lies there too.
class ZoomView : public QWidget {
 public:
  explicit ZoomView(QWidget* parent);
  void SetView(const QImage& image, double zoom, QPoint origin);
  void SetOverlay(const std::vector<OverlayText>& overlay);
  void SetRectangleTool(bool on);
  std::function<void(const MousePress&)> pressed;
  std::function<void(QPoint from, QPoint to)> dragged;  // with the rectangle tool

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void PaintCross(QPainter& painter) const;
  void ShowCross(bool on);
  bool MoveCross(const QKeyEvent& event);
  // The mouse at the cross, by keys.
  void Mouse(QEvent::Type type, Qt::MouseButton button);
  void Click(Qt::MouseButton button);

  QImage image_;
  double zoom_ = 1;
  QPoint origin_;
  std::vector<OverlayText> overlay_;
  bool rectangle_tool_ = false;
  std::optional<QPoint> held_at_;  // where the mouse went down with the tool
  QPoint mouse_;                   // or the cross, whichever moved last
  bool cross_shown_ = false;
  bool moved_ = false;  // before, the cross is in the middle
};

// A small round mark.
class MarkDot : public QWidget {
 public:
  explicit MarkDot(QWidget* parent) : QWidget(parent) {}
  void SetColor(QColor color);
  std::function<void(const MousePress&)> pressed;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QColor color_;
};

}  // namespace skyloft
