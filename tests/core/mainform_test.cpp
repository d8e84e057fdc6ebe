#include "core/mainform.h"

#include "alerts/personal_alerts.h"
#include "core/chrome.h"

#include "feed/hosts.h"
#include "feed/observations.h"
#include "forms/initializing_form.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/setup_wizard_form.h"
#include "forms/system_font_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/location_profiles.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

constexpr const char* kDataFile = "c:\\program files\\skyloft\\sklt.dat";

class StartUp : public Station {
 protected:
  // A server that answers, and `count` locations in the store.
  static void SetUpStored(int count) {
    Doubles.Reply("hosts.xml", Reply(Element("version", "1.20.00") + Element("forecastserver", "server/") +
                                     Element("messageserver", "messages")));
    LoadOptions();  // the defaults, as at any start
    SetUpLocations(count);
    SaveSystem();
    MainForm.LocationSelection.Clear();
    LocationProfile = {};
    Settings = {};
    std::vector<std::string> stamps;
    std::string blocks;
    for (int i = 0; i < count; ++i) {
      stamps.push_back("stamp " + std::to_string(i));
      blocks += CurrentBlock("City " + std::to_string(i), 60 + i);
    }
    Doubles.Reply("d=meta", MetaReply(stamps));
    Doubles.Reply("d=current", Reply(blocks));
  }
};

TEST_F(StartUp, TheInstallPathIsTheDriveOfTheApplicationWhateverTheRealFolder) {
  Doubles.application_path = "D:\\any\\other folder\\program.exe";
  SetInstallPath();
  EXPECT_EQ(Settings.InstallPath, "D:\\program files\\skyloft");
}

TEST_F(StartUp, FiveStoredLocationsAreShownWithTheirConditions) {
  SetUpStored(5);
  LoadMainForm();
  EXPECT_TRUE(MainForm.Visible);
  EXPECT_EQ(MainForm.LocationSelection.Count(), 5);
  EXPECT_EQ(MainForm.LocationSelection.ListIndex(), 0);
  EXPECT_EQ(MainForm.LocationLabel.Caption.Get(), "Town 0");
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("Temperature</B>: 60 F"), std::string::npos);
  MainForm.LocationSelection.Select(4);
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("Temperature</B>: 64 F"), std::string::npos);
}

TEST_F(StartUp, EachQueryIsSentOnceForAllLocationsInTheOrderOfTheSteps) {
  SetUpStored(2);
  LoadMainForm();
  // The hourly query has no reply here, so that the extended one is not sent.
  EXPECT_EQ(Doubles.requests,
            (std::vector<std::string>{
                "www.skyloft.example/skyloft/config/hosts.xml",
                "server/forecast.asp?pc=10000&pc=10001&t=xml&d=meta", "products.12z.sys.4", "sectors.12z.sys",
                "server/forecast.asp?pc=10000&pc=10001&t=xml&d=current",
                "server/forecast.asp?pc=10000&pc=10001"
                "&st=1%2F1%2F2000+0%3A00%3A00+AM&et=12%2F31%2F2100+12%3A00%3A00+AM"
                "&t=xml",
                "radar.skyloft.example/radar/images/DS.p19r0/SI.ktw0/latest.gif",
                "radar.skyloft.example/radar/images/DS.p19r0/SI.ktw1/latest.gif", "messages.1"}));
}

TEST_F(StartUp, WithoutALocationTheWizardRunsAndTheSplashIsNotUsed) {
  Doubles.Reply("hosts.xml", Reply(Element("version", "1.20.00")));
  bool splash = false;
  Doubles.during_fetch = [&](const std::string&) { splash |= InitializingForm.Visible; };
  LoadMainForm();
  EXPECT_TRUE(SetupWizardForm.Visible);
  EXPECT_FALSE(MainForm.Visible);
  EXPECT_FALSE(InitializingForm.Visible);
  EXPECT_FALSE(splash);
  EXPECT_FALSE(MainForm.Clock.Enabled);
  EXPECT_FALSE(MainForm.UpdateTimer.Enabled);
  EXPECT_EQ(Start.LocalView, std::string("True"));
}

