// The computer's voice.
#pragma once

#include <string>

namespace skyloft {

// Says a text (windows-1252) through the desktop's speech service, without waiting. Silent where there is
// none.
void Speak(const std::string& text);

}  // namespace skyloft
