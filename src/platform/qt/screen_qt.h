// What stands in for the display's own figures.
#pragma once

namespace skyloft {

// The display has this many dots per inch from now on; 0 for its own number.
void SetDotsPerInch(int dots);

}  // namespace skyloft
