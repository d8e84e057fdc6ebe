// Where the program's paths lie on this computer. Drive C: is the root folder; nothing outside it is
// reachable, but for the installed pictures and sounds, which are read only.
#pragma once

#include <optional>
#include <string>

#include <QString>

namespace skyloft {

// Readies the drive: `root` becomes drive C:, `share` the folder of the installed files. Makes the install
// folder with its temp and its legends where they are missing.
// False when it cannot be made.
bool SetUpDrive(const QString& root, const QString& share);
const QString& DriveRoot();

// The file of a path for reading: names match without regard to case, and what is missing in the root's
// icons, backgrounds, legends and wav is looked up among the installed files. Nothing when the path is
// refused.
std::optional<QString> PathForReading(const std::string& path);
// The file of a path for writing.
std::optional<QString> PathForWriting(const std::string& path);

}  // namespace skyloft