TEST_F(StartUp, TheSplashTellsTheStepThatRunsAndTheTimersAreOff) {
  SetUpStored(1);
  std::vector<std::string> told;
  Doubles.during_fetch = [&](const std::string& url) {
    if (url.find("forecast.asp") == std::string::npos) return;
    told.push_back(InitializingForm.SoftwareStatus.Caption.Get() + " " +
                   std::to_string(InitializingForm.ProgressBar.Value));
    EXPECT_TRUE(InitializingForm.Visible);
    EXPECT_EQ(InitializingForm.ProgressBar.Max, 13);
    EXPECT_FALSE(MainForm.Visible);
    EXPECT_FALSE(MainForm.Clock.Enabled);
  };
  LoadMainForm();
  EXPECT_EQ(told, (std::vector<std::string>{"connecting to Skyloft Server 0",
                                            "receiving current conditions 2", "receiving forecasts 3"}));
  EXPECT_FALSE(InitializingForm.Visible);
  EXPECT_EQ(InitializingForm.ProgressBar.Value, 0);
  EXPECT_EQ(InitializingForm.SoftwareStatus.Caption.Get(), "checking personal forecast alerts");
  EXPECT_TRUE(MainForm.Clock.Enabled);
  EXPECT_TRUE(MainForm.UpdateTimer.Enabled);
}

TEST_F(StartUp, TheLocationIsSelectedAfterSavingAndBeforeTheWindowIsShown) {
  SetUpStored(1);
  int selected = 0;
  MainForm.LocationSelection.Click = [&] {
    ++selected;
    EXPECT_EQ(InitializingForm.SoftwareStatus.Caption.Get(), "updating display");
    EXPECT_EQ(InitializingForm.ProgressBar.Value, 9);
    EXPECT_FALSE(MainForm.Visible);
    EXPECT_TRUE(Doubles.files.contains(kDataFile));
  };
  LoadMainForm();
  EXPECT_EQ(selected, 1);
}

// Two rows set no text and no value: the messages, and the severe buttons. The splash stays over the visible
// main window for the last rows.
TEST_F(StartUp, EveryRowSetsItsTextAndItsValueAndTheSplashStaysOverTheMainWindow) {
  SetUpStored(1);
  LoadSystem();
  InitializingForm.Visible = true;
  struct Row {
    const char* status;
    int value;
    bool main_window;
  };
  const Row told[] = {{"connecting to Skyloft Server", 1, false},
                      {"receiving sector data", 2, false},
                      {"receiving current conditions", 3, false},
                      {"receiving forecasts", 4, false},
                      {"processing forecasts", 5, false},
                      {"processing almanac", 6, false},
                      {"receiving NEXRAD radar", 7, false},
                      {"updating products", 8, false},
                      {"updating products", 8, false},
                      {"saving", 9, false},
                      {"updating display", 10, false},
                      {"receiving sponsor", 11, true},
                      {"receiving sponsor", 11, true},
                      {"checking warnings", 12, true},
                      {"checking personal forecast alerts", 13, true}};
  ASSERT_EQ(StartSteps().size(), std::size(told));
  for (size_t i = 0; i < std::size(told); ++i) {
    RunStartStep(StartSteps()[i]);
    EXPECT_EQ(InitializingForm.SoftwareStatus.Caption.Get(), told[i].status) << i;
    EXPECT_EQ(InitializingForm.ProgressBar.Value, told[i].value) << i;
    EXPECT_EQ(MainForm.Visible, told[i].main_window) << i;
    EXPECT_TRUE(InitializingForm.Visible) << i;
    EXPECT_EQ(MainForm.TornadoButton.Visible, i >= 12) << i;
  }
}

TEST_F(StartUp, BulletinsAndPersonalAlertsAreCheckedLast) {
  SetUpStored(1);
  Doubles.Store("Software\\Aerolume\\Skyloft\\Location0", "TornadoWarning", "1");
  LoadMainForm();
  EXPECT_EQ(Doubles.requests.back(), "server/bulletins.asp?pc=10000&t=xml");
  EXPECT_EQ(PersonalAlertsState.PersonalAlertText, "Skyloft Alert: ");
}

