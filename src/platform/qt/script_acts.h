// What a user can do, by the names of controls; each returns an error, "" for none.
#pragma once

#include <string>

#include "platform/controls.h"

namespace skyloft {

std::string ClickControl(Control& control);
std::string PressControl(Control& control, const MousePress& press);
std::string SelectEntry(Control& control, const std::string& entry, bool by_text);
std::string EnterText(Control& control, const std::string& text);
std::string CheckControl(Control& control, bool checked);
// The menu entry of that name; `index` picks a member of an array, -1 for none.
std::string ChooseEntry(const std::string& name, int index);
// `count` ticks of a timer, named with its form or without; a standing clock moves by its interval before
// each.
std::string TickTimer(const std::string& name, int count);

}  // namespace skyloft
