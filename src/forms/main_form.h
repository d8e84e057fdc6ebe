// The main window: 800 by 590 pixels, without a frame of the desktop's.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct MainFormControls : Form {
  MainFormControls() : Form("MainForm", "Skyloft", Border::None) {
    SevereWeatherLabel.Caption = "Severe Weather";
    PersonalLabel.Caption = "Personal Alerts";
    ExStyle = 0x40000;  // in the taskbar
    TimeLabel.Caption = "Time";
    Channel.Locked = true;
    for (Control* hidden : {static_cast<Control*>(&DepartureSelection), static_cast<Control*>(&Display2),
                            static_cast<Control*>(&Legend), static_cast<Control*>(&Sponsor0),
                            static_cast<Control*>(&Sponsor1), static_cast<Control*>(&Sponsor2)}) {
      hidden->Visible = false;
    }
    for (int i = 0; i < ImagePoints.Size(); ++i) ImagePoints[i].Visible = false;
    NameButtons();
  }

  // Left column.
  Label LocationLabel{this, "LocationLabel"};
  HtmlDisplay WeatherConditionsBanner{this, "WeatherConditionsBanner"};
  Picture Thumbnail{this, "Thumbnail"};
  Label SevereWeatherLabel{this, "SevereWeatherLabel"};
  ImageButton TornadoButton{this, "TornadoButton"};
  ImageButton ThunderstormButton{this, "ThunderstormButton"};
  ImageButton FloodButton{this, "FloodButton"};
  Label PersonalLabel{this, "PersonalLabel"};
  ImageButton PersonalAlertButton{this, "PersonalAlertButton"};

  // The product browser.
  ListControl LocationSelection{this, "LocationSelection"};
  ListControl CategorySelection{this, "CategorySelection"};
  ListControl ProductSelection{this, "ProductSelection"};
  Label TimeLabel{this, "TimeLabel"};
  ListControl TimeSelection{this, "TimeSelection"};
  TextBox Channel{this, "Channel"};
  Label ProductTitle{this, "ProductTitle"};
  skyloft::ProgressBar ProgressBar{this, "ProgressBar"};
  ImageView Display1{this, "Display1"};
  HtmlDisplay Display2{this, "Display2"};
  Picture Legend{this, "Legend"};
  ControlArray<Mark, 61> ImagePoints{this, "ImagePoints", &Display1};

  // Player, view and zoom.
  ImageButton BackButton{this, "BackButton"};
  ImageButton NextButton{this, "NextButton"};
  ImageButton PlayButton{this, "PlayButton"};
  ImageButton StopButton{this, "StopButton"};
  ImageButton LocalButton{this, "LocalButton"};
  ImageButton NationalButton{this, "NationalButton"};
  ImageButton AreaZoomButton{this, "AreaZoomButton"};
  ImageButton ZoomInButton{this, "ZoomInButton"};
  ImageButton ZoomOutButton{this, "ZoomOutButton"};
  ImageButton ResetButton{this, "ResetButton"};
  ImageButton LegendButton{this, "LegendButton"};

  // Top and foot.
  Label TimeValue{this, "TimeValue"};
  ImageButton HelpButton{this, "HelpButton"};
  ImageButton MenuButton{this, "MenuButton"};
  ImageButton ExitButton{this, "ExitButton"};
  HtmlDisplay Sponsor0{this, "Sponsor0"};
  HtmlDisplay Sponsor1{this, "Sponsor1"};
  HtmlDisplay Sponsor2{this, "Sponsor2"};

  // Without a place in the window.
  ListControl DepartureSelection{this, "DepartureSelection"};  // never shown, filled or asked
  ControlArray<TrayIcon, 3> SysTray{this, "SysTray"};
  Timer Clock{this, "Clock", 1000};
  Timer UpdateTimer{this, "UpdateTimer", 30000};
  Timer ImageForwardTimer{this, "ImageForwardTimer", 200};
  HttpControl Http{this, "Http", 60000};
  HttpControl HttpData{this, "HttpData", 60000};
  HttpControl HttpRadar{this, "HttpRadar", 60000};
  skyloft::FileList FileList{this, "FileList"};

 private:
  // What the buttons are for, in words, and the keys that press them.
  void NameButtons() {
    const struct {
      ImageButton& button;
      const char* purpose;
      const char* key;
    } rows[] = {
        {TornadoButton, "Tornado bulletin", ""},
        {ThunderstormButton, "Thunderstorm bulletin", ""},
        {FloodButton, "Flood bulletin", ""},
        {PersonalAlertButton, "Personal alert", ""},
        {BackButton, "Previous picture", ""},
        {NextButton, "Next picture", ""},
        {PlayButton, "Play", ""},
        {StopButton, "Stop", ""},
        {LocalButton, "Local view", ""},
        {NationalButton, "National view", ""},
        {AreaZoomButton, "Zoom into an area", ""},
        {ZoomInButton, "Zoom in", "+"},
        {ZoomOutButton, "Zoom out", "-"},
        {ResetButton, "Back to full size", "Home"},
        {LegendButton, "Show or hide the legend", ""},
        {HelpButton, "Help", "F1"},
        {MenuButton, "Menu", "Shift+F10"},
        {ExitButton, "Hide the window", "Esc"},
    };
    for (const auto& row : rows) {
      row.button.ToolTip = row.purpose;
      row.button.Key = row.key;
    }
  }
};

extern MainFormControls MainForm;

}  // namespace skyloft
