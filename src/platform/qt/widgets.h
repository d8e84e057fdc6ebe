// The few widgets that Qt does not have ready.
#pragma once

#include <functional>

#include <QAbstractButton>
#include <QImage>
#include <QLabel>
#include <QWidget>

namespace skyloft {

// A button that is nothing but a picture.
class PictureButton : public QAbstractButton {
 public:
  explicit PictureButton(QWidget* parent) : QAbstractButton(parent) {}
  void SetImage(const QImage& image);
  QSize sizeHint() const override { return image_.size(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage image_;
};

// A text or picture that can be clicked.
class ClickLabel : public QLabel {
 public:
  explicit ClickLabel(QWidget* parent) : QLabel(parent) {}
  std::function<void()> clicked;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
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

// A picture, zoomed and moved.
class ZoomView : public QWidget {
 public:
  explicit ZoomView(QWidget* parent) : QWidget(parent) {}
  void SetView(const QImage& image, double zoom, QPoint origin);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage image_;
  double zoom_ = 1;
  QPoint origin_;
};

}  // namespace skyloft
