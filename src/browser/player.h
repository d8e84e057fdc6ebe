// The player walks through the entries of TimeSelection; choosing an entry shows it.
#pragma once

namespace skyloft {

// The four buttons for the present number of times: Back, Next and Play work from two on, Stop never.
void BackNextPlayStopState();

// Enable or disable the lists of locations, products and times together; that of categories is not touched.
void SelectionEnable();
void SelectionDisable();

// Attaches Back, which stays at the first entry, Next, which goes from the last to the first, Play, Stop and
// the timer, which does as Next: a radar loop 5 frames a second, any other once in about ten seconds.
void ConnectPlayer();

}  // namespace skyloft
