#include "platform/qt/display.h"

#include <algorithm>
#include <vector>

#include <QAbstractEventDispatcher>
#include <QGuiApplication>
#include <QScreen>

#include "platform/qt/accessible_roles.h"
#include "platform/qt/form_window.h"
#include "platform/qt/http_qt.h"
#include "platform/qt/tray_qt.h"

namespace skyloft {

Display& Display::Get() {
  static auto* display = new Display();  // outlives everything, as the process ends without unwinding
  return *display;
}

void Display::Start() {
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
          [this] { ShowDirty(); });
  WatchScreens();
  TellRoles();
}

void Display::WatchScreens() {
  const auto keep = [this] {
    for (const auto& [form, window] : windows_) window->KeepInSight();
  };
  const auto watch = [this, keep](QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, keep, Qt::QueuedConnection);
    connect(screen, &QScreen::availableGeometryChanged, this, keep, Qt::QueuedConnection);
  };
  const auto* application = qGuiApp;
  connect(application, &QGuiApplication::screenAdded, this, watch);
  connect(application, &QGuiApplication::screenRemoved, this, keep, Qt::QueuedConnection);
  for (QScreen* screen : QGuiApplication::screens()) watch(screen);
}

void Display::ShowDirty() {
  std::vector<Control*> dirty = TakeDirtyControls();
  // What goes off comes last: the focus then finds what has come on.
  std::ranges::stable_partition(dirty, [](const Control* control) { return control->Enabled.Get(); });
  for (Control* control : dirty) {
    if (auto* timer = dynamic_cast<Timer*>(control)) {
      ShowTimer(*timer);
    } else if (dynamic_cast<TrayIcon*>(control)) {
      ShowTray();
    } else if (auto* form = dynamic_cast<Form*>(control)) {
      if (form->Visible || MadeWindowOf(*form)) WindowOf(*form).ShowForm();
    } else if (FormWindow* window = MadeWindowOf(*control->Owner())) {
      window->ShowControl(*control);
    }
  }
}

bool Display::Idle() const {
  if (AnyDirtyControl() || FetchesUnderWay() > 0) return false;
  for (const auto& [form, window] : windows_) {
    if (!window->Idle()) return false;
  }
  return true;
}

FormWindow& Display::WindowOf(Form& form) {
  auto& window = windows_[&form];
  if (!window) window = std::make_unique<FormWindow>(form);
  return *window;
}

FormWindow* Display::MadeWindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.get();
}

void Display::RunTimers(bool run) {
  timers_run_ = run;
  for (auto& [model, timer] : timers_) ShowTimer(*model);
}

void Display::ShowTimer(Timer& model) {
  auto& timer = timers_[&model];
  if (!timer) {
    timer = std::make_unique<QTimer>();
    connect(timer.get(), &QTimer::timeout, this, [&model] { Raise([&] { model.Elapse(); }); });
  }
  // Timers of whole seconds tick together, so that they wake the computer once.
  timer->setTimerType(model.Interval % 1000 == 0 ? Qt::VeryCoarseTimer : Qt::CoarseTimer);
  const bool runs = timers_run_ && model.Enabled;
  if (!runs) timer->stop();
  if (runs && (!timer->isActive() || timer->interval() != model.Interval)) timer->start(model.Interval);
}

}  // namespace skyloft
