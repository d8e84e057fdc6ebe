// The warning about a display that does not have 96 dots per inch.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct SystemFontFormControls : Form {
  SystemFontFormControls() : Form("SystemFontForm", "Skyloft System Check", Border::Dialog) {
    Heading.Caption = "Incompatible Windows Display DPI (dots per inch)";
    Message.Caption =
        "Skyloft has detected that your Windows Display is NOT set to 96 DPI. The Skyloft software will NOT "
        "run "
        "properly with your current display configuration. Follow the instructions below to adapt your "
        "display to "
        "the Skyloft requirements. Support for other DPI configurations is coming soon!";
    Step1.Caption = "Step1: Click on the DISPLAY icon located in the Windows Control Panel";
    Step2.Caption = "Step2: Click on the SETTINGS tab";
    Step3.Caption = "Step3: Click on the ADVANCED button";
    Step4.Caption = "Step4: Click on the GENERAL tab";
    Step5.Caption = "Step5: Change FONT SIZE to SMALL or DPI SETTING to 96 DPI";
    Step6.Caption = "Step6: Click on OK and folllow the Windows instructions";  // this spelling is the text
    OKButton.Caption = "OK";
    OKButton.Default = true;
  }

  Label Heading{this, "Heading"};
  Label Message{this, "Message"};
  Label Step1{this, "Step1"};
  Label Step2{this, "Step2"};
  Label Step3{this, "Step3"};
  Label Step4{this, "Step4"};
  Label Step5{this, "Step5"};
  Label Step6{this, "Step6"};
  Button OKButton{this, "OKButton"};
};

extern SystemFontFormControls SystemFontForm;

}  // namespace skyloft
