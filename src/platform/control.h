// Controls as models: what a form shows and what a user can do to it, without a display.
// Procedures change the models; a changed model marks itself dirty, and the display shows what is dirty when
// control returns to its loop. A user's act is a call of the model's act procedure through Raise.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "base/guard.h"
#include "base/tables.h"

namespace skyloft {

class Form;
struct ControlVisitor;

using Event = std::function<void()>;
// A mouse press on a control: pixels from its upper left corner. Any button but the left counts as the right;
// Double is the second press of a double click with the left.
enum class MouseButton { Left, Right, Double };
struct MousePress {
  int x, y;
  MouseButton button;
};
using MouseEvent = std::function<void(const MousePress&)>;

// The one way from a user's act, a timer or a notice of the platform into the program: guarded, so that no
// failure leaves it.
template <class Act>
void Raise(Act&& act) {
  Guarded(std::forward<Act>(act));
}

// Calls an event that may have no handler.
template <class... Arguments>
void Fire(const std::function<void(Arguments...)>& event, std::type_identity_t<Arguments>... arguments) {
  if (event) event(arguments...);
}

// What a control tells of itself to scripts and to controls.json, in the order told. Texts are windows-1252.
using PropertyValue = std::variant<bool, double, std::string, std::vector<std::string>>;
using PropertyList = std::vector<std::pair<std::string_view, PropertyValue>>;

class Control {
 public:
  // `name` is unique in the form; `container` is a frame of the same form that it lies in, if any.
  Control(Form* form, std::string name, Control* container = nullptr);
  Control(const Control&) = delete;
  // Takes the values of another control of its kind; name, form and container stay.
  Control& operator=(const Control& other);
  virtual ~Control();

  const std::string& Name() const { return name_; }
  Form* Owner() const { return form_; }
  Control* Container() const { return container_; }
  virtual std::string_view Type() const = 0;
  virtual void Describe(PropertyList& out) const;
  virtual void Accept(ControlVisitor& visitor) = 0;
  void MarkDirty();

  // One value of a control; a change of it marks the control dirty.
  template <class T>
  class Property {
   public:
    explicit Property(Control* owner, T value = {}) : owner_(owner), value_(std::move(value)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property& other) {
      if (this != &other) *this = other.value_;
      return *this;
    }
    Property& operator=(const T& value) {
      if (value == value_) return *this;
      value_ = value;
      owner_->MarkDirty();
      return *this;
    }
    operator const T&() const { return value_; }
    const T& Get() const { return value_; }

   private:
    Control* owner_;
    T value_;
  };

  Property<bool> Visible{this, true};
  Property<bool> Enabled{this, true};
  Property<std::string> ToolTip{this};
  // Pixels in the form or frame; of a form twips on the screen.
  Property<int> Left{this}, Top{this}, Width{this}, Height{this};

 private:
  friend std::vector<Control*> TakeDirtyControls();
  Form* form_;
  std::string name_;
  Control* container_;
  bool dirty_ = false;
};

// The controls changed since the last call, in the order of their change.
std::vector<Control*> TakeDirtyControls();
bool AnyDirtyControl();

// The members of a control array: "SysTray[0]" and so on, counted from `First`.
template <class T, int N, int First = 0>
class ControlArray {
 public:
  static constexpr int kFirst = First, kLast = First + N - 1;
  ControlArray(Form* form, const std::string& name, Control* container = nullptr) {
    items_.reserve(N);
    for (int i = kFirst; i <= kLast; ++i) {
      items_.push_back(std::make_unique<T>(form, name + "[" + std::to_string(i) + "]", container));
    }
  }
  ControlArray(const ControlArray&) = delete;
  ControlArray& operator=(const ControlArray& other) {
    for (int i = kFirst; i <= kLast; ++i) (*this)[i] = other[i];
    return *this;
  }
  T& operator[](long long index) const { return *items_[CheckedIndex(index - First, N)]; }
  static constexpr int Size() { return N; }

 private:
  std::vector<std::unique_ptr<T>> items_;
};

// An entry of a window's system menu; command 0 is a separator.
struct SystemMenuEntry {
  int command;
  bool enabled;
};

// A window. It starts hidden.
class Form : public Control {
 public:
  // The style that it starts with: a window without a frame, or a dialog with a title bar.
  enum class Border { None, Dialog };
  Form(std::string name, const std::string& caption, Border border);
  void Press(const MousePress& press);    // act: a mouse button goes down on the body
  void Release(const MousePress& press);  // act: it goes up
  Form& operator=(const Form& other) = default;
  const std::vector<Control*>& Controls() const { return controls_.list; }
  std::string_view Type() const override { return "Form"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;

  Property<std::string> Caption{this};
  // The window's style and extended style as numbers. The display acts on the bits of title bar (style
  // 0xC00000), sizing (0x40000), top-most (extended 0x8), tool window (0x80) and taskbar (0x40000).
  Property<std::uint32_t> Style{this}, ExStyle{this};
  std::vector<SystemMenuEntry> SystemMenu = {{61728, true}, {61456, true}, {61440, true}, {61472, true},
                                             {61488, true}, {0, true},     {61536, true}};
  bool TopMost() const { return (ExStyle & 0x8u) != 0; }
  bool Titled() const { return (Style & 0xC00000u) != 0; }  // a window with a title bar
  Event Unload;  // a request to close the window; it stays unless the handler hides it
  Event LostFocus;
  MouseEvent MouseDown;                     // on the body of the form
  MouseEvent ClassMouseDown, ClassMouseUp;  // the same, for the form's window class

 private:
  friend class Control;
  // Registered by the controls' constructors; belongs to this form and is never copied.
  struct Children {
    std::vector<Control*> list;
    Children() = default;
    Children(const Children&) = delete;
    Children& operator=(const Children&) { return *this; }
  } controls_;
};

}  // namespace skyloft
