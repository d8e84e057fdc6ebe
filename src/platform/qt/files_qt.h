// What the real files offer to the other real parts.
#pragma once

#include <string>

#include <QString>

namespace skyloft {

// Gives a file just written the time of a standing clock.
void StampFile(const QString& file);

// As WriteFile, but does not wait until the disk has it: for what can be had again.
void WriteFileSoon(const std::string& path, const std::string& bytes);

}  // namespace skyloft
