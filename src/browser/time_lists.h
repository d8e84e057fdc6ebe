// The times of a catalogue product, by its code.
#pragma once

namespace skyloft {

// Fills TimeSelection, which is empty, for a code and a number of frames, and sets HourIndex, HourIndexMin and
// HourIndexMax; for code 11 FirstRouteFrame too. Any other code leaves all as it is. Raises for a time that is
// missing, of an hour or of the observation; the entries made until then stay. Returns whether the product may
// be without a time: a route whose departures are past, or an unknown code.
bool FillTimes(int code, int count);

}  // namespace skyloft
