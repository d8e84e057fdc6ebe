// The controls without a place in a window: tray icons, timers, connections, file lists, menu entries.
#pragma once

#include "platform/control.h"

namespace skyloft {

// An icon in the desktop's tray.
class TrayIcon : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "TrayIcon"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  Property<std::string> Icon{this};
  Property<bool> Added{this};  // whether it is in the tray; true by AddToTray
  Event Click, SecondaryClick;
};

// Ticks every Interval milliseconds while enabled. A tick inside its own tick is dropped.
class Timer : public Control {
 public:
  Timer(Form* form, std::string name, int interval);
  std::string_view Type() const override { return "Timer"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Elapse();  // one tick
  Property<int> Interval{this};
  Event Tick;

 private:
  bool ticking_ = false;
};

// One connection at a time to a web server.
class HttpControl : public Control {
 public:
  HttpControl(Form* form, std::string name, int timeout);
  std::string_view Type() const override { return "Http"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  bool Idle() const { return State == 0; }
  Property<int> State{this};  // 0 idle, 1 fetching
  std::string Url;            // host, path and query; "http://" is understood where no scheme stands
  int Timeout;                // milliseconds for a whole fetch
  std::function<void(long long bytes, long long total)> Progress;  // total 0 when the server does not tell it
};

// The files of a folder.
class FileList : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "FileList"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  std::string Path;
  std::vector<std::string> Files;
};

// An entry of a pop-up menu. `container` of the constructor is the entry whose submenu it stands in.
class MenuItem : public Control {
 public:
  // The caption "-" makes a separator; an entry that is given that caption later is none.
  MenuItem(Form* form, std::string name, const std::string& caption, Control* container);
  // For a member of an array: it starts hidden and without a caption.
  MenuItem(Form* form, std::string name, Control* container);
  std::string_view Type() const override { return "MenuItem"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Press();  // act
  bool Separator() const { return separator_; }
  Property<std::string> Caption{this};
  Property<bool> Checked{this};
  Event Click;

 private:
  bool separator_ = false;
};

}  // namespace skyloft
