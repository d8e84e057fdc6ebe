#include "browser/selection.h"

#include "base/dates.h"
#include "base/guard.h"
#include "base/values.h"
#include "browser/images.h"
#include "browser/player.h"
#include "core/chrome.h"
#include "core/mainform.h"
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "pages/conditions.h"
#include "pages/historical.h"
#include "pages/hourly_planner.h"
#include "pages/weekly_planner.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "weather/periods.h"
#include "weather/time.h"

namespace skyloft {

BrowserState Browser;

namespace {

constexpr int kForecastMaps = 1;  // the category whose times show a forecast in the banner

void TurnOn(const ImageButtonState& state) { state("True", "True", IconPath(state.normal)); }

void TurnOff(const ImageButtonState& state) {
  const std::string disabled = state.disabled;
  state("False", "", disabled.empty() ? "" : IconPath(disabled));
}

void TurnMapButtonsOff() {
  for (const ImageButtonState* state :
       {&LocalButtonState, &NationalButtonState, &AreaZoomButtonState, &ZoomInButtonState,
        &ZoomOutButtonState, &ResetButtonState, &LegendButtonState}) {
    TurnOff(*state);
  }
}

void ShowPage() {
  MainForm.Display2.Visible = true;
  MainForm.Display1.Visible = false;
}

void ShowHourlyPlanner() {
  ListControl& times = MainForm.TimeSelection;
  SetTickerHourIndex();
  SetHourIndex();
  times.Clear();
  Date time = ReadDate(ForecastHour[SelectedLocation()][WholeNumber(Settings.StartHourIndex)].Lt);
  for (int i = 0; i < kPeriods; ++i) {
    times.AddItem(GetWeekDayNightPeriod(DateText(time)));
    time = DateAdd(DateUnit::Hours, 12, time);
  }
  times.Select(0);
  Browser.HourIndexMin = 0;
  Periods.HourIndexMax = WholeNumber(Settings.StopHourIndex);
  MainForm.ProgressBar.SetPosition(Periods.HourIndexMax, MainForm.ProgressBar.Value);
  ShowPage();
  ShowEntryTitle();
  TurnOn(BackButtonState);
  TurnOn(NextButtonState);
  TurnOff(PlayButtonState);
  TurnOff(StopButtonState);
}

void ShowWeeklyPlanner() {
  WeatherPlannerWeekly();
  MainForm.TimeSelection.Select(0);
  Browser.HourIndexMin = 0;
  Periods.HourIndexMax = 0;
  ShowPage();
  MainForm.ProductTitle.Caption = Browser.SelectedProduct;
  BackNextPlayStopState();
}

void ShowHistoricalConditions() {
  GetHistoricalData();
  MainForm.TimeSelection.Clear();
  MainForm.TimeSelection.AddItem("Last 48 Hours");
  MainForm.TimeSelection.Select(0);
  Browser.HourIndexMin = 0;
  Periods.HourIndexMax = WholeNumber(Settings.StopHourIndex);
  MainForm.Display2.Navigate(Settings.InstallPath + "\\temp\\historical.htm");
  ShowPage();
  ShowEntryTitle();
  BackNextPlayStopState();
}

// The products that are pages, and how each is shown.
constexpr struct {
  const char* name;
  void (*show)();
} kPages[] = {
    {"Hourly Planner", ShowHourlyPlanner},
    {"Weekly Planner", ShowWeeklyPlanner},
    {"Historical Conditions", ShowHistoricalConditions},
};

void HidePoints() {
  for (int i = 0; i < MainForm.ImagePoints.Size(); ++i) {
    MainForm.ImagePoints[i].Visible = false;
    MainForm.ImagePoints[i].Color = 0xffffff;
    MainForm.ImagePoints[i].Enabled = true;
  }
}

void ShowChannel(const std::string& entry) {
  MainForm.Channel.Text = std::string(LeftText(entry, 3));
  MainForm.Channel.Visible = true;
  MainForm.Channel.Enabled = true;
  Refresh.ChannelCounter = 0;
}

void EnableLists() {
  MainForm.LocationLabel.Enabled = true;
  MainForm.LocationSelection.Enabled = true;
  MainForm.ProductTitle.Enabled = true;
  MainForm.TimeSelection.Enabled = true;
  MainForm.TimeLabel.Enabled = true;
  MainForm.Display1.Zoom = 1.0;
}

// The page starts with the period, but not before the coming hour.
void SelectPlannerTime() {
  SetHourIndex();
  const int start = Periods.PeriodStart[MainForm.TimeSelection.ListIndex()];
  if (start > Periods.HourIndex) Periods.HourIndex = start;
  WeatherPlanner();
  const std::string& time = ForecastHour[SelectedLocation()][Periods.HourIndex].Lt;
  MainForm.ProductTitle.Caption = Browser.SelectedProduct + " " + Format(time, "dddd");
}

// The banner tells the conditions forecast for the hour on show.
void ShowForecastBanner() {
  const int location = SelectedLocation();
  const ForecastHourFields& hour = ForecastHour[location][Periods.HourIndex];
  const auto& profile = LocationProfile;
  MainForm.WeatherConditionsBanner.Document = BuildForecastConditionsPage(
      profile[ProfileRow::City][location] + ", " + profile[ProfileRow::State][location],
      hour.Lt + " " + LocationZone(location), hour.Ic, hour.Desc, hour.Tf, hour.Df, hour.At, hour.Rh, hour.Wd,
      hour.Ws);
}

void ShowPosition() {
  const int count = MainForm.TimeSelection.Count();
  if (count == 1) {
    MainForm.ProgressBar.SetPosition(100, 0);
  } else {
    MainForm.ProgressBar.SetPosition(count - 1, MainForm.TimeSelection.ListIndex());
  }
}

void SelectPictureTime() {
  if (!MainForm.HttpData.Idle()) return;
  Periods.HourIndex = Browser.HourIndexMin + MainForm.TimeSelection.ListIndex();
  if (Periods.HourIndex > Periods.HourIndexMax) Periods.HourIndex = Browser.HourIndexMin;
  if (MainForm.CategorySelection.ListIndex() == kForecastMaps) ShowForecastBanner();
  ImageFetch();
  ShowEntryTitle();
  ShowPosition();
}

}  // namespace

void SelectLocation() {
  Guarded([] {
    NationalButtonState("True", "True", IconPath("national.gif"));
    LocalButtonState("False", "False", IconPath("locald.gif"));
    Settings.Location = NumberText(MainForm.LocationSelection.ListIndex());
    CurrentConditions();
    ThumbnailDisplay("nexr", LowerCase(LocationProfile[ProfileRow::NEXRADLocation][SelectedLocation()]));
    SelectProduct();
  });
}

void SelectCategory() {
  Guarded([] {
    const int category = MainForm.CategorySelection.ListIndex();
    GetAvailableProducts(category);
    if (category != kForecastMaps) MainForm.WeatherConditionsBanner.Document = BuildCurrentConditionsPage();
  });
}

void SelectProduct() {
  Guarded([] {
    HidePoints();
    const std::string entry = MainForm.ProductSelection.Text();
    Browser.SelectedProduct = MiddleText(entry, 5);
    ShowChannel(entry);
    MainForm.TimeLabel.Caption = "Time";
    for (const auto& page : kPages) {
      if (Browser.SelectedProduct != page.name) continue;
      Start.LocalView = BooleanText(MainForm.NationalButton.Enabled);
      page.show();
      TurnMapButtonsOff();
      MainForm.Legend.Visible = false;
      EnableLists();
    }
  });
}

void SelectTime() {
  Guarded([] {
    if (Browser.SelectedProduct == "Hourly Planner") {
      SelectPlannerTime();
    } else if (Browser.SelectedProduct != "Weekly Planner") {
      SelectPictureTime();
    }
  });
}

void ShowEntryTitle() {
  MainForm.ProductTitle.Caption = Browser.SelectedProduct + " " + MainForm.TimeSelection.Text();
}

void ConnectSelection() {
  MainForm.LocationSelection.Click = SelectLocation;
  MainForm.CategorySelection.Click = SelectCategory;
  MainForm.ProductSelection.Click = SelectProduct;
  MainForm.TimeSelection.Click = SelectTime;
}

}  // namespace skyloft
