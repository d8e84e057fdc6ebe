// Bulletins of the server's own storms: drawn from the same field of weather as all else.
#pragma once

#include <cstdint>
#include <vector>

#include "base/dates.h"
#include "feedserver/bulletins.h"
#include "feedserver/places.h"

namespace skyloft::feed {

// What is in force at a place at a moment: warnings of what is there, watches for what is to come within
// hours. A bulletin keeps its times and its text until it expires; weather that goes on after that has a new
// one. None on a quiet day.
std::vector<Bulletin> StormBulletins(const Place& place, Date now, std::uint64_t seed);

}  // namespace skyloft::feed
