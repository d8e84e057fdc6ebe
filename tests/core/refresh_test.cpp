#include "core/refresh.h"

#include <algorithm>

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "browser/selection.h"
#include "core/mainform.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/hosts.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/almanac.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

void SelectMinutes(ListControl& list, const std::string& minutes) {
  for (int i = 0; i < list.Count(); ++i) {
    list.Select(i);
    if (list.Text() == minutes) return;
  }
  FAIL() << "no " << minutes << " minutes";
}

// A program that runs, with one location, its forecast up to date, and no reply to anything.
class RefreshTest : public Station {
 protected:
  RefreshTest() {
    SetUpLocations(1);
    SetUpForecast("3/7/2003 1:00:00 PM", -6);
    Settings.ModelLocal = Settings.ModelServer = "Mar 07 2003 12:00PM";
    HostTable.messageinterval = "3600";
    SelectMinutes(SystemOptionsForm.CurrentConditionsIndexMax, "15");
    SelectMinutes(SystemOptionsForm.ForecastIndexMax, "60");
    SelectMinutes(SystemOptionsForm.NexradIndexMax, "10");
    SelectMinutes(SystemOptionsForm.NWSIndexMax, "5");
    MainForm.UpdateTimer.Enabled = MainForm.Clock.Enabled = true;
  }
  // Ticks of the refresh; returns how many queries of a kind went out.
  static int Ticks(int count, const std::string& kind) {
    Doubles.requests.clear();
    for (int i = 0; i < count; ++i) MainForm.UpdateTimer.Elapse();
    return static_cast<int>(std::ranges::count_if(
        Doubles.requests, [&](const std::string& url) { return url.find(kind) != std::string::npos; }));
  }
  // The tick, from 1, at which the first query of a kind goes out.
  static int FirstTick(const std::string& kind) {
    for (int tick = 1; tick <= 1000; ++tick) {
      if (Ticks(1, kind) > 0) return tick;
    }
    return 0;
  }
  static void PutFile(const std::string& name, int minutes) {
    const std::string path = "c:\\program files\\skyloft\\temp\\" + name;
    Doubles.files[path] = "x";
    Doubles.file_times[path] = DateAdd(DateUnit::Minutes, -minutes, Doubles.now);
  }
  static std::vector<std::string> Files() {
    std::vector<std::string> names;
    for (const auto& [path, bytes] : Doubles.files) names.push_back(path.substr(path.rfind('\\') + 1));
    return names;
  }
};

TEST_F(RefreshTest, APeriodIsItsIntervalAndNotEarlier) {
  SelectMinutes(SystemOptionsForm.CurrentConditionsIndexMax, "5");
  EXPECT_EQ(FirstTick("d=meta"), 10);
  EXPECT_EQ(FirstTick("d=meta"), 10);
}

TEST_F(RefreshTest, APeriodRoundsUpToTheNextTick) {
  SystemOptionsForm.CurrentConditionsIndexMax.AddItem("0.6");  // 36 seconds
  SelectMinutes(SystemOptionsForm.CurrentConditionsIndexMax, "0.6");
  EXPECT_EQ(FirstTick("d=meta"), 2);
}

TEST_F(RefreshTest, ALoweredIntervalFiresAtTheNextTick) {
  Refresh.ForecastTimer = "400";
  Refresh.CurrentTimer = 0;
  SelectMinutes(SystemOptionsForm.ForecastIndexMax, "60");
  EXPECT_EQ(Ticks(1, "d=meta"), 0);
  SelectMinutes(SystemOptionsForm.ForecastIndexMax, "5");
  EXPECT_EQ(Ticks(1, "d=meta"), 1);
  EXPECT_EQ(Refresh.ForecastTimer, "0");
}

TEST_F(RefreshTest, TheForecastCounterGoesOnFromTheHourTextOfAPicture) {
  Refresh.ForecastTimer = "066.";
  Ticks(1, "");
  EXPECT_EQ(Refresh.ForecastTimer, "96");
}

