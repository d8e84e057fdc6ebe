// The scroller of the scroll pages: their text runs from right to left over the whole view.
#pragma once

#include <QString>
#include <QWidget>

namespace skyloft {

class HtmlScroller : public QWidget {
 public:
  HtmlScroller(const QString& text, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  const QString text_;
  int shift_ = 0;  // pixels that the text has moved in from the right edge
};

}  // namespace skyloft
