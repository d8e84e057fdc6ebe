#include "browser/catalogue_product.h"

#include "base/values.h"
#include "browser/buttons.h"
#include "browser/images.h"
#include "browser/player.h"
#include "browser/selection.h"
#include "browser/time_lists.h"
#include "core/mainform.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/hosts.h"
#include "feed/projection.h"
#include "feed/transport.h"
#include "forms/main_form.h"
#include "pages/conditions.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "weather/periods.h"
#include "weather/time.h"

namespace skyloft {
namespace {

bool IsLocalView() { return Start.LocalView.empty() || Start.LocalView == "True"; }

void EnableLabels(bool on) {
  MainForm.LocationLabel.Enabled = on;
  MainForm.LocationSelection.Enabled = on;
  MainForm.ProductTitle.Enabled = on;
  MainForm.TimeSelection.Enabled = on;
  MainForm.TimeLabel.Enabled = on;
}

void ShowWebPage(const std::string& address) {
  EnableLabels(false);
  MainForm.TimeSelection.AddItem("");
  MainForm.TimeSelection.Select(0);
  MainForm.Display2.Navigate(address);
  ShowPage();
  BackNextPlayStopState();
  TurnMapButtonsOff();
  MainForm.Legend.Visible = false;
}

void ShowMapButtons() {
  BackNextPlayStopState();
  const bool local = IsLocalView();
  if (local) {
    ShowLocalViewButtons();
    TurnOff(ResetButtonState);
  } else {
    ShowNationalViewButtons();
  }
  TurnOn(LegendButtonState);
  Start.LocalView = BooleanText(local);
}

// The legend is fetched once.
void ShowLegend(const std::string& file) {
  const std::string name = file + "_legend.gif";
  const std::string path = Settings.InstallPath + "\\legends\\" + name;
  if (!FileExists(path)) GetImage(HostTable.fileserver + "legends\\" + name, path);
  ShowEntryTitle();  // again, as the download told its progress there
  if (!FileExists(path)) {
    MainForm.Legend.Visible = false;
    return;
  }
  LoadPicture(MainForm.Legend, path);
  MainForm.Legend.Visible = Settings.LegendFlag == 0;
}

// The pages and the radar switched off the button by which the sector is chosen.
void RestoreView() {
  MainForm.NationalButton.Enabled = IsLocalView();
  MainForm.LocalButton.Enabled = !IsLocalView();
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

}  // namespace

void ShowCatalogueProduct() {
  if (Browser.SelectedProduct == "RouteScope by Road") MainForm.TimeLabel.Caption = "Departure Time";
  MainForm.TimeSelection.Clear();
  const ProductRecords& products = Catalogues.ProductRecord;
  const int product = Catalogues.ProductMap[MainForm.ProductSelection.ListIndex()];
  const std::string& code = products.code[product];
  RestoreView();
  const MapPoint point = LocationOnMap(SelectedLocation());
  GetSectorID(product, point.x, point.y);
  if (code == "url") {
    ShowWebPage(products.file[product]);
    return;
  }
  const bool may_be_empty = FillTimes(WholeNumber(code), WholeNumber(products.period[product]));
  if (!may_be_empty || MainForm.TimeSelection.Count() > 0) MainForm.TimeSelection.Select(0);
  MainForm.Display1.ViewX = 0;
  MainForm.Display1.ViewY = 0;
  ShowPicture();
  ShowEntryTitle();
  ShowMapButtons();
  ShowLegend(products.file[product]);
  EnableSelectionLabels();
}

void ShowCatalogueTime() {
  if (!MainForm.HttpData.Idle()) return;
  Periods.HourIndex = Browser.HourIndexMin + MainForm.TimeSelection.ListIndex();
  if (Periods.HourIndex > Periods.HourIndexMax) Periods.HourIndex = Browser.HourIndexMin;
  if (MainForm.CategorySelection.ListIndex() == kForecastMapsCategory) ShowForecastBanner();
  ImageFetch();
  ShowEntryTitle();
  ShowPosition();
}

void EnableSelectionLabels() {
  EnableLabels(true);
  MainForm.Display1.Zoom = 1.0;
}

void ShowPosition() {
  const int count = MainForm.TimeSelection.Count();
  if (count == 1) {
    MainForm.ProgressBar.SetPosition(100, 0);
  } else {
    MainForm.ProgressBar.SetPosition(count - 1, MainForm.TimeSelection.ListIndex());
  }
}

}  // namespace skyloft
