#include "platform/qt/focus_ring.h"

#include <QFocusEvent>
#include <QPainter>

#include "platform/qt/skin_style.h"

namespace skyloft {
namespace {

constexpr int kWidth = 2;  // pixels

}  // namespace

FocusRing::FocusRing(QWidget* window) : QWidget(window) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void FocusRing::Watch(QWidget* widget) { widget->installEventFilter(this); }

bool FocusRing::eventFilter(QObject* object, QEvent* event) {
  const auto& widget = *static_cast<QWidget*>(object);
  switch (event->type()) {
    case QEvent::FocusIn: {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      const bool comes_back = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
      if (!comes_back) by_keys_ = reason != Qt::MouseFocusReason;
      if (by_keys_) PutAround(widget);
      break;
    }
    case QEvent::KeyPress:
      by_keys_ = true;
      PutAround(widget);
      break;
    case QEvent::FocusOut: hide(); break;
    case QEvent::Move:
    case QEvent::Resize:
      if (isVisible() && widget.hasFocus()) PutAround(widget);
      break;
    default: break;
  }
  return false;
}

void FocusRing::PutAround(const QWidget& widget) {
  const QRect place(widget.mapTo(parentWidget(), QPoint(0, 0)), widget.size());
  setGeometry(place.adjusted(-kWidth, -kWidth, kWidth, kWidth) & parentWidget()->rect());
  raise();
  show();
}

void FocusRing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kFocusColor, kWidth));
  const double half = kWidth / 2.0;
  painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), 6, 6);
}

}  // namespace skyloft
