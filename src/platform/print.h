// Printing.
#pragma once

#include <string>

namespace skyloft {

// Prints the HTML page of a file by the program's own path, after the user has chosen the printer; `title` is
// the name of the print. Returns when it is handed over; nothing is printed when the user cancels. Raises
// when the file cannot be read.
void PrintPage(const std::string& path, const std::string& title);

}  // namespace skyloft
