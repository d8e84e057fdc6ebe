#include "core/mainform.h"

#include <initializer_list>
#include <vector>

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "base/guard.h"
#include "base/values.h"
#include "browser/images.h"
#include "browser/player.h"
#include "browser/point_click.h"
#include "browser/route_map.h"
#include "browser/selection.h"
#include "browser/zoom.h"
#include "core/chrome.h"
#include "core/refresh.h"
#include "core/tray.h"
#include "feed/addresses.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/hosts.h"
#include "feed/observations.h"
#include "feed/radar.h"
#include "feed/transport.h"
#include "forms/forms.h"
#include "forms/initializing_form.h"
#include "forms/main_form.h"
#include "forms/system_font_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "platform/files.h"
#include "platform/process.h"
#include "platform/screen.h"
#include "platform/shell.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "setup/menu.h"
#include "setup/options.h"
#include "setup/wizard.h"
#include "ticker/messages.h"
#include "ticker/ticker.h"
#include "ticker/ticker_pages.h"
#include "weather/almanac.h"
#include "weather/periods.h"

namespace skyloft {

StartState Start;

namespace {

constexpr int kTickerHeight = 525;

void ShapeWindow() {
  const RoundRegion region = CreateWindowRegion(800, 590, 1.0, 1.0, 0, 0);
  SetWindowRegion(MainForm, region);
}

// The selection's event shows the location.
void SelectStoredLocation() {
  const int location = SelectedLocation();
  if (location < 0) throw RuntimeError("no location is selected");
  MainForm.LocationSelection.Select(location);
}

// With locations: the steps under the splash, then the ticker and the timers.
void StartWithLocations() {
  InitializingForm.ProgressBar.Max = 13;
  InitializingForm.ProgressBar.Value = 0;
  InitializingForm.Visible = true;
  for (const StartStep& step : StartSteps()) RunStartStep(step);
  ShowWantedTicker();
  MainForm.Clock.Enabled = true;
  MainForm.UpdateTimer.Enabled = true;
}

void EndStart() {
  InitializingForm.Visible = false;
  InitializingForm.ProgressBar.Value = 0;
  Start.LocalView = "True";
}

}  // namespace

const std::vector<StartStep>& StartSteps() {
  static const std::vector<StartStep> steps = {
      {"connecting to Skyloft Server", {GetMetaData, GetProductData}, 1},
      {"receiving sector data", {GetSectorData}, 2},
      {"receiving current conditions", {GetCurrentData}, 3},
      {"receiving forecasts", {[] { GetForecastData(0); }}, 4},
      {"processing forecasts", {[] { GetPeriod(0); }}, 5},
      {"processing almanac", {GetAlmanac}, 6},
      {"receiving NEXRAD radar", {[] { GetNexradData(0); }}, 7},
      {"updating products", {GetAvailableCategories}, 8},
      {nullptr, {LoadMessages, RotateSponsors}, 0},
      {"saving", {SaveSystem}, 9},
      {"updating display", {}, 10, SelectStoredLocation},
      {"receiving sponsor", {[] { MainForm.Visible = true; }}, 11},
      {nullptr, {ShowSevereButtons}, 0},
      {"checking warnings", {NWSAlerts}, 12},
      {"checking personal forecast alerts", {PersonalAlerts}, 13},
  };
  return steps;
}

void RunStartStep(const StartStep& step) {
  if (step.status) InitializingForm.SoftwareStatus.Caption = step.status;
  for (const auto& call : step.work) Guarded(call);
  if (step.own_statement) step.own_statement();
  if (step.value_after > 0) InitializingForm.ProgressBar.Value = step.value_after;
}

void LeaveProgram() {
  if (!Start.Loaded) EndProcess();
  ExitSkyloft();
}

void SetInstallPath() {
  Settings.InstallPath = std::string(LeftText(ApplicationPath(), 2)) + "\\program files\\skyloft";
}

void ShowWantedTicker() {
  if (!IsAlertShowing()) TickerDisplay();
  if (!SystemOptionsForm.ShowTicker.Checked) return;
  TickerForm.Visible = true;
  if (SystemOptionsForm.AlwaysOnTop.Checked) Chrome.TickerWindow.SetTopMost(true);
}

void PlaceTicker() {
  const WorkArea area = GetWorkArea();
  const bool top = SystemOptionsForm.TopScreenPosition.Checked;
  TickerForm.Top = top ? area.top : area.top + area.height - TickerForm.Height;
  TickerForm.Left = 0;
  Start.WorkAreaTopSaved = area.top;
  Start.WorkAreaHeightSaved = area.height;
}

void ConnectForms() {
  for (Form* form : AllForms()) CentreForm(*form);
  SetInstallPath();
  ConnectChrome();
  ConnectTransport();
  ConnectHosts();
  ConnectSelection();
  ConnectPlayer();
  ConnectImages();
  ConnectZoom();
  ConnectPointClick();
  ConnectRouteMap();
  ConnectRefresh();
  ConnectTicker();
  ConnectMessages();
  ConnectBulletins();
  ConnectPersonalAlerts();
  ConnectTray();
  ConnectWizard();
  ConnectOptions();
  ConnectMenu();
  SystemFontForm.OKButton.Click = EndProcess;
  SystemFontForm.Unload = EndProcess;
  InitializingForm.EmailLink.Click = [] { OpenLink(kSupportMail); };
}

void LoadMainForm() {
  const bool whole = Guarded([] {
    SetInstallPath();
    if (DotsPerInch() != 96) {
      SystemFontForm.Visible = true;
      EndStart();
      return;
    }
    CheckHosts(0);
    ShapeWindow();
    Chrome.MainWindow.SetClient(&MainForm);
    Chrome.TickerWindow.SetClient(&TickerForm);
    LoadSystem();
    Start.Loaded = true;
    TickerForm.Ticker.Document = TickerBlankPage();
    TickerForm.Height = kTickerHeight;
    TickerForm.Width = GetWorkArea().width;
    TickerForm.Ticker.Height = kTickerHeight / kTwipsPerPixel;
    TickerForm.Ticker.Width = TickerForm.Width / kTwipsPerPixel;
    PlaceTicker();
    TickerRotation.TickerPage = 0;
    if (Settings.LocationIndexMax.empty()) {
      AddLocation(0);
    } else {
      StartWithLocations();
    }
    EndStart();
  });
  if (whole) return;
  Guarded([] { DeleteFile(Settings.InstallPath + "\\sklt.dat"); });
  EndProcess();
}

}  // namespace skyloft
