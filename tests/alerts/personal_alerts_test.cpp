#include "alerts/personal_alerts.h"

#include "alert_station.h"
#include "core/mainform.h"
#include "feed/forecast.h"
#include "settings/settings.h"
#include "ticker/messages.h"
#include "ticker/ticker.h"

namespace skyloft {
namespace {

// Two towns, their hours from 7 AM on Friday, 7 March 2003; now it is 2:05 PM in the first town.
class PersonalAlertsTest : public AlertStation {
 protected:
  PersonalAlertsTest() {
    LocationProfile[ProfileRow::TimeZone][0] = "-6";
    SetUpForecast("3/7/2003 1:00:00 PM", -6);
    Wish(0, {ProfileRow::SKLTPersonalAlert, ProfileRow::SKLTAlertMessage});
  }
  // A threshold that is looked at.
  static void Limit(int slot, int row, const std::string& threshold) {
    LocationProfile[row][slot] = "1";
    LocationProfile[row + 1][slot] = threshold;
  }
  // As found for an hour of the first town, whose times are in `time`.
  static std::string Finding(const std::string& what, const std::string& time,
                             const std::string& place = "Lawrence, KS") {
    return "..... " + place + what + time + " ..... ";
  }
  static std::string Replay() { return PersonalAlertsState.PersonalAlertText; }
  static std::string Button() { return State(MainForm.PersonalAlertButton); }
};

constexpr int kPresentHour = 7;  // 2 PM

TEST_F(PersonalAlertsTest, OnlyTheFirstHourThatMeetsAThresholdIsTold) {
  Limit(0, ProfileRow::MaximumTemperature, "90");
  ForecastHour[0][10].Tf = "89";
  ForecastHour[0][11].Tf = "90";
  ForecastHour[0][12].Tf = "95";
  PersonalAlerts();
  EXPECT_EQ(Replay(), "Skyloft Alert: " + Finding(" Temperature: 90 F ", "06:00 PM Friday Mar 07 2003"));
  EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 30);
}

TEST_F(PersonalAlertsTest, EachThresholdGoesByItsFieldAndSide) {
  const struct {
    int row;
    std::string ForecastHourFields::*field;
    const char *meets, *misses;  // around a threshold of 20
    const char *shown, *spoken;
  } rows[] = {
      {ProfileRow::MaximumTemperature, &ForecastHourFields::Tf, "20", "19.9", " Temperature: 20 F ",
       "Temperature , 20 , degrees , at , "},
      {ProfileRow::MinimumTemperature, &ForecastHourFields::Tf, "20", "20.1", " Temperature: 20 F ",
       "Temperature , 20 , degrees , at , "},
      {ProfileRow::HeatIndex, &ForecastHourFields::At, "020", "-20", " Heat Index: 020 F ",
       "Heat Index , 020 , degrees , at , "},
      {ProfileRow::WindChill, &ForecastHourFields::At, "-5", "21", " Wind Chill: -5 F ",
       "Wend Chill , -5 , degrees , at , "},
      {ProfileRow::WindSpeed, &ForecastHourFields::Ws, "21", "5", " Wind Speed: 21 mph ",
       "Wend Speed , 21 , miles per hour , at , "},
  };
  Wish(0, {ProfileRow::SKLTAlertVoice});
  Doubles.Store(kOptionsKey, "Speak", "1");
  for (const auto& row : rows) {
    for (int r = ProfileRow::MaximumTemperature; r <= ProfileRow::WindSpeedThreshold; ++r) {
      LocationProfile[r][0] = "0";
    }
    Limit(0, row.row, " 20 ");
    for (int h = 0; h < kForecastHours; ++h) ForecastHour[0][h].*row.field = row.misses;
    PersonalAlerts();
    EXPECT_EQ(Replay(), "Skyloft Alert: ") << row.shown;
    ForecastHour[0][20].*row.field = row.meets;
    PersonalAlerts();
    EXPECT_EQ(Replay(), "Skyloft Alert: " + Finding(row.shown, "03:00 AM Saturday Mar 08 2003"));
    ASSERT_FALSE(Doubles.spoken.empty());
    EXPECT_EQ(Doubles.spoken.back(), "A Skyloft Alert has been issued for Lawrence , Kansas , " +
                                         std::string(row.spoken) + "3 AM , Saturday. ");
  }
}

TEST_F(PersonalAlertsTest, BothTemperaturesMetAreTwoFindingsInTheirOrder) {
  Limit(0, ProfileRow::MinimumTemperature, "40");
  Limit(0, ProfileRow::MaximumTemperature, "40");
  ForecastHour[0][kPresentHour + 1].Tf = "39";
  PersonalAlerts();
  EXPECT_EQ(Replay(), "Skyloft Alert: " + Finding(" Temperature: 40 F ", "04:00 PM Friday Mar 07 2003") +
                          Finding(" Temperature: 39 F ", "03:00 PM Friday Mar 07 2003"));
  EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 60);
}

