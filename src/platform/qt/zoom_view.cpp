#include "platform/qt/zoom_view.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

#include "platform/qt/key_act.h"
#include "platform/qt/skin_style.h"
#include "platform/qt/text_qt.h"
#include "platform/qt/widgets.h"

namespace skyloft {
namespace {

constexpr int kCrossStep = 10, kCrossArm = 9;  // pixels

// The focus goes with its window or to a menu, and comes back from there.
bool IsBriefly(const QFocusEvent& event) {
  return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

}  // namespace

ZoomView::ZoomView(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }

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
  if (held_at_) {
    painter.setPen(QPen(kFocusColor, 1, Qt::DashLine));
    painter.drawRect(QRectF(*held_at_, mouse_).normalized());
  }
  if (cross_shown_) PaintCross(painter);
}

// Light on a dark rim, so that it shows on every map.
void ZoomView::PaintCross(QPainter& painter) const {
  for (const QPen& pen : {QPen(Qt::black, 3), QPen(kFocusColor, 1)}) {
    painter.setPen(pen);
    painter.drawLine(mouse_ - QPoint(kCrossArm, 0), mouse_ + QPoint(kCrossArm, 0));
    painter.drawLine(mouse_ - QPoint(0, kCrossArm), mouse_ + QPoint(0, kCrossArm));
  }
}

void ZoomView::ShowCross(bool on) {
  if (on && !std::exchange(moved_, true)) mouse_ = rect().center();
  if (std::exchange(cross_shown_, on) != on) update();
}

bool ZoomView::MoveCross(const QKeyEvent& event) {
  const int step = event.modifiers().testFlag(Qt::ShiftModifier) ? 1 : kCrossStep;
  QPoint way;
  switch (event.key()) {
    case Qt::Key_Left: way = {-step, 0}; break;
    case Qt::Key_Right: way = {step, 0}; break;
    case Qt::Key_Up: way = {0, -step}; break;
    case Qt::Key_Down: way = {0, step}; break;
    default: return false;
  }
  mouse_ += way;
  mouse_ = {std::clamp(mouse_.x(), 0, width() - 1), std::clamp(mouse_.y(), 0, height() - 1)};
  update();
  return true;
}

void ZoomView::Mouse(QEvent::Type type, Qt::MouseButton button) {
  QWidget* mark = childAt(mouse_);
  QWidget* target = mark && !held_at_ ? mark : this;
  const QPointF at = target->mapFrom(this, mouse_);
  const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
  QMouseEvent event(type, at, target->mapToGlobal(at), button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &event);
}

void ZoomView::Click(Qt::MouseButton button) {
  Mouse(QEvent::MouseButtonPress, button);
  Mouse(QEvent::MouseButtonRelease, button);
}

void ZoomView::keyPressEvent(QKeyEvent* event) {
  const KeyAct act(mapToGlobal(mouse_));
  ShowCross(true);
  if (MoveCross(*event)) return;
  if (event->key() == Qt::Key_Space) {
    if (!rectangle_tool_) return Click(Qt::LeftButton);
    return Mouse(held_at_ ? QEvent::MouseButtonRelease : QEvent::MouseButtonPress, Qt::LeftButton);
  }
  if (IsEnter(*event) && !rectangle_tool_) {
    Click(Qt::LeftButton);
    Mouse(QEvent::MouseButtonDblClick, Qt::LeftButton);
    return Mouse(QEvent::MouseButtonRelease, Qt::LeftButton);
  }
  if (IsMenuKey(*event) && childAt(mouse_)) return Click(Qt::RightButton);
  QWidget::keyPressEvent(event);
}

void ZoomView::focusInEvent(QFocusEvent* event) {
  if (!IsBriefly(*event)) ShowCross(event->reason() != Qt::MouseFocusReason);
}

void ZoomView::focusOutEvent(QFocusEvent* event) {
  if (!IsBriefly(*event)) ShowCross(false);
}

void ZoomView::mousePressEvent(QMouseEvent* event) {
  mouse_ = event->position().toPoint();
  moved_ = true;
  if (event->spontaneous()) ShowCross(false);  // by the mouse itself
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

}  // namespace skyloft
