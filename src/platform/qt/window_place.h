// Where a window may stand, so that the user can reach it.
#pragma once

#include <QList>
#include <QRect>

namespace skyloft {

// One of the screens: all of it, and the part that no panel of the desktop takes. Pixels of the desktop.
struct ScreenPlace {
  QRect whole;
  QRect available;
};

// The upper left corner for a window that would stand at `window`: that place itself as long as a grip of the
// window's upper half, 120 by 40 pixels, lies on one screen; otherwise the nearest place inside the available
// part of the nearest screen. Without any screen it is the place itself.
QPoint PlaceInSight(const QRect& window, const QList<ScreenPlace>& screens);

}  // namespace skyloft
