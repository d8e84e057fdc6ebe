// Pictures of files.
#pragma once

#include <string>

#include "platform/controls.h"

namespace skyloft {

// Reads the file from the disk and shows it in the control. Raises, and leaves the control, when it is
// missing or no picture.
void LoadPicture(Picture& control, const std::string& path);

}  // namespace skyloft
