// The hourly planner: twelve hours of the selected location above its five forecast periods.
#pragma once

#include <string>

namespace skyloft {

// Shows the page of the hours from HourIndex on, over the bands of the present light, and the place of that
// hour in the position bar. Raises, and leaves the page, when fewer than twelve hours are left in the table.
void WeatherPlanner();

// The page, over two pictures given by whole path. All values print as they are held.
std::string BuildPlannerPage(const std::string& hourly_band, const std::string& daily_band);

}  // namespace skyloft
