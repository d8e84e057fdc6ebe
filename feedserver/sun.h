// The sun over a point: its height, its clock and its season.
#pragma once

#include "base/dates.h"
#include "feedserver/point.h"

namespace skyloft::feed {

double DaysOf(Date gmt);  // since the start of dates, with their share

// Degrees over the horizon.
double SunHeight(Point point, Date gmt);

// Hours of the sun's own clock, 12 when it stands highest; not reduced to one day.
double SolarHour(Point point, Date gmt);

// From -1 about 20 January to 1 about 20 July, when the land north of the equator is coldest and
// warmest; the other way round to the south.
double SeasonOf(Point point, Date gmt);

}  // namespace skyloft::feed
