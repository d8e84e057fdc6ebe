// The few widgets that Qt does not have ready.
#pragma once

#include <QAbstractButton>
#include <QBasicTimer>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <functional>

#include "platform/controls.h"
#include "platform/qt/pictures_qt.h"

namespace skyloft {

// A button that is nothing but a picture, a little lighter under the mouse. Of the keys it takes Space and
// Enter.
class PictureButton : public QAbstractButton {
 public:
  explicit PictureButton(QWidget* parent);
  void SetFrames(const PictureFrames& frames);  // of an animation they take turns while the button is seen
  QSize sizeHint() const override { return Shown().deviceIndependentSize().toSize(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  QImage Shown() const { return frames_.images.value(frame_); }
  void TakeTurns();

  PictureFrames frames_;
  qsizetype frame_ = 0;
  QBasicTimer turns_;
};

// A text or picture that may be clicked, or that names a field. Several lines of text keep a distance at
// which their letters do not touch, whatever the font says.
class ClickLabel : public QLabel {
 public:
  explicit ClickLabel(QWidget* parent) : QLabel(parent) {}
  void SetPicture(const QImage& picture);  // in the middle, cut at the edges
  // From now on a click, Space and Enter call it.
  void MakeClickable(std::function<void()> clicked);
  // The letter of the label was pressed with Alt, and its field has the focus.
  std::function<void()> reached;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void DrawLines();

  QImage picture_;
  std::function<void()> clicked_;
};

// A list that is closed until it is used. Closed, it ends a text that is too long in dots and tells all of it
// in a tool tip; open, it is as wide as its longest entry.
class ListBox : public QComboBox {
 public:
  explicit ListBox(QWidget* parent);
  void showPopup() override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString ShownText() const;
};

// A bar that shows a position between two ends.
class PositionBar : public QProgressBar {
 public:
  explicit PositionBar(QWidget* parent) : QProgressBar(parent) { setTextVisible(false); }
  void SetPosition(int min, int max, int value, QColor color);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor color_;
};

// A mouse event as the models know it.
MousePress PressOf(const QMouseEvent& event);

bool IsEnter(const QKeyEvent& event);
// The key that opens a menu: Menu, or F10 with Shift.
bool IsMenuKey(const QKeyEvent& event);

}  // namespace skyloft
