// The setup wizard: nine pages, one on show at a time, and the buttons under them.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct SetupWizardFormControls : Form {
  SetupWizardFormControls();

  ControlArray<Frame, 9> SetupFrame{this, "SetupFrame"};

  // 0: welcome.
  Label Heading{this, "Heading", &SetupFrame[0]};
  Label Introduction{this, "Introduction", &SetupFrame[0]};
  Label StartLabel{this, "StartLabel", &SetupFrame[0]};

  // 1: the user's address.
  Label EmailHeading{this, "EmailHeading", &SetupFrame[1]};
  Label EmailAddress1Label{this, "EmailAddress1Label", &SetupFrame[1]};
  TextBox EmailAddress1{this, "EmailAddress1", &SetupFrame[1]};
  Label EmailAddress2Label{this, "EmailAddress2Label", &SetupFrame[1]};
  TextBox EmailAddress2{this, "EmailAddress2", &SetupFrame[1]};
  CheckBox EmailOptionValue{this, "EmailOptionValue", &SetupFrame[1]};
  Label EmailPrivacyLabel{this, "EmailPrivacyLabel", &SetupFrame[1]};

  // 2: the place.
  Label PlaceLabel{this, "PlaceLabel", &SetupFrame[2]};
  OptionButton ZipCodeOption{this, "ZipCodeOption", &SetupFrame[2]};
  TextBox ZipCodeInput{this, "ZipCodeInput", &SetupFrame[2]};
  OptionButton CityStateOption{this, "CityStateOption", &SetupFrame[2]};
  TextBox CityInput{this, "CityInput", &SetupFrame[2]};
  Label StateLabel{this, "StateLabel", &SetupFrame[2]};
  ListControl StateInput{this, "StateInput", &SetupFrame[2]};

  // 3: what the server knows of it.
  Label VerificationHeading{this, "VerificationHeading", &SetupFrame[3]};
  Label VerificationLabel{this, "VerificationLabel", &SetupFrame[3]};
  Label ZipCodeLabel{this, "ZipCodeLabel", &SetupFrame[3]};
  Label ZipCodeResult{this, "ZipCodeResult", &SetupFrame[3]};
  Label CityStateLabel{this, "CityStateLabel", &SetupFrame[3]};
  Label CityStateResult{this, "CityStateResult", &SetupFrame[3]};
  Label CountyLabel{this, "CountyLabel", &SetupFrame[3]};
  Label CountyResult{this, "CountyResult", &SetupFrame[3]};
  Label AreaCodeLabel{this, "AreaCodeLabel", &SetupFrame[3]};
  Label AreaCodeResult{this, "AreaCodeResult", &SetupFrame[3]};
  Label TimeZoneLabel{this, "TimeZoneLabel", &SetupFrame[3]};
  Label TimeZoneResult{this, "TimeZoneResult", &SetupFrame[3]};
  Label LatitudeLabel{this, "LatitudeLabel", &SetupFrame[3]};
  Label LatitudeResult{this, "LatitudeResult", &SetupFrame[3]};
  Label LongitudeLabel{this, "LongitudeLabel", &SetupFrame[3]};
  Label LongitudeResult{this, "LongitudeResult", &SetupFrame[3]};

  // 4: bulletins, and how they are delivered.
  Label NWSHeading{this, "NWSHeading", &SetupFrame[4]};
  Label NWSLabel{this, "NWSLabel", &SetupFrame[4]};
  ImageButton TornadoButton{this, "TornadoButton", &SetupFrame[4]};
  CheckBox TornadoWarning{this, "TornadoWarning", &SetupFrame[4]};
  CheckBox TornadoWatch{this, "TornadoWatch", &SetupFrame[4]};
  ImageButton ThunderstormButton{this, "ThunderstormButton", &SetupFrame[4]};
  CheckBox SevereThunderstormWarning{this, "SevereThunderstormWarning", &SetupFrame[4]};
  CheckBox SevereThunderstormWatch{this, "SevereThunderstormWatch", &SetupFrame[4]};
  ImageButton FloodButton{this, "FloodButton", &SetupFrame[4]};
  CheckBox FlashFloodWarning{this, "FlashFloodWarning", &SetupFrame[4]};
  CheckBox FlashFloodWatch{this, "FlashFloodWatch", &SetupFrame[4]};
  CheckBox NWSAlertMessage{this, "NWSAlertMessage", &SetupFrame[4]};
  CheckBox NWSAlertAudio{this, "NWSAlertAudio", &SetupFrame[4]};
  CheckBox NWSAlertEmail{this, "NWSAlertEmail", &SetupFrame[4]};
  Label NWSFootnote{this, "NWSFootnote", &SetupFrame[4]};

  // 5: whether the user has conditions of their own, and how those are delivered.
  Label Personal1Heading{this, "Personal1Heading", &SetupFrame[5]};
  Label Personal1Label{this, "Personal1Label", &SetupFrame[5]};
  ImageButton PersonalAlertButton{this, "PersonalAlertButton", &SetupFrame[5]};
  CheckBox SKLTPersonalAlert{this, "SKLTPersonalAlert", &SetupFrame[5]};
  CheckBox SKLTAlertMessage{this, "SKLTAlertMessage", &SetupFrame[5]};
  CheckBox SKLTAlertAudio{this, "SKLTAlertAudio", &SetupFrame[5]};
  CheckBox SKLTAlertEmail{this, "SKLTAlertEmail", &SetupFrame[5]};
  Label PersonalFootnote{this, "PersonalFootnote", &SetupFrame[5]};

  // 6: temperature and wind, each with its threshold.
  Label Personal2Heading{this, "Personal2Heading", &SetupFrame[6]};
  Label Personal2Label{this, "Personal2Label", &SetupFrame[6]};
  CheckBox MaximumTemperature{this, "MaximumTemperature", &SetupFrame[6]};
  Label MaximumTemperatureRelation{this, "MaximumTemperatureRelation", &SetupFrame[6]};
  ListControl MaximumTemperatureValue{this, "MaximumTemperatureValue", &SetupFrame[6]};
  CheckBox HeatIndex{this, "HeatIndex", &SetupFrame[6]};
  Label HeatIndexRelation{this, "HeatIndexRelation", &SetupFrame[6]};
  ListControl HeatIndexValue{this, "HeatIndexValue", &SetupFrame[6]};
  CheckBox MinimumTemperature{this, "MinimumTemperature", &SetupFrame[6]};
  Label MinimumTemperatureRelation{this, "MinimumTemperatureRelation", &SetupFrame[6]};
  ListControl MinimumTemperatureValue{this, "MinimumTemperatureValue", &SetupFrame[6]};
  CheckBox WindChill{this, "WindChill", &SetupFrame[6]};
  Label WindChillRelation{this, "WindChillRelation", &SetupFrame[6]};
  ListControl WindChillValue{this, "WindChillValue", &SetupFrame[6]};
  CheckBox WindSpeed{this, "WindSpeed", &SetupFrame[6]};
  Label WindSpeedRelation{this, "WindSpeedRelation", &SetupFrame[6]};
  ListControl WindSpeedValue{this, "WindSpeedValue", &SetupFrame[6]};

  // 7: precipitation.
  Label Personal3Heading{this, "Personal3Heading", &SetupFrame[7]};
  Label Personal3Label{this, "Personal3Label", &SetupFrame[7]};
  CheckBox HeavyRain{this, "HeavyRain", &SetupFrame[7]};
  CheckBox ModerateRain{this, "ModerateRain", &SetupFrame[7]};
  CheckBox LightRain{this, "LightRain", &SetupFrame[7]};
  CheckBox RainShower{this, "RainShower", &SetupFrame[7]};
  CheckBox Thunderstorm{this, "Thunderstorm", &SetupFrame[7]};
  CheckBox ChanceThunderstorm{this, "ChanceThunderstorm", &SetupFrame[7]};
  CheckBox FreezingRain{this, "FreezingRain", &SetupFrame[7]};
  CheckBox FreezingRainSnow{this, "FreezingRainSnow", &SetupFrame[7]};
  CheckBox RainSnow{this, "RainSnow", &SetupFrame[7]};
  CheckBox HeavySnow{this, "HeavySnow", &SetupFrame[7]};
  CheckBox ModerateSnow{this, "ModerateSnow", &SetupFrame[7]};
  CheckBox LightSnow{this, "LightSnow", &SetupFrame[7]};
  CheckBox SnowShower{this, "SnowShower", &SetupFrame[7]};

  // 8: the name in all lists.
  Label LocationTitleHeader{this, "LocationTitleHeader", &SetupFrame[8]};
  Label LocationTitleMessage{this, "LocationTitleMessage", &SetupFrame[8]};
  Label TitleLabel{this, "TitleLabel", &SetupFrame[8]};
  TextBox TitleResult{this, "TitleResult", &SetupFrame[8]};

  Label Status{this, "Status"};
  Button CancelButton{this, "CancelButton"};
  Button BackButton{this, "BackButton"};
  Button NextButton{this, "NextButton"};
};

extern SetupWizardFormControls SetupWizardForm;

}  // namespace skyloft
