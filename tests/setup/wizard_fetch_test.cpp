// What the wizard's finish fetches and fills.
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "settings/settings.h"
#include "setup/wizard_finish.h"
#include "ticker/message_feed.h"
#include "weather/periods.h"
#include "wizard_station.h"

namespace skyloft {
namespace {

const std::string kModel = "Mar 07 2003 12:00PM";

class WizardFetch : public WizardStation {
 protected:
  WizardFetch() {
    Doubles.Reply("d=meta", MetaReply({"Mar 07 2003 02:00PM", "Mar 07 2003 02:00PM"}, kModel));
  }

  // One location, with a forecast of the model run that the server has.
  static void BeginWithOne() {
    SetUpLocations(1);
    SetUpForecast("3/7/2003 1:00:00 PM", -6);
    Settings.ModelLocal = kModel;
  }
  static void WalkToTheSecond() {
    AddLocation(1);
    SetupWizardForm.ZipCodeInput.Text = "66045";
    WalkTo(8);
  }
  static void AddSecond() {
    WalkToTheSecond();
    Doubles.requests.clear();
    Next();
  }
  static std::vector<std::string> ForecastRequests() {
    std::vector<std::string> found;
    for (const std::string& url : Doubles.requests) {
      if (url.find("&st=") != url.npos) found.push_back(url.substr(0, url.find("&st=")));
    }
    return found;
  }
  static std::vector<std::string> Categories() { return MainForm.CategorySelection.Items(); }
};

TEST_F(WizardFetch, OfAModelRunThatIsHeldTheForecastOfTheNewLocationAloneIsFetchedAndSummedUp) {
  BeginWithOne();
  ForecastHour[1] = ForecastHour[0];
  AddSecond();
  EXPECT_EQ(ForecastRequests(), std::vector<std::string>{"forecast.skyloft.example/forecast.asp?pc=66044"});
  EXPECT_NE(ForecastPeriod[1][0].Temperature, "");
  EXPECT_EQ(ForecastPeriod[0][0].Temperature, "");
}

TEST_F(WizardFetch, ALocationThatGotNoForecastGetsItWithTheNextRefresh) {
  for (const bool busy : {true, false}) {  // a fetch of the refresh is under way, or the server is away
    BeginWithOne();
    WalkToTheSecond();
    MainForm.Http.State = busy ? 1 : 0;
    Next();
    MainForm.Http.State = 0;
    EXPECT_EQ(Doubles.Stored("Software\\Aerolume\\Skyloft\\Location1", "City"), "Lawrence");
    EXPECT_FALSE(SetupWizardForm.Visible);
    Doubles.requests.clear();
    Refresh.ForecastTimer = "100000";
    MainForm.UpdateTimer.Elapse();
    ASSERT_EQ(ForecastRequests().size(), 1u) << busy;
    EXPECT_TRUE(ForecastRequests()[0].ends_with("66044"));
    MainForm.LocationSelection.Clear();
  }
}

TEST_F(WizardFetch, AForecastThatCameIsNotAskedForAgain) {
  BeginWithOne();
  ForecastHour[1] = ForecastHour[0];
  ForecastDay[1] = ForecastDay[0];
  AddSecond();
  EXPECT_EQ(Settings.ModelLocal, kModel);
}

TEST_F(WizardFetch, ProductsAreListedAnewForTheFirstLocationAndForAnEditThatFetchesAnew) {
  MainForm.CategorySelection.AddItem("former");
  BeginAt(8);
  Next();
  EXPECT_TRUE(Categories().empty()) << "the server has none";
  MainForm.CategorySelection.AddItem("former");
  AddSecond();
  EXPECT_EQ(Categories(), std::vector<std::string>{"former"});
  EditLocation(0);
  WalkTo(8);
  Next();
  EXPECT_TRUE(Categories().empty());
}

TEST_F(WizardFetch, TheFirstLocationBringsTheBannersAndALaterOneDoesNot) {
  HostTable.messageserver = "messages.skyloft.example/messages.xml";
  Doubles.Reply("messages.xml", MessageReply({{"0", "a banner"}}));
  BeginAt(8);
  Next();
  EXPECT_EQ(SystemOptionsForm.SponsorBanner.Document.Get(), MainForm.Sponsor0.Document.Get());
  EXPECT_NE(MainForm.Sponsor0.Document.Get().find("a banner"), std::string::npos);
  Doubles.Reply("messages.xml", MessageReply({{"0", "another"}}));
  AddSecond();
  EXPECT_NE(MainForm.Sponsor0.Document.Get().find("a banner"), std::string::npos);
}

}  // namespace
}  // namespace skyloft
