// Files by the program's own paths, such as "C:\program files\skyloft\sklt.dat". Drive C: is the program's
// root folder on this computer; a path that leaves it is refused, whatever its text. Names match without
// regard to case. The folders icons, backgrounds, legends and wav are looked up there and then among the
// installed files.
#pragma once

#include <string>
#include <vector>

#include "base/dates.h"

namespace skyloft {

bool FileExists(const std::string& path);
// The whole file. Raises when it is missing or cannot be read.
std::string ReadFile(const std::string& path);
// Replaces the file; the old one stays until the new one is whole. Raises when it cannot be written.
void WriteFile(const std::string& path, const std::string& bytes);
// Raises when the file is missing or cannot be removed.
void DeleteFile(const std::string& path);
// The local time of the last change. Raises when the file is missing.
Date FileTime(const std::string& path);
// The names in a folder, sorted by their bytes; empty when there is no such folder.
std::vector<std::string> ListFiles(const std::string& folder);

}  // namespace skyloft
