#include "alerts/personal_alerts.h"

#include "alerts/bulletins.h"

namespace skyloft {

PersonalAlertState PersonalAlertsState;

bool IsAlertShowing() {
  return Bulletins.NWSAlertActive == 1 || PersonalAlertsState.PersonalAlertActive == 1;
}

void PersonalAlerts() {}

}  // namespace skyloft
