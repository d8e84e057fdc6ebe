#include "platform/qt/widgets.h"

#include <algorithm>

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

void DrawInTheMiddle(QPainter& painter, const QRect& place, const QImage& image) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QSize size = image.deviceIndependentSize().toSize();
  painter.drawImage(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, place), image);
}

}  // namespace

void PictureButton::SetFrames(const PictureFrames& frames) {
  frames_ = frames;
  frame_ = 0;
  TakeTurns();
  update();
}

void PictureButton::TakeTurns() {
  if (isVisible() && frames_.images.size() > 1) {
    turns_.start(frames_.delay, this);
  } else {
    turns_.stop();
  }
}

void PictureButton::showEvent(QShowEvent*) { TakeTurns(); }

void PictureButton::hideEvent(QHideEvent*) { TakeTurns(); }

void PictureButton::timerEvent(QTimerEvent* event) {
  if (event->timerId() != turns_.timerId()) return QAbstractButton::timerEvent(event);
  frame_ = (frame_ + 1) % frames_.images.size();
  update();
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawInTheMiddle(painter, rect(), Shown());
  if (!hasFocus()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(255, 211, 92));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

void ClickLabel::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void ClickLabel::paintEvent(QPaintEvent* event) {
  if (picture_.isNull()) return QLabel::paintEvent(event);
  QPainter painter(this);
  DrawInTheMiddle(painter, rect(), picture_);
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

void ZoomView::SetOverlay(const std::vector<OverlayText>& overlay) {
  if (overlay_ == overlay) return;
  overlay_ = overlay;
  update();
}

void ZoomView::SetRectangleTool(bool on) {
  rectangle_tool_ = on;
  setCursor(on ? Qt::CrossCursor : Qt::ArrowCursor);
}

void ZoomView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom_ * devicePixelRatioF() != 1);
  painter.scale(zoom_, zoom_);
  painter.translate(-origin_);
  painter.drawImage(QPoint(0, 0), image_);
  QFont font("Tahoma");
  font.setPixelSize(18);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  for (const OverlayText& text : overlay_) {
    painter.drawText(QPoint(text.x, text.y + painter.fontMetrics().ascent()), ToQt(text.text));
  }
  painter.restore();
  if (!held_at_) return;
  painter.setPen(QPen(QColor(255, 211, 92), 1, Qt::DashLine));
  painter.drawRect(QRectF(*held_at_, mouse_).normalized());
}

void ZoomView::mousePressEvent(QMouseEvent* event) {
  mouse_ = event->position().toPoint();
  if (rectangle_tool_ && event->button() == Qt::LeftButton) held_at_ = mouse_;
  if (pressed) pressed(PressOf(*event));
}

void ZoomView::mouseMoveEvent(QMouseEvent* event) {
  mouse_ = event->position().toPoint();
  if (held_at_) update();
}

void ZoomView::mouseReleaseEvent(QMouseEvent* event) {
  if (!held_at_ || event->button() != Qt::LeftButton) return;
  const QPoint from = *held_at_;
  held_at_.reset();
  update();
  if (dragged) dragged(from, event->position().toPoint());
}

void MarkDot::SetColor(QColor color) {
  color_ = color;
  update();
}

void MarkDot::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(6, 14, 40));
  painter.setBrush(color_);
  painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void MarkDot::mousePressEvent(QMouseEvent* event) {
  if (pressed) pressed(PressOf(*event));
}

MousePress PressOf(const QMouseEvent& event) {
  const QPoint at = event.position().toPoint();
  if (event.button() != Qt::LeftButton) return {at.x(), at.y(), MouseButton::Right};
  const bool doubled = event.type() == QEvent::MouseButtonDblClick;
  return {at.x(), at.y(), doubled ? MouseButton::Double : MouseButton::Left};
}

}  // namespace skyloft
