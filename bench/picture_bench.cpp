// A radar picture on its way to a frame, against its bare decoding.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

#include "bench/by_turns.h"
#include "feed/radar_colors.h"
#include "feedserver/answer.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/qt/drive.h"
#include "platform/qt/pictures_qt.h"

namespace skyloft::bench {
namespace {

void RadarPictureConverted(benchmark::State& state) {
  const QTemporaryDir folder;
  SetUpDrive(folder.path(), folder.path() + "/share");
  const feed::Request request{"/radar/images/DS.p19r0/SI.klot/latest.gif", "",
                              MakeDate(2003, 3, 7, 20, 5, 0)};
  const std::string temp = "C:\\program files\\skyloft\\temp\\";
  WriteFile(temp + "radar.gif", feed::Answer(request, {.seed = 8}).body);
  CompareByTurns(
      state, [&] { ConvertPicture(temp + "radar.gif", temp + "radar.png", RadarColors()); },
      [&] { benchmark::DoNotOptimize(ReadPicture(temp + "radar.gif")); });
  if (!FileExists(temp + "radar.png")) state.SkipWithError("nothing was converted");
}
BENCHMARK(RadarPictureConverted)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace skyloft::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
}
