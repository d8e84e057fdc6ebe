// The user's own conditions against the forecast of each location: temperatures and wind that it should not
// pass, and kinds of weather to hear about. There is no memory of earlier findings: each run tells all it
// finds.
#pragma once

#include <string>

namespace skyloft {

struct PersonalAlertState {
  int PersonalAlertActive = 0;       // 1 while a personal message is on the bar
  double PersonalAlertElapsed = 0;   // seconds that it has been
  double PersonalAlertDuration = 0;  // seconds that it is to stay: 30 for each finding
  std::string PersonalAlertText;     // what the button runs again
};
extern PersonalAlertState PersonalAlertsState;

// Whether an alert of either kind, a bulletin or a personal one, is on the bar.
bool IsAlertShowing();

// Finds for each condition of each location the first coming hour that meets it, of the hours 0 to 65, and
// tells the findings as the location wishes. A bulletin keeps the bar; the button lights all the same. Ends
// quietly on any failure, such as an hour without a time.
void PersonalAlerts();

// Takes a personal message whose time is over off the bar. It hides an unwanted bar also under a bulletin,
// which is meant.
void EndPersonalAlert();

// Attaches the button's click, which stops the message or runs it again.
void ConnectPersonalAlerts();

}  // namespace skyloft