TEST_F(RefreshTest, ACounterIsClearedBeforeItsFetchSoThatARefreshLostToABusyTransportWaitsForTheNextPeriod) {
  Refresh.CurrentTimer = 15 * 60 - 30;
  MainForm.Http.State = 1;
  EXPECT_EQ(Ticks(1, "d=meta"), 0);
  EXPECT_EQ(Refresh.CurrentTimer, 0);
  MainForm.Http.State = 0;
  EXPECT_EQ(FirstTick("d=meta"), 30);
}

TEST_F(RefreshTest, AQueryThatFailsLeavesTheDataAndIsTriedAtTheNextPeriod) {
  ObservationRecord.Tf[0] = "72";
  EXPECT_EQ(FirstTick("d=meta"), 30);
  EXPECT_EQ(ObservationRecord.Tf[0], "72");
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("72 F"), std::string::npos);
  EXPECT_EQ(Settings.ModelServer, "Mar 07 2003 12:00PM");
  EXPECT_EQ(FirstTick("d=meta"), 30);
}

TEST_F(RefreshTest, ConditionsAreAskedShownAndTheTickersHourIsFound) {
  Doubles.Reply("d=meta", MetaReply({"new"}));
  Doubles.Reply("d=current", Reply(CurrentBlock("Lawrence", 61)));
  Doubles.requests.clear();
  Refresh.CurrentTimer = 15 * 60 - 30;
  Ticks(1, "");
  ASSERT_EQ(Doubles.requests.size(), 2u);
  EXPECT_NE(Doubles.requests[0].find("d=meta"), std::string::npos);
  EXPECT_NE(Doubles.requests[1].find("d=current"), std::string::npos);
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("61 F"), std::string::npos);
  EXPECT_EQ(MainForm.SysTray[1].Icon.Get(), "C:\\program files\\skyloft\\icons\\61.ico");
  EXPECT_EQ(Periods.TickerHourIndex, 7);
}

TEST_F(RefreshTest, TheHourlyPlannerIsShownAnewWithEachReadingAndNoOtherProduct) {
  int shown = 0;
  MainForm.TimeSelection.Click = [&] { ++shown; };
  MainForm.ProductSelection.AddItem("001 Hourly Planner");
  MainForm.ProductSelection.AddItem("002 Weekly Planner");
  GetPeriod(0);
  MainForm.ProductSelection.Select(0);
  shown = 0;
  Refresh.CurrentTimer = 15 * 60 - 30;
  Ticks(1, "");
  EXPECT_EQ(shown, 1);
  MainForm.ProductSelection.Select(1);
  shown = 0;
  Refresh.CurrentTimer = 15 * 60 - 30;
  Ticks(1, "");
  EXPECT_EQ(shown, 0);
}

TEST_F(RefreshTest, AnUnchangedModelAsksForNoForecastAndSumsUpNothing) {
  Doubles.Reply("d=meta", MetaReply({"s"}));
  ForecastPeriod[0][0].Temperature = "old";
  Refresh.ForecastTimer = "3570";
  Ticks(1, "");
  ASSERT_EQ(Doubles.requests.size(), 1u);
  EXPECT_NE(Doubles.requests[0].find("d=meta"), std::string::npos);
  EXPECT_EQ(ForecastPeriod[0][0].Temperature, "old");
}

