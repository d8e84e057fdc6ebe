// The scroller of the scroll pages: a line of text that comes in at the right edge, leaves at the left one,
// and comes again.
#pragma once

#include <QBasicTimer>
#include <QColor>
#include <QElapsedTimer>
#include <QHash>
#include <QPixmap>
#include <QString>
#include <QWidget>
#include <vector>

namespace skyloft {

// Moves, and takes the processor, only while somebody can see it; it goes on from where it was.
class HtmlScroller : public QWidget {
 public:
  // `parameters` by their names in lower case: text (plain; also the widget's accessible name), speed (in
  // tens of pixels a second, 1 to 100), bgcolor and fontcolor (six hex digits; anything else is black),
  // fontname, fontsize (pixels, 6 to 40), mousepause ("on" stands still under the mouse). A missing or bad
  // one has a value of our own. There are no links that linkcolor could colour.
  HtmlScroller(const QHash<QString, QString>& parameters, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  // A few words, drawn once for as long as they are in sight.
  struct Piece {
    qsizetype first, count;  // letters of the text
    int left, width;         // pixels from the beginning of the text
    QPixmap strip;
  };

  void CutPieces();
  QPixmap Draw(const Piece& piece) const;
  bool IsSeen() const;
  int TextEnd() const { return pieces_.empty() ? 0 : pieces_.back().left + pieces_.back().width; }

  const QString text_;
  const QColor background_, color_;
  const double pace_;  // pixels a second
  const bool pauses_;
  std::vector<Piece> pieces_;  // as many as have come in so far
  qsizetype cut_ = 0;          // letters that are in pieces
  double shift_ = 0;           // pixels that the text has moved in from the right edge
  QBasicTimer timer_;          // runs while it is seen
  QElapsedTimer since_tick_;
};

}  // namespace skyloft
