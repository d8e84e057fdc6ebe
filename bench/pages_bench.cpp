// Building each page as text, and drawing it as pixels.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QImage>
#include <QSize>

#include "bench/by_turns.h"
#include "bench/five_towns.h"
#include "feed/forecast.h"
#include "forms/main_form.h"
#include "pages/conditions.h"
#include "pages/extended_planner.h"
#include "pages/historical.h"
#include "pages/hourly_planner.h"
#include "pages/weekly_planner.h"
#include "platform/files.h"
#include "platform/qt/drive.h"
#include "platform/qt/html/html_view.h"
#include "settings/settings.h"

namespace skyloft::bench {
namespace {

std::string BuildHourly() {
  WeatherPlanner();
  return MainForm.Display2.Document;
}

// With the periods of all towns, which the page sums up anew.
std::string BuildWeekly() {
  WeatherPlannerWeekly();
  return MainForm.Display2.Document;
}

// The weekly planner's page alone, of columns that are ready.
std::string BuildExtended() {
  static const ExtendedColumns columns = [] {
    ExtendedColumns ready;
    for (int i = 0; i < kForecastDays; ++i) {
      const ForecastDayFields& day = ForecastDay[0][i];
      ready.Date[i] = "03/07";
      ready.Day[i] = "Fri night";
      ready.Icon[i] = day.Ic;
      ready.Sky[i] = day.Desc;
      ready.Temperature[i] = day.Th;
      ready.Wind[i] = day.Wd + " " + day.Ws;
      ready.Rain[i] = day.Rn;
      ready.Snow[i] = day.Sn;
    }
    return ready;
  }();
  const std::string folder = Settings.InstallPath + "\\backgrounds\\";
  return BuildExtendedPage(folder + "weeklya.jpg", folder + "weeklyn.jpg", columns);
}

std::string BuildForecast() {
  const ForecastHourFields& hour = ForecastHour[0][12];
  return BuildForecastConditionsPage("Lawrence, KS", hour.Lt, hour.Ic, hour.Desc, hour.Tf, hour.Df, hour.At,
                                     hour.Rh, hour.Wd, hour.Ws);
}

// With the fetch of its rows and the file in which the page is kept.
std::string BuildHistorical() {
  Doubles.requests.clear();
  GetHistoricalData();
  return ReadFile(Settings.InstallPath + "\\temp\\historical.htm");
}

constexpr QSize kDisplay(604, 415), kBanner(150, 236);

const struct Page {
  const char* name;
  std::string (*build)();
  QSize size;
} kPages[] = {
    {"Hourly", BuildHourly, kDisplay},     {"Weekly", BuildWeekly, kDisplay},
    {"Extended", BuildExtended, kDisplay}, {"Current", BuildCurrentConditionsPage, kBanner},
    {"Forecast", BuildForecast, kBanner},  {"Historical", BuildHistorical, kDisplay},
};

void BuildPage(benchmark::State& state, const Page& page) {
  TheTowns();
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(page.build());
}

HtmlServices Services() {
  return {.local_path = [](const QString& path) { return PathForReading(path.toStdString()).value_or(""); },
          .own_sheet =
              [](const QString&) { return QByteArray("body { font-family: Tahoma; font-size: 11px; }"); },
          .fetch = {},
          .open_link = {},
          .play_sound = {}};
}

// From a page's text to pixels, with the pictures and the style sheet that it names; against building it.
void DrawPage(benchmark::State& state, const Page& page) {
  TheTowns();
  const std::string document = page.build();
  HtmlView view(Services());
  view.resize(page.size);
  QImage image(page.size, QImage::Format_RGB32);
  CompareByTurns(
      state,
      [&] {
        view.SetDocument(document);
        while (!view.Idle()) QCoreApplication::processEvents();
        view.render(&image);
      },
      [&] { benchmark::DoNotOptimize(page.build()); });
}

}  // namespace

void RegisterPages() {
  for (const Page& page : kPages) {
    const std::string name = page.name;
    benchmark::RegisterBenchmark(("Build" + name).c_str(), BuildPage, page)->Unit(benchmark::kMicrosecond);
  }
  for (const Page& page : kPages) {
    const std::string name = page.name;
    benchmark::RegisterBenchmark(("Draw" + name).c_str(), DrawPage, page)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
  }
}

}  // namespace skyloft::bench
