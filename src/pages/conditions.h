// The small pages of the conditions banner, 150 pixels wide.
#pragma once

#include <string>

namespace skyloft {

// The page of the selected location's present conditions. A field without a value prints nothing; the stray
// tags and the cell tag left open are part of the page.
std::string BuildCurrentConditionsPage();

// The page of the conditions forecast for an hour: without pressure and visibility, with title and time under
// the heading. `icon` is a whole path, `wind_direction` a compass text; the other values are texts in the
// units of the observations.
std::string BuildForecastConditionsPage(const std::string& title, const std::string& time,
                                        const std::string& icon, const std::string& sky,
                                        const std::string& temperature, const std::string& dewpoint,
                                        const std::string& feels_like, const std::string& humidity,
                                        const std::string& wind_direction, const std::string& wind_speed);

// Shows the selected location's title, its page in the banner and its temperature in the tray.
void CurrentConditions();

}  // namespace skyloft
