// The two timers that drive the program after its start: the clock of every second, and the refresh of every
// 30 seconds, whose counters tell what is due.
#pragma once

#include <string>

namespace skyloft {

// Counters of seconds. Each but the last is advanced by every tick of the refresh and cleared just before its
// work; the interval is read anew at each tick, so a period is the interval rounded up to a multiple of 30
// seconds. The counters of the alerts stand with the alerts.
struct RefreshState {
  double MessageTimer = 0;
  double NexradTimer = 0;
  double CurrentTimer = 0;
  // Also the hour text of the last model picture named, such as "066.", from which the counting then goes on.
  // This is meant.
  std::string ForecastTimer = "0";
  double ChannelCounter = 0;  // ticks of the clock since Channel was shown, 3 at most
};
extern RefreshState Refresh;

// Seconds from one tick of the refresh to the next.
double TickSeconds();

// One second: the channel's number goes after three, the ticker takes a step unless an alert is on display,
// the selected location's time is told, and the ticker follows its edge of the work area.
void TickClock();

// 30 seconds: each step in its order, those that are due. An error that no step guards ends the tick; its
// counters stand as they are.
void TickRefresh();

// Deletes what is older than 720 minutes in the temp folder.
void CleanTempFolder();

// Attaches the timers' ticks.
void ConnectRefresh();

}  // namespace skyloft
