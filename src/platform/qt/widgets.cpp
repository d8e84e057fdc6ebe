#include "platform/qt/widgets.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QToolTip>

#include "platform/qt/key_act.h"

namespace skyloft {
namespace {

void DrawInTheMiddle(QPainter& painter, const QRect& place, const QImage& image) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QSize size = image.deviceIndependentSize().toSize();
  painter.drawImage(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, place), image);
}

constexpr int kLighter = 36;  // of 255, the white over a button under the mouse

QImage Lighter(QImage image) {
  image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  painter.fillRect(image.rect(), QColor(255, 255, 255, kLighter));
  return image;
}

}  // namespace

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
}

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
  const bool lit = underMouse() && isEnabled() && cursor().shape() == Qt::PointingHandCursor;
  DrawInTheMiddle(painter, rect(), lit ? Lighter(Shown()) : Shown());
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
  const KeyAct act(mapToGlobal(rect().bottomLeft()));
  if (IsEnter(*event) && !event->isAutoRepeat()) return click();
  QAbstractButton::keyPressEvent(event);
}

void PictureButton::keyReleaseEvent(QKeyEvent* event) {
  const KeyAct act(mapToGlobal(rect().bottomLeft()));
  QAbstractButton::keyReleaseEvent(event);
}

void ClickLabel::MakeClickable(std::function<void()> clicked) {
  clicked_ = std::move(clicked);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
}

bool ClickLabel::event(QEvent* event) {
  const bool taken = QLabel::event(event);
  if (taken && event->type() == QEvent::Shortcut && reached) reached();
  return taken;
}

void ClickLabel::DrawLines() {
  QTextLayout lines(QString(text()).replace('\n', QChar::LineSeparator), font(), this);
  const double spacing = std::max(fontMetrics().lineSpacing(), fontInfo().pixelSize() * 5 / 4);
  lines.beginLayout();
  double y = 0;
  for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine(), y += spacing) {
    line.setLineWidth(width());
    line.setPosition({0, y});
  }
  lines.endLayout();
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  lines.draw(&painter, {0, 0});
}

void ClickLabel::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void ClickLabel::paintEvent(QPaintEvent* event) {
  if (picture_.isNull()) return wordWrap() ? DrawLines() : QLabel::paintEvent(event);
  QPainter painter(this);
  DrawInTheMiddle(painter, rect(), picture_);
}

void ClickLabel::mousePressEvent(QMouseEvent* event) {
  if (!clicked_) return QLabel::mousePressEvent(event);
  clicked_();
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
  if (!clicked_ || !(event->key() == Qt::Key_Space || IsEnter(*event))) return QLabel::keyPressEvent(event);
  clicked_();
}

ListBox::ListBox(QWidget* parent) : QComboBox(parent) {
  setMaxVisibleItems(20);
  setItemDelegate(new QStyledItemDelegate(this));  // the one that heeds the skin
}

QString ListBox::ShownText() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QRect field =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  return fontMetrics().elidedText(currentText(), Qt::ElideRight, field.width());
}

void ListBox::showPopup() {
  const int bar = view()->verticalScrollBar()->sizeHint().width();
  const int longest = view()->sizeHintForColumn(0) + bar + 2 * view()->frameWidth();
  view()->setMinimumWidth(std::min(std::max(longest, width()), screen()->availableGeometry().width()));
  QComboBox::showPopup();
}

bool ListBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || ShownText() == currentText()) return QComboBox::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), currentText(), this);
  return true;
}

void ListBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = ShownText();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void PositionBar::SetPosition(int min, int max, int value, QColor color) {
  setRange(min, std::max(min, max));
  setValue(std::clamp(value, minimum(), maximum()));
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
  const int way = maximum() - minimum();
  const double part = way > 0 ? double(value() - minimum()) / way : 0;
  painter.save();
  painter.setClipPath(outline);
  painter.fillRect(QRectF(body.left(), body.top(), body.width() * part, body.height()), color_);
  painter.restore();
  painter.setPen(QColor(58, 86, 140));
  painter.drawPath(outline);
}

bool IsEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

bool IsMenuKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Menu ||
         (event.key() == Qt::Key_F10 && event.modifiers().testFlag(Qt::ShiftModifier));
}

MousePress PressOf(const QMouseEvent& event) {
  const QPoint at = event.position().toPoint();
  if (event.button() != Qt::LeftButton) return {at.x(), at.y(), MouseButton::Right};
  const bool doubled = event.type() == QEvent::MouseButtonDblClick;
  return {at.x(), at.y(), doubled ? MouseButton::Double : MouseButton::Left};
}

}  // namespace skyloft
