// The program's clock: the computer's, or one that stands and is moved.
#pragma once

#include <QDateTime>
#include <QString>

#include "platform/clock.h"

namespace skyloft {

// False when there is no such zone; "" is the computer's own.
bool SetZone(const QString& name);
// The clock stands at `moment` from now on.
void StopClock(Date moment);
bool ClockStands();
// Moves a standing clock; a running one is left alone.
void MoveClock(std::int64_t seconds);

// Moments of the computer and of the program's zone.
QDateTime ToMoment(Date local);
Date ToLocal(const QDateTime& moment);

}  // namespace skyloft
