// Pictures of the companion server, from the field of weather to the bytes of a file.
#include <benchmark/benchmark.h>

#include <string>

#include "feedserver/answer.h"
#include "feedserver/outlines.h"

namespace skyloft::bench {
namespace {

constexpr std::uint64_t kWetSeed = 799;  // rain over most of the pictures

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
// Every kind of map.
BENCHMARK_CAPTURE(Picture, Temperature, "/sfctemp.200.12z.010.gif")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, Precipitation, "/precip.306.12z.010.gif")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, Wind, "/wind.406.12z.010.png")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, Cloud, "/cloud.406.12z.010.jpg")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, Radar, "/fradar.306.12z.010.gif")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, High, "/dayhigh.106.12z.024.gif")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, DayPrecipitation, "/precip24.200.12z.030.png")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, DaySnow, "/snow24.306.12z.030.gif")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, RunPrecipitation, "/preciprun.306.12z.066.gif")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, Pressure, "/analysis.106.12z.000.png")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, Thunder, "/thunder.106.jpg")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Picture, Roads, "/route.306.12z.024.gif")->Unit(benchmark::kMillisecond);

// The storms of five counties, hour after hour of a summer.
void BulletinsOfFiveTowns(benchmark::State& state) {
  const feed::World world{.seed = kWetSeed, .storms = true};
  const std::string query = "pc=66044&pc=73102&pc=30303&pc=60601&pc=85003&t=xml";
  std::int64_t hour = 0;
  for ([[maybe_unused]] auto round : state) {
    const Date now = DateAdd(DateUnit::Hours, hour++ % (92 * 24), MakeDate(2003, 6, 1));
    benchmark::DoNotOptimize(feed::Answer({"/bulletins.asp", query, now}, world));
  }
}
BENCHMARK(BulletinsOfFiveTowns)->Unit(benchmark::kMillisecond);

// What the outlines take before the first picture.
void OutlinesDecoded(benchmark::State& state) {
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(feed::DecodedOutlines());
}
BENCHMARK(OutlinesDecoded)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace skyloft::bench
