// The report of a road trip.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct RouteScopeFormControls : Form {
  RouteScopeFormControls() : Form("RouteScopeForm", "Skyloft RouteScope", Border::Dialog) {
    Label1.Caption = "Total Distance:";
    Label2.Caption = "Total Time:";
    Print.Caption = "Print";
    Done.Caption = "Done";
    Done.Default = true;
    Done.Cancels = true;
  }

  HtmlDisplay RouteScopeBrowser{this, "RouteScopeBrowser"};
  Label Label1{this, "Label1"};
  Label Label3{this, "Label3"};  // the total distance
  Label Label2{this, "Label2"};
  Label Label4{this, "Label4"};  // the total hours on the road
  Button Print{this, "Print"};
  Button Done{this, "Done"};
};

extern RouteScopeFormControls RouteScopeForm;

}  // namespace skyloft
