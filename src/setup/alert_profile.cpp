#include "setup/alert_profile.h"

#include <span>

#include "base/values.h"
#include "feed/xml_readers.h"
#include "platform/pictures.h"
#include "settings/location_profiles.h"
#include "setup/wizard.h"

namespace skyloft {
namespace {

using Wizards = SetupWizardFormControls;
using Box = CheckBox Wizards::*;

// The boxes and the rows of the profile that keep them.
struct SwitchRow {
  Box box;
  int row;
};
constexpr SwitchRow kAlertRows[] = {
    {&Wizards::TornadoWarning, ProfileRow::TornadoWarning},
    {&Wizards::TornadoWatch, ProfileRow::TornadoWatch},
    {&Wizards::SevereThunderstormWarning, ProfileRow::SevereThunderstormWarning},
    {&Wizards::SevereThunderstormWatch, ProfileRow::SevereThunderstormWatch},
    {&Wizards::FlashFloodWarning, ProfileRow::FlashFloodWarning},
    {&Wizards::FlashFloodWatch, ProfileRow::FlashFloodWatch},
    {&Wizards::SKLTPersonalAlert, ProfileRow::SKLTPersonalAlert},
    {&Wizards::MaximumTemperature, ProfileRow::MaximumTemperature},
    {&Wizards::MinimumTemperature, ProfileRow::MinimumTemperature},
    {&Wizards::HeatIndex, ProfileRow::HeatIndex},
    {&Wizards::WindChill, ProfileRow::WindChill},
    {&Wizards::WindSpeed, ProfileRow::WindSpeed},
    {&Wizards::HeavyRain, ProfileRow::HeavyRain},
    {&Wizards::ModerateRain, ProfileRow::ModerateRain},
    {&Wizards::LightRain, ProfileRow::LightRain},
    {&Wizards::RainShower, ProfileRow::RainShower},
    {&Wizards::Thunderstorm, ProfileRow::Thunderstorm},
    {&Wizards::ChanceThunderstorm, ProfileRow::ThunderstormChance},
    {&Wizards::FreezingRain, ProfileRow::FreezingRain},
    {&Wizards::FreezingRainSnow, ProfileRow::FreezingRainSnow},
    {&Wizards::RainSnow, ProfileRow::RainSnow},
    {&Wizards::HeavySnow, ProfileRow::HeavySnow},
    {&Wizards::ModerateSnow, ProfileRow::ModerateSnow},
    {&Wizards::LightSnow, ProfileRow::LightSnow},
    {&Wizards::SnowShower, ProfileRow::SnowShower},
};
constexpr SwitchRow kNWSDelivery[] = {
    {&Wizards::NWSAlertMessage, ProfileRow::NWSAlertMessage},
    {&Wizards::NWSAlertAudio, ProfileRow::NWSAlertAudio},
    {&Wizards::NWSAlertEmail, ProfileRow::NWSAlertEmail},
};
constexpr SwitchRow kSKLTDelivery[] = {
    {&Wizards::SKLTAlertMessage, ProfileRow::SKLTAlertMessage},
    {&Wizards::SKLTAlertAudio, ProfileRow::SKLTAlertAudio},
    {&Wizards::SKLTAlertEmail, ProfileRow::SKLTAlertEmail},
};

struct ThresholdRow {
  Box box;
  ListControl Wizards::*list;
  int row;
  const char* first;  // the entry of a new location
};
constexpr ThresholdRow kThresholds[] = {
    {&Wizards::MaximumTemperature, &Wizards::MaximumTemperatureValue, ProfileRow::MaximumTemperatureThreshold,
     "90 "},
    {&Wizards::HeatIndex, &Wizards::HeatIndexValue, ProfileRow::HeatIndexThreshold, "90 "},
    {&Wizards::MinimumTemperature, &Wizards::MinimumTemperatureValue, ProfileRow::MinimumTemperatureThreshold,
     "32 "},
    {&Wizards::WindChill, &Wizards::WindChillValue, ProfileRow::WindChillThreshold, "32 "},
    {&Wizards::WindSpeed, &Wizards::WindSpeedValue, ProfileRow::WindSpeedThreshold, " 30 "},
};

// The two boxes of a hazard and its picture.
struct Hazard {
  Box warning, watch;
  const WizardPictureState& state;

