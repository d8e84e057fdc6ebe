#include "alerts/bulletins.h"

namespace skyloft {

BulletinState Bulletins;

void NWSAlerts() {}

}  // namespace skyloft
