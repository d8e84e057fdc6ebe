#include "platform/qt/html/html_scroller.h"

#include <QPainter>

#include "platform/qt/html/html_fonts.h"

namespace skyloft {
namespace {

constexpr int kInterval = 30;  // milliseconds a pixel

QColor ColorOf(QString digits, const QColor& otherwise) {
  const QColor color('#' + digits.remove('#'));
  return color.isValid() ? color : otherwise;
}

int SizeOf(const QString& pixels) {
  const int size = pixels.toInt();
  return size >= 6 && size <= 40 ? size : 14;
}

}  // namespace

HtmlScroller::HtmlScroller(const QHash<QString, QString>& parameters, QWidget* parent)
    : QWidget(parent),
      text_(parameters["text"].simplified()),
      background_(ColorOf(parameters["bgcolor"], Qt::black)),
      color_(ColorOf(parameters["fontcolor"], Qt::yellow)) {
  setFont(FindHtmlFont("Tahoma", SizeOf(parameters["fontsize"]), 400, false).font);
  setAttribute(Qt::WA_TransparentForMouseEvents);  // a click is the view's
  startTimer(kInterval);
}

void HtmlScroller::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), background_);
  painter.setPen(color_);
  painter.drawText(QRect(width() - shift_, 0, fontMetrics().horizontalAdvance(text_) + 1, height()),
                   Qt::AlignVCenter | Qt::TextSingleLine, text_);
}

void HtmlScroller::timerEvent(QTimerEvent*) {
  shift_ = shift_ > width() + fontMetrics().horizontalAdvance(text_) ? 0 : shift_ + 1;
  update();
}

}  // namespace skyloft
