// What a window can do besides being shown.
#pragma once

#include "platform/controls.h"

namespace skyloft {

// A round rectangle in window pixels; the corners are ellipses of that width and height.
struct RoundRegion {
  int left, top, right, bottom;
  int corner_width, corner_height;
  bool operator==(const RoundRegion&) const = default;
};

// Only what lies in the region is the window.
void SetWindowRegion(Form& form, const RoundRegion& region);
// Lets the user drag the window with the button that is down.
void StartWindowDrag(Form& form);
// Opens the window's system menu at a pixel of the window.
void ShowSystemMenu(Form& form, int x, int y);
// Brings a visible window forward and gives it the focus.
void ActivateWindow(Form& form);
// Shows a window and returns when it is hidden again; events go on, but the user reaches no other window.
void ShowModal(Form& form);
// Pops up a menu at the mouse, or where a key asked for it: the entries of `menu`, with their submenus.
void PopUpMenu(Form& form, MenuItem& menu);

}  // namespace skyloft
