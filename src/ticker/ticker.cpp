#include "ticker/ticker.h"

namespace skyloft {

TickerState TickerRotation;

void TickerDisplay() {}

}  // namespace skyloft