TEST_F(RefreshTest, ANewModelRunsTheWholeChainInItsOrder) {
  Doubles.Reply("d=meta", MetaReply({"s"}, "Mar 07 2003 06:00PM"));
  LocationProfile[ProfileRow::Latitude][0] = "38.97";
  LocationProfile[ProfileRow::Longitude][0] = "-95.24";
  HostTable.productserver = "product.skyloft.example/";
  Refresh.ForecastTimer = "3570";
  Doubles.Reply("products.", Reply(Element("menu", "Planners")));
  Ticks(1, "");
  std::vector<std::string> kinds;
  for (const std::string& url : Doubles.requests) {
    for (const char* kind : {"d=meta", "hosts.xml", "sectors.18z.sys", "products.18z.sys.4", "&st="}) {
      if (url.find(kind) != std::string::npos) kinds.emplace_back(kind);
    }
  }
  EXPECT_EQ(kinds, (std::vector<std::string>{"d=meta", "hosts.xml", "sectors.18z.sys", "products.18z.sys.4",
                                             "&st="}));
  EXPECT_EQ(Doubles.requests.size(), kinds.size());
  EXPECT_EQ(ForecastPeriod[0][0].Temperature, "40 F");
  EXPECT_NE(Almanac.Sunrise[0], "");
  EXPECT_EQ(MainForm.CategorySelection.Items(), std::vector<std::string>{"Planners"});
  EXPECT_EQ(PersonalAlertsState.PersonalAlertText, "Skyloft Alert: ");
}

TEST_F(RefreshTest, WhileThePlayerRunsANewModelLeavesTheCategoryList) {
  Doubles.Reply("d=meta", MetaReply({"s"}, "Mar 07 2003 06:00PM"));
  Doubles.Reply("products.", Reply(Element("menu", "Planners")));
  MainForm.CategorySelection.AddItem("former");
  MainForm.ImageForwardTimer.Enabled = true;
  Refresh.ForecastTimer = "3570";
  Ticks(1, "");
  EXPECT_EQ(MainForm.CategorySelection.Items(), std::vector<std::string>{"former"});
}

TEST_F(RefreshTest, AnErrorOfAnEarlierStepLosesTheLaterOnesOnceAndTheNextTickRunsThemAll) {
  Bulletins.NWSAlertActive = 1;  // whose end sets its buttons, which nothing guards
  Doubles.missing_pictures.insert("C:\\program files\\skyloft\\icons\\tornadod.gif");
  Refresh.CurrentTimer = 15 * 60;
  EXPECT_EQ(Ticks(1, "d=meta"), 0);
  EXPECT_EQ(Refresh.MessageTimer, 0);
  EXPECT_EQ(Refresh.CurrentTimer, 15 * 60) << "not even counted";
  Doubles.missing_pictures.clear();
  EXPECT_EQ(Ticks(1, "d=meta"), 1);
  EXPECT_EQ(Refresh.MessageTimer, 30);
}

TEST_F(RefreshTest, AnErrorOfAStepThatNothingGuardsEndsTheTick) {
  LocationProfile[ProfileRow::Latitude][0] = "38.97";
  LocationProfile[ProfileRow::Longitude][0] = "-95.24";
  Doubles.Reply("d=meta", MetaReply({"s"}, "Mar 07 2003 06:00PM"));
  Doubles.Reply("products.", Reply(Element("menu", "Planners")));
  for (int h = 0; h < 66; ++h) ForecastHour[0][h].Desc = "unknown";  // summing up fails
  Refresh.ForecastTimer = "3570";
  Ticks(1, "");
  EXPECT_EQ(Almanac.Sunrise[0], "");
  EXPECT_EQ(MainForm.CategorySelection.Count(), 0);
  EXPECT_EQ(Refresh.ForecastTimer, "0");
}

TEST_F(RefreshTest, TheCycleNeverWritesTheDataFile) {
  Doubles.Reply("d=meta", MetaReply({"new"}, "Mar 07 2003 06:00PM"));
  Doubles.Reply("d=current", Reply(CurrentBlock("Lawrence", 61)));
  Ticks(120, "");
  EXPECT_EQ(ObservationRecord.Tf[0], "61");
  EXPECT_TRUE(Files().empty());
  EXPECT_TRUE(Doubles.store.empty()) << "nor the store";
}

