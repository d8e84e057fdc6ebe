#include "browser/player.h"

#include <algorithm>

#include "base/guard.h"
#include "browser/selection.h"
#include "core/chrome.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

constexpr int kSteppingColor = 0xff0000;  // blue

// Selects the entry that `place` names for the selected one's neighbour.
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

}  // namespace

void BackNextPlayStopState() {
  const bool steps = MainForm.TimeSelection.Count() >= 2;
  for (const ImageButtonState* state : {&BackButtonState, &NextButtonState, &PlayButtonState}) {
    (*state)(steps ? "True" : "False", "True", IconPath(steps ? state->normal : state->disabled));
  }
  StopButtonState("False", "", IconPath(StopButtonState.disabled));
}

void ConnectPlayer() {
  MainForm.BackButton.Click = [] { Step([](int index, int) { return std::max(index - 1, 0); }); };
  MainForm.NextButton.Click = [] {
    Step([](int index, int count) { return index + 1 < count ? index + 1 : 0; });
  };
}

}  // namespace skyloft
