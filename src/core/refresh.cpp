#include "core/refresh.h"

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "base/guard.h"
#include "base/tables.h"
#include "base/values.h"
#include "browser/images.h"
#include "browser/radar_frames.h"
#include "browser/selection.h"
#include "core/mainform.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/hosts.h"
#include "feed/observations.h"
#include "feed/radar.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "pages/conditions.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/screen.h"
#include "settings/settings.h"
#include "ticker/messages.h"
#include "ticker/ticker.h"
#include "weather/almanac.h"
#include "weather/periods.h"
#include "weather/time.h"

namespace skyloft {

RefreshState Refresh;

namespace {

constexpr std::int64_t kOldestMinutes = 720;

double SecondsOf(const ListControl& minutes) { return LenientNumber(minutes.Text()) * 60; }

// Advances a counter by a tick; when it has reached its interval, clears it and tells so.
bool Due(double& counter, double interval) {
  counter += TickSeconds();
  if (counter < interval) return false;
  counter = 0;
  return true;
}

// No check takes place while a bulletin is on display.
void RefreshBulletins() {
  Bulletins.NWSCheckElapsed += TickSeconds();
  if (Bulletins.NWSAlertActive == 0) {
    if (Bulletins.NWSCheckElapsed < SecondsOf(SystemOptionsForm.NWSIndexMax)) return;
    Bulletins.NWSCheckElapsed = 0;
    NWSAlerts();
  } else if (Bulletins.NWSAlertActive == 1) {
    Bulletins.NWSAlertElapsed += TickSeconds();
    if (Bulletins.NWSAlertElapsed >= Bulletins.NWSAlertDuration) EndBulletin();
  }
}

void RefreshPersonalAlert() {
  PersonalAlertState& alert = PersonalAlertsState;
  if (alert.PersonalAlertActive != 1) return;
  alert.PersonalAlertElapsed += TickSeconds();
  if (alert.PersonalAlertElapsed >= alert.PersonalAlertDuration) EndPersonalAlert();
}

void RefreshMessages() {
  if (Due(Refresh.MessageTimer, LenientNumber(HostTable.messageinterval))) LoadMessages();
  RotateSponsors();
}

void RefreshRadar() {
  if (!Due(Refresh.NexradTimer, SecondsOf(SystemOptionsForm.NexradIndexMax))) return;
  GetNexradData(0);
  const std::string site = RadarSite(SelectedLocation());
  ThumbnailDisplay("nexr", site);
  if (MainForm.CategorySelection.Text() != "NEXRAD Radar") return;
  NexradLoad("nexr", site);
  Browser.HourIndexMin = 0;
  Periods.HourIndexMax = MainForm.TimeSelection.Count() - 1;
  ShowEntryTitle();
}

void RefreshConditions() {
  if (!Due(Refresh.CurrentTimer, SecondsOf(SystemOptionsForm.CurrentConditionsIndexMax))) return;
  GetMetaData();
  GetCurrentData();
  CurrentConditions();
  SetTickerHourIndex();
  Browser.SelectedProduct = MiddleText(MainForm.ProductSelection.Text(), 5);
  if (Browser.SelectedProduct == "Hourly Planner") SelectProduct();
}

void RefreshForecast() {
  double counter = LenientNumber(Refresh.ForecastTimer);
  const bool due = Due(counter, SecondsOf(SystemOptionsForm.ForecastIndexMax));
  Refresh.ForecastTimer = NumberText(counter);
  if (!due) return;
  GetMetaData();
  if (Settings.ModelLocal == Settings.ModelServer) return;
  CheckHosts(1);
  GetSectorData();
  GetProductData();
  GetForecastData(0);
  GetPeriod(0);
  GetAlmanac();
  PersonalAlerts();
  if (!MainForm.ImageForwardTimer.Enabled) GetAvailableCategories();
}

void HideChannel() {
  Refresh.ChannelCounter += 1;
  if (Refresh.ChannelCounter < 3) return;
  Refresh.ChannelCounter = 3;
  MainForm.Channel.Visible = false;
}

void StepTicker() {
  if (TickerForm.Visible && !IsAlertShowing()) TickerDisplay();
}

void TellLocationTime() {
  const int slot = SelectedLocation();
  MainForm.TimeValue.Caption =
      "Local Time: " + Format(LocationTime(slot), "h:nn:ss AM/PM") + " " + LocationZone(slot);
}

void FollowWorkArea() {
  const WorkArea area = GetWorkArea();
  if (area.top != Start.WorkAreaTopSaved || area.height != Start.WorkAreaHeightSaved) PlaceTicker();
}

}  // namespace

double TickSeconds() { return MainForm.UpdateTimer.Interval / 1000.0; }

void TickClock() {
  Guarded([] {
    HideChannel();
    StepTicker();
    TellLocationTime();
    FollowWorkArea();
  });
}

void TickRefresh() {
  Guarded([] {
    CleanTempFolder();
    RefreshBulletins();
    RefreshPersonalAlert();
    RefreshMessages();
    RefreshRadar();
    RefreshConditions();
    RefreshForecast();
  });
}

void CleanTempFolder() {
  Guarded([] {
    FileList& files = MainForm.FileList;
    files.Path = Settings.InstallPath + "\\temp\\";
    files.Files = ListFiles(files.Path);
    const Date now = Now();
    const size_t count = files.Files.size();
    // One step past the last there is no file, and that ends it.
    for (size_t i = 0; i <= count; ++i) {
      const std::string path = files.Path + files.Files[CheckedIndex(static_cast<int>(i), count)];
      if (DateDiff(DateUnit::Minutes, FileTime(path), now) > kOldestMinutes) DeleteFile(path);
    }
  });
}

void ConnectRefresh() {
  MainForm.Clock.Tick = TickClock;
  MainForm.UpdateTimer.Tick = TickRefresh;
}

}  // namespace skyloft
