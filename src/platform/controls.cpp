#include "platform/controls.h"

#include <algorithm>
#include <cstdlib>

namespace skyloft {
namespace {

constexpr double kLargestZoom = 32;  // a view of a few pixels

}  // namespace

void Label::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("caption", Caption.Get());
}

void Label::Press() {
  if (Enabled) Fire(Click);
}

void TextBox::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("value", Text.Get());
}

void TextBox::Enter(const std::string& text) {
  if (!Enabled || Locked || text == Text.Get()) return;
  Text = text;
  Fire(Change);
}

void Button::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("caption", Caption.Get());
}

void Button::Press() {
  if (Enabled) Fire(Click);
}

void CheckBox::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("caption", Caption.Get());
  out.emplace_back("checked", Checked.Get());
}

void CheckBox::Check(bool checked) {
  if (!Enabled) return;
  Checked = checked;
  Fire(Click);
}

void ListControl::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("items", items_);
  out.emplace_back("index", double(index_));
  out.emplace_back("text", Text());
}

std::string ListControl::Text() const { return index_ < 0 ? "" : items_[static_cast<size_t>(index_)]; }

void ListControl::AddItem(std::string text) {
  items_.push_back(std::move(text));
  MarkDirty();
}

void ListControl::RemoveItem(int index) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(CheckedIndex(index, items_.size())));
  if (index == index_) index_ = -1;
  if (index < index_) --index_;
  MarkDirty();
}

void ListControl::Clear() {
  items_.clear();
  index_ = -1;
  MarkDirty();
}

void ListControl::Select(int index) {
  if (index != -1) CheckedIndex(index, items_.size());
  index_ = index;
  MarkDirty();
  Fire(Click);
}

void Picture::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("picture", picture_);
}

void Picture::Press() {
  if (Enabled) Fire(Click);
}

void Picture::SetPicture(std::string path, int width, int height) {
  picture_ = std::move(path);
  width_ = width;
  height_ = height;
  MarkDirty();
}

void ImageButton::Down() {
  if (Enabled) Fire(MouseDown);
}

void ImageButton::Up() {
  if (Enabled) Fire(MouseUp);
}

void ImageView::Describe(PropertyList& out) const {
  Picture::Describe(out);
  out.emplace_back("image", PicturePath());
  out.emplace_back("zoom", Zoom.Get());
  out.emplace_back("view_x", double(ViewX));
  out.emplace_back("view_y", double(ViewY));
  out.emplace_back("mouse_tool", double(MouseTool));
}

void ImageView::Drag(int x1, int y1, int x2, int y2) {
  const int left = std::min(x1, x2);
  const int top = std::min(y1, y2);
  const int width = std::abs(x2 - x1);
  const int height = std::abs(y2 - y1);
  if (!Enabled || MouseTool != kRectangleTool || width == 0 || height == 0) return;
  const double zoom = Zoom;
  ViewX = ViewX + static_cast<int>(left / zoom);
  ViewY = ViewY + static_cast<int>(top / zoom);
  Zoom = std::min(zoom * std::min(double(Width) / width, double(Height) / height), kLargestZoom);
}

void HtmlDisplay::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("document", Document.Get());
  out.emplace_back("address", address_);
}

void HtmlDisplay::Press() {
  if (Enabled) Fire(Click);
}

void HtmlDisplay::Load(const std::string& document) {
  Document = document;
  ++visits_;
  MarkDirty();
}

void HtmlDisplay::Navigate(const std::string& address) {
  Document = "";
  address_ = address;
  ++visits_;
  MarkDirty();
}

void ProgressBar::SetPosition(int max, int value) {
  Max = max;
  Value = std::clamp(value, 0, std::max(max, 0));
}

void ProgressBar::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("min", double(Min));
  out.emplace_back("max", double(Max));
  out.emplace_back("value", double(Value));
  out.emplace_back("color", double(Color));
}

void Frame::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("caption", Caption.Get());
}

void TabStrip::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("items", Tabs);
  out.emplace_back("index", double(selected_ - 1));
  out.emplace_back("text", Tabs.empty() ? "" : Tabs[static_cast<size_t>(selected_ - 1)]);
}

void TabStrip::Select(int tab) {
  CheckedIndex(tab - 1, Tabs.size());
  selected_ = tab;
  MarkDirty();
  Fire(Click);
}

void Mark::Describe(PropertyList& out) const {
  Control::Describe(out);
  out.emplace_back("color", double(Color));
  out.emplace_back("tag", Tag.Get());
}

#define SKYLOFT_ACCEPT(Kind) \
  void Kind::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }
SKYLOFT_ACCEPT(Form)
SKYLOFT_ACCEPT(Label)
SKYLOFT_ACCEPT(TextBox)
SKYLOFT_ACCEPT(Button)
SKYLOFT_ACCEPT(CheckBox)
SKYLOFT_ACCEPT(OptionButton)
SKYLOFT_ACCEPT(ListControl)
SKYLOFT_ACCEPT(Picture)
SKYLOFT_ACCEPT(ImageButton)
SKYLOFT_ACCEPT(ImageView)
SKYLOFT_ACCEPT(HtmlDisplay)
SKYLOFT_ACCEPT(ProgressBar)
SKYLOFT_ACCEPT(Frame)
SKYLOFT_ACCEPT(TabStrip)
SKYLOFT_ACCEPT(Mark)
SKYLOFT_ACCEPT(TrayIcon)
SKYLOFT_ACCEPT(Timer)
SKYLOFT_ACCEPT(HttpControl)
SKYLOFT_ACCEPT(FileList)
SKYLOFT_ACCEPT(MenuItem)
#undef SKYLOFT_ACCEPT

}  // namespace skyloft
