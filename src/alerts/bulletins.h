// Severe weather bulletins.
#pragma once

#include <string>

namespace skyloft {

struct BulletinState {
  int NWSAlertActive = 0;       // 1 while a bulletin is on display
  double NWSCheckElapsed = 0;   // seconds since the last check
  double NWSAlertElapsed = 0;   // seconds that the bulletin has been on display
  double NWSAlertDuration = 0;  // seconds that it is to stay
  std::string TornadoAlertText, ThunderstormAlertText, FloodAlertText;  // what each button replays
};
extern BulletinState Bulletins;

// Fetches the bulletins and shows what concerns a location. Does nothing yet.
void NWSAlerts();

}  // namespace skyloft