TEST_F(PersonalAlertsTest, TheHourThatIsJustBeginningCountsAndOneThatHasBegunDoesNot) {
  Limit(0, ProfileRow::MaximumTemperature, "90");
  ForecastHour[0][kPresentHour].Tf = "95";
  for (const auto& [second, found] : {std::pair{0, true}, {1, false}}) {
    Doubles.now = MakeDate(2003, 3, 7, 14, 0, second);
    PersonalAlerts();
    EXPECT_EQ(Replay() != "Skyloft Alert: ", found);
  }
}

TEST_F(PersonalAlertsTest, TheClockOfTheSelectedLocationCountsForAll) {
  LocationProfile[ProfileRow::SKLTPersonalAlert][0] = "0";
  Wish(1, {ProfileRow::SKLTPersonalAlert});
  Limit(1, ProfileRow::MaximumTemperature, "90");
  LocationProfile[ProfileRow::TimeZone][1] = "-10";
  ForecastHour[1][kPresentHour].Tf =
      "95";  // two hours before now by the first town's clock, later by its own
  PersonalAlerts();
  EXPECT_EQ(Replay(), "Skyloft Alert: ");
  Settings.Location = "1";
  PersonalAlerts();
  EXPECT_NE(Replay(), "Skyloft Alert: ");
  LocationProfile[ProfileRow::Dst][1] = "5";  // and daylight time is part of it
  PersonalAlerts();
  EXPECT_EQ(Replay(), "Skyloft Alert: ");
}

TEST_F(PersonalAlertsTest, Hour66IsNeverExamined) {
  Limit(0, ProfileRow::MaximumTemperature, "90");
  ForecastHour[0][66] = ForecastHour[0][65];
  ForecastHour[0][66].Tf = "95";
  PersonalAlerts();
  EXPECT_EQ(Replay(), "Skyloft Alert: ");
  ForecastHour[0][65].Tf = "95";
  PersonalAlerts();
  EXPECT_NE(Replay(), "Skyloft Alert: ");
}

struct Phrase {
  int chain, row;
  const char *phrase, *label, *voice;
};
constexpr Phrase kPhrases[] = {
    {0, ProfileRow::HeavyRain, "heavy rain", " Heavy Rain: ", "Heavy Rain , at , "},
    {0, ProfileRow::ModerateRain, "rain", " Rain: ", "Moderate Rain , at , "},
    {0, ProfileRow::LightRain, "light rain", " Light Rain: ", "Light Rain , at , "},
    {0, ProfileRow::RainShower, "shower", " Rain Shower: ", "Rain Showers , at , "},
    {0, ProfileRow::Thunderstorm, "Tstorm", " Thunderstorm: ", "Thunderstorms , at , "},
    {0, ProfileRow::ThunderstormChance, "Tstorm?", " Thunderstorm: ", "Thunderstorm Chance , at , "},
    {1, ProfileRow::FreezingRain, "frzng rain", " Freezing Rain: ", "Freezing Rain , at , "},
    {1, ProfileRow::FreezingRainSnow, "frzng rain / snow",
     " Freezing Rain/Snow: ", "Freezing Rain and Snow , at , "},
    {1, ProfileRow::RainSnow, "rain / snow", " Rain/Snow: ", "Rain and Snow , at , "},
    {2, ProfileRow::HeavySnow, "heavy snow", " Heavy Snow: ", "Heavy Snow , at , "},
    {2, ProfileRow::ModerateSnow, "snow", " Snow: ", "Moderate Snow , at , "},
    {2, ProfileRow::LightSnow, "light snow", " Light Snow: ", "Light Snow , at , "},
    {2, ProfileRow::SnowShower, "snow shower", " Snow Shower: ", "Snow Showers , at , "},
};

