#include "alerts/personal_alerts.h"

namespace skyloft {

PersonalAlertState PersonalAlertsState;

void PersonalAlerts() {}

}  // namespace skyloft
