#include "setup/location_search.h"

#include "feed/hosts.h"
#include "forms/main_form.h"
#include "forms/setup_wizard_form.h"
#include "settings/location_profiles.h"
#include "wizard_station.h"

namespace skyloft {
namespace {

class LocationSearch : public WizardStation {
 protected:
  LocationSearch() {
    SetupWizardForm.ZipCodeOption.Checked = true;
    SetupWizardForm.ZipCodeInput.Text = "66044";
  }
  PlaceResults results;
};

TEST_F(LocationSearch, AZipCodeFillsTheTableAndTheCaptions) {
  Doubles.Reply("location_setup.asp", LawrenceReply());
  EXPECT_EQ(SearchLocationDatabase(results), 1);
  EXPECT_EQ(Doubles.requests,
            std::vector<std::string>{"forecast.skyloft.example/location_setup.asp?pc=66044&t=xml"});
  const char* told[] = {"66044",
                        "Lawrence",
                        "KS",
                        "Douglas",
                        "785",
                        "-6",
                        "38.9717",
                        "-95.2353",
                        "TOP",
                        "TWX",
                        "38.997",
                        "-96.232",
                        "radar.skyloft.example",
                        "Kansas",
                        "1"};
  for (int i = 0; i < PlaceResults::Size(); ++i) EXPECT_EQ(results[i], told[i]) << i;
  const auto& wizard = SetupWizardForm;
  EXPECT_EQ(wizard.ZipCodeResult.Caption.Get(), "66044");
  EXPECT_EQ(wizard.CityStateResult.Caption.Get(), "Lawrence, KS");
  EXPECT_EQ(wizard.TitleResult.Text.Get(), "Lawrence, KS");
  EXPECT_EQ(wizard.CountyResult.Caption.Get(), "Douglas");
  EXPECT_EQ(wizard.AreaCodeResult.Caption.Get(), "785");
  EXPECT_EQ(wizard.TimeZoneResult.Caption.Get(), "-6");
  EXPECT_EQ(wizard.LatitudeResult.Caption.Get(), "38.97");
  EXPECT_EQ(wizard.LongitudeResult.Caption.Get(), "-95.24");
}

TEST_F(LocationSearch, CoordinatesStayWholeInTheResultsAndAreRoundedInTheProfile) {
  Doubles.Reply("location_setup.asp", LawrenceReply());
  SearchLocationDatabase(results);
  CopyPlace(results, 3);
  EXPECT_EQ(results[PlaceEntry::Latitude], "38.9717");
  EXPECT_EQ(LocationProfile[ProfileRow::Latitude][3], "38.97");
  EXPECT_EQ(LocationProfile[ProfileRow::Longitude][3], "-95.24");
}

TEST_F(LocationSearch, EveryEntryGoesToItsRowOfTheProfile) {
  SearchLocationDatabase(results);
  CopyPlace(results, 3);
  // Rows 0 to 15; the title, row 8, is none of the place's.
  const char* rows[] = {
      "66044", "Lawrence", "KS", "Douglas", "785", "-6",     "38.97",   "-95.24",
      "",      "Kansas",   "1",  "TOP",     "TWX", "38.997", "-96.232", "radar.skyloft.example"};
  for (int row = 0; row <= ProfileRow::NEXRADServer; ++row)
    EXPECT_EQ(LocationProfile[row][3], rows[row]) << row;
}

TEST_F(LocationSearch, TwoDecimalsAreWrittenAsANumber) {
  std::string reply = LawrenceReply();
  reply.replace(reply.find("38.9717"), 7, "38.9000");
  Doubles.Reply("location_setup.asp", reply);
  SearchLocationDatabase(results);
  EXPECT_EQ(SetupWizardForm.LatitudeResult.Caption.Get(), "38.9");
}

TEST_F(LocationSearch, ACityWithABlankGoesOutUnchanged) {
  SetupWizardForm.ZipCodeOption.Checked = false;
  SetupWizardForm.CityInput.Text = "St. Paul ";
  SelectState("MN");
  SearchLocationDatabase(results);
  EXPECT_EQ(
      Doubles.requests,
      std::vector<std::string>{"forecast.skyloft.example/location_setup.asp?city=St. Paul &state=MN&t=xml"});
}

TEST_F(LocationSearch, AnEmptyZipCodeGoesOutAsSuchAndIsNotFound) {
  SetupWizardForm.ZipCodeInput.Text = "";
  Doubles.Reply("location_setup.asp", "<r/>");
  EXPECT_EQ(SearchLocationDatabase(results), 0);
  EXPECT_EQ(Doubles.requests,
            std::vector<std::string>{"forecast.skyloft.example/location_setup.asp?pc=&t=xml"});
}

TEST_F(LocationSearch, OfTwoPlacesTheFirstIsTaken) {
  Doubles.Reply("location_setup.asp",
                Reply(LawrenceReply() + Element("postal_code", "99999") + Element("city", "Other")));
  EXPECT_EQ(SearchLocationDatabase(results), 1);
  EXPECT_EQ(results[0], "66044");
  EXPECT_EQ(results[1], "Lawrence");
}

TEST_F(LocationSearch, NextIsOffAndTheStatusToldWhileItWaitsAndBothAreBackInEveryCase) {
  bool waited = false;
  Doubles.during_fetch = [&](const std::string&) {
    waited = true;
    EXPECT_FALSE(SetupWizardForm.NextButton.Enabled);
    EXPECT_EQ(SetupWizardForm.Status.Caption.Get(), "verifying location...please wait");
  };
  for (const char* reply : {"", "garbage", "<r/>"}) {
    Doubles.replies.clear();
    if (*reply) Doubles.Reply("location_setup.asp", reply);
    EXPECT_EQ(SearchLocationDatabase(results), 0);
    EXPECT_TRUE(SetupWizardForm.NextButton.Enabled);
    EXPECT_EQ(SetupWizardForm.Status.Caption.Get(), "");
  }
  EXPECT_TRUE(waited);
}

TEST_F(LocationSearch, ABusyControlIsNotFoundAndAsksNothing) {
  MainForm.Http.State = 1;
  EXPECT_EQ(SearchLocationDatabase(results), 0);
  EXPECT_TRUE(Doubles.requests.empty());
  EXPECT_TRUE(SetupWizardForm.NextButton.Enabled);
}

}  // namespace
}  // namespace skyloft
