// How long the traveller waits at the stop that was placed last.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct RouteScopeOptionsFormControls : Form {
  RouteScopeOptionsFormControls() : Form("RouteScopeOptionsForm", "Skyloft RouteScope", Border::Dialog) {
    Heading.Caption = "Time at this Stop";
    HoursLabel.Caption = "Hours:";
    MinutesLabel.Caption = "Minutes:";
    OK.Caption = "OK";
    OK.Default = true;
    for (int hours = 0; hours < 24; ++hours) StopHours.AddItem(std::to_string(hours));
    for (int minutes = 0; minutes < 60; ++minutes) StopMinutes.AddItem(std::to_string(minutes));
  }

  Label Heading{this, "Heading"};
  Label HoursLabel{this, "HoursLabel"};
  ListControl StopHours{this, "StopHours"};
  Label MinutesLabel{this, "MinutesLabel"};
  ListControl StopMinutes{this, "StopMinutes"};
  Button OK{this, "OK"};
};

extern RouteScopeOptionsFormControls RouteScopeOptionsForm;

}  // namespace skyloft
