#include "ticker/ticker.h"

#include <string>

#include "base/guard.h"
#include "base/values.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/settings.h"
#include "setup/ticker_menu.h"
#include "ticker/messages.h"
#include "ticker/ticker_pages.h"

namespace skyloft {

TickerState TickerRotation;

namespace {

constexpr int kLocationEnd = 4;
constexpr int kLastCall = 5;

// The pages of a location by their step, each with the option that switches it on.
struct TickerStep {
  CheckBox SystemOptionsFormControls::*option;
  std::string (*page)();
};
constexpr TickerStep kSteps[kLocationEnd] = {
    {&SystemOptionsFormControls::ShowCurrentConditions, TickerCurrentPage},
    {&SystemOptionsFormControls::ShowHourlyForecast, TickerHourlyPage},
    {&SystemOptionsFormControls::Show3DayForecast, Ticker3DayPage},
    {&SystemOptionsFormControls::ShowAlmanac, TickerAlmanacPage},
};

// A message is a whole document of the server's, and its links can be clicked.
void ShowMessage(const MessageSet& set) {
  const int count = set.MessageIndexMax + 1;
  for (int step = 0; step < count; ++step) {
    const MessageEntry& entry = set.Entries[(set.MessageIndex + step) % count];
    if (!IsDue(entry)) continue;
    TickerForm.Ticker.Document = entry.messagetext;
    TickerForm.Ticker.Enabled = true;
    return;
  }
}

// The set moves on from its own place, whichever entry was shown, and takes the interval of the new one.
void MoveOn(MessageSet& set) {
  if (set.MessageCounter < set.MessageInterval) return;
  set.MessageIndex += 1;
  if (set.MessageIndex > set.MessageIndexMax) set.MessageIndex = 0;
  set.MessageCounter = 0;
  set.MessageInterval = LenientNumber(set.Entries[set.MessageIndex].interval);
}

void EndLocation() {
  TickerState& ticker = TickerRotation;
  const int last = LastLocation();
  if (ticker.TickerLocationIndex >= last) {
    MessageSet& messages = Messages.Sets[MessagePlace::Ticker];
    ShowMessage(messages);
    MoveOn(messages);
  }
  ticker.TickerPage = 0;
  ticker.TickerLocationIndex += 1;
  if (ticker.TickerLocationIndex > last) ticker.TickerLocationIndex = 0;
}

}  // namespace

void TickerDisplay() {
  Guarded([] {
    TickerState& ticker = TickerRotation;
    if (ticker.TickerCounter && *ticker.TickerCounter < kLastCall) {
      *ticker.TickerCounter += 1;
      return;
    }
    TickerForm.Ticker.Enabled = false;  // so that presses reach the form
    ticker.TickerCounter = 0;
    while (ticker.TickerPage < kLocationEnd) {
      const TickerStep& step = kSteps[ticker.TickerPage];
      ticker.TickerPage += 1;
      if (!(SystemOptionsForm.*step.option).Checked) continue;
      TickerForm.Ticker.Document = step.page();
      return;
    }
    EndLocation();
  });
}

void ConnectTicker() {
  TickerForm.MouseDown = [](const MousePress& press) {
    if (press.button == MouseButton::Right) {
      OpenTickerMenu();
    } else {
      MainForm.Visible = true;
    }
  };
}

}  // namespace skyloft
