// The kinds of controls, and who visits them all.
#pragma once

#include "platform/control.h"
#include "platform/unseen_controls.h"

namespace skyloft {

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
  void Enter(const std::string& text);  // act: replaces the whole text; the same one is no change
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
  bool Default = false;  // the form's Enter key presses it
  bool Cancels = false;  // the form's Esc key presses it
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
  void Press();  // act
  // Shows the file as it is now, also when the path is unchanged; width and height of the picture, pixels.
  void SetPicture(std::string path, int width, int height);
  const std::string& PicturePath() const { return picture_; }
  int PictureWidth() const { return width_; }  // 0 before the first picture
  int PictureHeight() const { return height_; }
  Event Click;

 private:
  std::string picture_;
  int width_ = 0, height_ = 0;
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
  std::string Key;  // the form's key that presses it, such as "F1"; "" for none
};

inline constexpr int kRectangleTool = 3;  // of ImageView: the mouse spans a rectangle to zoom

// A text laid over a picture.
struct OverlayText {
  std::string text;
  int x, y;  // of its upper left corner, pixels of the picture
  bool operator==(const OverlayText&) const = default;
};

// A picture that can be zoomed and moved.
class ImageView : public Picture {
 public:
  using Picture::Picture;
  std::string_view Type() const override { return "ImageView"; }
  void Describe(PropertyList& out) const override;
  void Accept(ControlVisitor& visitor) override;
  // act: the mouse spans a rectangle of the control, in any direction. With the rectangle tool the view then
  // shows what lay in it, as large as it fits.
  void Drag(int x1, int y1, int x2, int y2);
  Property<double> Zoom{this, 1.0};
  Property<int> ViewX{this}, ViewY{this};            // origin of the view in unscaled picture pixels
  Property<int> MouseTool{this};                     // 0 none, or kRectangleTool
  Property<std::vector<OverlayText>> Overlay{this};  // bold, white, 18 pixels high
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
  // Shows a document from its beginning, with its sound, also when it is the one on show.
  void Load(const std::string& document);
  // Shows the page at an address instead: a file by the program's own path, or http. It is read anew each
  // time; what cannot be read shows nothing.
  void Navigate(const std::string& address);
  const std::string& Address() const { return address_; }
  int Visits() const { return visits_; }  // how often Load and Navigate were called
  Event Click;
  Event SecondaryClick;  // with another button than the left

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
  Property<std::string> Tag{this};  // what the mark stands for
  MouseEvent MouseDown;
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
