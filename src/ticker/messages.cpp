#include "ticker/messages.h"

namespace skyloft {

void LoadMessages() {}
void RotateSponsors() {}
void FindAlertMessage() {}

}  // namespace skyloft
