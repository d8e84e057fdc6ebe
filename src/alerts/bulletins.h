// Severe weather bulletins.
#pragma once

namespace skyloft {

struct BulletinState {
  int NWSAlertActive = 0;  // 1 while a bulletin is on display
};
extern BulletinState Bulletins;

// Fetches the bulletins and shows what concerns a location. Does nothing yet.
void NWSAlerts();

}  // namespace skyloft
