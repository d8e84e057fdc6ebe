// The options dialog. Its controls are the options: a change stands at once, before OK too, and there is no
// Cancel. OK is the only way out.
#pragma once

#include "platform/controls.h"

namespace skyloft {

// Hides the frames of all tabs.
void HideFrames();

// Checks or clears a box as a click does, so that the boxes tied to it follow; nothing when it is so already.
void SetOption(CheckBox& box, bool on);

// Attaches the dialog, on its first tab. OK refuses, with a message and on that tab, unless the address was
// typed twice; else it brings the bar to its place, saves the options and hides the dialog. It does not dial
// as the box says: the box counts from the next start.
void ConnectOptions();

}  // namespace skyloft
