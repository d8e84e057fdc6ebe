#include "platform/qt/widgets.h"

#include <algorithm>

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace skyloft {

void PictureButton::SetImage(const QImage& image) {
  image_ = image;
  update();
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawImage(QPoint((width() - image_.width()) / 2, (height() - image_.height()) / 2), image_);
  if (!hasFocus()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(255, 211, 92));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

void ClickLabel::mousePressEvent(QMouseEvent* event) {
  if (!clicked) return QLabel::mousePressEvent(event);
  clicked();
}

void PositionBar::SetPosition(int min, int max, int value, QColor color) {
  min_ = min;
  max_ = max;
  value_ = std::clamp(value, min, std::max(min, max));
  color_ = color;
  update();
}

void PositionBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF body = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  const double radius = body.height() / 2;
  QPainterPath outline;
  outline.addRoundedRect(body, radius, radius);
  painter.fillPath(outline, QColor(11, 20, 40));
  const double part = max_ > min_ ? double(value_ - min_) / (max_ - min_) : 0;
  painter.save();
  painter.setClipPath(outline);
  painter.fillRect(QRectF(body.left(), body.top(), body.width() * part, body.height()), color_);
  painter.restore();
  painter.setPen(QColor(58, 86, 140));
  painter.drawPath(outline);
}

void ZoomView::SetView(const QImage& image, double zoom, QPoint origin) {
  image_ = image;
  zoom_ = zoom;
  origin_ = origin;
  update();
}

void ZoomView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  painter.scale(zoom_, zoom_);
  painter.drawImage(-origin_, image_);
}

}  // namespace skyloft
