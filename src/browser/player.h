// The player walks through the entries of TimeSelection; choosing an entry shows it.
#pragma once

namespace skyloft {

// The four buttons for the present number of times: Back, Next and Play work from two on, Stop never.
void BackNextPlayStopState();

// Attaches Back, which stays at the first entry, and Next, which goes from the last to the first.
void ConnectPlayer();

}  // namespace skyloft
