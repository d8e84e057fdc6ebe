// The forms as windows: shows models that have changed and turns the user's acts into their events.
#pragma once

#include <map>
#include <memory>

#include <QObject>
#include <QTimer>

#include "platform/controls.h"

class QWidget;

namespace skyloft {

class FormWindow;

class Display : public QObject {
 public:
  static Display& Get();

  // From now on, dirty models are shown whenever the event loop is about to wait.
  void Start();
  void ShowDirty();
  // Whether nothing is left to be shown or fetched.
  bool Idle() const;

  // The window of a form; made at its first showing.
  FormWindow& WindowOf(Form& form);
  // The form's window if it was ever made.
  FormWindow* MadeWindowOf(const Form& form) const;

  // Lets the models' timers run (the default) or stands them still.
  void RunTimers(bool run);

 private:
  Display() = default;
  // Screens come, go and change their size: the windows stay where they are seen.
  void WatchScreens();
  void ShowTimer(Timer& timer);

  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
  std::map<Timer*, std::unique_ptr<QTimer>> timers_;
  bool timers_run_ = true;
};

}  // namespace skyloft
