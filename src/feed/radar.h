// Radar frames of the locations' sites.
#pragma once

namespace skyloft {

// Fetches radar frames; mode 0 those of all locations. Does nothing yet.
void GetNexradData(int mode);

}  // namespace skyloft
