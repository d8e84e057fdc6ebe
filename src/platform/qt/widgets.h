// The few widgets that Qt does not have ready.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QAbstractButton>
#include <QBasicTimer>
#include <QImage>
#include <QLabel>
#include <QWidget>

#include "platform/controls.h"
#include "platform/qt/pictures_qt.h"

namespace skyloft {

// A button that is nothing but a picture.
class PictureButton : public QAbstractButton {
 public:
  explicit PictureButton(QWidget* parent) : QAbstractButton(parent) {}
  void SetFrames(const PictureFrames& frames);  // of an animation they take turns while the button is seen
  QSize sizeHint() const override { return Shown().deviceIndependentSize().toSize(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  QImage Shown() const { return frames_.images.value(frame_); }
  void TakeTurns();

  PictureFrames frames_;
  qsizetype frame_ = 0;
  QBasicTimer turns_;
};

// A text or picture that can be clicked.
class ClickLabel : public QLabel {
 public:
  explicit ClickLabel(QWidget* parent) : QLabel(parent) {}
  void SetPicture(const QImage& picture);  // in the middle, cut at the edges
  std::function<void()> clicked;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QImage picture_;
};

// A bar that shows a position between two ends.
class PositionBar : public QWidget {
 public:
  explicit PositionBar(QWidget* parent) : QWidget(parent) {}
  void SetPosition(int min, int max, int value, QColor color);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int min_ = 0, max_ = 100, value_ = 0;
  QColor color_;
};

// A picture, zoomed and moved, with texts laid over it. The mouse can span a rectangle.
class ZoomView : public QWidget {
 public:
  explicit ZoomView(QWidget* parent) : QWidget(parent) {}
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

 private:
  QImage image_;
  double zoom_ = 1;
  QPoint origin_;
  std::vector<OverlayText> overlay_;
  bool rectangle_tool_ = false;
  std::optional<QPoint> held_at_;  // where the mouse went down with the tool
  QPoint mouse_;
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

// A mouse event as the models know it.
MousePress PressOf(const QMouseEvent& event);

}  // namespace skyloft