TEST_F(RefreshTest, BulletinsAreCheckedOnlyWhileNoneIsOnDisplay) {
  Ticks(9, "");
  EXPECT_EQ(Bulletins.NWSCheckElapsed, 270);
  Ticks(1, "");
  EXPECT_EQ(Bulletins.NWSCheckElapsed, 0) << "five minutes";
  Bulletins.NWSAlertActive = 1;
  Bulletins.NWSAlertDuration = 1e9;
  Ticks(12, "");
  EXPECT_EQ(Bulletins.NWSCheckElapsed, 360);
  Bulletins.NWSAlertActive = 0;
  Ticks(1, "");
  EXPECT_EQ(Bulletins.NWSCheckElapsed, 0) << "due at once afterwards";
}

TEST_F(RefreshTest, ABulletinOf240SecondsEndsAtTheEighthTick) {
  Bulletins.NWSAlertActive = 1;
  Bulletins.NWSAlertDuration = 240;
  Bulletins.TornadoAlertText = "TORNADO";
  MainForm.ThunderstormButton.Enabled = MainForm.FloodButton.Enabled = true;
  MainForm.ThunderstormButton.SetPicture("lit", 1, 1);
  MainForm.FloodButton.SetPicture("lit", 1, 1);
  TickerForm.Visible = true;
  SystemOptionsForm.ShowTicker.Checked = false;
  Ticks(7, "");
  EXPECT_EQ(Bulletins.NWSAlertActive, 1);
  EXPECT_TRUE(TickerForm.Visible);
  Ticks(1, "");
  EXPECT_EQ(Bulletins.NWSAlertActive, 0);
  EXPECT_EQ(Bulletins.NWSAlertElapsed, 0);
  EXPECT_EQ(Bulletins.NWSAlertDuration, 0);
  EXPECT_FALSE(TickerForm.Visible);
  const std::string icons = "C:\\program files\\skyloft\\icons\\";
  EXPECT_TRUE(MainForm.TornadoButton.Enabled);
  EXPECT_EQ(MainForm.TornadoButton.PicturePath(), icons + "tornados.gif");
  EXPECT_FALSE(MainForm.ThunderstormButton.Enabled);
  EXPECT_EQ(MainForm.ThunderstormButton.PicturePath(), icons + "tstormd.gif");
  EXPECT_FALSE(MainForm.FloodButton.Enabled);
  EXPECT_EQ(MainForm.FloodButton.PicturePath(), icons + "floodd.gif");
}

TEST_F(RefreshTest, EachButtonWithATextWaitsLitAfterItsBulletin) {
  Bulletins.NWSAlertActive = 1;
  Bulletins.ThunderstormAlertText = Bulletins.FloodAlertText = "WARNING";
  Ticks(1, "");
  const std::string icons = "C:\\program files\\skyloft\\icons\\";
  EXPECT_EQ(MainForm.TornadoButton.PicturePath(), icons + "tornadod.gif");
  EXPECT_EQ(MainForm.ThunderstormButton.PicturePath(), icons + "tstorms.gif");
  EXPECT_EQ(MainForm.FloodButton.PicturePath(), icons + "floods.gif");
  EXPECT_TRUE(MainForm.ThunderstormButton.Enabled && MainForm.FloodButton.Enabled);
}

TEST_F(RefreshTest, AnEndOfAnAlertLeavesTheTickerThatTheUserWants) {
  SystemOptionsForm.ShowTicker.Checked = true;
  TickerForm.Visible = true;
  Bulletins.NWSAlertActive = PersonalAlertsState.PersonalAlertActive = 1;
  Ticks(1, "");
  EXPECT_EQ(Bulletins.NWSAlertActive + PersonalAlertsState.PersonalAlertActive, 0);
  EXPECT_TRUE(TickerForm.Visible);
}

