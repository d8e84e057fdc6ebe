#include "platform/qt/script_acts.h"

#include <algorithm>

#include "base/values.h"
#include "forms/forms.h"
#include "forms/menu_form.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/feed_process.h"

namespace skyloft {
namespace {

std::string CannotBe(const Control& control, const char* act) {
  return "a " + std::string(control.Type()) + " cannot be " + act;
}

// The three acts of a click on a picture, as a mouse makes them.
void ClickImageButton(ImageButton& button) {
  Raise([&] { button.Down(); });
  Raise([&] { button.Up(); });
  Raise([&] { button.Press(); });
}

template <class T>
bool Click(Control& control) {
  auto* target = dynamic_cast<T*>(&control);
  if (target) Raise([&] { target->Press(); });
  return target != nullptr;
}

template <class T>
bool Press(Control& control, const MousePress& press) {
  auto* target = dynamic_cast<T*>(&control);
  if (target && target->Enabled) Raise([&] { Fire(target->MouseDown, press); });
  return target != nullptr;
}

template <class T>
bool PressRight(Control& control) {
  auto* target = dynamic_cast<T*>(&control);
  if (target && target->Enabled) Raise([&] { Fire(target->SecondaryClick); });
  return target != nullptr;
}

Timer* FindTimer(const std::string& name) {
  for (Form* form : AllForms()) {
    for (Control* control : form->Controls()) {
      if (control->Name() != name && form->Name() + "." + control->Name() != name) continue;
      if (auto* timer = dynamic_cast<Timer*>(control)) return timer;
    }
  }
  return nullptr;
}

}  // namespace

std::string ClickControl(Control& control) {
  if (auto* button = dynamic_cast<ImageButton*>(&control)) {
    ClickImageButton(*button);
    return "";
  }
  if (auto* box = dynamic_cast<CheckBox*>(&control)) {
    Raise([&] { box->Check(!box->Checked); });
    return "";
  }
  if (auto* icon = dynamic_cast<TrayIcon*>(&control)) {
    if (icon->Enabled) Raise([&] { Fire(icon->Click); });
    return "";
  }
  const bool clicked = Click<Label>(control) || Click<Button>(control) || Click<Picture>(control) ||
                       Click<HtmlDisplay>(control) || Click<MenuItem>(control);
  return clicked ? "" : CannotBe(control, "clicked");
}

std::string PressControl(Control& control, const MousePress& press) {
  const auto press_once = [&](const MousePress& once) {
    if (auto* form = dynamic_cast<Form*>(&control)) {
      if (!form->Enabled) return true;
      Raise([&] { form->Press(once); });
      Raise([&] { form->Release(once); });
      return true;
    }
    return Press<ImageView>(control, once) || Press<Mark>(control, once);
  };
  if (press.button == MouseButton::Double && press_once({press.x, press.y, MouseButton::Left})) {
    press_once(press);
    return "";
  }
  if (press_once(press)) return "";
  if (press.button != MouseButton::Right) return ClickControl(control);
  const bool pressed = PressRight<TrayIcon>(control) || PressRight<HtmlDisplay>(control);
  return pressed ? "" : CannotBe(control, "pressed on the right");
}

std::string SelectEntry(Control& control, const std::string& entry, bool by_text) {
  auto* tabs = dynamic_cast<TabStrip*>(&control);
  auto* list = dynamic_cast<ListControl*>(&control);
  if (!tabs && !list) return CannotBe(control, "selected from");
  const std::vector<std::string>& items = tabs ? tabs->Tabs : list->Items();
  int index = static_cast<int>(std::find(items.begin(), items.end(), entry) - items.begin());
  if (!by_text && !Guarded([&] { index = WholeNumber(NumberText(StrictNumber(entry))); })) return "no number";
  if (index < 0 || index >= static_cast<int>(items.size())) return "there is no such entry";
  if (!control.Enabled) return "";
  Raise([&] {
    if (tabs) tabs->Select(index + 1);
    if (list) list->Select(index);
  });
  return "";
}

std::string EnterText(Control& control, const std::string& text) {
  auto* box = dynamic_cast<TextBox*>(&control);
  if (!box) return CannotBe(control, "typed into");
  Raise([&] { box->Enter(text); });
  return "";
}

std::string CheckControl(Control& control, bool checked) {
  auto* box = dynamic_cast<CheckBox*>(&control);
  if (!box) return CannotBe(control, "checked");
  Raise([&] { box->Check(checked); });
  return "";
}

std::string ChooseEntry(const std::string& name, int index) {
  const std::string member = index < 0 ? name : name + "[" + std::to_string(index) + "]";
  Control* control = FindControl(member.find('.') == std::string::npos ? "MenuForm." + member : member);
  auto* entry = dynamic_cast<MenuItem*>(control);
  if (!entry) return "no menu entry " + member;
  Raise([&] { entry->Press(); });
  return "";
}

std::string TickTimer(const std::string& name, int count) {
  Timer* timer = FindTimer(name);
  if (!timer) return "no timer " + name;
  for (int i = 0; i < count; ++i) {
    MoveClock(timer->Interval / 1000);
    MoveFeedClock();
    Raise([&] { timer->Elapse(); });
  }
  return "";
}

}  // namespace skyloft
