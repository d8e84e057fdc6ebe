// The setup wizard. Its pages so far: the welcome, the search for a place and what was found.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct SetupWizardFormControls : Form {
  SetupWizardFormControls() : Form("SetupWizardForm", "Skyloft Setup Wizard", Border::Dialog) {
    Heading.Caption = "Welcome to the Skyloft Setup Wizard!";
    Introduction.Caption =
        "Before you can experience the ultimate personal weather software, you must answer a few basic "
        "questions. This wizard will guide you through the setup procedure and help you customize Skyloft to "
        "fit "
        "your weather needs!";
    CancelButton.Caption = "Cancel";
    NextButton.Caption = "Next";
    ZipCodeOption.Caption = "5-digit Zip Code";
    CityStateOption.Caption = "City";
  }

  ControlArray<Frame, 9> SetupFrame{this, "SetupFrame"};
  Label Heading{this, "Heading", &SetupFrame[0]};
  Label Introduction{this, "Introduction", &SetupFrame[0]};

  OptionButton ZipCodeOption{this, "ZipCodeOption", &SetupFrame[2]};
  TextBox ZipCodeInput{this, "ZipCodeInput", &SetupFrame[2]};
  OptionButton CityStateOption{this, "CityStateOption", &SetupFrame[2]};
  TextBox CityInput{this, "CityInput", &SetupFrame[2]};
  ListControl StateInput{this, "StateInput", &SetupFrame[2]};

  Label ZipCodeResult{this, "ZipCodeResult", &SetupFrame[3]};
  Label CityStateResult{this, "CityStateResult", &SetupFrame[3]};
  Label CountyResult{this, "CountyResult", &SetupFrame[3]};
  Label AreaCodeResult{this, "AreaCodeResult", &SetupFrame[3]};
  Label TimeZoneResult{this, "TimeZoneResult", &SetupFrame[3]};
  Label LatitudeResult{this, "LatitudeResult", &SetupFrame[3]};
  Label LongitudeResult{this, "LongitudeResult", &SetupFrame[3]};

  TextBox TitleResult{this, "TitleResult", &SetupFrame[8]};

  Label Status{this, "Status"};
  Button CancelButton{this, "CancelButton"};
  Button NextButton{this, "NextButton"};
};

extern SetupWizardFormControls SetupWizardForm;

}  // namespace skyloft
