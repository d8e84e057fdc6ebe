#include "feedserver/options.h"

#include <gtest/gtest.h>

#include "base/guard.h"

namespace skyloft::feed {
namespace {

TEST(Options, AreRead) {
  const Options options = ReadOptions({"--port",          "0",
                                       "--seed",          "18446744073709551615",
                                       "--now",           "2003-03-07T14:05:00",
                                       "--log",           "l",
                                       "--fault",         "/a=cut",
                                       "--fault",         "/b=hang@2",
                                       "--offer-version", "1.21.00",
                                       "--update",        "u",
                                       "--bulletins",     "b",
                                       "--storms",        "--stay",
                                       "--address",       "::1",
                                       "--threads",       "64"});
  EXPECT_EQ(options.port, 0);
  EXPECT_EQ(options.address, "::1");
  EXPECT_EQ(options.threads, 64);
  EXPECT_EQ(ReadOptions({}).address, "127.0.0.1");
  EXPECT_EQ(options.world.seed, ~std::uint64_t{0});
  EXPECT_EQ(options.now, MakeDate(2003, 3, 7, 14, 5, 0));
  EXPECT_EQ(options.log_file, "l");
  ASSERT_EQ(options.faults.size(), 2u);
  EXPECT_EQ(options.faults[1].first, 2);
  EXPECT_EQ(options.world.offered_version, "1.21.00");
  EXPECT_EQ(options.update_file, "u");
  EXPECT_EQ(options.bulletins_file, "b");
  EXPECT_TRUE(options.stays);
  EXPECT_TRUE(options.world.storms);
  EXPECT_FALSE(ReadOptions({}).stays);
  EXPECT_FALSE(ReadOptions({}).world.storms);
  EXPECT_FALSE(ReadOptions({}).now);
}

TEST(Options, WhatIsNotUnderstoodRaises) {
  const std::vector<std::string> cases[] = {{"--port"},        {"--port", "x"},    {"--port", "65536"},
                                            {"--port", "-1"},  {"--port", ""},     {"--seed", "1.5"},
                                            {"--now", "noon"}, {"--fault", "x"},   {"--what"},
                                            {"8080"},          {"--threads", "0"}, {"--threads", "65"}};
  for (const auto& arguments : cases) EXPECT_THROW(ReadOptions(arguments), RuntimeError) << arguments[0];
}

TEST(Options, HelpNamesEveryOption) {
  for (const char* name :
       {"--port", "--address", "--threads", "--seed", "--now", "--log", "--fault", "--offer-version",
        "--update", "--bulletins", "--storms", "--stay", "--version", "--help"}) {
    EXPECT_NE(HelpText().find(name), std::string_view::npos) << name;
  }
}

}  // namespace
}  // namespace skyloft::feed
