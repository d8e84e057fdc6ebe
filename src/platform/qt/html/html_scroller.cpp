#include "platform/qt/html/html_scroller.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "platform/qt/html/html_fonts.h"

namespace skyloft {
namespace {

constexpr double kPaceOfSpeed = 10;      // pixels a second
constexpr double kLongestStep = 0.1;     // seconds: after a delay the text goes on, it does not jump
constexpr qsizetype kPiece = 40;         // letters, and on to the next blank
constexpr qsizetype kLongestPiece = 80;  // letters

QColor ColorOf(const QHash<QString, QString>& parameters, const QString& name, const QColor& otherwise) {
  if (!parameters.contains(name)) return otherwise;
  const QString digits = parameters[name].trimmed().remove('#');
  const QColor color('#' + digits);
  return digits.size() == 6 && color.isValid() ? color : QColor(Qt::black);
}

int NumberOf(const QString& text, int least, int most, int otherwise) {
  const int number = text.trimmed().toInt();
  return number >= least && number <= most ? number : otherwise;
}

QString FontNameOf(const QHash<QString, QString>& parameters) {
  return parameters.value("fontname", "Tahoma");
}

}  // namespace

HtmlScroller::HtmlScroller(const QHash<QString, QString>& parameters, QWidget* parent)
    : QWidget(parent),
      text_(parameters["text"]),
      background_(ColorOf(parameters, "bgcolor", Qt::black)),
      color_(ColorOf(parameters, "fontcolor", Qt::yellow)),
      pace_(kPaceOfSpeed * NumberOf(parameters["speed"], 1, 100, 10)),
      pauses_(parameters["mousepause"].trimmed().compare("on", Qt::CaseInsensitive) == 0) {
  setFont(FindHtmlFont(FontNameOf(parameters), NumberOf(parameters["fontsize"], 6, 40, 14), 400, false).font);
  setAccessibleName(text_);
  setAttribute(Qt::WA_TransparentForMouseEvents);  // a click is the view's
  setAttribute(Qt::WA_OpaquePaintEvent);           // or the page beneath would be painted each time
}

// Cuts the text, behind blanks where it can, as far as it has come in.
void HtmlScroller::CutPieces() {
  while (cut_ < text_.size() && TextEnd() < shift_) {
    const qsizetype blank = text_.indexOf(' ', cut_ + kPiece);
    const qsizetype whole = blank < 0 ? text_.size() - cut_ : blank + 1 - cut_;
    const qsizetype count = std::min(whole, kLongestPiece);
    pieces_.push_back({cut_, count, TextEnd(), fontMetrics().horizontalAdvance(text_.mid(cut_, count)), {}});
    cut_ += count;
  }
}

QPixmap HtmlScroller::Draw(const Piece& piece) const {
  QPixmap strip(QSize(std::max(piece.width, 1), height()) * devicePixelRatio());
  strip.setDevicePixelRatio(devicePixelRatio());
  strip.fill(background_);
  QPainter painter(&strip);
  painter.setFont(font());
  painter.setPen(color_);
  painter.drawText(QRect(0, 0, piece.width + 1, height()), Qt::AlignVCenter | Qt::TextSingleLine,
                   text_.mid(piece.first, piece.count));
  return strip;
}

void HtmlScroller::paintEvent(QPaintEvent* event) {
  if (!timer_.isActive()) {
    const double rate = screen() ? screen()->refreshRate() : 0;
    timer_.start(rate > 1 ? std::max(static_cast<int>(1000 / rate), 4) : 16, Qt::PreciseTimer, this);
    since_tick_.start();
  }
  CutPieces();
  QPainter painter(this);
  painter.fillRect(event->rect(), background_);
  const int start = width() - static_cast<int>(shift_);
  for (Piece& piece : pieces_) {
    const bool is_seen = start + piece.left < width() && start + piece.left + piece.width > 0;
    if (!is_seen) {
      piece.strip = {};
      continue;
    }
    if (piece.strip.isNull() || piece.strip.deviceIndependentSize().height() != height())
      piece.strip = Draw(piece);
    painter.drawPixmap(start + piece.left, 0, piece.strip);
  }
}

bool HtmlScroller::IsSeen() const {
  const QWindow* const top = window()->windowHandle();
  return top && top->isExposed() && !window()->isMinimized() && !visibleRegion().isEmpty();
}

// What nobody sees stops; the next paint event starts it again.
void HtmlScroller::timerEvent(QTimerEvent*) {
  if (!IsSeen()) {
    timer_.stop();
    return;
  }
  const double seconds = static_cast<double>(since_tick_.nsecsElapsed()) / 1e9;
  since_tick_.start();
  if (pauses_ && parentWidget()->underMouse()) return;
  shift_ += pace_ * std::min(seconds, kLongestStep);
  if (cut_ == text_.size() && shift_ > width() + TextEnd()) shift_ = 0;
  update();
}

}  // namespace skyloft
