// The options dialog. Its controls hold the options while the program runs, on show or not.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct SystemOptionsFormControls : Form {
  SystemOptionsFormControls() : Form("SystemOptionsForm", "Skyloft System Options", Border::Dialog) {
    TabStripOptions.Tabs = {"Email", "Ticker", "Update", "Connection"};
    OptionsFrame[1].Caption = "Email Options";
    OptionsFrame[2].Caption = "Ticker Options";
    OptionsFrame[3].Caption = "Update Frequency";
    OptionsFrame[4].Caption = "Connection Options";
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
    OKButton.Default = true;
    SponsorBanner.Visible = false;
    FillMinutes(NWSIndexMax, 2, 10, 1);
    FillMinutes(CurrentConditionsIndexMax, 5, 60, 5);
    FillMinutes(ForecastIndexMax, 5, 60, 5);
    FillMinutes(NexradIndexMax, 10, 60, 5);
  }

  TabStrip TabStripOptions{this, "TabStripOptions"};
  // One frame a tab, by the tab's number; they lie on one another.
  ControlArray<Frame, 4, 1> OptionsFrame{this, "OptionsFrame"};

  Label Email1Label{this, "Email1Label", &OptionsFrame[1]};
  TextBox Email1Value{this, "Email1Value", &OptionsFrame[1]};
  Label Email2Label{this, "Email2Label", &OptionsFrame[1]};
  TextBox Email2Value{this, "Email2Value", &OptionsFrame[1]};
  CheckBox EmailOptionValue{this, "EmailOptionValue", &OptionsFrame[1]};

  CheckBox ShowTicker{this, "ShowTicker", &OptionsFrame[2]};
  CheckBox AlwaysOnTop{this, "AlwaysOnTop", &OptionsFrame[2]};
  CheckBox TopScreenPosition{this, "TopScreenPosition", &OptionsFrame[2]};
  CheckBox BottomScreenPosition{this, "BottomScreenPosition", &OptionsFrame[2]};
  CheckBox ShowCurrentConditions{this, "ShowCurrentConditions", &OptionsFrame[2]};
  CheckBox ShowHourlyForecast{this, "ShowHourlyForecast", &OptionsFrame[2]};
  CheckBox Show3DayForecast{this, "Show3DayForecast", &OptionsFrame[2]};
  CheckBox ShowAlmanac{this, "ShowAlmanac", &OptionsFrame[2]};

  // Minutes between two refreshes; what counts is the selected entry's text.
  Label CurrentConditionsLabel{this, "CurrentConditionsLabel", &OptionsFrame[3]};
  ListControl CurrentConditionsIndexMax{this, "CurrentConditionsIndexMax", &OptionsFrame[3]};
  Label ForecastLabel{this, "ForecastLabel", &OptionsFrame[3]};
  ListControl ForecastIndexMax{this, "ForecastIndexMax", &OptionsFrame[3]};
  Label NexradLabel{this, "NexradLabel", &OptionsFrame[3]};
  ListControl NexradIndexMax{this, "NexradIndexMax", &OptionsFrame[3]};
  Label NWSLabel{this, "NWSLabel", &OptionsFrame[3]};
  ListControl NWSIndexMax{this, "NWSIndexMax", &OptionsFrame[3]};

  CheckBox AutoConnect{this, "AutoConnect", &OptionsFrame[4]};

  HtmlDisplay SponsorBanner{this, "SponsorBanner"};
  Button OKButton{this, "OKButton"};

 private:
  static void FillMinutes(ListControl& list, int first, int last, int step) {
    for (int minutes = first; minutes <= last; minutes += step) list.AddItem(std::to_string(minutes));
  }
};

extern SystemOptionsFormControls SystemOptionsForm;

}  // namespace skyloft
