#include "setup/wizard_finish.h"

#include <initializer_list>
#include <string>

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "base/guard.h"
#include "base/values.h"
#include "core/chrome.h"
#include "core/mainform.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "feed/radar.h"
#include "forms/initializing_form.h"
#include "forms/main_form.h"
#include "forms/setup_wizard_form.h"
#include "forms/system_options_form.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "setup/alert_profile.h"
#include "setup/wizard.h"
#include "ticker/messages.h"
#include "weather/almanac.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

struct FinishStep {
  const char* status;
  std::initializer_list<void (*)()> work;  // each call under its own guard
};

void Run(std::initializer_list<FinishStep> steps) {
  for (const FinishStep& step : steps) {
    SetupWizardForm.Status.Caption = step.status;
    for (const auto& call : step.work) Guarded(call);
  }
}

void TellSplash() { InitializingForm.SoftwareStatus.Caption = "synchronizing"; }

void StoreNewPlace() { SetProfile(SelectedLocation(), Wizard.Results, 0); }

// Without an answer the next refresh asks again, although the model run is the one that is held.
void FetchForecast() {
  GetForecastData(1);
  const int last = LastLocation();
  if (ForecastHour[last][0].Ut.empty() || ForecastDay[last][0].Ut.empty()) Settings.ModelLocal.clear();
}

void ShowLocations() {
  ListTitles();
  MainForm.LocationSelection.Select(SelectedLocation());
}

void ShowFirstTime() {
  Guarded(LoadMessages);
  Guarded(RotateSponsors);
  MainForm.Visible = true;
  Guarded(ShowSevereButtons);
}

// Everything for the location's place, up to the products.
void FetchLocation(bool edited) {
  Run({{"initializing location", {[] { InitializeProfile(SelectedLocation()); }}},
       {"setting location profile", {StoreNewPlace}},
       {"connecting to Skyloft Server", {GetMetaData, GetProductData}},
       {"synchronizing", {TellSplash}},
       {"receiving sector data", {GetSectorData}}});
  if (edited) Run({{"receiving available products", {}}});
  Run({{"receiving current conditions", {GetCurrentData}},
       {"receiving forecasts", {FetchForecast}},
       {"processing forecasts", {[] { GetPeriod(1); }}},
       {"processing almanac", {GetAlmanac}},
       {"receiving NEXRAD radar", {[] { GetNexradData(0); }}}});
}

void CheckAlerts() {
  Run({{"checking warnings", {NWSAlerts}}, {"checking personal forecast alerts", {PersonalAlerts}}});
}

void Save() { Run({{"saving", {SaveSystem}}}); }

void ShowDisplay() { Run({{"updating display", {ShowLocations}}}); }

void FinishNew(bool first) {
  FetchLocation(false);
  if (first) Run({{"updating products", {GetAvailableCategories}}});
  Save();
  ShowDisplay();
  if (first) ShowFirstTime();
  CheckAlerts();
  Guarded(ShowWantedTicker);
  MainForm.Clock.Enabled = true;
  MainForm.UpdateTimer.Enabled = true;
  SetupWizardForm.Visible = false;
  Start.LocalView = "True";
}

void FinishEdit() {
  Run({{"setting location profile", {[] { SetProfile(Wizard.EditIndex, Wizard.Results, 1); }}}});
  CheckAlerts();
  Save();
  SetupWizardForm.Visible = false;
}

// A search of an earlier new location still counts as this one's, so that all is fetched again. This is
// meant.
void FinishEditAnew() {
  Settings.Location = NumberText(Wizard.EditIndex);
  FetchLocation(true);
  Run({{"updating products", {GetAvailableCategories}}});
  CheckAlerts();
  Save();
  ShowDisplay();
  SetupWizardForm.Visible = false;
}

}  // namespace

void FinishWizard() {
  SetupWizardFormControls& form = SetupWizardForm;
  for (Button* button : {&form.CancelButton, &form.BackButton, &form.NextButton}) button->Enabled = false;
  const bool first = Wizard.WizardMode == WizardKind::First;
  if (Wizard.WizardMode == WizardKind::Edit)
    return Wizard.LocationFound == 1 ? FinishEditAnew() : FinishEdit();
  if (first) {
    SystemOptionsForm.Email1Value.Text = form.EmailAddress1.Text;
    SystemOptionsForm.Email2Value.Text = form.EmailAddress2.Text;
  }
  MainForm.LocationSelection.AddItem(form.TitleResult.Text);
  Settings.LocationIndexMax = first ? "0" : NumberText(MainForm.LocationSelection.Count() - 1);
  Settings.Location = Settings.LocationIndexMax;
  FinishNew(first);
}

}  // namespace skyloft
