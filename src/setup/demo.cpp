#include "setup/demo.h"

#include "base/values.h"
#include "core/mainform.h"
#include "feed/addresses.h"
#include "feed/hosts.h"
#include "forms/setup_wizard_form.h"
#include "settings/location_profiles.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "setup/location_search.h"

namespace skyloft {
namespace {

constexpr const char* kDemoTowns[] = {"66044", "33131", "80202", "98101", "04101"};

bool SetUpTown(const char* zip_code, int slot) {
  SetupWizardForm.ZipCodeOption.Checked = true;
  SetupWizardForm.ZipCodeInput.Text = zip_code;
  PlaceResults results;
  if (SearchLocationDatabase(results) != 1) return false;
  CopyPlace(results, slot);
  LocationProfile[ProfileRow::Title][slot] = SetupWizardForm.TitleResult.Text;
  return true;
}

}  // namespace

void SetUpDemoTowns() {
  if (!ReadSetting(kSettingsKey, "LocationIndexMax", "").empty()) return;
  SetInstallPath();
  std::string server_version;
  HostAddress.Hosts = HostAddress.WebHost + kHostTablePath;
  ReadHostTable(1, HostAddress.Hosts, server_version);
  int towns = 0;
  for (const char* zip_code : kDemoTowns) {
    if (SetUpTown(zip_code, towns)) ++towns;
  }
  SetupWizardForm.ZipCodeInput.Text = "";
  if (towns == 0) return;
  Settings.Location = "0";
  Settings.LocationIndexMax = NumberText(towns - 1);
  WriteSetting(kSettingsKey, "Hosts", HostAddress.Hosts);
  WriteSetting(kSettingsKey, "Location", Settings.Location);
  WriteSetting(kSettingsKey, "LocationIndexMax", Settings.LocationIndexMax);
  SaveLocationProfiles();
}

}  // namespace skyloft
