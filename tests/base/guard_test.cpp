#include "base/guard.h"

#include <gtest/gtest.h>

#include <new>

namespace skyloft {
namespace {

TEST(Guard, BodyThatEndsIsTrue) {
  int runs = 0;
  EXPECT_TRUE(Guarded([&] { ++runs; }));
  EXPECT_EQ(runs, 1);
}

TEST(Guard, RunTimeErrorEndsTheBodySilently) {
  int runs = 0;
  EXPECT_FALSE(Guarded([&] {
    ++runs;
    throw RuntimeError("no date");
    ++runs;
  }));
  EXPECT_EQ(runs, 1);
}

TEST(Guard, MemoryTroubleEndsTheBodySilently) {
  EXPECT_FALSE(Guarded([] { throw std::bad_alloc(); }));
}

}  // namespace
}  // namespace skyloft
