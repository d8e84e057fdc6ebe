// The user's own thresholds against the forecast.
#pragma once

namespace skyloft {

struct PersonalAlertState {
  int PersonalAlertActive = 0;       // 1 while a personal alert is on display
  double PersonalAlertElapsed = 0;   // seconds that it has been
  double PersonalAlertDuration = 0;  // seconds that it is to stay
};
extern PersonalAlertState PersonalAlertsState;

// Whether an alert of either kind, a bulletin or a personal one, is on display.
bool IsAlertShowing();

// Tests the forecast of every location. Does nothing yet.
void PersonalAlerts();

}  // namespace skyloft
