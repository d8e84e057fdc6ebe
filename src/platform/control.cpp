#include "platform/control.h"

#include <algorithm>

namespace skyloft {
namespace {

std::vector<Control*>& DirtyList() {
  static std::vector<Control*> list;
  return list;
}

}  // namespace

Control::Control(Form* form, std::string name, Control* container)
    : form_(form), name_(std::move(name)), container_(container) {
  if (form_) form_->controls_.list.push_back(this);
}

Control& Control::operator=(const Control& other) {
  if (this == &other) return *this;
  Visible = other.Visible;
  Enabled = other.Enabled;
  ToolTip = other.ToolTip;
  Left = other.Left;
  Top = other.Top;
  Width = other.Width;
  Height = other.Height;
  return *this;
}

Control::~Control() {
  if (dirty_) std::erase(DirtyList(), this);
}

void Control::MarkDirty() {
  if (dirty_) return;
  dirty_ = true;
  DirtyList().push_back(this);
}

std::vector<Control*> TakeDirtyControls() {
  std::vector<Control*> dirty = std::exchange(DirtyList(), {});
  for (Control* control : dirty) control->dirty_ = false;
  return dirty;
}

bool AnyDirtyControl() { return !DirtyList().empty(); }

void Control::Describe(PropertyList& out) const {
  out.emplace_back("visible", Visible.Get());
  out.emplace_back("enabled", Enabled.Get());
  out.emplace_back("tooltip", ToolTip.Get());
  if (Width > 0 || Height > 0) {
    out.emplace_back("left", double(Left));
    out.emplace_back("top", double(Top));
    out.emplace_back("width", double(Width));
    out.emplace_back("height", double(Height));
  }
}

Form::Form(std::string name, const std::string& caption, Border border) : Control(nullptr, std::move(name)) {
  Visible = false;
  Caption = caption;
  if (border == Border::Dialog) Style = 0xC80000;
}

void Form::Press(const MousePress& press) {
  Fire(MouseDown, press);
  Fire(ClassMouseDown, press);
}

void Form::Release(const MousePress& press) { Fire(ClassMouseUp, press); }

void Form::Describe(PropertyList& out) const {
  out.emplace_back("visible", Visible.Get());
  out.emplace_back("left", double(Left));
  out.emplace_back("top", double(Top));
  out.emplace_back("width", double(Width));
  out.emplace_back("height", double(Height));
  out.emplace_back("topmost", TopMost());
  out.emplace_back("caption", Caption.Get());
}

}  // namespace skyloft
