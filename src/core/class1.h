// Class1: gives a form its window styles. Every get reads the window's present style, not a stored copy.
#pragma once

#include <cstdint>

#include "platform/controls.h"

namespace skyloft {

// Commands of the system menu.
namespace SystemCommand {
enum : int { Size = 61440, Move = 61456, Minimize = 61472, Maximize = 61488, Close = 61536, Restore = 61728 };
}

class Class1 {
 public:
  bool AutoDrag = false;     // the left button on the client drags the window
  bool AutoSysMenu = false;  // the right button on the client, released, opens the system menu

  // The attached form, nullptr before. Anything but a form is ignored. Setting it listens to the form's
  // mouse, beside the form's own handlers.
  Form* Client() const { return client_; }
  void SetClient(Control* client);

  // Gets and sets; without a client a get is false and a set does nothing. A set counts as done when the
  // value stuck.
  bool ControlBox() const;
  bool SetControlBox(bool on);
  bool MaxButton() const;
  bool SetMaxButton(bool on);
  bool MinButton() const;
  bool SetMinButton(bool on);
  bool Moveable() const;
  bool SetMoveable(bool on);
  bool Sizeable() const;
  bool SetSizeable(bool on);
  bool ShowInTaskbar() const;
  bool SetShowInTaskbar(bool on);
  bool Titlebar() const;
  bool SetTitlebar(bool on);
  bool ToolWindow() const;
  bool SetToolWindow(bool on);
  bool TopMost() const;
  void SetTopMost(bool on);
  bool WhatsThisButton() const;
  bool SetWhatsThisButton(bool on);

  // Enables or disables an entry of the system menu. A disabled one bears its command with bit 15 cleared,
  // and is found by either.
  void EnableMenuItem(int command, bool enable);
  void Redraw();
  // Takes an entry out of the system menu; minimize and maximize lose their buttons first, close takes the
  // entry above it along.
  void RemoveMenuItem(int command);
  void ShowSysMenu(int x, int y);

 private:
  bool HasStyle(std::uint32_t bits) const;
  bool SetStyle(std::uint32_t bits, bool on);
  bool HasExStyle(std::uint32_t bits) const;
  bool SetExStyle(std::uint32_t bits, bool on);

  Form* client_ = nullptr;
};

}  // namespace skyloft
