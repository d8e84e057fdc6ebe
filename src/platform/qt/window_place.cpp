#include "platform/qt/window_place.h"

#include <algorithm>

namespace skyloft {
namespace {

constexpr QSize kGrip(120, 40);

// How far a coordinate has to go to stand between two others.
int WayInto(int at, int low, int high) { return std::max(std::min(at, high), low) - at; }

// From the window's place to the nearest one inside the area; a window that is too large begins with it.
QPoint WayInto(const QRect& window, const QRect& area) {
  return {WayInto(window.left(), area.left(), area.right() + 1 - window.width()),
          WayInto(window.top(), area.top(), area.bottom() + 1 - window.height())};
}

}  // namespace

QPoint PlaceInSight(const QRect& window, const QList<ScreenPlace>& screens) {
  const QRect upper(window.topLeft(), QSize(window.width(), window.height() / 2));
  const QSize grip = kGrip.boundedTo(upper.size());
  const auto shows_grip = [&](const ScreenPlace& screen) {
    const QSize seen = (upper & screen.whole).size();
    return seen.width() >= grip.width() && seen.height() >= grip.height();
  };
  if (screens.isEmpty() || std::ranges::any_of(screens, shows_grip)) return window.topLeft();
  const auto way = [&](const ScreenPlace& screen) {
    return WayInto(window, screen.available).manhattanLength();
  };
  const ScreenPlace& nearest = *std::ranges::min_element(screens, {}, way);
  return window.topLeft() + WayInto(window, nearest.available);
}

}  // namespace skyloft
