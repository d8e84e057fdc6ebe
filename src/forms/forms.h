// All forms of the program, and where their controls lie.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/controls.h"

namespace skyloft {

// Twips to a pixel, everywhere.
inline constexpr int kTwipsPerPixel = 15;

const std::vector<Form*>& AllForms();

// The control by its outside name, "MainForm.Thumbnail", "MainForm.SysTray[1]", or a form by its own; nullptr
// when there is none.
Control* FindControl(std::string_view name);

// The members of a control array by its outside name, "MainForm.SysTray".
std::vector<Control*> FindMembers(const std::string& array);

// Puts a form into the middle of the screen.
void CentreForm(Form& form);

// Puts every form and control at its place of the skin.
void ApplySkin();

}  // namespace skyloft
