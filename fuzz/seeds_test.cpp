// Every seed of a target through its entry, with the compiler of the other tests.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "require.h"

TEST(SKYLOFT_SUITE, TheSeedsPass) {
  int seeds = 0;
  for (const auto& entry : std::filesystem::directory_iterator(SKYLOFT_SEEDS)) {
    SCOPED_TRACE(entry.path());
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()), 0);
    ++seeds;
  }
  EXPECT_GE(seeds, 3);
}
