// The weekly planner: twelve days of day and night columns, the near ones from the forecast periods, the far
// ones from the extended forecast.
#pragma once

namespace skyloft {

// Shows the page of the selected location, and the range of its dates as the one entry of TimeSelection. The
// periods are summed up anew, for all locations. An extended stamp that is missing leaves all later columns
// empty. The far columns take their wind's speed from the hourly forecast at the same place, which is meant.
// On any failure the display keeps what it had.
void WeatherPlannerWeekly();

}  // namespace skyloft
