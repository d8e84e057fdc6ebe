// What the program shows, saved for outside eyes.
#pragma once

#include <string>

#include <QString>

#include "platform/controls.h"

namespace skyloft {

// Saves to `folder`: a picture of every visible window as Form.png, the document of every HTML view as
// Form.Control.html, and controls.json with every form and control. False when a file cannot be written.
bool SaveSnapshot(const QString& folder);

// One property of a control as a text: true and false, numbers plain, items joined by newlines. False when
// the control has no such property.
bool PropertyText(const Control& control, const std::string& property, std::string& text);

}  // namespace skyloft
