// Where a window stands when its place is out of sight.
#include "platform/qt/window_place.h"

#include <gtest/gtest.h>

namespace skyloft {
namespace {

// Two screens side by side; the left one has a panel of 30 pixels at its top.
const QList<ScreenPlace> kScreens = {{{0, 0, 1024, 768}, {0, 30, 1024, 738}},
                                     {{1024, 0, 1280, 1024}, {1024, 0, 1280, 1024}}};
constexpr QSize kWindow(800, 590);

TEST(WindowPlace, AWindowInSightStaysAndOneOutOfSightGoesToTheNearestScreen) {
  const struct {
    const char* what;
    QPoint stored, shown;
  } cases[] = {
      {"inside", {100, 90}, {100, 90}},
      {"under the panel, but in sight", {0, 0}, {0, 0}},
      {"over both screens", {700, 100}, {700, 100}},
      {"a grip left at the right", {1024 + 1280 - 120, 10}, {1024 + 1280 - 120, 10}},
      {"less than that", {1024 + 1280 - 119, 10}, {1024 + 1280 - 800, 10}},
      {"a grip left at the left", {120 - 800, 10}, {120 - 800, 10}},
      {"less than that", {119 - 800, 100}, {0, 100}},
      {"a grip left at the foot", {100, 768 - 40}, {100, 768 - 40}},
      {"less than that", {100, 768 - 39}, {100, 768 - 590}},
      {"its upper half leaves a grip at the top", {100, 40 - 295}, {100, 40 - 295}},
      {"only its lower half is left", {100, 39 - 295}, {100, 30}},
      {"on a screen that is gone, to the right", {4000, 200}, {1024 + 1280 - 800, 200}},
      {"on a screen that is gone, to the left", {-2000, -500}, {0, 30}},
      {"far below the right screen", {1500, 5000}, {1500, 1024 - 590}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(PlaceInSight({c.stored, kWindow}, kScreens), c.shown)
        << c.what << " " << c.stored.x() << " " << c.stored.y();
  }
}

TEST(WindowPlace, AWindowLargerThanTheScreenBeginsWithItsAvailablePart) {
  const QList<ScreenPlace> small = {{{0, 0, 640, 480}, {0, 30, 640, 450}}};
  EXPECT_EQ(PlaceInSight({{900, 900}, kWindow}, small), QPoint(0, 30));
}

TEST(WindowPlace, WithoutAScreenEveryPlaceStays) {
  EXPECT_EQ(PlaceInSight({{9000, 9000}, kWindow}, {}), QPoint(9000, 9000));
}

}  // namespace
}  // namespace skyloft
