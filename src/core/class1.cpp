#include "core/class1.h"

#include <algorithm>

#include "platform/window.h"

namespace skyloft {
namespace {

namespace Style {
constexpr std::uint32_t kControlBox = 0x80000, kMaxButton = 0x10000, kMinButton = 0x20000,
                        kSizeable = 0x40000, kTitlebar = 0xC00000;
}
namespace ExStyle {
constexpr std::uint32_t kTopMost = 0x8, kToolWindow = 0x80, kWhatsThis = 0x400, kInTaskbar = 0x40000;
}
constexpr int kBit15 = 0x8000;

SystemMenuEntry* FindEntry(Form& form, int command) {
  for (SystemMenuEntry& entry : form.SystemMenu) {
    if (entry.command == command || entry.command == (command & ~kBit15)) return &entry;
  }
  return nullptr;
}

}  // namespace

void Class1::SetClient(Control* client) {
  auto* form = dynamic_cast<Form*>(client);
  if (!form) return;
  client_ = form;
  form->ClassMouseDown = [this](const MousePress& press) {
    if (AutoDrag && press.button == MouseButton::Left) StartWindowDrag(*client_);
  };
  form->ClassMouseUp = [this](const MousePress& press) {
    if (AutoSysMenu && press.button == MouseButton::Right) ShowSysMenu(press.x, press.y);
  };
}

bool Class1::HasStyle(std::uint32_t bits) const { return client_ && (client_->Style & bits) != 0; }

bool Class1::SetStyle(std::uint32_t bits, bool on) {
  if (!client_) return false;
  client_->Style = on ? client_->Style | bits : client_->Style & ~bits;
  Redraw();
  return HasStyle(bits) == on;
}

bool Class1::HasExStyle(std::uint32_t bits) const { return client_ && (client_->ExStyle & bits) != 0; }

bool Class1::SetExStyle(std::uint32_t bits, bool on) {
  if (!client_) return false;
  client_->ExStyle = on ? client_->ExStyle | bits : client_->ExStyle & ~bits;
  Redraw();
  return HasExStyle(bits) == on;
}

bool Class1::ControlBox() const { return HasStyle(Style::kControlBox); }
bool Class1::SetControlBox(bool on) { return SetStyle(Style::kControlBox, on); }

bool Class1::MaxButton() const { return HasStyle(Style::kMaxButton); }
bool Class1::SetMaxButton(bool on) {
  EnableMenuItem(SystemCommand::Maximize, on);
  return SetStyle(Style::kMaxButton, on);
}

bool Class1::MinButton() const { return HasStyle(Style::kMinButton); }
bool Class1::SetMinButton(bool on) {
  EnableMenuItem(SystemCommand::Minimize, on);
  return SetStyle(Style::kMinButton, on);
}

bool Class1::Moveable() const {
  const SystemMenuEntry* entry = client_ ? FindEntry(*client_, SystemCommand::Move) : nullptr;
  return entry && entry->enabled;
}
bool Class1::SetMoveable(bool on) {
  EnableMenuItem(SystemCommand::Move, on);
  return Moveable() == on;
}

bool Class1::Sizeable() const { return HasStyle(Style::kSizeable); }
bool Class1::SetSizeable(bool on) {
  EnableMenuItem(SystemCommand::Size, on);
  return SetStyle(Style::kSizeable, on);
}

bool Class1::ShowInTaskbar() const { return HasExStyle(ExStyle::kInTaskbar); }
bool Class1::SetShowInTaskbar(bool on) {
  if (!client_) return false;
  const bool visible = client_->Visible;
  client_->Visible = false;  // the window is hidden while this changes
  const bool stuck = SetExStyle(ExStyle::kInTaskbar, on);
  client_->Visible = visible;
  return stuck;
}

bool Class1::Titlebar() const { return HasStyle(Style::kTitlebar); }
bool Class1::SetTitlebar(bool on) { return SetStyle(Style::kTitlebar, on); }

bool Class1::ToolWindow() const { return HasExStyle(ExStyle::kToolWindow); }
bool Class1::SetToolWindow(bool on) { return SetExStyle(ExStyle::kToolWindow, on); }

bool Class1::TopMost() const { return HasExStyle(ExStyle::kTopMost); }
void Class1::SetTopMost(bool on) { SetExStyle(ExStyle::kTopMost, on); }

bool Class1::WhatsThisButton() const { return HasExStyle(ExStyle::kWhatsThis); }
bool Class1::SetWhatsThisButton(bool on) { return SetExStyle(ExStyle::kWhatsThis, on); }

void Class1::EnableMenuItem(int command, bool enable) {
  SystemMenuEntry* entry = client_ ? FindEntry(*client_, command) : nullptr;
  if (!entry) return;
  entry->enabled = enable;
  entry->command = enable ? command : command & ~kBit15;
}

void Class1::Redraw() {
  if (client_) client_->MarkDirty();
}

void Class1::RemoveMenuItem(int command) {
  if (!client_) return;
  if (command == SystemCommand::Minimize) SetMinButton(false);
  if (command == SystemCommand::Maximize) SetMaxButton(false);
  auto& menu = client_->SystemMenu;
  const SystemMenuEntry* entry = FindEntry(*client_, command);
  if (!entry) return;
  auto place = menu.begin() + (entry - menu.data());
  if (command == SystemCommand::Close && place != menu.begin()) place = menu.erase(place - 1);
  menu.erase(place);
}

void Class1::ShowSysMenu(int x, int y) {
  if (client_) ShowSystemMenu(*client_, x, y);
}

}  // namespace skyloft