TEST_F(RefreshTest, APersonalAlertEndsAfterItsDurationAndItsButtonWaits) {
  PersonalAlertsState.PersonalAlertActive = 1;
  PersonalAlertsState.PersonalAlertDuration = 60;
  TickerForm.Visible = true;
  MainForm.PersonalAlertButton.Enabled = false;
  Ticks(1, "");
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 1);
  EXPECT_EQ(Bulletins.NWSCheckElapsed, 30) << "bulletins are checked on";
  Ticks(1, "");
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertElapsed, 0);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 0);
  EXPECT_FALSE(TickerForm.Visible);
  EXPECT_TRUE(MainForm.PersonalAlertButton.Enabled);
  EXPECT_EQ(MainForm.PersonalAlertButton.PicturePath(), "C:\\program files\\skyloft\\icons\\personals.gif");
}

TEST_F(RefreshTest, MessagesAreReadAtTheIntervalOfTheHostTableAndWithoutOneAtEveryTick) {
  HostTable.messageinterval = "90";
  Ticks(2, "");
  EXPECT_EQ(Refresh.MessageTimer, 60);
  Ticks(1, "");
  EXPECT_EQ(Refresh.MessageTimer, 0);
  HostTable.messageinterval = "";
  Ticks(1, "");
  EXPECT_EQ(Refresh.MessageTimer, 0) << "0 seconds";
}

TEST_F(RefreshTest, ARadarRefreshShowsTheFramesAndResetsThePlayersRangeOnlyInTheRadarCategory) {
  LocationProfile[ProfileRow::TimeZone][0] = "-6";
  for (const char* stamp : {"030720031940", "030720031950", "030720032000"}) {  // it is 20:05 GMT
    PutFile(std::string("nexr.ktw0.") + stamp + ".png", 0);
  }
  MainForm.CategorySelection.AddItem("Planners");
  MainForm.CategorySelection.AddItem("NEXRAD Radar");
  MainForm.CategorySelection.Click = {};
  Browser.SelectedProduct = "Reflectivity";
  for (const auto& [category, hours, title] : {std::tuple{0, 65, std::string("before")},
                                               {1, 2, std::string("Reflectivity 02:00 PM CST 03/07/03")}}) {
    MainForm.CategorySelection.Select(category);
    MainForm.TimeSelection.Clear();
    Periods.HourIndexMax = 65;
    Browser.HourIndexMin = 7;
    MainForm.ProductTitle.Caption = "before";
    Refresh.NexradTimer = 570;
    EXPECT_EQ(Ticks(1, "/radar/"), 0) << "the newest frame is fresh";
    EXPECT_EQ(Refresh.NexradTimer, 0);
    EXPECT_EQ(Periods.HourIndexMax, hours);
    EXPECT_EQ(Browser.HourIndexMin, category == 1 ? 0 : 7);
    EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), title);
    EXPECT_EQ(MainForm.Thumbnail.PicturePath(),
              "C:\\program files\\skyloft\\temp\\nexr.ktw0.030720032000.png");
  }
}

TEST_F(RefreshTest, AFileOf720MinutesStaysAndOneOf721Goes) {
  PutFile("a.gif", 721);
  PutFile("b.gif", 720);
  PutFile("c.gif", 0);
  PutFile("d.gif", 100000);
  PutFile("e.gif", -60);  // from the future
  CleanTempFolder();
  EXPECT_EQ(Files(), (std::vector<std::string>{"b.gif", "c.gif", "e.gif"}));
  EXPECT_EQ(MainForm.FileList.Files.size(), 5u) << "what the list showed";
}

TEST_F(RefreshTest, AFileThatCannotBeDeletedEndsTheCleaningAndDeletionsMadeStand) {
  PutFile("a.gif", 721);
  PutFile("b.gif", 721);
  PutFile("c.gif", 721);
  Doubles.file_failure.at = 2;  // the second deletion
  Ticks(1, "");
  EXPECT_EQ(Files(), (std::vector<std::string>{"b.gif", "c.gif"}));
  EXPECT_EQ(Refresh.MessageTimer, 30) << "the tick goes on";
}

