#include "platform/unseen_controls.h"

namespace skyloft {

void TrayIcon::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("picture", Icon.Get());
  out.emplace_back("added", Added.Get());
}

Timer::Timer(Form* form, std::string name, int interval) : Control(form, std::move(name)) {
  Enabled = false;
  Interval = interval;
}

void Timer::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("interval", double(Interval));
}

void Timer::Elapse() {
  if (ticking_) return;
  struct Busy {
    bool& flag;
    explicit Busy(bool& f) : flag(f) { flag = true; }
    ~Busy() { flag = false; }
  } busy(ticking_);
  Fire(Tick);
}

HttpControl::HttpControl(Form* form, std::string name, int timeout)
    : Control(form, std::move(name)), Timeout(timeout) {}

void HttpControl::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("state", double(State));
  out.emplace_back("timeout", double(Timeout));
}

void FileList::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("text", Path);
  out.emplace_back("items", Files);
}

MenuItem::MenuItem(Form* form, std::string name, const std::string& caption, Control* container)
    : Control(form, std::move(name), container), separator_(caption == "-") {
  Caption = caption;
}

MenuItem::MenuItem(Form* form, std::string name, Control* container)
    : Control(form, std::move(name), container) {
  Visible = false;
}

void MenuItem::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("caption", Caption.Get());
  out.emplace_back("checked", Checked.Get());
}

void MenuItem::Press() {
  if (Enabled) Fire(Click);
}

}  // namespace skyloft
