#include "feedserver/room.h"

#include <gtest/gtest.h>

namespace skyloft::feed {
namespace {

TEST(Room, IsTakenOnceAndOnlyWithin) {
  Room room({10, 20, 110, 80});
  const struct {
    const char* name;
    Box box;
    bool is_taken;
  } cases[] = {{"inside", {20, 30, 50, 40}, true},
               {"the same again", {20, 30, 50, 40}, false},
               {"over a corner", {45, 35, 60, 60}, false},
               {"around it", {15, 25, 60, 60}, false},
               {"beside it", {50, 30, 60, 40}, true},
               {"below it", {20, 40, 50, 50}, true},
               {"the lower right end", {100, 70, 110, 80}, true},
               {"beyond the left", {9, 60, 15, 70}, false},
               {"beyond the top", {70, 19, 80, 30}, false},
               {"beyond the right", {100, 40, 111, 50}, false},
               {"beyond the bottom", {70, 75, 80, 81}, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(room.IsFree(c.box), c.is_taken) << c.name;
    EXPECT_EQ(room.Take(c.box), c.is_taken) << c.name;
  }
}

TEST(Room, TextFitsRightOfADotOrElseLeftOfIt) {
  Room room({0, 0, 200, 100});
  EXPECT_EQ(room.TakeBeside({50, 50}, 40, 5, 5), 56);    // 6 right of it
  EXPECT_EQ(room.TakeBeside({170, 20}, 40, 5, 5), 124);  // there is no room beyond 200
  EXPECT_EQ(room.TakeBeside({40, 57}, 30, 5, 5), 4);     // the first text is in its way
  EXPECT_EQ(room.TakeBeside({50, 50}, 40, 5, 5), std::nullopt);
  EXPECT_EQ(room.TakeBeside({100, 97}, 40, 5, 5), std::nullopt);  // it would reach below
}

}  // namespace
}  // namespace skyloft::feed
