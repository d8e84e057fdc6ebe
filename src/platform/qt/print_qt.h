// Printing into a file.
#pragma once

#include "platform/print.h"

namespace skyloft {

// From now on pages are printed into that file, a PDF, without asking the user.
void PrintIntoFile(const std::string& file);

}  // namespace skyloft
