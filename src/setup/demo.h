// Five towns at once, for a first look.
#pragma once

namespace skyloft {

// Where no location is stored, looks five towns up in the server's database and stores them, with the first
// one selected. A town that the server does not know is left out.
void SetUpDemoTowns();

}  // namespace skyloft
