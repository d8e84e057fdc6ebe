// The small page of the conditions banner, 150 pixels wide.
#pragma once

#include <string>

namespace skyloft {

// The page of the selected location's present conditions. A field without a value prints nothing; the stray
// tags and the cell tag left open are part of the page.
std::string BuildCurrentConditionsPage();

// Shows the selected location's title, its page in the banner and its temperature in the tray.
void CurrentConditions();

}  // namespace skyloft
