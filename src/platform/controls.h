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
// A mouse press on a control: pixels from its upper left corner.
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

// The members of a control array: "SysTray[0]" and so on.
template <class T, int N>
class ControlArray {
 public:
  ControlArray(Form* form, const std::string& name, Control* container = nullptr) {
    items_.reserve(N);
    for (int i = 0; i < N; ++i) {
      items_.push_back(std::make_unique<T>(form, name + "[" + std::to_string(i) + "]", container));
    }
  }
  ControlArray(const ControlArray&) = delete;
  ControlArray& operator=(const ControlArray& other) {
    for (int i = 0; i < N; ++i) *items_[static_cast<size_t>(i)] = other[i];
    return *this;
  }
  T& operator[](long long index) const { return *items_[CheckedIndex(index, N)]; }
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

class Label : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "Label"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Press();  // act
  Property<std::string> Caption{this};
  Event Click;
};

class TextBox : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "TextBox"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Enter(const std::string& text);  // act: replaces the whole text
  Property<std::string> Text{this};
  Property<bool> Locked{this};  // for showing only
  Event Change;
};

class Button : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "Button"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Press();  // act
  Property<std::string> Caption{this};
  Event Click;
};

class CheckBox : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "CheckBox"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Check(bool checked);  // act
  Property<std::string> Caption{this};
  Property<bool> Checked{this};
  Event Click;
};

// One of several choices that exclude each other; the handlers do the excluding.
class OptionButton : public CheckBox {
 public:
  using CheckBox::CheckBox;
  std::string_view Type() const override { return "OptionButton"; }
  void Accept(ControlVisitor& visitor) override;
};

// A list with one selected entry. Filling and clearing raise nothing; an index set, by the user or by the
// program, raises Click, also when it is unchanged.
class ListControl : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "List"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  int Count() const { return static_cast<int>(items_.size()); }
  const std::vector<std::string>& Items() const { return items_; }
  int ListIndex() const { return index_; }  // -1 when nothing is selected
  std::string Text() const;                 // the selected entry, "" when nothing is selected
  void AddItem(std::string text);
  void RemoveItem(
      int index);  // raises an error outside the list; an entry removed before the selected one shifts it
  void Clear();
  void Select(int index);  // -1 to Count() - 1, else a run-time error
  Event Click;

 private:
  std::vector<std::string> items_;
  int index_ = -1;
};

// A picture of a file. The path is the program's own; "" shows nothing.
class Picture : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "Picture"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Press();                       // act
  void SetPicture(std::string path);  // shows the file as it is now, also when the path is unchanged
  const std::string& PicturePath() const { return picture_; }
  Event Click;

 private:
  std::string picture_;
};

// A button that is a picture; down and up show its pressed and its normal one.
class ImageButton : public Picture {
 public:
  using Picture::Picture;
  std::string_view Type() const override { return "ImageButton"; }
  void Accept(ControlVisitor& visitor) override;
  void Down();  // act; then Up, then Press (of Picture)
  void Up();
  Event MouseDown, MouseUp;
};

// A picture that can be zoomed and moved.
class ImageView : public Picture {
 public:
  using Picture::Picture;
  std::string_view Type() const override { return "ImageView"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  Property<double> Zoom{this, 1.0};
  Property<int> ViewX{this}, ViewY{this};  // origin of the view in unscaled picture pixels
  Property<int> MouseTool{this};           // 0 none, 3 a rectangle to zoom
  MouseEvent MouseDown;
};

// An HTML page: given as a complete document, or found at an address.
class HtmlDisplay : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "HtmlView"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Press();                          // act
  Property<std::string> Document{this};  // shown unless it is ""
  // Shows the page at an address instead: a file by the program's own path, or http. It is read anew each
  // time; what cannot be read shows nothing.
  void Navigate(const std::string& address);
  const std::string& Address() const { return address_; }
  int Visits() const { return visits_; }  // how often Navigate was called
  Event Click;

 private:
  std::string address_;
  int visits_ = 0;
};

class ProgressBar : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "ProgressBar"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  Property<int> Min{this, 0}, Max{this, 100}, Value{this, 0};
  void SetPosition(int max, int value);  // a value outside 0 to max is brought to the nearer end
  Property<int> Color{this, 0xff0000};   // blue, green, red from the highest byte down
};

// A part of a form that shows and hides as one.
class Frame : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "Frame"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  Property<std::string> Caption{this};
};

// Tabs counted from 1.
class TabStrip : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "TabStrip"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Select(int tab);  // raises Click; outside 1 to the number of tabs a run-time error
  std::vector<std::string> Tabs;
  int Selected() const { return selected_; }
  Event Click;

 private:
  int selected_ = 1;
};

// A small mark over a picture.
class Mark : public Control {
 public:
  using Control::Control;
  std::string_view Type() const override { return "Mark"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  Property<int> Color{this, 0xffffff};
  MouseEvent MouseDown;
};

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
  MenuItem(Form* form, std::string name, const std::string& caption, Control* container);
  // For a member of an array: it starts hidden and without a caption.
  MenuItem(Form* form, std::string name, Control* container);
  std::string_view Type() const override { return "MenuItem"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  void Press();  // act
  bool Separator() const { return Caption.Get() == "-"; }
  Property<std::string> Caption{this};
  Property<bool> Checked{this};
  Event Click;
};

struct ControlVisitor {
  virtual ~ControlVisitor() = default;
  virtual void Visit(Form&) {}
  virtual void Visit(Label&) {}
  virtual void Visit(TextBox&) {}
  virtual void Visit(Button&) {}
  virtual void Visit(CheckBox&) {}
  virtual void Visit(OptionButton&) {}
  virtual void Visit(ListControl&) {}
  virtual void Visit(Picture&) {}
  virtual void Visit(ImageButton&) {}
  virtual void Visit(ImageView&) {}
  virtual void Visit(HtmlDisplay&) {}
  virtual void Visit(ProgressBar&) {}
  virtual void Visit(Frame&) {}
  virtual void Visit(TabStrip&) {}
  virtual void Visit(Mark&) {}
  virtual void Visit(TrayIcon&) {}
  virtual void Visit(Timer&) {}
  virtual void Visit(HttpControl&) {}
  virtual void Visit(FileList&) {}
  virtual void Visit(MenuItem&) {}
};

}  // namespace skyloft
