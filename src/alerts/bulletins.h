// Bulletins of the National Weather Service for the user's locations: tornado, severe thunderstorm and flash
// flood, each as warning and as watch. A new text takes the bar; three buttons tell what is in force, stop
// the text and run it again.
#pragma once

#include <string>

namespace skyloft {

// Starts empty with the program, so that bulletins still in force are told again.
struct BulletinState {
  int NWSAlertActive = 0;       // 1 while a bulletin is on the bar
  double NWSCheckElapsed = 0;   // seconds since the last check
  double NWSAlertElapsed = 0;   // seconds that the bulletin has been on the bar
  double NWSAlertDuration = 0;  // seconds that it is to stay
  std::string NWSLastText;      // the text of the last check that changed it
  // What each button runs again: all bulletins of its kind at the last check, and 120 seconds for each.
  std::string TornadoAlertText, ThunderstormAlertText, FloodAlertText;
  double TornadoAlertDuration = 0, ThunderstormAlertDuration = 0, FloodAlertDuration = 0;
};
extern BulletinState Bulletins;

// Asks for the bulletins of the locations that want any, and tells them where their joined text is another
// than the last: on the bar, by sound, voice and mail, as each location wishes. A button lights whatever
// those wishes are. Ends quietly on any failure; an empty reply reads as no bulletins.
void NWSAlerts();

// Takes a bulletin whose time is over off the bar: the buttons wait where there is something to run again,
// and the strip may show the message that goes with it.
void EndBulletin();

// Attaches the clicks of the three buttons.
void ConnectBulletins();

}  // namespace skyloft
