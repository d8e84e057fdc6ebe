// The scroller of the scroll pages: their text runs from right to left over the whole view.
#pragma once

#include <QColor>
#include <QHash>
#include <QString>
#include <QWidget>

namespace skyloft {

class HtmlScroller : public QWidget {
 public:
  // `parameters` by their names in lower case: text, bgcolor and fontcolor (six hex digits), fontsize
  // (pixels).
  HtmlScroller(const QHash<QString, QString>& parameters, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  const QString text_;
  const QColor background_, color_;
  int shift_ = 0;  // pixels that the text has moved in from the right edge
};

}  // namespace skyloft
