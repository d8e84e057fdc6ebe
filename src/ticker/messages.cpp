#include "ticker/messages.h"

namespace skyloft {

void LoadMessages() {}
void RotateSponsors() {}

}  // namespace skyloft
