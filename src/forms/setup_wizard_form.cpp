#include "forms/setup_wizard_form.h"

namespace skyloft {
namespace {

constexpr const char* kStates[] = {
    "AL", "AR", "AZ", "CA", "CO", "CT", "DC", "DE", "FL", "GA", "IA", "ID", "IL", "IN", "KS", "KY", "LA",
    "MA", "MD", "ME", "MI", "MN", "MO", "MS", "MT", "NC", "ND", "NE", "NH", "NJ", "NM", "NV", "NY", "OH",
    "OK", "OR", "PA", "RI", "SC", "SD", "TN", "TX", "UT", "VA", "VT", "WA", "WI", "WV", "WY"};

constexpr const char* kFootnote = "* Skyloft software must be enabled and connected to the internet.";

// Numbers with a blank behind, and `before` in front.
void FillNumbers(ListControl& list, int first, int last, const std::string& before) {
  for (int number = first; number <= last; ++number) list.AddItem(before + std::to_string(number) + " ");
}

}  // namespace

SetupWizardFormControls::SetupWizardFormControls()
    : Form("SetupWizardForm", "Skyloft Setup Wizard", Border::Dialog) {
  const std::pair<Label*, const char*> labels[] = {
      {&Heading, "Welcome to the Skyloft Setup Wizard!"},
      {&Introduction,
       "Before you can experience the ultimate personal weather software, you must answer a few basic "
       "questions. This wizard will guide you through the setup procedure and help you customize Skyloft to "
       "fit your weather needs!"},
      {&StartLabel, "Click NEXT to get On Board!"},
      {&EmailHeading, "Email Address"},
      {&EmailAddress1Label, "Enter Email Address"},
      {&EmailAddress2Label, "Re-Type Email Address"},
      {&EmailPrivacyLabel,
       "Your address is kept private. It stays on this computer, and alerts that you ask for are mailed to "
       "it."},
      {&PlaceLabel,
       "To optimize Skyloft for your specific location, please enter a 5-digit zip code or a city/state "
       "combination:"},
      {&StateLabel, "State"},
      {&VerificationHeading, "Location Verification"},
      {&VerificationLabel,
       "Your location was verified with the Skyloft location database and returned the following "
       "information. Click NEXT to continue."},
      {&ZipCodeLabel, "Zip Code:"},
      {&CityStateLabel, "City/State:"},
      {&CountyLabel, "County:"},
      {&AreaCodeLabel, "Area Code:"},
      {&TimeZoneLabel, "Time Zone:"},
      {&LatitudeLabel, "Latitude:"},
      {&LongitudeLabel, "Longitude:"},
      {&NWSHeading, "National Weather Service Watches/Warnings"},
      {&NWSFootnote, kFootnote},
      {&Personal1Heading, "Skyloft Personal Alerts"},
      {&PersonalFootnote, kFootnote},
      {&Personal2Heading, "Skyloft Personal Alerts"},
      {&MaximumTemperatureRelation, "above"},
      {&HeatIndexRelation, "above"},
      {&MinimumTemperatureRelation, "below"},
      {&WindChillRelation, "below"},
      {&WindSpeedRelation, "above"},
      {&Personal3Heading, "Skyloft Personal Alerts"},
      {&LocationTitleHeader, "Congratulations!"},
      {&LocationTitleMessage,
       "You have completed all steps to add the following location to your Skyloft Profile. You may change "
       "this "
       "title to a personal reference, such as \"My House\". Click DONE to add the location or BACK to make "
       "any "
       "necessary changes."},
      {&TitleLabel, "Location Title"},
  };
  for (const auto& [label, caption] : labels) label->Caption = caption;
  const std::pair<CheckBox*, const char*> boxes[] = {
      {&EmailOptionValue, "Inform me of Skyloft News and Updates"},
      {&ZipCodeOption, "5-digit Zip Code"},
      {&CityStateOption, "City"},
      {&TornadoWarning, "Tornado Warning"},
      {&TornadoWatch, "Tornado Watch"},
      {&SevereThunderstormWarning, "Severe Thunderstorm  Warning"},  // two blanks in four of these: meant
      {&SevereThunderstormWatch, "Severe Thunderstorm  Watch"},
      {&FlashFloodWarning, "Flash Flood  Warning"},
      {&FlashFloodWatch, "Flash Flood  Watch"},
      {&NWSAlertMessage, "Scroll Alert"},
      {&NWSAlertAudio, "Audio Alert"},
      {&NWSAlertEmail, "Email"},
      {&SKLTPersonalAlert, "YES. Notify me of Skyloft Personal Alerts."},
      {&SKLTAlertMessage, "Scroll Alert"},
      {&SKLTAlertAudio, "Audio Alert"},
      {&SKLTAlertEmail, "Email"},
      {&MaximumTemperature, "Maximum Temperature (F)"},
      {&HeatIndex, "Heat Index (F)"},
      {&MinimumTemperature, "Minimum Temperature (F)"},
      {&WindChill, "Wind Chill (F)"},
      {&WindSpeed, "Wind Speed (mph)"},
      {&HeavyRain, "Heavy Rain"},
      {&ModerateRain, "Moderate Rain"},
      {&LightRain, "Light Rain"},
      {&RainShower, "Rain Shower"},
      {&Thunderstorm, "Thunderstorm"},
      {&ChanceThunderstorm, "Thunderstorm Chance"},
      {&FreezingRain, "Freezing Rain"},
      {&FreezingRainSnow, "Freezing Rain/Snow"},
      {&RainSnow, "Rain/Snow"},
      {&HeavySnow, "Heavy Snow"},
      {&ModerateSnow, "Moderate Snow"},
      {&LightSnow, "Light Snow"},
      {&SnowShower, "Snow Shower"},
  };
  for (const auto& [box, caption] : boxes) box->Caption = caption;
  CancelButton.Caption = "Cancel";
  BackButton.Caption = "Back";
  NextButton.Caption = "Next";
  CancelButton.Cancels = true;
  NextButton.Default = true;
  for (const char* state : kStates) StateInput.AddItem(state);
  for (ListControl* list :
       {&MaximumTemperatureValue, &HeatIndexValue, &MinimumTemperatureValue, &WindChillValue}) {
    FillNumbers(*list, -80, 120, "");
  }
  FillNumbers(WindSpeedValue, 0, 100, " ");
}

}  // namespace skyloft
