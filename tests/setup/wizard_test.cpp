#include "setup/wizard.h"

#include "feed/hosts.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/setup_wizard_form.h"
#include "forms/system_options_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "setup/alert_profile.h"
#include "wizard_station.h"

namespace skyloft {
namespace {

class WizardTest : public WizardStation {};

TEST_F(WizardTest, TheFirstLocationBeginsOnTheWelcomePageAndALaterOneOnThePlace) {
  AddLocation(0);
  EXPECT_TRUE(SetupWizardForm.Visible);
  EXPECT_EQ(Page(), 0);
  EXPECT_EQ(Wizard.WizardMode, 0);
  SetUpLocations(1);
  SetupWizardForm.Visible = false;
  AddLocation(1);
  EXPECT_TRUE(SetupWizardForm.Visible);
  EXPECT_EQ(Page(), 2);
  EXPECT_EQ(Wizard.WizardMode, 1);
  EXPECT_FALSE(SetupWizardForm.BackButton.Enabled);
}

TEST_F(WizardTest, AnEditBeginsOnTheBulletins) {
  SetUpLocations(3);
  EditLocation(1);
  EXPECT_TRUE(SetupWizardForm.Visible);
  EXPECT_EQ(Page(), 4);
  EXPECT_EQ(Wizard.WizardMode, 2);
  EXPECT_EQ(Wizard.EditIndex, 1);
  EXPECT_FALSE(SetupWizardForm.BackButton.Enabled);
}

TEST_F(WizardTest, TheWelcomePageIsNeverHidden) {
  for (int page = 0; page < 9; ++page) {
    ShowFrame(page);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(SetupWizardForm.SetupFrame[i].Visible, i == page || i == 0);
  }
}

// The first setup: email, place, then as far as asked.
TEST_F(WizardTest, NextWalksThroughAllNinePages) {
  AddLocation(0);
  CheckPersonalAlerts(true);
  EnterAddresses("a@b.example", "a@b.example");
  SetupWizardForm.ZipCodeInput.Text = "66044";
  for (int page = 1; page <= 8; ++page) {
    Next();
    EXPECT_EQ(Page(), page);
    EXPECT_EQ(SetupWizardForm.NextButton.Caption.Get(), page == 8 ? "Done" : "Next");
    EXPECT_EQ(SetupWizardForm.BackButton.Enabled, page > 1);
  }
  for (int page = 7; page >= 1; --page) {
    Back();
    EXPECT_EQ(Page(), page);
    EXPECT_EQ(SetupWizardForm.NextButton.Caption.Get(), "Next");
    EXPECT_EQ(SetupWizardForm.BackButton.Enabled, page > 1);
  }
  Back();
  EXPECT_EQ(Page(), 1) << "the lowest of a first setup";
  EXPECT_FALSE(SetupWizardForm.BackButton.Enabled);
  EXPECT_TRUE(Doubles.boxes.empty());
}

TEST_F(WizardTest, WithoutPersonalAlertsTheirPagesAreSkippedBothWays) {
  BeginAt(5);
  CheckPersonalAlerts(false);
  Next();
  EXPECT_EQ(Page(), 8);
  Back();
  EXPECT_EQ(Page(), 5);
}

TEST_F(WizardTest, BackGoesAsFarAsTheKindAllows) {
  SetUpLocations(1);
  AddLocation(1);
  SetupWizardForm.ZipCodeInput.Text = "66044";
  Next();
  EXPECT_EQ(Page(), 3);
  Back();
  Back();
  EXPECT_EQ(Page(), 2);
  EXPECT_FALSE(SetupWizardForm.BackButton.Enabled);
  EditLocation(0);
  Next();
  EXPECT_EQ(Page(), 5);
  EXPECT_TRUE(SetupWizardForm.BackButton.Enabled);
  Back();
  Back();
  EXPECT_EQ(Page(), 4);
  EXPECT_FALSE(SetupWizardForm.BackButton.Enabled);
}

TEST_F(WizardTest, TheAddressesMustBeThereAndTheSameCaseIncluded) {
  const char* missing = "ERROR: Missing email address detected. Please verify each address.";
  const char* invalid = "ERROR: Invalid email address detected. Please verify each address.";
  const struct {
    const char *first, *second, *error;
  } cases[] = {{"", "", missing},        {"a", "", missing},  {"", "a", missing}, {"a@b", "a@B", invalid},
               {"a@b ", "a@b", invalid}, {"a", "a", nullptr}, {" ", " ", nullptr}};
  for (const auto& c : cases) {
    BeginAt(1);
    Doubles.boxes.clear();
    EnterAddresses(c.first, c.second);
    Next();
    EXPECT_EQ(Page(), c.error ? 1 : 2);
    EXPECT_EQ(Doubles.boxes, c.error ? Errors({c.error}) : Errors({}));
  }
}

TEST_F(WizardTest, APlaceThatIsALocationAlreadyIsRefusedWhenAddingOnly) {
  SetUpLocations(2);
  Place(0, "Lawrence", "KS");
  Place(1, "Dallas", "TX");
  const char* zip = "ERROR: Duplicate zip code detected. This zip code already used as a location.";
  const char* city = "ERROR: Duplicate city detected. This city already used as a location.";
  const struct {
    const char *zip, *city, *state, *error;
  } cases[] = {{"10001", "", "", zip},        {"", "Dallas", "TX", city},    {"", "Lawrence", "KS", city},
               {"", "Dallas", "OR", nullptr}, {"", "dallas", "TX", nullptr}, {"66044", "", "", nullptr}};
  for (const auto& c : cases) {
    AddLocation(2);
    Doubles.boxes.clear();
    Doubles.requests.clear();
    if (*c.city) SetupWizardForm.CityStateOption.Check(true);
    SetupWizardForm.ZipCodeInput.Text = c.zip;
    SetupWizardForm.CityInput.Text = c.city;
    if (*c.state) SelectState(c.state);
    Next();
    EXPECT_EQ(Page(), c.error ? 2 : 3) << c.zip << c.city;
    EXPECT_EQ(Doubles.boxes, c.error ? Errors({c.error}) : Errors({}));
    EXPECT_EQ(Doubles.requests.size(), c.error ? 0u : 1u);
  }
  BeginAt(2);  // a first setup
  SetupWizardForm.ZipCodeInput.Text = "10001";
  Next();
  EXPECT_EQ(Page(), 3);
}

TEST_F(WizardTest, AnUnknownPlaceOrAnUnreachableServerIsTold) {
  const char* error = "ERROR: The location you requested was not found in the Skyloft database.";
  for (const bool reachable : {true, false}) {
    Doubles.replies.clear();
    if (reachable) Doubles.Reply("location_setup.asp", Reply(""));
    BeginAt(2, false);
    Doubles.boxes.clear();
    Next();
    EXPECT_EQ(Page(), 2);
    EXPECT_EQ(Doubles.boxes, Errors({error}));
    EXPECT_EQ(Wizard.LocationFound, 0);
    EXPECT_TRUE(SetupWizardForm.NextButton.Enabled);
  }
}

TEST_F(WizardTest, TheAlertPagesNameThePlace) {
  BeginAt(4);
  const std::string place = "Lawrence, KS";
  EXPECT_EQ(SetupWizardForm.NWSLabel.Caption.Get(),
            "Would you like to be notified of National Weather Service severe weather information for " +
                place + "?* Check the appropriate boxes.");
  EXPECT_EQ(SetupWizardForm.Personal1Label.Caption.Get(),
            "Skyloft Personal Forecast Alerts allow you to set your own criteria for a variety of weather "
            "parameters. Would you like to be notified of Personal Forecast Alerts for " +
                place + "?* If YES, a Personal Forecast Alerts menu will follow.");
  EXPECT_EQ(SetupWizardForm.Personal2Label.Caption.Get(),
            "Set your desired TEMPERATURE and WIND Personal Forecast Alerts for " + place + ".");
  EXPECT_EQ(SetupWizardForm.Personal3Label.Caption.Get(),
            "Set your desired PRECIPITATION Personal Forecast Alerts for " + place + ".");
}

TEST_F(WizardTest, TheStatesAreThe49OfTheServersDatabase) {
  const std::vector<std::string>& states = SetupWizardForm.StateInput.Items();
  EXPECT_EQ(states.size(), 49u);
  EXPECT_EQ(states.front() + states[1] + states.back(), "ALARWY");
  EXPECT_EQ(std::ranges::count(states, "DC"), 1);
  EXPECT_EQ(std::ranges::count(states, "AK") + std::ranges::count(states, "HI"), 0);
}

TEST_F(WizardTest, AnOptionSwitchesItsOwnInputOnAndEmptiesTheOther) {
  SetupWizardFormControls& form = SetupWizardForm;
  AddLocation(0);
  form.ZipCodeInput.Text = "66044";
  form.CityStateOption.Check(true);
  EXPECT_TRUE(form.CityStateOption.Checked && !form.ZipCodeOption.Checked);
  EXPECT_TRUE(form.CityInput.Enabled && form.StateInput.Enabled && !form.ZipCodeInput.Enabled);
  EXPECT_EQ(form.ZipCodeInput.Text.Get(), "");
  form.CityInput.Text = "Lawrence";
  SelectState("KS");
  form.ZipCodeOption.Check(true);
  EXPECT_TRUE(form.ZipCodeOption.Checked && !form.CityStateOption.Checked);
  EXPECT_TRUE(form.ZipCodeInput.Enabled && !form.CityInput.Enabled && !form.StateInput.Enabled);
  EXPECT_EQ(form.CityInput.Text.Get(), "");
  EXPECT_EQ(form.StateInput.Text(), "AL");
  form.ZipCodeOption.Check(false);  // a click on the one that is chosen
  EXPECT_TRUE(form.ZipCodeOption.Checked);
}

TEST_F(WizardTest, CancellingTheFirstSetupEndsTheProgramWithoutSaving) {
  for (const bool by_window : {false, true}) {
    AddLocation(0);
    EXPECT_TRUE(
        EndsProcess([&] { by_window ? SetupWizardForm.Unload() : SetupWizardForm.CancelButton.Press(); }));
    EXPECT_TRUE(Doubles.store.empty());
  }
}

TEST_F(WizardTest, CancellingALaterOneOnlyHidesIt) {
  SetUpLocations(1);
  LocationProfile[ProfileRow::TornadoWarning][0] = "1";
  for (const bool edit : {false, true}) {
    for (const bool by_window : {false, true}) {
      edit ? EditLocation(0) : AddLocation(1);
      SetupWizardForm.TornadoWarning.Check(false);
      EXPECT_FALSE(
          EndsProcess([&] { by_window ? SetupWizardForm.Unload() : SetupWizardForm.CancelButton.Press(); }));
      EXPECT_FALSE(SetupWizardForm.Visible);
      EXPECT_EQ(LocationProfile[ProfileRow::TornadoWarning][0], "1");
      EXPECT_TRUE(Doubles.store.empty());
    }
  }
}

TEST_F(WizardTest, OnlyANewLocationClearsAnEarlierSearch) {
  SetUpLocations(1);
  AddLocation(1);
  SetupWizardForm.ZipCodeInput.Text = "66044";
  Next();
  SetupWizardForm.CancelButton.Press();
  EditLocation(0);
  EXPECT_EQ(Wizard.LocationFound, 1);
  AddLocation(1);
  EXPECT_EQ(Wizard.LocationFound, 0);
}

TEST_F(WizardTest, AFailureInTheMiddleOfNextLeavesThePage) {
  SetUpLocations(1);
  AddLocation(1);
  Settings.LocationIndexMax = "";  // looking for duplicates fails
  Next();
  EXPECT_EQ(Page(), 2);
}

}  // namespace
}  // namespace skyloft
