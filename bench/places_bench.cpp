// The companion server's table of places: how long it takes to load, what it holds, how long a search takes.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <string>

#include "feedserver/place_search.h"
#include "feedserver/places.h"

namespace skyloft::bench {
namespace {

// All that a server with every kind of search has made.
struct Loaded {
  feed::PlaceTable table;
  feed::NameIndex names{table};
  feed::PointIndex points{table};
};

// What is allocated, small pieces and mapped ones.
double MegabytesInUse() {
  const auto in_use = mallinfo2();
  return static_cast<double>(in_use.uordblks + in_use.hblkhd) / 1e6;
}

void PlacesLoaded(benchmark::State& state) {
  double megabytes = 0;
  for ([[maybe_unused]] auto round : state) {
    const double before = MegabytesInUse();
    const Loaded loaded;
    megabytes = MegabytesInUse() - before;
  }
  state.counters["MB"] = megabytes;
}
BENCHMARK(PlacesLoaded)->Unit(benchmark::kMillisecond);

// Goes through codes of all the country.
void PlaceByPostalCode(benchmark::State& state) {
  std::vector<std::string> codes;
  for (std::size_t i = 0; i < feed::PlaceCount(); i += 401) codes.emplace_back(feed::PlaceAt(i).postal_code);
  std::size_t next = 0;
  for ([[maybe_unused]] auto round : state)
    benchmark::DoNotOptimize(feed::FindPlace(codes[next++ % codes.size()]));
}
BENCHMARK(PlaceByPostalCode)->Unit(benchmark::kMicrosecond);

void PlaceByName(benchmark::State& state, const std::string& city, const std::string& place_state) {
  for ([[maybe_unused]] auto round : state) {
    if (!feed::FindPlace(city, place_state)) state.SkipWithError("there is no such town");
  }
}
BENCHMARK_CAPTURE(PlaceByName, One, "Lawrence", "KS")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlaceByName, OfManyNamesakes, "Washington", "WV")->Unit(benchmark::kMicrosecond);

void PlaceByPoint(benchmark::State& state, feed::Point point) {
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(feed::NearestPlace(point));
}
BENCHMARK_CAPTURE(PlaceByPoint, OnLand, feed::Point{39.2, -95.9})->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlaceByPoint, FarAtSea, feed::Point{35, -30})->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace skyloft::bench
