// The view under the keyboard: scrolling and links.
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

#include "platform/qt/html/html_view.h"

namespace skyloft {

void HtmlView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up: return ScrollTo(scroll_ - kLine);
    case Qt::Key_Down: return ScrollTo(scroll_ + kLine);
    case Qt::Key_PageUp: return ScrollTo(scroll_ - height());
    case Qt::Key_PageDown: return ScrollTo(scroll_ + height());
    case Qt::Key_Home: return ScrollTo(0);
    case Qt::Key_End: return ScrollTo(MaxScroll());
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (const auto link = ReachedLink()) return FollowLink(link->address);
      break;
    case Qt::Key_Menu:
      if (secondary_clicked) return secondary_clicked();
      break;
    default: break;
  }
  QWidget::keyPressEvent(event);
}

void HtmlView::focusOutEvent(QFocusEvent* event) {
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
    ReachLink(-1);
}

bool HtmlView::focusNextPrevChild(bool next) {
  const int link = link_ + (next ? 1 : -1);
  const int count = document_ ? static_cast<int>(LinksOf(*document_).size()) : 0;
  if (link < 0 || link >= count) return QWidget::focusNextPrevChild(next);
  ReachLink(link);
  return true;
}

void HtmlView::ReachLink(int link) {
  link_ = link;
  update();
  const auto reached = ReachedLink();
  if (!reached) return;
  const QRect& place = reached->place;
  if (place.top() < scroll_ || place.bottom() >= scroll_ + height()) ScrollTo(place.top());
}

// A page that comes anew with its pictures may have fewer.
std::optional<HtmlLink> HtmlView::ReachedLink() const {
  if (link_ < 0 || !document_) return std::nullopt;
  const std::vector<HtmlLink> links = LinksOf(*document_);
  if (link_ >= static_cast<int>(links.size())) return std::nullopt;
  return links[static_cast<size_t>(link_)];
}

void HtmlView::FollowLink(const QString& address) {
  if (address.isEmpty() || !services_.open_link) return;
  QTimer::singleShot(0, this, [this, address] { services_.open_link(address); });
}

}  // namespace skyloft
