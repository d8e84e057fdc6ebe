// The report of a road trip: a table of its stops with the weather at the hour of arrival, in straight lines
// and at 60 miles an hour, whatever the road.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

inline constexpr int kRouteStops = 60;
// Degrees of the stops, 1 to kRouteStops; cell 0 stays empty.
using RouteList = Table<double, kRouteStops + 1>;

// The file of the report, "...\temp\routescope.htm".
std::string RouteReportPath();

// Writes the report of stops 1 to `count`; the departure is the hour at HourIndex of the location in
// LocationSelection. Asks the forecast server once a stop, tells the stop in ProgressBar and the totals in
// Label3 and Label4 of RouteScopeForm. A stop's waiting time is the Tag of its mark, in seconds: it delays
// the arrival at the next one, and that of mark 0 the first; it is no part of the total hours. A stop without
// a reply has a row without data; a busy connection ends the table before its stop. A failure leaves the
// file as far as it got.
// Distances are those of the flat plane, 69.1 miles to a degree of latitude and 57.3 degrees to the radian.
void GetForecastRT(const RouteList& latitude, const RouteList& longitude, int count);

}  // namespace skyloft