TEST_F(PersonalAlertsTest, EachKindOfWeatherIsFoundByItsWholePhrase) {
  Wish(0, {ProfileRow::SKLTAlertVoice});
  Doubles.Store(kOptionsKey, "Speak", "1");
  for (const Phrase& wanted : kPhrases) {
    for (const Phrase& phrase : kPhrases) LocationProfile[phrase.row][0] = "0";
    Wish(0, {wanted.row});
    for (int h = 0; h < 66; ++h) ForecastHour[0][h].Desc = "heavy rain and snow";
    ForecastHour[0][30].Desc = wanted.phrase;
    PersonalAlerts();
    EXPECT_EQ(Replay(), "Skyloft Alert: " + Finding(wanted.label, "01:00 PM Saturday Mar 08 2003"));
    ASSERT_FALSE(Doubles.spoken.empty());
    EXPECT_EQ(Doubles.spoken.back(), "A Skyloft Alert has been issued for Lawrence , Kansas , " +
                                         std::string(wanted.voice) + "1 PM , Saturday. ");
  }
}

TEST_F(PersonalAlertsTest, AChainIsWalkedByConditionAndNotByHourAndGivesOneFinding) {
  for (const Phrase& phrase : kPhrases) Wish(0, {phrase.row});
  // The later a condition stands in its chain the earlier is its hour.
  int hour = 40;
  for (const Phrase& phrase : kPhrases) ForecastHour[0][hour--].Desc = phrase.phrase;
  PersonalAlerts();
  const auto at = [](int h) { return Format(ForecastHour[0][h].Lt, "hh:mm AM/PM dddd mmm Dd yyyy"); };
  EXPECT_EQ(Replay(), "Skyloft Alert: " + Finding(" Heavy Rain: ", at(40)) +
                          Finding(" Freezing Rain: ", at(34)) + Finding(" Heavy Snow: ", at(31)));
  EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 90);
}

TEST_F(PersonalAlertsTest, HeavyRainAtHour20HidesRainAtHour5AndATstormOfTheSameChain) {
  Doubles.now = MakeDate(2003, 3, 7, 7, 0, 0);
  Wish(0, {ProfileRow::HeavyRain, ProfileRow::ModerateRain, ProfileRow::Thunderstorm});
  ForecastHour[0][20].Desc = "heavy rain";
  ForecastHour[0][5].Desc = "rain";
  ForecastHour[0][6].Desc = "Tstorm";
  PersonalAlerts();
  EXPECT_EQ(Replay(), "Skyloft Alert: " + Finding(" Heavy Rain: ", "03:00 AM Saturday Mar 08 2003"));
  ForecastHour[0][20].Desc = "fair";
  PersonalAlerts();
  EXPECT_EQ(Replay(), "Skyloft Alert: " + Finding(" Rain: ", "12:00 PM Friday Mar 07 2003"))
      << "a condition that finds nothing passes on to the next";
}

TEST_F(PersonalAlertsTest, TheMessageOpensForEachLocationAndTheReplayOnce) {
  Wish(1, {ProfileRow::SKLTPersonalAlert, ProfileRow::SKLTAlertMessage});
  for (const int slot : {0, 1}) Limit(slot, ProfileRow::MaximumTemperature, "40");
  PersonalAlerts();
  const std::string first = Finding(" Temperature: 40 F ", "03:00 PM Friday Mar 07 2003");
  const std::string second = Finding(" Temperature: 40 F ", "03:00 PM Friday Mar 07 2003", "Dallas, TX");
  EXPECT_EQ(Bar(), PersonalPage(" Skyloft Alert: " + first + " Skyloft Alert: " + second, "00000"));
  EXPECT_EQ(Replay(), "Skyloft Alert: " + first + second);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 1);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 60);
  EXPECT_TRUE(TickerForm.Visible);
  EXPECT_EQ(Button(), "personal.gif on");
}

TEST_F(PersonalAlertsTest, ARunTellsTheSameFindingsAgainFromTheirBeginningForTheirWholeTime) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  Limit(0, ProfileRow::MinimumTemperature, "40");
  for (const int loads : {1, 2}) {
    PersonalAlerts();
    EXPECT_EQ(TickerForm.Ticker.Visits(), loads);
    EXPECT_EQ(PersonalAlertsState.PersonalAlertElapsed, 0);
    MainForm.UpdateTimer.Elapse();
    EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 1) << "30 of 60 seconds";
  }
}

