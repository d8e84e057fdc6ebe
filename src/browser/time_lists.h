// The times of a catalogue product, by its code.
#pragma once

namespace skyloft {

// Fills TimeSelection, which is empty, for a code and a number of frames, and sets HourIndex, HourIndexMin
// and HourIndexMax; for code 11 FirstRouteFrame too. Any other code leaves all as it is. Raises for hours
// that the forecast does not have; the entries made until then stay.
void FillTimes(int code, int count);

}  // namespace skyloft