TEST_F(StartUp, AnEndThatTheDesktopAsksForSavesOnlyWhatWasLoaded) {
  SetUpStored(2);
  const auto before = Doubles.store;
  EXPECT_TRUE(EndsProcess(LeaveProgram));
  EXPECT_EQ(Doubles.store, before) << "nothing was read yet";
  LoadMainForm();
  MainForm.LocationSelection.Select(1);
  EXPECT_TRUE(EndsProcess(LeaveProgram));
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "Location"), "1");
}

TEST_F(StartUp, AStoredLocationOutsideTheListEndsTheProcessAndTheCacheIsGone) {
  for (const char* location : {"5", "-1", "", "4294967296"}) {
    MainForm = {};
    Doubles = {};
    ConnectForms();
    SetUpStored(2);
    Doubles.Store(kSettingsKey, "Location", location);
    EXPECT_TRUE(EndsProcess(LoadMainForm)) << location;
    EXPECT_FALSE(Doubles.files.contains(kDataFile)) << location;
    EXPECT_TRUE(Doubles.boxes.empty());
    EXPECT_FALSE(MainForm.Visible);
  }
}

TEST_F(StartUp, AServerThatIsGoneAfterTheHostTableLeavesTheOldDataOnShow) {
  SetUpStored(2);
  LoadMainForm();
  MenuForm = {};
  Doubles.replies.clear();
  Doubles.Reply("hosts.xml", Reply(Element("version", "1.20.00")));
  ObservationRecord = {};
  MainForm.Visible = false;
  LoadMainForm();
  EXPECT_TRUE(MainForm.Visible);
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("Temperature</B>: 60 F"), std::string::npos);
}

TEST_F(StartUp, AnUnreachableServerEndsTheProcessWithItsCachedDataUntouched) {
  SetUpStored(1);
  Doubles.replies.clear();
  EXPECT_TRUE(EndsProcess(LoadMainForm));
  EXPECT_TRUE(Doubles.files.contains(kDataFile));
  EXPECT_EQ(Doubles.boxes.size(), 1u);
  EXPECT_FALSE(InitializingForm.Visible);
}

TEST_F(StartUp, TheTickerIsSizedAndPlacedByTheWorkArea) {
  Doubles.work_area = {600, 15000, 12000};
  SetUpStored(1);
  for (const char* page :
       {"ShowCurrentConditions", "ShowHourlyForecast", "Show3DayForecast", "ShowAlmanac"}) {
    Doubles.Store(kOptionsKey, page, "0");
  }
  LoadMainForm();
  EXPECT_EQ(TickerForm.Height, 525);
  EXPECT_EQ(TickerForm.Width, 15000);
  EXPECT_EQ(TickerForm.Ticker.Height, 35);
  EXPECT_EQ(TickerForm.Ticker.Width, 1000);
  EXPECT_EQ(TickerForm.Top, 600 + 12000 - 525);
  EXPECT_EQ(TickerForm.Left, 0);
  EXPECT_TRUE(TickerForm.Visible);
  EXPECT_FALSE(TickerForm.TopMost());
  EXPECT_EQ(
      TickerForm.Ticker.Document.Get(),
      "<html><body bgcolor='000000' topmargin='0' leftmargin='0' marginheight='0' marginwidth='0'></body>"
      "</html>");
  EXPECT_EQ(Start.WorkAreaTopSaved, 600);
  EXPECT_EQ(Start.WorkAreaHeightSaved, 12000);
}

TEST_F(StartUp, TheTickersPlaceLooksOnlyAtTheTopOption) {
  Doubles.work_area = {600, 15000, 12000};
  SetUpStored(1);
  Doubles.Store(kOptionsKey, "TopScreenPosition", "1");
  Doubles.Store(kOptionsKey, "BottomScreenPosition", "1");
  LoadMainForm();
  EXPECT_EQ(TickerForm.Top, 600);
}

TEST_F(StartUp, TheTickerFollowsItsOptions) {
  SetUpStored(1);
  Doubles.Store(kOptionsKey, "AlwaysOnTop", "1");
  LoadMainForm();
  EXPECT_TRUE(TickerForm.TopMost());
  TickerForm = {};
  Doubles.Store(kOptionsKey, "ShowTicker", "0");
  LoadMainForm();
  EXPECT_FALSE(TickerForm.Visible);
  EXPECT_FALSE(TickerForm.TopMost());
}

