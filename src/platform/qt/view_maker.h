// Makes the widgets of a form's controls.
#pragma once

#include <vector>

#include "platform/controls.h"

namespace skyloft {

class FormWindow;

void MakeViews(FormWindow& window, const std::vector<Control*>& controls);

}  // namespace skyloft
