// Bulletins of the server's own storms: drawn from the same field of weather as all else.
#pragma once

#include <cstdint>
#include <vector>

#include "base/dates.h"
#include "feedserver/bulletins.h"
#include "feedserver/places.h"

namespace skyloft::feed {

// What is in force in the county of a place at a moment: warnings of what is over one of its towns, watches
// for what is to come there within hours. All places of a county have the same, for the county and with the
// name of the town concerned. A bulletin keeps its times and its text until it expires; weather that goes on
// after that has a new one. None on a quiet day.
std::vector<Bulletin> StormBulletins(const Place& place, Date now, std::uint64_t seed);
// The same for some places: those of each county once, in the order of the places.
std::vector<Bulletin> StormBulletins(const std::vector<Place>& places, Date now, std::uint64_t seed);

}  // namespace skyloft::feed
