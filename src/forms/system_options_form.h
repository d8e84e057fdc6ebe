// The options dialog. Its controls hold the options while the program runs, on show or not.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct SystemOptionsFormControls : Form {
  SystemOptionsFormControls() : Form("SystemOptionsForm", "Skyloft System Options", Border::Dialog) {
    TabStripOptions.Tabs = {"Email", "Ticker", "Update", "Connection"};
    const char* frames[] = {"Email Options", "Ticker Options", "Update Frequency", "Connection Options"};
    for (int i = 0; i < OptionsFrame.Size(); ++i) {
      OptionsFrame[i].Caption = frames[i];
      OptionsFrame[i].Visible = i == 0;  // they lie on one another
    }
    Email1Label.Caption = "Email Address";
    Email2Label.Caption = "Re-Type Email Address";
    EmailOptionValue.Caption = "Inform me of Skyloft News and Updates";
    ShowTicker.Caption = "Show Ticker";
    AlwaysOnTop.Caption = "Always Foreground";
    TopScreenPosition.Caption = "Top Screen Position";
    BottomScreenPosition.Caption = "Bottom Screen Position";
    ShowCurrentConditions.Caption = "Show Current Conditions";
    ShowHourlyForecast.Caption = "Show Hourly Forecast";
    Show3DayForecast.Caption = "Show 3-Day Forecast";
    ShowAlmanac.Caption = "Show Almanac";
    CurrentConditionsLabel.Caption = "Current Conditions:";
    ForecastLabel.Caption = "Forecast:";
    NexradLabel.Caption = "NEXRAD Radar:";
    NWSLabel.Caption = "Severe Weather Warnings:";
    AutoConnect.Caption = "Automatically connect to the internet";
    OKButton.Caption = "OK";
    SponsorBanner.Visible = false;
    FillMinutes(NWSIndexMax, 2, 10, 1);
    FillMinutes(CurrentConditionsIndexMax, 5, 60, 5);
    FillMinutes(ForecastIndexMax, 5, 60, 5);
    FillMinutes(NexradIndexMax, 10, 60, 5);
  }

  TabStrip TabStripOptions{this, "TabStripOptions"};
  // One frame a tab; member 0 belongs to tab 1.
  ControlArray<Frame, 4> OptionsFrame{this, "OptionsFrame"};

  Label Email1Label{this, "Email1Label", &OptionsFrame[0]};
  TextBox Email1Value{this, "Email1Value", &OptionsFrame[0]};
  Label Email2Label{this, "Email2Label", &OptionsFrame[0]};
  TextBox Email2Value{this, "Email2Value", &OptionsFrame[0]};
  CheckBox EmailOptionValue{this, "EmailOptionValue", &OptionsFrame[0]};

  CheckBox ShowTicker{this, "ShowTicker", &OptionsFrame[1]};
  CheckBox AlwaysOnTop{this, "AlwaysOnTop", &OptionsFrame[1]};
  CheckBox TopScreenPosition{this, "TopScreenPosition", &OptionsFrame[1]};
  CheckBox BottomScreenPosition{this, "BottomScreenPosition", &OptionsFrame[1]};
  CheckBox ShowCurrentConditions{this, "ShowCurrentConditions", &OptionsFrame[1]};
  CheckBox ShowHourlyForecast{this, "ShowHourlyForecast", &OptionsFrame[1]};
  CheckBox Show3DayForecast{this, "Show3DayForecast", &OptionsFrame[1]};
  CheckBox ShowAlmanac{this, "ShowAlmanac", &OptionsFrame[1]};

  // Minutes between two refreshes; what counts is the selected entry's text.
  Label CurrentConditionsLabel{this, "CurrentConditionsLabel", &OptionsFrame[2]};
  ListControl CurrentConditionsIndexMax{this, "CurrentConditionsIndexMax", &OptionsFrame[2]};
  Label ForecastLabel{this, "ForecastLabel", &OptionsFrame[2]};
  ListControl ForecastIndexMax{this, "ForecastIndexMax", &OptionsFrame[2]};
  Label NexradLabel{this, "NexradLabel", &OptionsFrame[2]};
  ListControl NexradIndexMax{this, "NexradIndexMax", &OptionsFrame[2]};
  Label NWSLabel{this, "NWSLabel", &OptionsFrame[2]};
  ListControl NWSIndexMax{this, "NWSIndexMax", &OptionsFrame[2]};

  CheckBox AutoConnect{this, "AutoConnect", &OptionsFrame[3]};

  HtmlDisplay SponsorBanner{this, "SponsorBanner"};
  Button OKButton{this, "OKButton"};

 private:
  static void FillMinutes(ListControl& list, int first, int last, int step) {
    for (int minutes = first; minutes <= last; minutes += step) list.AddItem(std::to_string(minutes));
  }
};

extern SystemOptionsFormControls SystemOptionsForm;

}  // namespace skyloft
