#include "setup/alert_profile.h"

#include "wizard_station.h"

namespace skyloft {
namespace {

using Wizards = SetupWizardFormControls;
using Box = CheckBox Wizards::*;

// All boxes of the alert pages, and the rows that keep them.
const std::pair<Box, int> kBoxes[] = {
    {&Wizards::TornadoWarning, 30},     {&Wizards::SevereThunderstormWarning, 31},
    {&Wizards::TornadoWatch, 38},       {&Wizards::SevereThunderstormWatch, 39},
    {&Wizards::FlashFloodWarning, 50},  {&Wizards::FlashFloodWatch, 54},
    {&Wizards::SKLTPersonalAlert, 69},  {&Wizards::MaximumTemperature, 70},
    {&Wizards::MinimumTemperature, 72}, {&Wizards::HeatIndex, 74},
    {&Wizards::WindChill, 76},          {&Wizards::WindSpeed, 78},
    {&Wizards::HeavyRain, 80},          {&Wizards::ModerateRain, 81},
    {&Wizards::LightRain, 82},          {&Wizards::RainShower, 83},
    {&Wizards::Thunderstorm, 84},       {&Wizards::ChanceThunderstorm, 85},
    {&Wizards::FreezingRain, 86},       {&Wizards::FreezingRainSnow, 87},
    {&Wizards::RainSnow, 88},           {&Wizards::HeavySnow, 89},
    {&Wizards::ModerateSnow, 90},       {&Wizards::LightSnow, 91},
    {&Wizards::SnowShower, 92},         {&Wizards::NWSAlertMessage, 100},
    {&Wizards::NWSAlertAudio, 101},     {&Wizards::NWSAlertEmail, 103},
    {&Wizards::SKLTAlertMessage, 105},  {&Wizards::SKLTAlertAudio, 106},
    {&Wizards::SKLTAlertEmail, 108},
};
struct Threshold {
  Box box;
  ListControl Wizards::*list;
  int row;
  const char *first, *lowest, *highest;
};
const Threshold kLists[] = {
    {&Wizards::MaximumTemperature, &Wizards::MaximumTemperatureValue, 71, "90 ", "-80 ", "120 "},
    {&Wizards::MinimumTemperature, &Wizards::MinimumTemperatureValue, 73, "32 ", "-80 ", "120 "},
    {&Wizards::HeatIndex, &Wizards::HeatIndexValue, 75, "90 ", "-80 ", "120 "},
    {&Wizards::WindChill, &Wizards::WindChillValue, 77, "32 ", "-80 ", "120 "},
    {&Wizards::WindSpeed, &Wizards::WindSpeedValue, 79, " 30 ", " 0 ", " 100 "},
};
const Box kHazards[][2] = {{&Wizards::TornadoWarning, &Wizards::TornadoWatch},
                           {&Wizards::SevereThunderstormWarning, &Wizards::SevereThunderstormWatch},
                           {&Wizards::FlashFloodWarning, &Wizards::FlashFloodWatch}};

class AlertProfile : public WizardStation {
 protected:
  static CheckBox& BoxOf(Box box) { return SetupWizardForm.*box; }
  // The picture of a button, and whether it is on.
  static std::string State(const ImageButton& button) {
    const std::string path = button.PicturePath();
    EXPECT_TRUE(button.Visible);
    return path.substr(path.rfind('\\') + 1) + (button.Enabled ? " on" : " off");
  }
  static std::string Hazards() {
    return State(SetupWizardForm.TornadoButton) + ", " + State(SetupWizardForm.ThunderstormButton) + ", " +
           State(SetupWizardForm.FloodButton);
  }
  static std::string Personal() { return State(SetupWizardForm.PersonalAlertButton); }
  static bool Delivers(Box message, Box audio, Box email) {
    const bool on = BoxOf(message).Enabled;
    EXPECT_EQ(BoxOf(audio).Enabled, on);
    EXPECT_EQ(BoxOf(email).Enabled, on);
    return on;
  }
  static bool DeliversBulletins() {
    return Delivers(&Wizards::NWSAlertMessage, &Wizards::NWSAlertAudio, &Wizards::NWSAlertEmail);
  }
  static bool DeliversPersonal() {
    return Delivers(&Wizards::SKLTAlertMessage, &Wizards::SKLTAlertAudio, &Wizards::SKLTAlertEmail);
  }
};

TEST_F(AlertProfile, ANewLocationBeginsWithNothingCheckedAndYetTheHazardsStandLit) {
  for (const auto& [box, row] : kBoxes) BoxOf(box).Checked = true;
  SetupWizardForm.CityStateOption.Checked = true;
  SetupWizardForm.ZipCodeInput.Text = SetupWizardForm.CityInput.Text = "former";
  SetupWizardForm.Status.Caption = "former";
  SetupWizardForm.CountyResult.Caption = "former";
  SetupWizardForm.BackButton.Enabled = true;
  SetupWizardForm.CancelButton.Enabled = SetupWizardForm.NextButton.Enabled = false;
  SetupWizardForm.NextButton.Caption = "Done";
  InitializeWizard();
  for (const auto& [box, row] : kBoxes) EXPECT_FALSE(BoxOf(box).Checked) << row;
  EXPECT_EQ(Hazards(), "tornados.gif on, tstorms.gif on, floods.gif on");
  EXPECT_EQ(Personal(), "personald.gif off");
  EXPECT_FALSE(DeliversBulletins());
  EXPECT_FALSE(DeliversPersonal());
  for (const Threshold& threshold : kLists) {
    EXPECT_EQ((SetupWizardForm.*threshold.list).Text(), threshold.first);
    EXPECT_FALSE((SetupWizardForm.*threshold.list).Enabled);
  }
  EXPECT_TRUE(SetupWizardForm.ZipCodeOption.Checked && SetupWizardForm.ZipCodeInput.Enabled);
  EXPECT_FALSE(SetupWizardForm.CityStateOption.Checked || SetupWizardForm.CityInput.Enabled ||
               SetupWizardForm.StateInput.Enabled);
  EXPECT_EQ(SetupWizardForm.ZipCodeInput.Text.Get() + SetupWizardForm.CityInput.Text.Get(), "");
  EXPECT_EQ(SetupWizardForm.StateInput.ListIndex(), 0);
  EXPECT_EQ(SetupWizardForm.Status.Caption.Get() + SetupWizardForm.CountyResult.Caption.Get(), "");
  EXPECT_TRUE(SetupWizardForm.CancelButton.Enabled && SetupWizardForm.NextButton.Enabled);
  EXPECT_FALSE(SetupWizardForm.BackButton.Enabled);
  EXPECT_EQ(SetupWizardForm.NextButton.Caption.Get(), "Next");
}

TEST_F(AlertProfile, ThresholdsGoByOneAndKeepTheirBlanks) {
  for (const Threshold& threshold : kLists) {
    const auto& items = (SetupWizardForm.*threshold.list).Items();
    EXPECT_EQ(items.size(), threshold.row == 79 ? 101u : 201u);
    EXPECT_EQ(items.front(), threshold.lowest);
    EXPECT_EQ(items.back(), threshold.highest);
    EXPECT_NE(std::ranges::find(items, threshold.first), items.end());
  }
}

TEST_F(AlertProfile, CaptionsKeepTheirTwoBlanks) {
  EXPECT_EQ(SetupWizardForm.TornadoWarning.Caption.Get(), "Tornado Warning");
  EXPECT_EQ(SetupWizardForm.SevereThunderstormWarning.Caption.Get(), "Severe Thunderstorm  Warning");
  EXPECT_EQ(SetupWizardForm.SevereThunderstormWatch.Caption.Get(), "Severe Thunderstorm  Watch");
  EXPECT_EQ(SetupWizardForm.FlashFloodWarning.Caption.Get(), "Flash Flood  Warning");
  EXPECT_EQ(SetupWizardForm.FlashFloodWatch.Caption.Get(), "Flash Flood  Watch");
}

TEST_F(AlertProfile, ABoxOfAHazardLightsItsPictureAndTheDelivery) {
  const char* names[] = {"tornado", "tstorm", "flood"};
  for (int hazard = 0; hazard < 3; ++hazard) {
    for (int box = 0; box < 2; ++box) {
      InitializeWizard();
      SetupWizardForm.NWSAlertEmail.Checked = true;
      BoxOf(kHazards[hazard][box]).Check(true);
      EXPECT_TRUE(DeliversBulletins());
      BoxOf(kHazards[hazard][box]).Check(false);
      EXPECT_NE(Hazards().find(std::string(names[hazard]) + "d.gif off"), std::string::npos) << Hazards();
      EXPECT_FALSE(DeliversBulletins());
      EXPECT_TRUE(SetupWizardForm.NWSAlertEmail.Checked) << "off, and yet checked";
      BoxOf(kHazards[hazard][box]).Check(true);
      EXPECT_NE(Hazards().find(std::string(names[hazard]) + "s.gif on"), std::string::npos) << Hazards();
      EXPECT_TRUE(DeliversBulletins());
    }
  }
}

TEST_F(AlertProfile, UncheckingOneOfTwoChangesNothingAndTheDeliveryStaysForAnotherHazard) {
  InitializeWizard();
  SetupWizardForm.TornadoWarning.Check(true);
  SetupWizardForm.TornadoWatch.Check(true);
  SetupWizardForm.FlashFloodWatch.Check(true);
  SetupWizardForm.TornadoWatch.Check(false);
  EXPECT_EQ(State(SetupWizardForm.TornadoButton), "tornados.gif on");
  SetupWizardForm.TornadoWarning.Check(false);
  EXPECT_EQ(State(SetupWizardForm.TornadoButton), "tornadod.gif off");
  EXPECT_TRUE(DeliversBulletins());
}

TEST_F(AlertProfile, ThePersonalBoxLightsItsPictureAndItsDelivery) {
  InitializeWizard();
  SetupWizardForm.SKLTPersonalAlert.Check(true);
  EXPECT_EQ(Personal(), "personals.gif on");
  EXPECT_TRUE(DeliversPersonal());
  SetupWizardForm.SKLTPersonalAlert.Check(false);
  EXPECT_EQ(Personal(), "personald.gif off");
  EXPECT_FALSE(DeliversPersonal());
}

TEST_F(AlertProfile, AThresholdsBoxSwitchesItsListWhichKeepsItsEntry) {
  InitializeWizard();
  for (const Threshold& threshold : kLists) {
    ListControl& list = SetupWizardForm.*threshold.list;
    BoxOf(threshold.box).Check(true);
    EXPECT_TRUE(list.Enabled);
    list.Select(7);
    BoxOf(threshold.box).Check(false);
    EXPECT_FALSE(list.Enabled);
    EXPECT_EQ(list.ListIndex(), 7);
  }
}

TEST_F(AlertProfile, EachBoxIsStoredInItsRowAndReadBack) {
  for (const auto& [wanted, wanted_row] : kBoxes) {
    InitializeWizard();
    BoxOf(wanted).Checked = true;
    SetProfile(2, {}, 1);
    for (const auto& [box, row] : kBoxes) EXPECT_EQ(LocationProfile[row][2], row == wanted_row ? "1" : "0");
    InitializeWizard();
    LoadProfilePages(2);
    for (const auto& [box, row] : kBoxes) EXPECT_EQ(BoxOf(box).Checked, row == wanted_row) << row;
  }
}

TEST_F(AlertProfile, TheVoiceIsTheSound) {
  for (const bool on : {true, false}) {
    SetupWizardForm.NWSAlertAudio.Checked = on;
    SetupWizardForm.SKLTAlertAudio.Checked = !on;
    SetProfile(1, {}, 1);
    EXPECT_EQ(LocationProfile[ProfileRow::NWSAlertVoice][1], on ? "1" : "0");
    EXPECT_EQ(LocationProfile[ProfileRow::SKLTAlertVoice][1], on ? "0" : "1");
  }
}

TEST_F(AlertProfile, ThresholdsAreStoredWithTheirBlanksAlsoWithoutPersonalAlerts) {
  InitializeWizard();
  SetProfile(0, {}, 1);
  for (const Threshold& threshold : kLists) EXPECT_EQ(LocationProfile[threshold.row][0], threshold.first);
  EXPECT_EQ(LocationProfile[ProfileRow::SKLTPersonalAlert][0], "0");
}

TEST_F(AlertProfile, AThresholdThatIsNotInItsListLeavesItOnItsDefault) {
  SetUpLocations(1);
  InitializeWizard();
  for (const Threshold& threshold : kLists) {
    LocationProfile[threshold.row][0] = "50";  // without its blanks
    (SetupWizardForm.*threshold.list).Select(0);
  }
  LoadProfilePages(0);
  for (const Threshold& threshold : kLists) {
    EXPECT_EQ((SetupWizardForm.*threshold.list).Text(), threshold.first);
  }
  LocationProfile[ProfileRow::WindSpeedThreshold][0] = " 50 ";
  LoadProfilePages(0);
  EXPECT_EQ(SetupWizardForm.WindSpeedValue.Text(), " 50 ");
}

TEST_F(AlertProfile, LoadedPagesFollowTheProfileAsTheirHandlersWould) {
  SetUpLocations(2);
  Place(1, "Dallas", "TX");
  LocationProfile[ProfileRow::Title][1] = "My House";
  LocationProfile[ProfileRow::Latitude][1] = "32.78";
  for (const int row : {30, 70}) LocationProfile[row][1] = "1";
  LoadProfilePages(1);
  EXPECT_EQ(Hazards(), "tornados.gif on, tstormd.gif off, floodd.gif off");
  EXPECT_EQ(Personal(), "personald.gif off");
  EXPECT_TRUE(DeliversBulletins());
  EXPECT_FALSE(DeliversPersonal());
  EXPECT_TRUE(SetupWizardForm.MaximumTemperatureValue.Enabled);
  EXPECT_FALSE(SetupWizardForm.WindChillValue.Enabled);
  EXPECT_EQ(SetupWizardForm.CityStateResult.Caption.Get(), "Dallas, TX");
  EXPECT_EQ(SetupWizardForm.ZipCodeResult.Caption.Get(), "10001");
  EXPECT_EQ(SetupWizardForm.LatitudeResult.Caption.Get(), "32.78");
  EXPECT_EQ(SetupWizardForm.TitleResult.Text.Get(), "My House");
  EXPECT_EQ(SetupWizardForm.Personal2Label.Caption.Get(),
            "Set your desired TEMPERATURE and WIND Personal Forecast Alerts for Dallas, TX.");
}

TEST_F(AlertProfile, LoadedPagesHoldTheLocationsOwnPlace) {
  SearchLocationDatabase(Wizard.Results);
  CopyPlace(Wizard.Results, 1);
  SetUpLocations(1);
  LoadProfilePages(0);
  EXPECT_EQ(Wizard.Results[PlaceEntry::PostalCode], "10000");
  LoadProfilePages(1);
  EXPECT_EQ(Wizard.Results[PlaceEntry::City], "Lawrence");
  const auto before = LocationProfile;
  InitializeProfile(1);
  SetProfile(1, Wizard.Results, 0);
  for (int row = 0; row <= ProfileRow::NEXRADServer; ++row) {
    if (row == ProfileRow::Title) continue;
    EXPECT_EQ(LocationProfile[row][1], before[row][1]) << row;
  }
}

TEST_F(AlertProfile, ClearingAProfileKeepsItsZipCode) {
  for (int row = 0; row < kProfileRows; ++row) {
    for (const int slot : {1, 2}) LocationProfile[row][slot] = "x";
  }
  InitializeProfile(1);
  for (int row = 0; row < kProfileRows; ++row) {
    EXPECT_EQ(LocationProfile[row][1], row == 0 ? "x" : "");
    EXPECT_EQ(LocationProfile[row][2], "x");
  }
}

TEST_F(AlertProfile, APlaceIsCopiedUnlessItIsKept) {
  SearchLocationDatabase(Wizard.Results);
  LocationProfile[ProfileRow::City][0] = "Elsewhere";
  SetProfile(0, Wizard.Results, 1);
  EXPECT_EQ(LocationProfile[ProfileRow::City][0], "Elsewhere");
  SetProfile(0, Wizard.Results, 0);
  EXPECT_EQ(LocationProfile[ProfileRow::City][0], "Lawrence");
  EXPECT_EQ(LocationProfile[ProfileRow::Latitude][0], "38.97");
}

TEST_F(AlertProfile, AnEmptyTitleIsStoredAsTyped) {
  SetupWizardForm.TitleResult.Text = "";
  SetProfile(0, {}, 1);
  EXPECT_EQ(LocationProfile[ProfileRow::Title][0], "");
}

TEST_F(AlertProfile, AnEmptyArgumentOfAPictureLeavesItsPropertyAndTheResultIsUnused) {
  ImageButton& button = SetupWizardForm.FloodButton;
  const std::string path = "C:\\program files\\skyloft\\icons\\floods.gif";
  WizardFloodState("True", "True", path, "");
  WizardFloodState("", "False", "", "result");
  EXPECT_TRUE(button.Visible);
  EXPECT_FALSE(button.Enabled);
  EXPECT_EQ(button.PicturePath(), path);
  WizardFloodState("False", "", "", "");
  EXPECT_FALSE(button.Visible);
}

}  // namespace
}  // namespace skyloft
