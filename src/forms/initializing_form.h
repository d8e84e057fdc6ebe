// The splash: shown while the program starts and while it downloads an update.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct InitializingFormControls : Form {
  InitializingFormControls() : Form("InitializingForm", "Skyloft", Border::None) {
    ExStyle = 0x80;  // a tool window
    EmailLink.Caption = "Skyloft Support";
  }

  Label SoftwareVersion{this, "SoftwareVersion"};
  Label SoftwareStatus{this, "SoftwareStatus"};
  skyloft::ProgressBar ProgressBar{this, "ProgressBar"};
  Label EmailLink{this, "EmailLink"};
  HttpControl UpdateHttp{this, "UpdateHttp", 30000};
};

extern InitializingFormControls InitializingForm;

}  // namespace skyloft
