// Between GMT, the computer's local time and the local time of a location, and the words for a time. Times
// are texts in the general date form; what is no date raises.
#pragma once

#include <string>

#include "base/dates.h"

namespace skyloft {

// A local time of the computer as GMT. `dst` becomes -1 when the zone's state is unknown, 0 in standard time,
// 1 in daylight saving time, which is always one hour. A zone's offset counts in whole hours, halves away
// from zero: 3.5 hours are 4.
std::string GetGMT(const std::string& local, int& dst);
// The other way round.
std::string GMTtoLT(const std::string& gmt, int& dst);

// Three-letter code of a United States zone by its offset from GMT in hours, the daylight hour (dst 1) added.
// Every other offset reads as Pacific.
std::string GetTimeZone(double offset, double dst);

// The name of a day from 1, Sunday, to 7; any other number leaves the name.
void GetWeekday(int day, std::string& name);
void GetWeekdayFull(int day, std::string& name);

// The full name of the day in which a time falls.
std::string GetWeekDayPeriod(const std::string& time);
// The full name of its forecast period: the day from 06:00 to 18:00, else " Night" behind the name. The hours
// 0 to 3 belong to the night of the day before; 4 and 5 are the night of the day they stand in, which is
// meant.
std::string GetWeekDayNightPeriod(const std::string& time);

// The whole date of a stamp that has only day of month, hour and minute, near a reference in the same zone.
// No caller.
std::string GetExpirationGMT(const std::string& reference, int day, int hour, int minute);

// Hours from GMT of a location, the daylight hour added.
long long LocationOffset(int slot);
// The present local time of a location.
Date LocationTime(int slot);
// The code of its zone, now.
std::string LocationZone(int slot);

}  // namespace skyloft
