// The end of the process, for the other real parts.
#pragma once

#include <functional>

namespace skyloft {

// Runs `act` when the process ends, the last one added first.
void AtEnd(std::function<void()> act);
[[noreturn]] void EndWith(int code);

}  // namespace skyloft
