// Pictures of the companion server, from the field of weather to the bytes of a file.
#include <benchmark/benchmark.h>

#include <string>

#include "feedserver/answer.h"

namespace skyloft::bench {
namespace {

constexpr std::uint64_t kWetSeed = 8;  // rain over most of the pictures

void Picture(benchmark::State& state, const std::string& path) {
  const feed::Request request{path, "", MakeDate(2003, 3, 7, 20, 5, 0)};
  for ([[maybe_unused]] auto round : state) {
    if (feed::Answer(request, {.seed = kWetSeed}).status != 200)
      state.SkipWithError("there is no such picture");
  }
}
BENCHMARK_CAPTURE(Picture, Reflectivity, "/radar/images/DS.p19r0/SI.klot/latest.gif")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, HourPrecipitation, "/radar/images/DS.78ohp/SI.klot/latest.gif")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, TotalPrecipitation, "/radar/images/DS.80stp/SI.klot/latest.gif")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, MapOfAMoment, "/sfctemp.200.12z.010.gif")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, MapOfADay, "/precip24.200.12z.030.png")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace skyloft::bench
