// The benchmarks of the program's parts.
#include <benchmark/benchmark.h>

#include <QApplication>

namespace skyloft::bench {
void RegisterPages();
}

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  skyloft::bench::RegisterPages();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
}
