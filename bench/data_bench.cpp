// Reading, summing up and keeping the data of five towns.
#include <benchmark/benchmark.h>

#include <pugixml.hpp>

#include "bench/by_turns.h"
#include "bench/five_towns.h"
#include "feed/forecast.h"
#include "forms/main_form.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "weather/almanac.h"
#include "weather/periods.h"

namespace skyloft::bench {
namespace {

void ReadForecast() {
  Doubles.requests.clear();
  Settings.ModelLocal.clear();
  GetForecastData(0);
}

// Two replies, 66 hours and 25 half days of each town; against the library's bare parse of the same texts.
void ForecastOfFiveTowns(benchmark::State& state) {
  TheTowns();
  ReadForecast();
  const std::string texts[] = {TheTowns().ReplyTo("&st="), TheTowns().ReplyTo("fcsttype=extended")};
  CompareByTurns(state, ReadForecast, [&] {
    for (const std::string& text : texts) {
      pugi::xml_document document;
      benchmark::DoNotOptimize(document.load_buffer(text.data(), text.size()));
    }
  });
  if (Settings.ModelLocal.empty() || ForecastDay[4][24].Ut.empty()) state.SkipWithError("not all was read");
}
BENCHMARK(ForecastOfFiveTowns)->UseManualTime()->Unit(benchmark::kMicrosecond);

void PeriodsOfFiveTowns(benchmark::State& state) {
  TheTowns();
  for ([[maybe_unused]] auto round : state) GetPeriod(0);
}
BENCHMARK(PeriodsOfFiveTowns)->Unit(benchmark::kMicrosecond);

void AlmanacOfFiveTowns(benchmark::State& state) {
  TheTowns();
  for ([[maybe_unused]] auto round : state) GetAlmanac();
}
BENCHMARK(AlmanacOfFiveTowns)->Unit(benchmark::kMicrosecond);

// As after a refresh: one setting has changed since the last save, and the data are written anew.
void SaveOfFiveTowns(benchmark::State& state) {
  TheTowns();
  for ([[maybe_unused]] auto round : state) {
    MainForm.Top = MainForm.Top + 15;
    SaveSystem();
  }
}
BENCHMARK(SaveOfFiveTowns)->Unit(benchmark::kMicrosecond);

void LoadOfFiveTowns(benchmark::State& state) {
  TheTowns();
  SaveSystem();
  for ([[maybe_unused]] auto round : state) LoadSystem();
}
BENCHMARK(LoadOfFiveTowns)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace skyloft::bench
