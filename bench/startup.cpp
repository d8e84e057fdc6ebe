// The whole program, measured from outside on a display of its own: how soon its windows stand, what memory
// it holds, what it costs while it is hidden, and whether a thousand refreshes make it grow. Prints a table.
//
// bench_startup [STARTS]: starts of each kind, 10 unless told. Takes about two minutes.
#include <QCoreApplication>
#include <QFile>
#include <QPoint>
#include <QSize>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>

#include "bench/child.h"
#include "x_display.h"

namespace skyloft::bench {
namespace {

constexpr double kPatience = 20000;  // milliseconds for a window to come up
constexpr int kSettled = 2000;       // milliseconds until a program has done all that its start began
constexpr int kHidden = 30000;       // milliseconds of the measurement of a hidden program

constexpr QSize kSplash(420, 200), kMain(800, 590);
constexpr QPoint kExitButton(733, 23);  // in the main window, which it hides

// Of one start; milliseconds since the start, and megabytes when the program has settled.
struct Figures {
  double splash = 0, window_mapped = 0, window_painted = 0, proportional = 0, peak = 0;
};

void Sleep(int milliseconds) { QThread::msleep(static_cast<unsigned long>(milliseconds)); }

// Whether a band through the middle of the window shows more than one colour.
bool IsPainted(const XDisplay& display, const QRect& place) {
  const QByteArray pixels = display.Pixels({place.x(), place.center().y(), place.width(), 4});
  return pixels.size() > 4 && pixels.mid(4) != pixels.chopped(4);
}

// Looks every half millisecond; the moment at which a window of that size stood and `also` held. 0: never.
double MomentOf(Child& child, const XDisplay& display, QSize size,
                const std::function<bool(const QRect&)>& also) {
  while (child.Elapsed() < kPatience && child.Runs()) {
    const QRect place = display.LargestWindow().place;
    const double moment = child.Elapsed();
    if (place.size() == size && also(place)) return moment;
    QThread::usleep(500);
  }
  return 0;
}

double MomentMapped(Child& child, const XDisplay& display) {
  return MomentOf(child, display, kMain, [](const QRect&) { return true; });
}

double MomentPainted(Child& child, const XDisplay& display, QSize size) {
  return MomentOf(child, display, size, [&](const QRect& place) { return IsPainted(display, place); });
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// A home of its own for each run, with nothing of the user's in it.
struct Home {
  QTemporaryDir folder;
  QStringList VariablesOn(const XDisplay& display) const {
    QStringList variables = {"DISPLAY=" + display.Name(), "QT_QPA_PLATFORM=xcb"};
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "TMPDIR"}) {
      variables << QString(name) + '=' + folder.path();
    }
    return variables;
  }
};

struct Kind {
  const char* name;
  QStringList words;
  bool has_splash;
};

std::optional<Figures> MeasureStart(const Kind& kind, const XDisplay& display) {
  const Home home;
  Child child(kind.words, home.VariablesOn(display));
  Figures figures;
  if (kind.has_splash) figures.splash = MomentPainted(child, display, kSplash);
  figures.window_mapped = MomentMapped(child, display);
  if (kind.has_splash) figures.window_painted = MomentPainted(child, display, kMain);
  Sleep(kSettled);
  if (!child.Runs()) return std::nullopt;
  figures.proportional = child.ProportionalMegabytes();
  figures.peak = child.PeakMegabytes();
  return figures;
}

bool MeasureStarts(const Kind& kind, const XDisplay& display, int starts) {
  std::vector<Figures> all;
  for (int i = 0; i < starts; ++i) {
    const auto figures = MeasureStart(kind, display);
    if (!figures) return false;
    all.push_back(*figures);
  }
  const auto median = [&](double Figures::*figure) {
    std::vector<double> values;
    for (const Figures& figures : all) values.push_back(figures.*figure);
    return Median(values);
  };
  const auto print_moment = [](double moment) {
    moment > 0 ? std::printf(" %.0f |", moment) : std::printf(" - |");
  };
  std::printf("| %s |", kind.name);
  for (auto figure : {&Figures::splash, &Figures::window_mapped, &Figures::window_painted})
    print_moment(median(figure));
  std::printf(" %.1f | %.1f |\n", median(&Figures::proportional), median(&Figures::peak));
  std::fflush(stdout);
  return true;
}

bool MeasureHidden(const QStringList& words, const XDisplay& display) {
  const Home home;
  Child child(words, home.VariablesOn(display));
  if (MomentMapped(child, display) == 0) return false;
  Sleep(kSettled);
  display.Click(display.LargestWindow().place.topLeft() + kExitButton);
  Sleep(kSettled);
  if (display.LargestWindow().place.size() == kMain) return false;
  const double before = child.CpuSeconds();
  Sleep(kHidden);
  std::printf("\nHidden: %.3f s of CPU in %d s, %.1f MB proportional.\n", child.CpuSeconds() - before,
              kHidden / 1000, child.ProportionalMegabytes());
  return child.Runs();
}

// Ten ticks of the timer are one refresh, as conditions are asked for every five minutes of a clock that goes
// with them; the planner on show is built anew each time, and every sixth hour brings a new forecast.
QByteArray RefreshScript(const QStringList& marks) {
  QByteArray script =
      "select MainForm.ProductSelection 0\n"
      "select SystemOptionsForm.CurrentConditionsIndexMax \"5\"\n"
      "select SystemOptionsForm.ForecastIndexMax \"5\"\n";
  const char* refreshes[] = {"100", "500", "500"};
  for (int i = 0; i < marks.size(); ++i) {
    script += "tick UpdateTimer " + QByteArray(refreshes[i]) + "0\nuntil idle 10000\nsnapshot " +
              marks[i].toUtf8() + "\nwait 3000\n";
  }
  return script + "quit\n";
}

bool MeasureGrowth(const QStringList& words, const XDisplay& display) {
  const Home home;
  QStringList marks;
  for (const char* mark : {"100", "600", "1100"}) marks << home.folder.filePath(mark);
  QFile script(home.folder.filePath("script"));
  if (!script.open(QIODevice::WriteOnly)) return false;
  script.write(RefreshScript(marks));
  script.close();
  Child child(words + QStringList{"--now", "2003-03-07T14:05:00", "--zone", "America/Chicago", "--script",
                                  script.fileName()},
              home.VariablesOn(display));
  std::printf("\nRefreshes and MB proportional:");
  for (const QString& mark : marks) {
    while (child.Runs() && !QFile::exists(mark + "/controls.json")) Sleep(20);
    Sleep(1000);
    if (!child.Runs()) return false;
    std::printf(" %s: %.1f;", qPrintable(mark.section('/', -1)), child.ProportionalMegabytes());
    std::fflush(stdout);
  }
  std::printf(" peak %.1f MB.\n", child.PeakMegabytes());
  return true;
}

bool MeasureAll(int starts) {
  const XDisplay display;
  if (!display.Up()) return false;
  const QTemporaryDir saved;
  const Kind demo = {"the program, five towns, first start", {SKYLOFT_PROGRAM, "--demo"}, true};
  const Kind again = {"the same, towns and data kept", demo.words + QStringList{"--root", saved.path()},
                      true};
  std::printf(
      "| %d starts each, medians | splash painted ms | window mapped ms | painted ms | MB proportional | MB "
      "peak |\n"
      "|---|---|---|---|---|---|\n",
      starts);
  return MeasureStarts({"a bare window", {SKYLOFT_BARE_WINDOW}, false}, display, starts) &&
         MeasureStarts(demo, display, starts) && MeasureStart(again, display) &&
         MeasureStarts(again, display, starts) && MeasureHidden(demo.words, display) &&
         MeasureGrowth(demo.words, display);
}

}  // namespace
}  // namespace skyloft::bench

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const int starts = argc > 1 ? std::max(1, QString(argv[1]).toInt()) : 10;
  if (skyloft::bench::MeasureAll(starts)) return 0;
  std::fputs("bench_startup: a program did not start, or ended early\n", stderr);
  return 1;
}
