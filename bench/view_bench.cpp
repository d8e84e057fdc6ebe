// A picture moved in the main window: from the change of the model to the pixels of the display.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <QWidget>

#include "base/dates.h"
#include "feed/radar_colors.h"
#include "feedserver/answer.h"
#include "forms/forms.h"
#include "forms/main_form.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/qt/display.h"
#include "platform/qt/drive.h"
#include "platform/qt/form_window.h"

namespace skyloft::bench {
namespace {

// How often a widget was painted.
class PaintCounter : public QObject {
 public:
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint;
    return false;
  }
};

// A radar frame at a zoom of so many percent; every frame of the display moves the view by a pixel.
void ViewMoved(benchmark::State& state) {
  const QTemporaryDir folder;
  SetUpDrive(folder.path(), folder.path() + "/share");
  const std::string temp = "C:\\program files\\skyloft\\temp\\";
  const feed::Request request{"/radar/images/DS.p19r0/SI.klot/latest.gif", "",
                              MakeDate(2003, 3, 7, 20, 5, 0)};
  WriteFile(temp + "radar.gif", feed::Answer(request, {.seed = 8}).body);
  ConvertPicture(temp + "radar.gif", temp + "radar.png", RadarColors());
  ApplySkin();
  ImageView& view = MainForm.Display1;
  MainForm.Visible = view.Visible = true;
  LoadPicture(view, temp + "radar.png");
  view.Zoom = static_cast<double>(state.range(0)) / 100;
  Display::Get().ShowDirty();
  QWidget* const shown = Display::Get().WindowOf(MainForm).findChild<QWidget*>("Display1");
  QCoreApplication::processEvents();
  PaintCounter painted;
  shown->installEventFilter(&painted);
  int frame = 0;
  for ([[maybe_unused]] auto round : state) {
    view.ViewX = 8 + frame % 50;
    view.ViewY = 100 + ++frame % 40;
    Display::Get().ShowDirty();
    shown->repaint();
  }
  state.counters["frames_a_second"] =
      benchmark::Counter(static_cast<double>(frame), benchmark::Counter::kIsRate);
  if (painted.count != frame) state.SkipWithError("not every frame was painted");
}
BENCHMARK(ViewMoved)->Arg(100)->Arg(110)->Arg(133)->Arg(400)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace skyloft::bench
