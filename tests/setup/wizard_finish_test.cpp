#include "setup/wizard_finish.h"

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "browser/selection.h"
#include "core/mainform.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "forms/initializing_form.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/settings.h"
#include "setup/alert_profile.h"
#include "ticker/messages.h"
#include "weather/almanac.h"
#include "wizard_station.h"

namespace skyloft {
namespace {

class WizardFinish : public WizardStation {
 protected:
  WizardFinish() {
    HostTable.productserver = "products.skyloft.example/";
    HostTable.messageserver = "messages.skyloft.example/messages.xml";
    // What the status line says by the time of each request.
    Doubles.during_fetch = [this](const std::string& url) {
      static constexpr const char* kKinds[] = {"d=meta",  "sectors",  "products",  "d=current",     "&st=",
                                               "/radar/", "messages", "bulletins", "location_setup"};
      for (const char* kind : kKinds) {
        if (url.find(kind) != std::string::npos) {
          told_.push_back(SetupWizardForm.Status.Caption.Get() + ": " + kind);
          buttons_off_ = buttons_off_ && !SetupWizardForm.NextButton.Enabled &&
                         !SetupWizardForm.BackButton.Enabled && !SetupWizardForm.CancelButton.Enabled;
          return;
        }
      }
      told_.push_back("? " + url);
    };
    ForecastHour[0][0].Ut = "Mar 07 2003 01:00PM";  // by which the almanac tells the zone
    ForecastHour[0][0].Lt = "Mar 07 2003 07:00AM";
    Doubles.Reply("d=meta", MetaReply({"Mar 07 2003 02:00PM"}));
    Doubles.Reply("d=current", Reply(CurrentBlock("Lawrence", 61)));
  }
  // Next from the page before the title, and Done.
  void Done(const std::string& title) {
    WalkTo(8);
    SetupWizardForm.TitleResult.Enter(title);
    told_.clear();
    buttons_off_ = true;
    Next();
  }
  void AddSecond() {
    SetUpLocations(1);
    AddLocation(1);
    SetupWizardForm.ZipCodeInput.Text = "66044";
    Done("My House");
  }
  static std::string Stored(const std::string& key, const std::string& name) {
    return Doubles.Stored("Software\\Aerolume\\Skyloft\\" + key, name);
  }

