// Shows which of the pictures and pages of a window has the focus.
#pragma once

#include <QWidget>

namespace skyloft {

// A ring around the widget that has the focus, over all others of the window. It comes by the keyboard only:
// a click leaves none until a key is pressed.
class FocusRing : public QWidget {
 public:
  explicit FocusRing(QWidget* window);
  // From now on this widget of the window has the ring when it has the focus.
  void Watch(QWidget* widget);

 protected:
  bool eventFilter(QObject* widget, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PutAround(const QWidget& widget);

  bool by_keys_ = true;  // how the focus came to the widget that has it
};

}  // namespace skyloft
