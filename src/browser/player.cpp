#include "browser/player.h"

#include <algorithm>

#include "base/guard.h"
#include "base/values.h"
#include "browser/buttons.h"
#include "browser/selection.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

constexpr int kSteppingColor = 0xff0000;  // blue
constexpr int kPlayingColor = 65280;      // green
constexpr int kRadarInterval = 200;       // milliseconds a frame
constexpr double kLoopTime = 10000;       // milliseconds for all frames

int Before(int index, int) { return std::max(index - 1, 0); }
int Behind(int index, int count) { return index + 1 < count ? index + 1 : 0; }

// Selects the entry that stands at `place` of the selected one.
void Step(int (*place)(int index, int count)) {
  Guarded([&] {
    ListControl& times = MainForm.TimeSelection;
    MainForm.ProgressBar.Color = kSteppingColor;
    if (Periods.HourIndexMax > 0) {
      MainForm.ImageForwardTimer.Enabled = false;
      times.Select(place(times.ListIndex(), times.Count()));
    }
    ShowEntryTitle();
  });
}

void Play() {
  if (Periods.HourIndexMax <= 0) return;
  MainForm.ProgressBar.Color = kPlayingColor;
  TurnOff(PlayButtonState);
  TurnOn(StopButtonState);
  TurnOff(BackButtonState);
  TurnOff(NextButtonState);
  SelectionDisable();
  const double interval = Browser.SelectedProduct == "Reflectivity"
                              ? kRadarInterval
                              : Divide(kLoopTime, MainForm.TimeSelection.Count());
  MainForm.ImageForwardTimer.Interval = static_cast<int>(RoundHalfEven(interval));
  MainForm.ImageForwardTimer.Enabled = true;
}

void Stop() {
  MainForm.ProgressBar.Color = kSteppingColor;
  TurnOn(PlayButtonState);
  TurnOff(StopButtonState);
  TurnOn(BackButtonState);
  TurnOn(NextButtonState);
  SelectionEnable();
  MainForm.ImageForwardTimer.Enabled = false;
}

void Forward() {
  ListControl& times = MainForm.TimeSelection;
  times.Select(Behind(times.ListIndex(), times.Count()));
  ShowEntryTitle();
}

void EnableSelection(bool on) {
  MainForm.LocationSelection.Enabled = on;
  MainForm.ProductSelection.Enabled = on;
  MainForm.TimeSelection.Enabled = on;
}

}  // namespace

void BackNextPlayStopState() {
  const bool steps = MainForm.TimeSelection.Count() >= 2;
  for (const ImageButtonState* state : {&BackButtonState, &NextButtonState, &PlayButtonState}) {
    (*state)(BooleanText(steps), "True", IconPath(steps ? state->normal : state->disabled));
  }
  TurnOff(StopButtonState);
}

void SelectionEnable() { EnableSelection(true); }

void SelectionDisable() { EnableSelection(false); }

void ConnectPlayer() {
  MainForm.BackButton.Click = [] { Step(Before); };
  MainForm.NextButton.Click = [] { Step(Behind); };
  MainForm.PlayButton.Click = [] { Guarded(Play); };
  MainForm.StopButton.Click = [] { Guarded(Stop); };
  MainForm.ImageForwardTimer.Tick = [] { Guarded(Forward); };
}

}  // namespace skyloft
