#include "browser/selection.h"

#include "base/guard.h"
#include "base/values.h"
#include "browser/images.h"
#include "browser/products.h"
#include "browser/route_map.h"
#include "core/chrome.h"
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/radar.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "pages/conditions.h"
#include "settings/settings.h"

namespace skyloft {

BrowserState Browser;

namespace {

void HidePoints() {
  for (int i = 0; i < MainForm.ImagePoints.Size(); ++i) {
    MainForm.ImagePoints[i].Visible = false;
    MainForm.ImagePoints[i].Color = 0xffffff;
    MainForm.ImagePoints[i].Enabled = true;
  }
  Route.RouteStopCount = 0;
}

void ShowChannel(const std::string& entry) {
  MainForm.Channel.Text = std::string(LeftText(entry, 3));
  MainForm.Channel.Visible = true;
  MainForm.Channel.Enabled = true;
  Refresh.ChannelCounter = 0;
}

}  // namespace

void SelectLocation() {
  Guarded([] {
    NationalButtonState("True", "True", IconPath("national.gif"));
    LocalButtonState("False", "False", IconPath("locald.gif"));
    Settings.Location = NumberText(MainForm.LocationSelection.ListIndex());
    CurrentConditions();
    ThumbnailDisplay("nexr", RadarSite(SelectedLocation()));
    SelectProduct();
  });
}

void SelectCategory() {
  Guarded([] {
    const int category = MainForm.CategorySelection.ListIndex();
    GetAvailableProducts(category);
    if (category != kForecastMapsCategory) {
      MainForm.WeatherConditionsBanner.Document = BuildCurrentConditionsPage();
    }
  });
}

void SelectProduct() {
  Guarded([] {
    HidePoints();
    const std::string entry = MainForm.ProductSelection.Text();
    Browser.SelectedProduct = MiddleText(entry, 5);
    ShowChannel(entry);
    MainForm.TimeLabel.Caption = "Time";
    ShowProduct();
  });
}

void SelectTime() { Guarded(ShowProductTime); }

void ShowPage() {
  MainForm.Display2.Visible = true;
  MainForm.Display1.Visible = false;
}

void ShowPicture() {
  MainForm.Display2.Visible = false;
  MainForm.Display1.Visible = true;
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