TEST_F(PersonalAlertsTest, ALocationWithoutAlertsIsNotLookedAt) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  LocationProfile[ProfileRow::SKLTPersonalAlert][0] = "0";
  PersonalAlerts();
  EXPECT_EQ(Replay(), "Skyloft Alert: ");
  EXPECT_EQ(Button(), "personald.gif off");
}

TEST_F(PersonalAlertsTest, TheMessageTakesTheStripsPlace) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  Messages.MessageActive = 1;
  Messages.MessageSeconds = 30;
  MainForm.Sponsor2.Visible = true;
  PersonalAlerts();
  EXPECT_FALSE(MainForm.Sponsor2.Visible);
  EXPECT_EQ(MainForm.Sponsor2.Document.Get(), "<html></html>");
  EXPECT_EQ(Messages.MessageActive + Messages.MessageSeconds, 0);
}

TEST_F(PersonalAlertsTest, WithoutTheMessageTheButtonLightsTheMailGoesOutAndTheTimeIsSetThoughNothingShows) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  LocationProfile[ProfileRow::SKLTAlertMessage][0] = "0";
  Wish(0, {ProfileRow::SKLTAlertEmail});
  PersonalAlerts();
  EXPECT_EQ(Button(), "personals.gif on");
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 30);
  ASSERT_EQ(Doubles.mails.size(), 1u);
  EXPECT_EQ(Doubles.mails[0].second.body,
            Finding(" Temperature: 40 F ", "03:00 PM Friday Mar 07 2003") + "\r\n");
}

TEST_F(PersonalAlertsTest, TheSoundOfALocationWithoutFindingsCountsForThoseOfAnother) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  Wish(1, {ProfileRow::SKLTPersonalAlert, ProfileRow::SKLTAlertAudio, ProfileRow::SKLTAlertEmail});
  PersonalAlerts();
  EXPECT_EQ(Bar(),
            PersonalPage(" Skyloft Alert: " + Finding(" Temperature: 40 F ", "03:00 PM Friday Mar 07 2003"),
                         "00000", kWarningSound));
  ASSERT_EQ(Doubles.mails.size(), 1u) << "as for mail";
  EXPECT_EQ(Doubles.mails[0].second.body, "\r\n");
}

TEST_F(PersonalAlertsTest, ALocationWithoutFindingsAddsNothingToTheMessage) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  Wish(1, {ProfileRow::SKLTPersonalAlert, ProfileRow::SKLTAlertMessage});
  PersonalAlerts();
  const std::string found = Finding(" Temperature: 40 F ", "03:00 PM Friday Mar 07 2003");
  EXPECT_EQ(Bar(), PersonalPage(" Skyloft Alert: " + found, "00000"));
  PersonalAlertsState = {};
  LocationProfile[ProfileRow::SKLTAlertMessage][0] = "0";
  PersonalAlerts();
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0) << "nor does it show one";
  EXPECT_EQ(Button(), "personals.gif on");
}

TEST_F(PersonalAlertsTest, ABulletinKeepsTheBarWhileButtonAndMailGoOn) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  Wish(0, {ProfileRow::SKLTAlertEmail});
  Bulletins.NWSAlertActive = 1;
  TickerForm.Ticker.Document = "bulletin";
  PersonalAlerts();
  EXPECT_EQ(Bar(), "bulletin");
  EXPECT_EQ(Button(), "personals.gif on");
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0);
  EXPECT_EQ(Doubles.mails.size(), 1u);
  MainForm.PersonalAlertButton.Click();
  EXPECT_EQ(Bar(), "bulletin") << "a click does nothing under a bulletin";
  Bulletins.NWSAlertActive = 0;
  MainForm.PersonalAlertButton.Click();
  EXPECT_EQ(Bar(), PersonalPage(Replay(), "000000"));
  MainForm.UpdateTimer.Elapse();
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0) << "30 seconds of the run";
}

TEST_F(PersonalAlertsTest, WithoutFindingsTheButtonGoesIdleAndAnUnwantedBarGoes) {
  for (const auto& [wanted, bulletin, visible] :
       {std::tuple{true, 0, true}, {false, 1, true}, {false, 0, false}}) {
    SystemOptionsForm.ShowTicker.Checked = wanted;
    Bulletins.NWSAlertActive = bulletin;
    TickerForm.Visible = true;
    PersonalAlertsState = {1, 30, 60, ""};
    MainForm.PersonalAlertButton.Enabled = true;
    PersonalAlerts();
    EXPECT_EQ(TickerForm.Visible, visible);
    EXPECT_EQ(Button(), "personald.gif off");
    EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0);
    EXPECT_EQ(PersonalAlertsState.PersonalAlertElapsed, 0);
    EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 0);
  }
}