TEST_F(RefreshTest, TheClockTellsTheLocationsTimeWithItsZone) {
  LocationProfile[ProfileRow::TimeZone][0] = "-5";
  Doubles.zone = {360, 1};
  MainForm.Clock.Elapse();
  EXPECT_EQ(MainForm.TimeValue.Caption.Get(), "Local Time: 3:05:09 PM EST");
  Doubles.now = MakeDate(2003, 3, 7, 23, 59, 59);
  MainForm.Clock.Elapse();
  EXPECT_EQ(MainForm.TimeValue.Caption.Get(), "Local Time: 12:59:59 AM EST");
}

TEST_F(RefreshTest, TheChannelsNumberGoesAfterThreeSeconds) {
  MainForm.ProductSelection.AddItem("042 Reflectivity");
  MainForm.ProductSelection.Select(0);
  EXPECT_TRUE(MainForm.Channel.Visible);
  for (const bool visible : {true, true, false, false}) {
    MainForm.Clock.Elapse();
    EXPECT_EQ(MainForm.Channel.Visible, visible);
  }
  EXPECT_EQ(Refresh.ChannelCounter, 3);
  MainForm.ProductSelection.Select(0);
  EXPECT_TRUE(MainForm.Channel.Visible);
}

TEST_F(RefreshTest, TheTickerFollowsTheWorkAreaWithinASecondAndElseStaysWhereItIs) {
  TickerForm.Height = 525;
  SystemOptionsForm.TopScreenPosition.Checked = false;
  MainForm.Clock.Elapse();
  EXPECT_EQ(TickerForm.Top, 1000 * 15 - 525);
  TickerForm.Top = 77;
  MainForm.Clock.Elapse();
  EXPECT_EQ(TickerForm.Top, 77) << "nothing changed";
  Doubles.work_area.height = 900 * 15;
  MainForm.Clock.Elapse();
  EXPECT_EQ(TickerForm.Top, 900 * 15 - 525);
  SystemOptionsForm.TopScreenPosition.Checked = true;
  Doubles.work_area.top = 30;
  MainForm.Clock.Elapse();
  EXPECT_EQ(TickerForm.Top, 30);
  EXPECT_EQ(Start.WorkAreaTopSaved, 30);
  EXPECT_EQ(Start.WorkAreaHeightSaved, 900 * 15);
}

TEST_F(RefreshTest, TheTickerStepsEverySecondWhileItIsVisibleAndNoAlertShows) {
  const struct {
    bool visible;
    int bulletin, personal;
    bool steps;
  } cases[] = {{true, 0, 0, true}, {false, 0, 0, false}, {true, 1, 0, false}, {true, 0, 1, false}};
  for (const auto& c : cases) {
    TickerForm.Visible = c.visible;
    Bulletins.NWSAlertActive = c.bulletin;
    PersonalAlertsState.PersonalAlertActive = c.personal;
    TickerForm.Ticker.Enabled = true;
    MainForm.Clock.Elapse();
    EXPECT_EQ(TickerForm.Ticker.Enabled, !c.steps);  // a step lets presses through
  }
}

TEST_F(RefreshTest, AClockTickRunsInsideAFetchOfARefreshAndARefreshDoesNotEnterItself) {
  int refreshes = 0;
  Doubles.during_fetch = [&](const std::string&) {
    ++refreshes;
    MainForm.TimeValue.Caption = "";
    MainForm.Clock.Elapse();
    EXPECT_NE(MainForm.TimeValue.Caption.Get(), "");
    MainForm.UpdateTimer.Elapse();
  };
  Refresh.CurrentTimer = 15 * 60 - 30;
  Ticks(1, "");
  EXPECT_EQ(refreshes, 1);
  EXPECT_EQ(Refresh.NexradTimer, 30) << "one tick was counted";
}

}  // namespace
}  // namespace skyloft
