#include "platform/qt/html/html_scroller.h"

#include <QPainter>

#include "platform/qt/html/html_fonts.h"

namespace skyloft {
namespace {

constexpr int kInterval = 30;  // milliseconds a pixel

}  // namespace

HtmlScroller::HtmlScroller(const QString& text, QWidget* parent) : QWidget(parent), text_(text.simplified()) {
  setFont(FindHtmlFont("Tahoma", 13, 400, false).font);
  setAttribute(Qt::WA_TransparentForMouseEvents);  // a click is the view's
  startTimer(kInterval);
}

void HtmlScroller::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  painter.setPen(Qt::yellow);
  painter.drawText(QRect(width() - shift_, 0, fontMetrics().horizontalAdvance(text_) + 1, height()),
                   Qt::AlignVCenter | Qt::TextSingleLine, text_);
}

void HtmlScroller::timerEvent(QTimerEvent*) {
  shift_ = shift_ > width() + fontMetrics().horizontalAdvance(text_) ? 0 : shift_ + 1;
  update();
}

}  // namespace skyloft