  bool Wanted() const { return (SetupWizardForm.*warning).Checked || (SetupWizardForm.*watch).Checked; }
};
constexpr Hazard kHazards[] = {
    {&Wizards::TornadoWarning, &Wizards::TornadoWatch, WizardTornadoState},
    {&Wizards::SevereThunderstormWarning, &Wizards::SevereThunderstormWatch, WizardThunderstormState},
    {&Wizards::FlashFloodWarning, &Wizards::FlashFloodWatch, WizardFloodState},
};

CheckBox& BoxOf(Box box) { return SetupWizardForm.*box; }

void Light(const WizardPictureState& state, bool on) {
  state("True", BooleanText(on), IconPath(on ? state.on : state.off), "");
}

void Enable(std::span<const SwitchRow> rows, bool on) {
  for (const SwitchRow& row : rows) BoxOf(row.box).Enabled = on;
}

void FollowHazard(const Hazard& hazard) {
  Light(hazard.state, hazard.Wanted());
  bool any = false;
  for (const Hazard& each : kHazards) any = any || each.Wanted();
  any ? NWSEnable() : NWSDisable();
}

void FollowPersonalAlert() {
  const bool on = SetupWizardForm.SKLTPersonalAlert.Checked;
  Light(WizardPersonalState, on);
  on ? SKLTEnable() : SKLTDisable();
}

void FollowThreshold(const ThresholdRow& row) {
  (SetupWizardForm.*row.list).Enabled = BoxOf(row.box).Checked;
}

// False when the list has no such entry.
bool SelectText(ListControl& list, const std::string& text) {
  for (int i = 0; i < list.Count(); ++i) {
    if (list.Items()[static_cast<size_t>(i)] != text) continue;
    list.Select(i);
    return true;
  }
  return false;
}

void ResetButtons() {
  SetupWizardForm.CancelButton.Enabled = true;
  SetupWizardForm.NextButton.Enabled = true;
  SetupWizardForm.BackButton.Enabled = false;
  SetupWizardForm.NextButton.Caption = "Next";
  SetupWizardForm.Status.Caption = "";
}

const std::string& Profile(int row, int slot) { return LocationProfile[row][slot]; }

}  // namespace

void WizardPictureState::operator()(const std::string& visible, const std::string& enabled,
                                    const std::string& picture, const std::string&) const {
  ImageButton& control = SetupWizardForm.*button;
  if (!visible.empty()) control.Visible = visible == "True";
  if (!enabled.empty()) control.Enabled = enabled == "True";
  if (!picture.empty()) LoadPicture(control, picture);
}

void InitializeWizard() {
  SetupWizardFormControls& form = SetupWizardForm;
  ResetButtons();
  form.ZipCodeInput.Text = "";
  ChooseZipCode();
  ClearPlaceResults();
  for (const SwitchRow& row : kAlertRows) BoxOf(row.box).Checked = false;
  for (const Hazard& hazard : kHazards) Light(hazard.state, true);
  Light(WizardPersonalState, false);
  for (const auto& rows :
       {std::span<const SwitchRow>(kNWSDelivery), std::span<const SwitchRow>(kSKLTDelivery)}) {
    for (const SwitchRow& row : rows) BoxOf(row.box).Checked = false;
    Enable(rows, false);
  }
  for (const ThresholdRow& row : kThresholds) {
    SelectText(form.*row.list, row.first);
    FollowThreshold(row);
  }
}

void LoadProfilePages(int index) {
  SetupWizardFormControls& form = SetupWizardForm;
  ResetButtons();
  ReadPlace(index, Wizard.Results);
  ShowPlace(Wizard.Results);
  NamePlace();
  for (const auto& rows : {std::span<const SwitchRow>(kAlertRows), std::span<const SwitchRow>(kNWSDelivery),
                           std::span<const SwitchRow>(kSKLTDelivery)}) {
    for (const SwitchRow& row : rows) BoxOf(row.box).Checked = IsProfileOn(row.row, index);
  }
  for (const ThresholdRow& row : kThresholds) {
    if (!SelectText(form.*row.list, Profile(row.row, index))) SelectText(form.*row.list, row.first);
    FollowThreshold(row);
  }
  for (const Hazard& hazard : kHazards) FollowHazard(hazard);
  FollowPersonalAlert();
  form.TitleResult.Text = Profile(ProfileRow::Title, index);
}

void NamePlace() {
  SetupWizardFormControls& form = SetupWizardForm;
  const std::string place = form.CityStateResult.Caption;
  form.NWSLabel.Caption =
      "Would you like to be notified of National Weather Service severe weather information for " + place +
      "?* Check the appropriate boxes.";
  form.Personal1Label.Caption =
      "Skyloft Personal Forecast Alerts allow you to set your own criteria for a variety of weather "
      "parameters. Would you like to be notified of Personal Forecast Alerts for " +
      place + "?* If YES, a Personal Forecast Alerts menu will follow.";
  form.Personal2Label.Caption =
      "Set your desired TEMPERATURE and WIND Personal Forecast Alerts for " + place + ".";
  form.Personal3Label.Caption = "Set your desired PRECIPITATION Personal Forecast Alerts for " + place + ".";
}

void InitializeProfile(int index) {
  for (int row = 1; row < kProfileRows; ++row) LocationProfile[row][index].clear();
}

void SetProfile(int index, const PlaceResults& results, int keep_place) {
  if (keep_place == 0) CopyPlace(results, index);
  LocationProfile[ProfileRow::Title][index] = SetupWizardForm.TitleResult.Text;
  const auto store = [index](Box box, int row) {
    LocationProfile[row][index] = BoxOf(box).Checked ? "1" : "0";
  };
  for (const SwitchRow& row : kAlertRows) store(row.box, row.row);
  for (const ThresholdRow& row : kThresholds) {
    LocationProfile[row.row][index] = (SetupWizardForm.*row.list).Text();
  }
  for (const SwitchRow& row : kNWSDelivery) store(row.box, row.row);
  for (const SwitchRow& row : kSKLTDelivery) store(row.box, row.row);
  store(&Wizards::NWSAlertAudio, ProfileRow::NWSAlertVoice);
  store(&Wizards::SKLTAlertAudio, ProfileRow::SKLTAlertVoice);
}

void NWSEnable() { Enable(kNWSDelivery, true); }
void NWSDisable() { Enable(kNWSDelivery, false); }
void SKLTEnable() { Enable(kSKLTDelivery, true); }
void SKLTDisable() { Enable(kSKLTDelivery, false); }

void ConnectAlertProfile() {
  for (const Hazard& hazard : kHazards) {
    for (const Box box : {hazard.warning, hazard.watch}) {
      BoxOf(box).Click = [&hazard] { FollowHazard(hazard); };
    }
  }
  SetupWizardForm.SKLTPersonalAlert.Click = FollowPersonalAlert;
  for (const ThresholdRow& row : kThresholds) BoxOf(row.box).Click = [&row] { FollowThreshold(row); };
}

}  // namespace skyloft
