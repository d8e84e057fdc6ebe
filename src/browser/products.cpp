#include "browser/products.h"

#include "base/dates.h"
#include "base/values.h"
#include "browser/buttons.h"
#include "browser/catalogue_product.h"
#include "browser/player.h"
#include "browser/radar_frames.h"
#include "browser/selection.h"
#include "core/mainform.h"
#include "feed/forecast.h"
#include "feed/radar.h"
#include "forms/main_form.h"
#include "pages/historical.h"
#include "pages/hourly_planner.h"
#include "pages/weekly_planner.h"
#include "settings/settings.h"
#include "weather/periods.h"
#include "weather/time.h"

namespace skyloft {
namespace {

// The range of what TimeSelection holds.
void SetRangeOfTimes() {
  Browser.HourIndexMin = 0;
  Periods.HourIndexMax = MainForm.TimeSelection.Count() - 1;
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
  TurnMapButtonsOff();
}

void ShowWeeklyPlanner() {
  WeatherPlannerWeekly();
  MainForm.TimeSelection.Select(0);
  Browser.HourIndexMin = 0;
  Periods.HourIndexMax = 0;
  ShowPage();
  MainForm.ProductTitle.Caption = Browser.SelectedProduct;
  BackNextPlayStopState();
  TurnMapButtonsOff();
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
  TurnMapButtonsOff();
}

void ShowReflectivity() {
  MainForm.Display1.Zoom = 1.0;
  GetNexradData(1);
  NexradLoad("nexr", RadarSite(SelectedLocation()));
  SetRangeOfTimes();
  ShowPicture();
  ShowEntryTitle();
}

// `kind` is the part of the address that names the product.
void ShowPrecipitation(const char* kind) {
  BackNextPlayStopState();
  ShowRadarButtons();
  MainForm.Display1.Zoom = 1.0;
  GetLatestImage(RadarUrl(kind, SelectedLocation()));
  MainForm.Display1.ViewX = 0;
  MainForm.Display1.ViewY = 0;
  SetRangeOfTimes();
  ShowPicture();
  ShowEntryTitle();
  BackNextPlayStopState();
  ShowRadarButtons();
}

// The page starts with the period, but not before the coming hour.
void ShowPlannerTime() {
  SetHourIndex();
  const int start = Periods.PeriodStart[MainForm.TimeSelection.ListIndex()];
  if (start > Periods.HourIndex) Periods.HourIndex = start;
  WeatherPlanner();
  const std::string& time = ForecastHour[SelectedLocation()][Periods.HourIndex].Lt;
  MainForm.ProductTitle.Caption = Browser.SelectedProduct + " " + Format(time, "dddd");
}

void ShowFrame() {
  NexradDisplay("nexr", RadarSite(SelectedLocation()));
  ShowEntryTitle();
  ShowPosition();
}

void ShowPrecipitationTime() {
  ShowLatestImage();
  ShowEntryTitle();
  ShowPosition();
}

// The products that the program knows by name: how each is shown, and one of its times.
constexpr struct {
  const char* name;
  void (*show)();
  void (*show_time)();
} kProducts[] = {
    {"Hourly Planner", ShowHourlyPlanner, ShowPlannerTime},
    {"Weekly Planner", ShowWeeklyPlanner, [] {}},
    {"Reflectivity", ShowReflectivity, ShowFrame},
    {"1-Hour Precipitation", [] { ShowPrecipitation("DS.78ohp"); }, ShowPrecipitationTime},
    {"Total Precipitation", [] { ShowPrecipitation("DS.80stp"); }, ShowPrecipitationTime},
    {"Historical Conditions", ShowHistoricalConditions, ShowCatalogueTime},
};

}  // namespace

void ShowProduct() {
  for (const auto& product : kProducts) {
    if (Browser.SelectedProduct != product.name) continue;
    Start.LocalView = BooleanText(MainForm.NationalButton.Enabled);
    product.show();
    MainForm.Legend.Visible = false;
    EnableSelectionLabels();
    return;
  }
  ShowCatalogueProduct();
}

void ShowProductTime() {
  for (const auto& product : kProducts) {
    if (Browser.SelectedProduct == product.name) return product.show_time();
  }
  ShowCatalogueTime();
}

}  // namespace skyloft
