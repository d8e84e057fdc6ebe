#include "setup/location_search.h"

#include "base/guard.h"
#include "base/values.h"
#include "feed/hosts.h"
#include "feed/transport.h"
#include "feed/xml_readers.h"
#include "forms/setup_wizard_form.h"
#include "settings/location_profiles.h"

namespace skyloft {
namespace {

constexpr const char* kTags[] = {
    "postal_code",
    "city",
    "state",
    "county",
    "area_code",
    "gmt_offset",
    "latitude",
    "longitude",
    "nws_office",
    "radar_station_code",
    "radar_station_lat",
    "radar_station_long",
    "nws_radar_server",
    "state_long",
    "dst_ind",
};
static_assert(int{std::size(kTags)} == PlaceResults::Size());

constexpr struct {
  int entry, row;
} kProfileRowsOfPlace[] = {
    {PlaceEntry::PostalCode, ProfileRow::ZipCode},
    {PlaceEntry::City, ProfileRow::City},
    {PlaceEntry::State, ProfileRow::State},
    {PlaceEntry::County, ProfileRow::County},
    {PlaceEntry::AreaCode, ProfileRow::AreaCode},
    {PlaceEntry::GmtOffset, ProfileRow::TimeZone},
    {PlaceEntry::StateLong, ProfileRow::StateLong},
    {PlaceEntry::DaylightIndicator, ProfileRow::Dst},
    {PlaceEntry::NwsOffice, ProfileRow::NWSForecastOffice},
    {PlaceEntry::RadarStationCode, ProfileRow::NEXRADLocation},
    {PlaceEntry::RadarStationLatitude, ProfileRow::NEXRADLatitude},
    {PlaceEntry::RadarStationLongitude, ProfileRow::NEXRADLongitude},
    {PlaceEntry::NwsRadarServer, ProfileRow::NEXRADServer},
};

std::string SearchUrl() {
  const SetupWizardFormControls& wizard = SetupWizardForm;
  const std::string place = wizard.ZipCodeOption.Checked ? "pc=" + wizard.ZipCodeInput.Text.Get()
                                                         : "city=" + wizard.CityInput.Text.Get() +
                                                               "&state=" + wizard.StateInput.Text();
  return HostTable.forecastserver + "location_setup.asp?" + place + "&t=xml";
}

std::string TwoDecimals(const std::string& degrees) {
  return NumberText(RoundHalfEven(LenientNumber(degrees), 2));
}

}  // namespace

int SearchLocationDatabase(PlaceResults& results) {
  int result = 0;
  Guarded([&] {
    SetupWizardForm.NextButton.Enabled = false;
    SetupWizardForm.Status.Caption = "verifying location...please wait";
    QueryServer(SearchUrl(), [&](const XmlDocument& reply) {
      int count = -1;
      ReadXmlValue(reply, kTags[0], results[0], count);
      if (count < 0) return;
      for (int i = 1; i < PlaceResults::Size(); ++i) ReadXmlValue(reply, kTags[i], results[i], count);
      result = 1;
      ShowPlace(results);
    });
  });
  SetupWizardForm.NextButton.Enabled = true;
  SetupWizardForm.Status.Caption = "";
  return result;
}

void ShowPlace(const PlaceResults& results) {
  SetupWizardFormControls& wizard = SetupWizardForm;
  const std::string place = results[PlaceEntry::City] + ", " + results[PlaceEntry::State];
  wizard.ZipCodeResult.Caption = results[PlaceEntry::PostalCode];
  wizard.CityStateResult.Caption = place;
  wizard.TitleResult.Text = place;
  wizard.CountyResult.Caption = results[PlaceEntry::County];
  wizard.AreaCodeResult.Caption = results[PlaceEntry::AreaCode];
  wizard.TimeZoneResult.Caption = results[PlaceEntry::GmtOffset];
  wizard.LatitudeResult.Caption = TwoDecimals(results[PlaceEntry::Latitude]);
  wizard.LongitudeResult.Caption = TwoDecimals(results[PlaceEntry::Longitude]);
}

void ClearPlaceResults() {
  SetupWizardFormControls& wizard = SetupWizardForm;
  for (Label* result :
       {&wizard.ZipCodeResult, &wizard.CityStateResult, &wizard.CountyResult, &wizard.AreaCodeResult,
        &wizard.TimeZoneResult, &wizard.LatitudeResult, &wizard.LongitudeResult}) {
    result->Caption = "";
  }
}

void CopyPlace(const PlaceResults& results, int slot) {
  for (const auto& [entry, row] : kProfileRowsOfPlace) LocationProfile[row][slot] = results[entry];
  LocationProfile[ProfileRow::Latitude][slot] = TwoDecimals(results[PlaceEntry::Latitude]);
  LocationProfile[ProfileRow::Longitude][slot] = TwoDecimals(results[PlaceEntry::Longitude]);
}

void ReadPlace(int slot, PlaceResults& results) {
  for (const auto& [entry, row] : kProfileRowsOfPlace) results[entry] = LocationProfile[row][slot];
  results[PlaceEntry::Latitude] = LocationProfile[ProfileRow::Latitude][slot];
  results[PlaceEntry::Longitude] = LocationProfile[ProfileRow::Longitude][slot];
}

void ChooseZipCode() {
  SetupWizardFormControls& wizard = SetupWizardForm;
  wizard.ZipCodeOption.Checked = true;
  wizard.CityStateOption.Checked = false;
  wizard.ZipCodeInput.Enabled = true;
  wizard.CityInput.Enabled = false;
  wizard.StateInput.Enabled = false;
  wizard.CityInput.Text = "";
  wizard.StateInput.Select(0);
}

void ChooseCityState() {
  SetupWizardFormControls& wizard = SetupWizardForm;
  wizard.CityStateOption.Checked = true;
  wizard.ZipCodeOption.Checked = false;
  wizard.ZipCodeInput.Enabled = false;
  wizard.CityInput.Enabled = true;
  wizard.StateInput.Enabled = true;
  wizard.ZipCodeInput.Text = "";
}

void ConnectPlaceOptions() {
  SetupWizardForm.ZipCodeOption.Click = ChooseZipCode;
  SetupWizardForm.CityStateOption.Click = ChooseCityState;
}

}  // namespace skyloft
