#include "feedserver/clock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);

TEST(Clock, StandsWhereItIsToldTo) {
  Clock clock(kNow);
  EXPECT_EQ(clock.Now(), kNow);
  clock.Stand(MakeDate(2003, 3, 8, 1, 0, 0));
  EXPECT_EQ(clock.Now(), MakeDate(2003, 3, 8, 1, 0, 0));
}

TEST(Clock, RunsWithTheComputerUntilItIsToldToStand) {
  const auto seconds_of = [](std::time_t time) { return MakeDate(1970, 1, 1).seconds + std::int64_t{time}; };
  Clock clock({});
  const std::int64_t before = seconds_of(std::time(nullptr));
  const std::int64_t now = clock.Now().seconds;
  EXPECT_GE(now, before);
  EXPECT_LE(now, seconds_of(std::time(nullptr)));
  clock.Stand(kNow);
  EXPECT_EQ(clock.Now(), kNow);
}

TEST(Clock, ObeysALineAndAnswersIt) {
  Clock clock(kNow);
  EXPECT_EQ(Obey("now 2003-03-07T20:25:00", clock), "now 2003-03-07T20:25:00");
  EXPECT_EQ(clock.Now(), MakeDate(2003, 3, 7, 20, 25, 0));
}

TEST(Clock, OtherLinesAreNotUnderstoodAndChangeNothing) {
  Clock clock(kNow);
  for (const char* line : {"", "now", "now ", "now soon", "Now 2003-03-07T20:25:00", "2003-03-07T20:25:00",
                           "now 2003-03-07T24:00:00"}) {
    EXPECT_EQ(Obey(line, clock), "not understood") << line;
    EXPECT_EQ(clock.Now(), kNow) << line;
  }
}

}  // namespace
}  // namespace skyloft::feed
