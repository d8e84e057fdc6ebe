// The user's own thresholds against the forecast.
#pragma once

namespace skyloft {

struct PersonalAlertState {
  int PersonalAlertActive = 0;  // 1 while a personal alert is on display
};
extern PersonalAlertState PersonalAlertsState;

// Tests the forecast of every location. Does nothing yet.
void PersonalAlerts();

}  // namespace skyloft