TEST_F(StartUp, AnotherNumberOfDotsPerInchShowsOnlyItsWarningAndFetchesNothing) {
  SetUpStored(1);
  Doubles.requests.clear();
  Doubles.dots_per_inch = 120;
  LoadMainForm();
  EXPECT_TRUE(SystemFontForm.Visible);
  EXPECT_FALSE(MainForm.Visible);
  EXPECT_FALSE(InitializingForm.Visible);
  EXPECT_FALSE(TickerForm.Visible);
  EXPECT_TRUE(Doubles.requests.empty());
  EXPECT_EQ(Start.LocalView, std::string("True"));
  const int syncs = Doubles.store_syncs;
  EXPECT_TRUE(EndsProcess([] { SystemFontForm.OKButton.Press(); }));
  EXPECT_TRUE(EndsProcess([] { Fire(SystemFontForm.Unload); }));
  EXPECT_EQ(Doubles.store_syncs, syncs) << "it ends without saving";
}

TEST_F(StartUp, TheTwoStyleObjectsAreAttached) {
  SetUpStored(1);
  LoadMainForm();
  EXPECT_EQ(Chrome.MainWindow.Client(), &MainForm);
  EXPECT_EQ(Chrome.TickerWindow.Client(), &TickerForm);
}

TEST_F(StartUp, TheWindowGetsItsShape) {
  SetUpStored(1);
  LoadMainForm();
  EXPECT_EQ(Doubles.regions, std::vector<RoundRegion>({{0, -2, 800, 590, 110, 96}}));
}

TEST_F(StartUp, TheExitButtonAndACloseRequestOnlyHideTheWindow) {
  SetUpStored(1);
  LoadMainForm();
  MainForm.ExitButton.Press();
  EXPECT_FALSE(MainForm.Visible);
  EXPECT_TRUE(MainForm.Clock.Enabled);
  EXPECT_TRUE(MainForm.UpdateTimer.Enabled);
  MainForm.Visible = true;
  Fire(MainForm.Unload);
  EXPECT_FALSE(MainForm.Visible);
}

TEST_F(StartUp, ACloseRequestOfTheSplashOrTheOptionsIsIgnored) {
  for (Form* form : {static_cast<Form*>(&InitializingForm), static_cast<Form*>(&SystemOptionsForm)}) {
    form->Visible = true;
    EXPECT_FALSE(EndsProcess([&] { Fire(form->Unload); })) << form->Name();
    EXPECT_TRUE(form->Visible) << form->Name();
  }
}

TEST_F(StartUp, TheSupportLinkOpensTheUsersMailProgram) {
  InitializingForm.EmailLink.Press();
  ASSERT_EQ(Doubles.links.size(), 1u);
  EXPECT_EQ(Doubles.links[0].substr(0, 7), "mailto:");
}

TEST_F(StartUp, AFailureOfAnyFileCallDoesNotEndTheStart) {
  for (int call = 1; call <= 4; ++call) {
    Doubles = {};
    MainForm = {};
    ConnectForms();
    SetUpStored(1);
    Doubles.file_failure.at = call;
    EXPECT_FALSE(EndsProcess(LoadMainForm)) << call;
    EXPECT_TRUE(MainForm.Visible) << call;
  }
}

// A refused read yields the default: without LocationIndexMax the wizard comes, without Location the start
// ends.
TEST_F(StartUp, ARefusedCallOfTheStoreLeadsToOneOfTheToldEnds) {
  std::map<std::string, int> ends;
  for (int call = 1; call <= 300; ++call) {
    Doubles = {};
    MainForm = {};
    SetupWizardForm = {};
    ConnectForms();
    SetUpStored(1);
    Doubles.store_failure.at = call;
    if (EndsProcess(LoadMainForm)) {
      ++ends["ended"];
      EXPECT_FALSE(Doubles.files.contains(kDataFile)) << call;
    } else {
      EXPECT_NE(MainForm.Visible, SetupWizardForm.Visible) << call;
      ++ends[MainForm.Visible ? "shown" : "wizard"];
    }
  }
  EXPECT_EQ(ends["ended"], 1);
  EXPECT_EQ(ends["wizard"], 1);
  EXPECT_EQ(ends["shown"], 298);
}

}  // namespace
}  // namespace skyloft
