// Two pieces of work timed by turns, so that a busy machine slows both alike.
#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

namespace skyloft::bench {

// The time told is that of `work`; the counter "ratio" is its whole time over that of `reference`. The
// benchmark must use manual time.
template <class Work, class Reference>
void CompareByTurns(benchmark::State& state, Work work, Reference reference) {
  using Clock = std::chrono::steady_clock;
  using Seconds = std::chrono::duration<double>;
  Seconds work_time{0}, reference_time{0};
  for ([[maybe_unused]] auto round : state) {
    const auto start = Clock::now();
    work();
    const auto middle = Clock::now();
    reference();
    work_time += middle - start;
    reference_time += Clock::now() - middle;
    state.SetIterationTime(Seconds(middle - start).count());
  }
  state.counters["ratio"] = work_time / reference_time;
}

}  // namespace skyloft::bench
