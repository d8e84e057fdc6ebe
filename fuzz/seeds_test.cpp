// Every seed of a target through its entry, and for two seconds what is near the seeds, with the compiler of
// the other tests.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "mutator.h"
#include "require.h"

namespace {

std::vector<std::string> Seeds() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(SKYLOFT_SEEDS)) files.push_back(entry.path());
  std::ranges::sort(files);  // the folder has no order of its own
  std::vector<std::string> seeds;
  for (const auto& path : files) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return seeds;
}

std::string input;  // at its entry now

// The input of a failure goes into a file beside the test, for the fuzzer to run again.
void KeepInput(int signal) {
  const int file = open(SKYLOFT_FAILED_INPUT, O_WRONLY | O_CREAT | O_TRUNC, 0600);
  [[maybe_unused]] const auto written = write(file, input.data(), input.size());
  ::signal(signal, SIG_DFL);
  raise(signal);
}

// A sanitizer that listens to the signal itself goes on doing so; it ends by SIGABRT.
void WatchFailures() {
  for (const int signal : {SIGABRT, SIGSEGV, SIGFPE}) {
    struct sigaction present;
    sigaction(signal, nullptr, &present);
    if (signal == SIGABRT || present.sa_handler == SIG_DFL) ::signal(signal, KeepInput);
  }
}

void Enter() {
  EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size()), 0);
}

TEST(SKYLOFT_SUITE, TheSeedsPass) {
  const std::vector<std::string> seeds = Seeds();
  EXPECT_GE(seeds.size(), 3u);
  WatchFailures();
  for (const std::string& seed : seeds) {
    input = seed;
    Enter();
  }
}

TEST(SKYLOFT_SUITE, WhatIsNearTheSeedsPassesForTwoSeconds) {
  skyloft::Mutator mutator(Seeds());
  WatchFailures();
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + std::chrono::seconds(2);
  int inputs = 0;
  for (; Clock::now() < end; ++inputs) {
    input = mutator.Next();
    Enter();
  }
  EXPECT_GE(inputs, 5);
  RecordProperty("inputs", inputs);
}

}  // namespace
