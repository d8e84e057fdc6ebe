// What the real files offer to the other real parts.
#pragma once

#include <QString>

namespace skyloft {

// Gives a file just written the time of a standing clock.
void StampFile(const QString& file);

}  // namespace skyloft
