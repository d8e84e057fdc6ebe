// Sounds of the computer.
#pragma once

#include <string>

namespace skyloft {

// Plays a sound file, such as "C:\program files\skyloft\wav\warning.wav", once and without waiting. A missing
// or refused file is silence, and so is a computer without a sound device.
void PlaySound(const std::string& path);

}  // namespace skyloft