TEST_F(PersonalAlertsTest, AClickStopsTheMessageAndTheRotationTakesOver) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  for (const bool wanted : {true, false}) {
    SystemOptionsForm.ShowTicker.Checked = wanted;
    SystemOptionsForm.ShowCurrentConditions.Checked = true;
    TickerRotation = {};
    TickerRotation.TickerCounter = 1;
    PersonalAlerts();
    TickerForm.Ticker.Enabled = true;
    MainForm.PersonalAlertButton.Click();
    EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0);
    EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 0);
    EXPECT_EQ(Button(), "personals.gif on");
    EXPECT_FALSE(TickerForm.Ticker.Enabled);
    EXPECT_EQ(TickerForm.Visible, wanted);
    EXPECT_EQ(Bar() == TickerCurrentPage(), wanted);
  }
}

TEST_F(PersonalAlertsTest, AReplayAfterAnEndLastsOneTickAndIsSilent) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  Wish(0, {ProfileRow::SKLTAlertAudio});
  PersonalAlerts();
  MainForm.UpdateTimer.Elapse();  // its 30 seconds are over
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0);
  Messages.MessageActive = 1;
  TickerForm.Visible = false;
  PersonalAlertsState.PersonalAlertElapsed = 20;
  MainForm.PersonalAlertButton.Click();
  EXPECT_EQ(PersonalAlertsState.PersonalAlertElapsed, 0);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 1);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 0);
  EXPECT_EQ(Bar(), PersonalPage(Replay(), "000000"));
  EXPECT_EQ(Button(), "personal.gif on");
  EXPECT_TRUE(TickerForm.Visible);
  EXPECT_EQ(Messages.MessageActive, 0);
  MainForm.UpdateTimer.Elapse();
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 0);
  EXPECT_EQ(Button(), "personals.gif on");
}

TEST_F(PersonalAlertsTest, TheEndOfAPersonalMessageHidesAnUnwantedBarAlsoUnderABulletin) {
  SystemOptionsForm.ShowTicker.Checked = false;
  Bulletins.NWSAlertActive = 1;
  Bulletins.NWSAlertDuration = 1000;
  PersonalAlertsState = {1, 0, 30, "text"};
  TickerForm.Visible = true;
  MainForm.UpdateTimer.Elapse();
  EXPECT_FALSE(TickerForm.Visible);
  EXPECT_EQ(Bulletins.NWSAlertActive, 1);
}

TEST_F(PersonalAlertsTest, AnHourWithoutATimeEndsTheRunWithTheStateReached) {
  Limit(0, ProfileRow::MaximumTemperature, "90");
  for (const int hour : {0, 30}) {
    MainForm.PersonalAlertButton.Enabled = true;
    const std::string time = ForecastHour[0][hour].Lt;
    ForecastHour[0][hour].Lt = "";
    PersonalAlerts();
    EXPECT_TRUE(MainForm.PersonalAlertButton.Enabled) << "not reached";
    EXPECT_EQ(Replay(), "Skyloft Alert: ");
    ForecastHour[0][hour].Lt = time;
  }
}

TEST_F(PersonalAlertsTest, AMailThatFailsEndsTheRunBeforeItsCounters) {
  Limit(0, ProfileRow::MaximumTemperature, "40");
  Wish(0, {ProfileRow::SKLTAlertEmail, ProfileRow::SKLTAlertVoice});
  Doubles.Store(kOptionsKey, "Speak", "1");
  Doubles.mail_failure.at = 1;
  PersonalAlerts();
  EXPECT_EQ(Doubles.spoken.size(), 1u);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 1);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertDuration, 0);
}

TEST_F(PersonalAlertsTest, TextsOfTheForecastCannotLeaveTheirPlaceInThePage) {
  Place(0, "<b>'Home'", "KS", "", "");
  Limit(0, ProfileRow::MaximumTemperature, "40");
  PersonalAlerts();
  EXPECT_NE(Bar().find("value=' Skyloft Alert: ..... <b>&#39;Home&#39;, KS Temperature"), std::string::npos);
}

}  // namespace
}  // namespace skyloft
