// One form as a window with its controls' widgets.
#pragma once

#include <functional>
#include <optional>
#include <unordered_map>

#include <QImage>
#include <QWidget>

#include "platform/controls.h"
#include "platform/window.h"

namespace skyloft {

class ClickLabel;
class FocusRing;
class HtmlView;

class FormWindow : public QWidget {
 public:
  explicit FormWindow(Form& form);
  // Shows the form itself, or one of its controls, as its model is now.
  void ShowForm();
  void ShowControl(const Control& control);
  void SetRegion(const RoundRegion& region);
  // Brings a window of the taskbar back that no screen shows any more; its model follows.
  void KeepInSight();
  // The window follows the mouse until the buttons are up.
  void StartDrag();
  // Whether no page is waiting for a picture.
  bool Idle() const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PutOnTop(bool on);
  void MakeFixedCaptions();
  // The widgets of a window without a title bar: its lists, then its image buttons, then the others, each by
  // rows from the left.
  void OrderTabs();
  // Whether the key is one of an image button's, or opens the menu of the window's body.
  bool ActByKey(const QKeyEvent& event);
  // Once control is back in the loop, the first control of a page that has just come up has the focus.
  void FocusLater(QWidget& page);
  QChar LetterOf(const Control& control) const;

  // A control's widget and what brings it up to its model.
  struct View {
    QWidget* widget;
    std::function<void()> show;
  };
  friend class ViewMaker;

  Form& form_;
  QImage body_;
  const std::unordered_map<const Control*, QChar> letters_;  // with Alt; a dialog's only
  std::unordered_map<const Control*, View> views_;
  std::vector<HtmlView*> pages_;
  FocusRing* ring_;
  bool placing_ = false;
  std::optional<QPoint> held_at_;  // the pixel of the window that the mouse drags, where we move it ourselves
};

}  // namespace skyloft