  std::vector<std::string> told_;
  bool buttons_off_ = true;
};

using Requests = std::vector<std::string>;

TEST_F(WizardFinish, TheFirstLocationIsFetchedWholeInItsOrder) {
  BeginAt(2);
  SetupWizardForm.TornadoWarning.Checked = true;
  Done("My House");
  EXPECT_EQ(told_, (Requests{
                       "connecting to Skyloft Server: d=meta",
                       "connecting to Skyloft Server: products",
                       "receiving sector data: sectors",
                       "receiving current conditions: d=current",
                       "receiving forecasts: &st=",
                       "receiving NEXRAD radar: /radar/",
                       "updating display: messages",
                       "checking warnings: bulletins",
                   }));
  EXPECT_TRUE(buttons_off_);
  EXPECT_EQ(SetupWizardForm.Status.Caption.Get(), "checking personal forecast alerts");
  EXPECT_EQ(InitializingForm.SoftwareStatus.Caption.Get(), "synchronizing");
  EXPECT_FALSE(InitializingForm.Visible);
}

TEST_F(WizardFinish, TheFirstLocationLeavesARunningStation) {
  BeginAt(2);
  SystemOptionsForm.ShowTicker.Checked = true;
  SystemOptionsForm.EmailOptionValue.Checked = true;
  SetupWizardForm.EmailOptionValue.Checked = false;
  Done("My House");
  EXPECT_EQ(SystemOptionsForm.Email1Value.Text.Get(), "a@b.example");
  EXPECT_EQ(SystemOptionsForm.Email2Value.Text.Get(), "a@b.example");
  EXPECT_TRUE(SystemOptionsForm.EmailOptionValue.Checked) << "the wish for news is not copied";
  EXPECT_EQ(MainForm.LocationSelection.Items(), std::vector<std::string>{"My House"});
  EXPECT_EQ(MainForm.LocationSelection.ListIndex(), 0);
  EXPECT_EQ(MainForm.LocationLabel.Caption.Get(), "My House");
  EXPECT_EQ(Settings.LocationIndexMax + Settings.Location, "00");
  EXPECT_TRUE(MainForm.Visible);
  EXPECT_TRUE(MainForm.TornadoButton.Visible && MainForm.PersonalAlertButton.Visible);
  EXPECT_TRUE(TickerForm.Visible);
  EXPECT_TRUE(MainForm.Clock.Enabled && MainForm.UpdateTimer.Enabled);
  EXPECT_FALSE(SetupWizardForm.Visible);
  EXPECT_EQ(Start.LocalView, "True");
  EXPECT_EQ(ObservationRecord.Tf[0], "61");
  EXPECT_NE(Almanac.Sunrise[0], "");
  EXPECT_EQ(MenuForm.EditLocationTitle[0].Caption.Get(), "My House");
  EXPECT_TRUE(MenuForm.EditLocationTitle[0].Visible);
  EXPECT_EQ(Stored("Location0", "City"), "Lawrence");
  EXPECT_EQ(Stored("Location0", "Title"), "My House");
  EXPECT_EQ(Stored("Settings", "LocationIndexMax"), "0");
  EXPECT_EQ(Stored("Options", "EmailAddress"), "a@b.example");
}

TEST_F(WizardFinish, AnUnwantedBarStaysHidden) {
  BeginAt(2);
  SystemOptionsForm.ShowTicker.Checked = false;
  Done("My House");
  EXPECT_FALSE(TickerForm.Visible);
}

TEST_F(WizardFinish, ALaterLocationIsFetchedAndSelectedAndTheProductsStay) {
  MainForm.CategorySelection.AddItem("former");
  AddSecond();
  EXPECT_EQ(told_.front(), "connecting to Skyloft Server: d=meta");
  EXPECT_EQ(std::ranges::count(told_, "updating display: messages"), 0);
  EXPECT_EQ(MainForm.CategorySelection.Items(), std::vector<std::string>{"former"});
  EXPECT_EQ(MainForm.LocationSelection.Items(), (std::vector<std::string>{"Town 0", "My House"}));
  EXPECT_EQ(MainForm.LocationSelection.ListIndex(), 1);
  EXPECT_EQ(Settings.LocationIndexMax + Settings.Location, "11");
  EXPECT_EQ(Stored("Location1", "Title"), "My House");
  EXPECT_EQ(MenuForm.DeleteLocationTitle[1].Caption.Get(), "My House");
  EXPECT_FALSE(SetupWizardForm.Visible);
  EXPECT_FALSE(MainForm.Visible) << "as it was";
}

TEST_F(WizardFinish, AnEditKeepsTheSlotAndThePlaceAndFetchesNothingButTheAlerts) {
  SetUpLocations(2);
  Place(1, "Dallas", "TX");
  LocationProfile[ProfileRow::TornadoWatch][1] = "1";
  EditLocation(1);
  SetupWizardForm.FlashFloodWarning.Check(true);
  Done("Home");
  EXPECT_EQ(told_, Requests{"checking warnings: bulletins"});
  EXPECT_EQ(LocationProfile[ProfileRow::City][1], "Dallas");
  EXPECT_EQ(LocationProfile[ProfileRow::ZipCode][1], "10001");
  EXPECT_EQ(LocationProfile[ProfileRow::FlashFloodWarning][1], "1");
  EXPECT_EQ(LocationProfile[ProfileRow::TornadoWatch][1], "1");
  EXPECT_EQ(Settings.Location, "0") << "as it was";
  EXPECT_EQ(Settings.LocationIndexMax, "1");
  EXPECT_EQ(Stored("Location1", "Title"), "Home");
  EXPECT_EQ(MenuForm.EditLocationTitle[1].Caption.Get(), "Home") << "by the save";
  EXPECT_EQ(MainForm.LocationSelection.Items()[1], "Town 1") << "the list keeps its text";
  EXPECT_EQ(SetupWizardForm.Status.Caption.Get(), "saving");
  EXPECT_FALSE(SetupWizardForm.Visible);
}

TEST_F(WizardFinish, PersonalAlertsAreCheckedAfterEachKindOfFinish) {
  const auto checked = [] {
    return std::exchange(PersonalAlertsState.PersonalAlertText, "") == "Skyloft Alert: ";
  };
  AddSecond();
  EXPECT_TRUE(checked()) << "a new location";
  EditLocation(0);
  Done("Ranch");
  EXPECT_TRUE(checked()) << "an edit that fetches its place anew";
  AddLocation(1);
  SetupWizardForm.CancelButton.Press();
  EditLocation(0);
  Done("Home");
  EXPECT_TRUE(checked()) << "an edit";
}

TEST_F(WizardFinish, ABulletinThatComesWhileTheWizardIsOpenTakesTheBarAndLeavesThePages) {
  SetUpLocations(1);
  LocationProfile[ProfileRow::TornadoWarning][0] = LocationProfile[ProfileRow::NWSAlertMessage][0] = "1";
  Doubles.Reply("bulletins.asp", Reply(Element("pc", "10000") + Element("Type", "TOR") + Element("IT", "") +
                                       Element("ET", "Mar 08 2003 12:30AM") + Element("Text", "Cover!")));
  EditLocation(0);
  SetupWizardForm.FlashFloodWarning.Check(true);
  const int page = Wizard.CurrentFrame;
  Bulletins.NWSCheckElapsed = 100000;
  MainForm.UpdateTimer.Elapse();
  EXPECT_EQ(Bulletins.NWSAlertActive, 1);
  EXPECT_TRUE(TickerForm.Visible);
  EXPECT_TRUE(SetupWizardForm.Visible);
  EXPECT_EQ(Page(), page);
  EXPECT_TRUE(SetupWizardForm.FlashFloodWarning.Checked);
  Done("Home");
  EXPECT_EQ(LocationProfile[ProfileRow::FlashFloodWarning][0], "1");
  EXPECT_EQ(Bulletins.NWSAlertActive, 1) << "the same bulletin is no news";
}

TEST_F(WizardFinish, AnEditAfterANewLocationFetchesItsOwnPlaceAnew) {
  AddSecond();
  Place(0, "Dallas", "TX");
  LocationProfile[ProfileRow::Latitude][0] = "32.78";
  LocationProfile[37][0] = "kept by nobody";
  EditLocation(0);
  SetupWizardForm.TornadoWarning.Check(true);
  Doubles.Reply("d=meta", MetaReply({"newer", "newer"}, "Mar 07 2003 06:00PM"));
  Done("Ranch");
  EXPECT_EQ(told_, (Requests{
                       "connecting to Skyloft Server: d=meta",
                       "connecting to Skyloft Server: products",
                       "receiving sector data: sectors",
                       "receiving current conditions: d=current",
                       "receiving forecasts: &st=",
                       "receiving NEXRAD radar: /radar/",
                       "receiving NEXRAD radar: /radar/",
                       "checking warnings: bulletins",
                   }));
  EXPECT_EQ(LocationProfile[ProfileRow::City][0], "Dallas");
  EXPECT_EQ(LocationProfile[ProfileRow::ZipCode][0], "10000");
  EXPECT_EQ(LocationProfile[ProfileRow::Latitude][0], "32.78");
  EXPECT_EQ(LocationProfile[ProfileRow::Title][0], "Ranch");
  EXPECT_EQ(LocationProfile[37][0], "");
  EXPECT_EQ(LocationProfile[ProfileRow::City][1], "Lawrence");
  EXPECT_EQ(Settings.Location, "0");
  EXPECT_EQ(MainForm.LocationSelection.Items(), (std::vector<std::string>{"Ranch", "My House"}));
  EXPECT_EQ(MainForm.LocationSelection.ListIndex(), 0);
  EXPECT_FALSE(SetupWizardForm.Visible);
}

TEST_F(WizardFinish, WithoutAServerTheLocationIsStoredWithoutData) {
  BeginAt(2);
  WalkTo(8);
  Doubles.replies.clear();
  Next();
  EXPECT_EQ(Stored("Location0", "City"), "Lawrence");
  EXPECT_EQ(Stored("Settings", "LocationIndexMax"), "0");
  EXPECT_EQ(ObservationRecord.Tf[0], "");
  EXPECT_TRUE(MainForm.Visible);
  EXPECT_FALSE(SetupWizardForm.Visible);
}

TEST_F(WizardFinish, AStepThatFailsLosesOnlyItself) {
  BeginAt(2);
  Doubles.missing_pictures.insert("C:\\program files\\skyloft\\icons\\personald.gif");  // the last check's
  LocationProfile[ProfileRow::TimeZone][0] = "";
  Done("My House");
  EXPECT_TRUE(MainForm.Clock.Enabled);
  EXPECT_FALSE(SetupWizardForm.Visible);
}

TEST_F(WizardFinish, ItsButtonsStayOffUntilTheWizardIsOpenedAgain) {
  AddSecond();
  EXPECT_FALSE(SetupWizardForm.NextButton.Enabled || SetupWizardForm.CancelButton.Enabled);
  EditLocation(0);
  EXPECT_TRUE(SetupWizardForm.NextButton.Enabled && SetupWizardForm.CancelButton.Enabled);
  EXPECT_EQ(SetupWizardForm.NextButton.Caption.Get(), "Next");
  EXPECT_FALSE(SetupWizardForm.BackButton.Enabled);
}

TEST_F(WizardFinish, ClosingTheWindowDuringAFinishWaitsForItsEnd) {
  BeginAt(8);
  Doubles.during_fetch = [](const std::string&) { SetupWizardForm.Unload(); };
  EXPECT_FALSE(EndsProcess([&] { Done("My House"); }));
  EXPECT_TRUE(MainForm.Visible);
}

TEST_F(WizardFinish, AFindingOfTheFirstCheckHasTheBar) {
  Doubles.Reply("bulletins.asp", Reply(Element("pc", "66044") + Element("Type", "TOR") + Element("IT", "") +
                                       Element("ET", "Mar 08 2003 12:30AM") + Element("Text", "Cover!")));
  BeginAt(2);
  SystemOptionsForm.ShowTicker.Checked = false;
  SystemOptionsForm.ShowCurrentConditions.Checked = true;  // the rotation would show it
  SetupWizardForm.TornadoWarning.Check(true);
  SetupWizardForm.NWSAlertMessage.Check(true);
  Done("My House");
  EXPECT_EQ(Bulletins.NWSAlertActive, 1);
  EXPECT_TRUE(TickerForm.Visible);
  EXPECT_NE(TickerForm.Ticker.Document.Get().find("COVER!"), std::string::npos);
}

}  // namespace
}  // namespace skyloft
