#include "alerts/bulletins.h"

#include <algorithm>

#include "alert_station.h"
#include "base/values.h"
#include "feed/hosts.h"
#include "settings/settings.h"
#include "ticker/messages.h"
#include "ticker/ticker.h"

namespace skyloft {
namespace {

struct Entry {
  std::string code, type, text;
  std::string expiry = "Mar 08 2003 12:30AM";  // 6:30 PM Friday on this computer
};

std::string BulletinReply(const std::vector<Entry>& entries) {
  std::string elements;
  for (const Entry& entry : entries) {
    elements += Element("pc", entry.code) + Element("Type", entry.type) +
                Element("IT", "Mar 07 2003 08:00PM") + Element("ET", entry.expiry) +
                Element("Text", entry.text);
  }
  return Reply(elements);
}

class BulletinsTest : public AlertStation {
 protected:
  // All six kinds, and the message on the bar.
  static void WishAll(int slot) {
    Wish(slot, {ProfileRow::TornadoWarning, ProfileRow::SevereThunderstormWarning,
                ProfileRow::FlashFloodWarning, ProfileRow::TornadoWatch, ProfileRow::SevereThunderstormWatch,
                ProfileRow::FlashFloodWatch, ProfileRow::NWSAlertMessage});
  }
  static void Check(const std::vector<Entry>& entries) {
    Doubles.replies.clear();
    Doubles.Reply("bulletins.asp", BulletinReply(entries));
    NWSAlerts();
  }
  static std::string Buttons() {
    return State(MainForm.TornadoButton) + ", " + State(MainForm.ThunderstormButton) + ", " +
           State(MainForm.FloodButton);
  }
  // The check interval's last tick and those after it.
  static void Tick(int count = 1) {
    for (int i = 0; i < count; ++i) MainForm.UpdateTimer.Elapse();
  }
};

constexpr const char* kIdle = "tornadod.gif off, tstormd.gif off, floodd.gif off";

TEST_F(BulletinsTest, NoQueryIsSentWhenNoLocationWantsAnyOfTheSix) {
  Wish(0, {ProfileRow::NWSAlertMessage});
  LocationProfile[40][0] = "1";  // the hurricane watch is not looked at
  MainForm.TornadoButton.Enabled = true;
  Check({{"10000", "TOR", "x"}});
  EXPECT_TRUE(Doubles.requests.empty());
  EXPECT_TRUE(MainForm.TornadoButton.Enabled) << "the buttons stay as they are";
}

TEST_F(BulletinsTest, TheQueryHasTheCodesOfTheLocationsThatWantAny) {
  for (const auto& [slots, query] : std::vector<std::pair<std::vector<int>, std::string>>{
           {{0}, "pc=10000"}, {{0, 1}, "pc=10000&pc=10001"}, {{1}, "&pc=10001"}}) {
    for (const int slot : {0, 1}) LocationProfile[ProfileRow::FlashFloodWatch][slot] = "0";
    for (const int slot : slots) LocationProfile[ProfileRow::FlashFloodWatch][slot] = "1";
    Doubles.requests.clear();
    Check({});
    EXPECT_EQ(Doubles.requests,
              std::vector<std::string>{"forecast.skyloft.example/bulletins.asp?" + query + "&t=xml"});
  }
}

TEST_F(BulletinsTest, AGateIsOnOnlyWhenItsNumberIs1) {
  for (const auto& [value, on] :
       {std::pair{"1", true}, {"1.0", true}, {"0", false}, {"2", false}, {"", false}, {"True", false}}) {
    LocationProfile[ProfileRow::TornadoWarning][0] = value;
    Doubles.requests.clear();
    NWSAlerts();
    EXPECT_EQ(Doubles.requests.size(), on ? 1u : 0u) << value;
  }
}

TEST_F(BulletinsTest, EachOfTheSixKindsFillsTheBucketOfItsButtonBehindItsOwnGate) {
  const struct {
    const char* type;
    int gate;
    std::string BulletinState::*bucket;
    double BulletinState::*duration;
    const char* buttons;
  } kinds[] = {
      {"TOR", ProfileRow::TornadoWarning, &BulletinState::TornadoAlertText,
       &BulletinState::TornadoAlertDuration, "tornado.gif on, tstormd.gif off, floodd.gif off"},
      {"SVR", ProfileRow::SevereThunderstormWarning, &BulletinState::ThunderstormAlertText,
       &BulletinState::ThunderstormAlertDuration, "tornadod.gif off, tstorm.gif on, floodd.gif off"},
      {"FFW", ProfileRow::FlashFloodWarning, &BulletinState::FloodAlertText,
       &BulletinState::FloodAlertDuration, "tornadod.gif off, tstormd.gif off, flood.gif on"},
      {"WTO", ProfileRow::TornadoWatch, &BulletinState::TornadoAlertText,
       &BulletinState::TornadoAlertDuration, "tornado.gif on, tstormd.gif off, floodd.gif off"},
      {"WSV", ProfileRow::SevereThunderstormWatch, &BulletinState::ThunderstormAlertText,
       &BulletinState::ThunderstormAlertDuration, "tornadod.gif off, tstorm.gif on, floodd.gif off"},
      {"FFA", ProfileRow::FlashFloodWatch, &BulletinState::FloodAlertText, &BulletinState::FloodAlertDuration,
       "tornadod.gif off, tstormd.gif off, flood.gif on"},
  };
  for (const auto& kind : kinds) {
    for (const bool wanted : {false, true}) {
      Bulletins = {};
      for (ImageButton* button :
           {&MainForm.TornadoButton, &MainForm.ThunderstormButton, &MainForm.FloodButton}) {
        button->Enabled = false;
      }
      WishAll(0);
      if (!wanted) LocationProfile[kind.gate][0] = "0";
      Check({{"10000", kind.type, "TEXT"}});
      EXPECT_EQ((Bulletins.*kind.bucket).empty(), !wanted) << kind.type;
      EXPECT_EQ(Bulletins.*kind.duration, wanted ? 120 : 0) << kind.type;
      EXPECT_EQ(Bulletins.NWSAlertActive, wanted ? 1 : 0) << kind.type;
      EXPECT_EQ(Buttons(), wanted ? kind.buttons : kIdle) << kind.type;
      Check({});
      Bulletins.NWSAlertActive = 0;
      Check({});  // all off again
      EXPECT_EQ(Buttons(), kIdle);
    }
  }
}

TEST_F(BulletinsTest, AnUnknownTypeIsSkippedAlsoWithAnUnknownCode) {
  WishAll(0);
  Check({{"10000", "HUW", "hurricane"}, {"10000", "", "none"}, {"99999", "tor", "case counts"}});
  EXPECT_EQ(Bulletins.NWSLastText, "");
  EXPECT_EQ(Buttons(), kIdle);
}

TEST_F(BulletinsTest, AWarningIsWordedByTheFeedAndAWatchByItsCountyStateAndExpiryInTheComputersZone) {
  WishAll(1);
  LocationProfile[ProfileRow::TimeZone][1] = "-8";  // plays no part
  const auto watch = [](const std::string& name, const std::string& danger) {
    return "THE NATIONAL WEATHER SERVICE HAS ISSUED A " + name +
           " WHICH INCLUDES DALLAS COUNTY, TEXAS, EFFECTIVE UNTIL 6:30 PM Friday. A " + name +
           " MEANS THAT CONDITIONS ARE FAVORABLE FOR THE DEVELOPMENT OF " + danger +
           " IN AND CLOSE TO THE WATCH AREA. PLEASE STAY TUNED FOR FURTHER DEVELOPMENTS.     ";
  };
  Check({{"10001", "TOR", "Take cover now. "},
         {"10001", "WTO", "unused"},
         {"10001", "WSV", "unused"},
         {"10001", "FFA", "unused"}});
  EXPECT_EQ(Bulletins.TornadoAlertText, "Take cover now. " + watch("TORNADO WATCH", "TORNADOES"));
  EXPECT_EQ(Bulletins.ThunderstormAlertText, watch("SEVERE THUNDERSTORM WATCH", "SEVERE THUNDERSTORMS"));
  EXPECT_EQ(Bulletins.FloodAlertText, watch("FLASH FLOOD WATCH", "FLASH FLOODING"));
  EXPECT_EQ(Bulletins.TornadoAlertDuration, 240);
  EXPECT_EQ(Bulletins.NWSLastText,
            Bulletins.TornadoAlertText + Bulletins.ThunderstormAlertText + Bulletins.FloodAlertText);
}

TEST_F(BulletinsTest, TwoWarningsForTwoLocationsShowInOneLineFor240Seconds) {
  WishAll(0);
  WishAll(1);
  Check({{"10000", "TOR", "First warning. "}, {"10001", "TOR", "Second warning."}});
  EXPECT_EQ(Bulletins.NWSAlertDuration, 240);
  EXPECT_EQ(Bulletins.NWSAlertActive, 1);
  EXPECT_TRUE(TickerForm.Visible);
  EXPECT_EQ(Bar(), BulletinPage("FIRST WARNING. SECOND WARNING."));
}

TEST_F(BulletinsTest, TheFirstLocationWithTheCodeDecides) {
  LocationProfile[ProfileRow::ZipCode][1] = "10000";
  Wish(0, {ProfileRow::TornadoWarning});
  WishAll(1);
  Check({{"10000", "TOR", "text"}, {"10000", "SVR", "not wanted by the first"}});
  EXPECT_EQ(Bulletins.NWSAlertActive, 0) << "the first wants no message";
  EXPECT_EQ(Bulletins.TornadoAlertText, "text");
  EXPECT_EQ(Bulletins.ThunderstormAlertText, "");
}

TEST_F(BulletinsTest, ButtonAndBucketIgnoreTheDeliverySwitchesAndWithoutTheMessageNothingElseIsDelivered) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertAudio, ProfileRow::NWSAlertVoice, ProfileRow::NWSAlertEmail});
  LocationProfile[ProfileRow::NWSAlertMessage][0] = "0";
  Doubles.Store("Software\\Aerolume\\Skyloft\\Options", "Speak", "1");
  Check({{"10000", "TOR", "text"}});
  EXPECT_EQ(Buttons(), "tornados.gif on, tstormd.gif off, floodd.gif off");
  EXPECT_EQ(Bulletins.TornadoAlertText, "text");
  EXPECT_EQ(Bulletins.NWSAlertActive, 0);
  EXPECT_TRUE(Doubles.mails.empty());
  EXPECT_TRUE(Doubles.spoken.empty());
  EXPECT_EQ(Bar().find("text"), std::string::npos);
}

TEST_F(BulletinsTest, TheMailHoldsTheMessagesAloneAlsoWhenOnlyAnotherLocationAskedForMail) {
  WishAll(0);
  WishAll(1);
  LocationProfile[ProfileRow::NWSAlertMessage][1] = "0";
  Wish(1, {ProfileRow::NWSAlertEmail});
  Check({{"10000", "TOR", "One."}, {"10001", "TOR", "Two."}, {"10000", "FFW", "Three."}});
  ASSERT_EQ(Doubles.mails.size(), 1u);
  EXPECT_EQ(Doubles.mails[0].second.body, "One.\r\nThree.\r\n");
}

TEST_F(BulletinsTest, TheSoundPlaysOnTheFirstShowingWhereAnyLocationAskedForIt) {
  WishAll(0);
  WishAll(1);
  Wish(1, {ProfileRow::NWSAlertAudio});
  Check({{"10000", "TOR", "quiet"}});
  EXPECT_EQ(Bar(), BulletinPage("QUIET")) << "no bulletin of the location that asked";
  Bulletins.NWSAlertActive = 0;
  Check({{"10000", "TOR", "quiet"}, {"10001", "TOR", " loud"}});
  EXPECT_EQ(Bar(), BulletinPage("QUIET LOUD", kWarningSound));
}

TEST_F(BulletinsTest, TheVoiceSaysAWarningInItsOwnWordsAndAWatchAsShownAndOnlyWhereSpeakIsOn) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertVoice});
  const std::vector<Entry> entries = {
      {"10000", "TOR", "text"}, {"10000", "SVR", "text"}, {"10000", "FFW", "text"}, {"10000", "FFA", ""}};
  Check(entries);
  EXPECT_TRUE(Doubles.spoken.empty());
  Bulletins = {};
  Doubles.Store("Software\\Aerolume\\Skyloft\\Options", "Speak", "1");
  Check(entries);
  const auto warning = [](const std::string& name) {
    return "The National Weather Service has issued a " + name +
           " for Douglas County , in Kansas , effective until 6:30 PM Friday, ";
  };
  ASSERT_EQ(Doubles.spoken.size(), 1u);
  EXPECT_EQ(Doubles.spoken[0], warning("Tornado Warning") + warning("Severe Thunderstorm Warning") +
                                   warning("Flash Flood Warning") +
                                   Bulletins.FloodAlertText.substr(4));  // behind the warning's "text"
}

TEST_F(BulletinsTest, TheSameTextIsNotToldTwiceHoweverOld) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertEmail});
  Check({{"10000", "TOR", "text"}});
  Bulletins.NWSAlertActive = 0;
  TickerForm.Ticker.Document = "former";
  Check({{"10000", "TOR", "text", "Mar 09 2003 12:00AM"}});
  EXPECT_EQ(Bar(), "former");
  EXPECT_EQ(Bulletins.NWSAlertActive, 0);
  EXPECT_EQ(Doubles.mails.size(), 1u);
  EXPECT_EQ(State(MainForm.TornadoButton), "tornados.gif on");
}

TEST_F(BulletinsTest, AnyChangeTellsAndMailsThemAllAgain) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertEmail});
  const Entry a{"10000", "TOR", "A."}, b{"10000", "SVR", "B."}, c{"10000", "FFW", "C."};
  const std::pair<std::vector<Entry>, const char*> checks[] = {
      {{a, b}, "A.B."}, {{a, b, c}, "A.B.C."}, {{c, b, a}, "C.B.A."}, {{b, a}, "B.A."}};
  size_t mails = 0;
  for (const auto& [entries, text] : checks) {
    Bulletins.NWSAlertActive = 0;
    Check(entries);
    EXPECT_EQ(Bar(), BulletinPage(text));
    EXPECT_EQ(Bulletins.NWSAlertActive, 1) << text;
    ASSERT_EQ(Doubles.mails.size(), ++mails) << text;
    EXPECT_EQ(Doubles.mails.back().second.body.size(), entries.size() * 4) << "each with its line end";
  }
}

TEST_F(BulletinsTest, ButtonsGoIdleOneCheckAfterAllHaveEnded) {
  WishAll(0);
  Check({{"10000", "TOR", "text"}});
  Bulletins.NWSAlertActive = 0;
  MainForm.TornadoButton.Enabled = true;
  Check({});
  EXPECT_EQ(Bulletins.NWSLastText, "");
  EXPECT_EQ(State(MainForm.TornadoButton), "tornado.gif on") << "as it stood";
  Check({});
  EXPECT_EQ(Buttons(), kIdle);
}

TEST_F(BulletinsTest, AQuietCheckHidesAnUnwantedBarUnlessAPersonalAlertHasIt) {
  WishAll(0);
  for (const auto& [wanted, personal, visible] :
       {std::tuple{true, 0, true}, {false, 1, true}, {false, 0, false}}) {
    SystemOptionsForm.ShowTicker.Checked = wanted;
    PersonalAlertsState.PersonalAlertActive = personal;
    TickerForm.Visible = true;
    Bulletins.NWSAlertElapsed = 60;
    Check({});
    EXPECT_EQ(TickerForm.Visible, visible);
    EXPECT_EQ(Bulletins.NWSAlertElapsed, 0);
  }
}

TEST_F(BulletinsTest, TheMessageTakesTheStripsPlace) {
  WishAll(0);
  Messages.MessageActive = 1;
  Messages.MessageSeconds = 60;
  MainForm.Sponsor2.Visible = MainForm.Sponsor0.Visible = true;
  Check({{"10000", "TOR", "text"}});
  EXPECT_FALSE(MainForm.Sponsor2.Visible);
  EXPECT_EQ(MainForm.Sponsor2.Document.Get(), "<html></html>");
  EXPECT_EQ(Messages.MessageActive, 0);
  EXPECT_EQ(Messages.MessageSeconds, 0);
  EXPECT_TRUE(MainForm.Sponsor0.Visible) << "the other banners are untouched";
}

TEST_F(BulletinsTest, ABusyTransportChangesNothing) {
  WishAll(0);
  Bulletins.TornadoAlertText = "held";
  MainForm.Http.State = 1;
  Check({});
  EXPECT_EQ(Bulletins.TornadoAlertText, "held");
}

TEST_F(BulletinsTest, AnEmptyReplyOrOneThatIsNoXmlReadsAsNoneSoThatTheSameBulletinsAlertAnew) {
  WishAll(0);
  for (const char* broken : {"", "not XML", "<r><pc>10000</pc><Type>TOR</Ty"}) {
    Check({{"10000", "TOR", "text"}});
    EXPECT_EQ(Bulletins.NWSAlertActive, 1);
    Bulletins.NWSAlertActive = 0;
    Doubles.replies.clear();
    Doubles.Reply("bulletins.asp", broken);
    NWSAlerts();
    EXPECT_EQ(Bulletins.TornadoAlertText, "");
    EXPECT_EQ(Bulletins.NWSLastText, "");
    EXPECT_EQ(State(MainForm.TornadoButton), "tornado.gif on") << "still";
    NWSAlerts();
    EXPECT_EQ(Buttons(), kIdle);
  }
}

TEST_F(BulletinsTest, WhatIsToldAnewRunsFromItsBeginningWithItsSoundAlsoWhereItStillStandsOnAHiddenBar) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertAudio});
  SystemOptionsForm.ShowTicker.Checked = false;
  for (const int loads : {1, 2}) {
    Check({{"10000", "TOR", "TEXT"}});
    EXPECT_EQ(TickerForm.Ticker.Visits(), loads);
    EXPECT_EQ(Bar(), BulletinPage("TEXT", kWarningSound));
    Tick(4);
    EXPECT_FALSE(TickerForm.Visible);
    Check({});
  }
}

TEST_F(BulletinsTest, ANewTextBeginsItsTimeAnew) {
  WishAll(0);
  Bulletins.NWSAlertElapsed = 90;
  Bulletins.NWSAlertDuration = 240;
  Check({{"10000", "TOR", "text"}});
  EXPECT_EQ(Bulletins.NWSAlertElapsed, 0);
  EXPECT_EQ(Bulletins.NWSAlertDuration, 120);
}

TEST_F(BulletinsTest, AReplyThatComesInsideAReplayLeavesItOnTheBarUnlessItsTextIsAnother) {
  WishAll(0);
  Check({{"10000", "TOR", "one"}});
  Bulletins.NWSAlertActive = 0;
  Doubles.during_fetch = [](const std::string&) { MainForm.TornadoButton.Press(); };
  Check({{"10000", "TOR", "one"}});
  EXPECT_EQ(Bar(), BulletinPage("one"));
  EXPECT_EQ(Bulletins.NWSAlertActive, 1);
  EXPECT_EQ(State(MainForm.TornadoButton), "tornados.gif on") << "as the check leaves it";
  Bulletins.NWSAlertActive = 0;
  Check({{"10000", "TOR", "two"}});
  EXPECT_EQ(Bar(), BulletinPage("TWO"));
  EXPECT_EQ(State(MainForm.TornadoButton), "tornado.gif on");
}

TEST_F(BulletinsTest, TheEndOfABulletinHidesAnUnwantedBarAlsoUnderAPersonalMessage) {
  SystemOptionsForm.ShowTicker.Checked = false;
  Bulletins.NWSAlertActive = PersonalAlertsState.PersonalAlertActive = 1;
  Bulletins.NWSAlertDuration = 30;
  PersonalAlertsState.PersonalAlertDuration = 60;
  TickerForm.Visible = true;
  Tick();
  EXPECT_FALSE(TickerForm.Visible);
  EXPECT_EQ(PersonalAlertsState.PersonalAlertActive, 1);
}

TEST_F(BulletinsTest, AListShorterThanTheTextsEndsTheCheckAtItsFirstMissingElement) {
  WishAll(0);
  for (const char* tag : {"pc", "Type", "ET"}) {
    Bulletins = {};
    std::string reply = BulletinReply({{"10000", "TOR", "one"}, {"10000", "SVR", "two"}});
    const size_t at = reply.rfind("<" + std::string(tag) + ">");
    reply.replace(at + 1, std::string(tag).size(), "zz");
    const size_t end = reply.rfind("</" + std::string(tag) + ">");
    reply.replace(end + 2, std::string(tag).size(), "zz");
    Doubles.replies.clear();
    Doubles.Reply("bulletins.asp", reply);
    NWSAlerts();
    EXPECT_EQ(Bulletins.TornadoAlertText, "one") << tag;
    EXPECT_EQ(Bulletins.ThunderstormAlertText, "") << tag;
    EXPECT_EQ(Bulletins.NWSAlertActive, 0) << tag;
    EXPECT_EQ(Bulletins.NWSLastText, "") << tag;
  }
}

TEST_F(BulletinsTest, AnExpiryThatIsNoDateEndsTheCheckBehindTheButton) {
  WishAll(0);
  Check({{"10000", "TOR", "text", "soon"}, {"10000", "SVR", "two"}});
  EXPECT_EQ(State(MainForm.TornadoButton), "tornados.gif on");
  EXPECT_EQ(Bulletins.TornadoAlertText, "");
  EXPECT_EQ(State(MainForm.ThunderstormButton), "tstormd.gif off");
}

TEST_F(BulletinsTest, AnUnknownCodeIsSkippedAndWithFiveLocationsItEndsTheCheck) {
  for (const int locations : {4, 5}) {
    MainForm.LocationSelection.Clear();
    SetUpLocations(locations);
    Bulletins = {};
    WishAll(0);
    Check({{"99999", "TOR", "elsewhere"}, {"10000", "SVR", "here"}});
    EXPECT_EQ(Bulletins.ThunderstormAlertText, locations == 4 ? "here" : "");
  }
}

TEST_F(BulletinsTest, TenThousandBulletinsAreAllTold) {
  WishAll(0);
  Check(std::vector<Entry>(10000, {"10000", "TOR", "Again. "}));
  EXPECT_EQ(Bulletins.TornadoAlertText.size(), 70000u);
  EXPECT_EQ(Bulletins.NWSAlertDuration, 1200000);
}

TEST_F(BulletinsTest, TextsAreTakenAsTheyComeAndCannotLeaveTheirPlaceInThePage) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertEmail});
  Check({{"10000", "TOR", "Don't <b>wait</b>\r\n&amp;go '> out"}});
  EXPECT_EQ(Bulletins.TornadoAlertText, "Don't wait\n&go '> out") << "an element's text";
  Bulletins = {};
  Check({{"10000", "TOR", "Don't &lt;b&gt;wait&lt;/b&gt; '&gt;&lt;img src='x'&gt;"}});
  EXPECT_EQ(Bulletins.TornadoAlertText, "Don't <b>wait</b> '><img src='x'>");
  EXPECT_NE(Bar().find("value='DON&#39;T <B>WAIT</B> &#39;><IMG SRC=&#39;X&#39;>'>"), std::string::npos);
}

TEST_F(BulletinsTest, AMailThatFailsEndsTheCheckWhenAllElseIsDoneAndNothingIsSaidTwice) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertEmail, ProfileRow::NWSAlertVoice});
  Doubles.Store(kOptionsKey, "Speak", "1");
  Doubles.mail_failure.at = 1;
  Check({{"10000", "TOR", "text"}});
  EXPECT_EQ(Doubles.spoken.size(), 1u);
  EXPECT_EQ(Bulletins.NWSAlertActive, 1);
  EXPECT_EQ(Bar(), BulletinPage("TEXT"));
  Bulletins.NWSAlertActive = 0;
  Check({{"10000", "TOR", "text"}});
  EXPECT_EQ(Doubles.mails.size(), 1u);
}

TEST_F(BulletinsTest, AClickStopsTheMessageAndSetsTheClickedButtonAloneWaiting) {
  WishAll(0);
  for (const bool wanted : {true, false}) {
    SystemOptionsForm.ShowTicker.Checked = wanted;
    SystemOptionsForm.ShowCurrentConditions.Checked = true;
    TickerRotation = {};
    TickerRotation.TickerCounter = 2;
    Bulletins = {};
    Check({{"10000", "TOR", "text"}, {"10000", "FFW", "more"}});
    TickerForm.Ticker.Enabled = true;
    MainForm.FloodButton.Click();
    EXPECT_EQ(Bulletins.NWSAlertActive, 0);
    EXPECT_EQ(Bulletins.NWSAlertElapsed, 0);
    EXPECT_EQ(Bulletins.NWSAlertDuration, 0);
    EXPECT_EQ(Buttons(), "tornado.gif on, tstormd.gif off, floods.gif on");
    EXPECT_FALSE(TickerForm.Ticker.Enabled);
    EXPECT_EQ(TickerForm.Visible, wanted);
    EXPECT_EQ(Bar() == TickerCurrentPage(), wanted) << "the rotation takes over at once";
  }
}

TEST_F(BulletinsTest, EachButtonStopsTheMessageOfAll) {
  WishAll(0);
  const std::pair<ImageButton*, const char*> clicks[] = {
      {&MainForm.TornadoButton, "tornados.gif on, tstorm.gif on, flood.gif on"},
      {&MainForm.ThunderstormButton, "tornado.gif on, tstorms.gif on, flood.gif on"},
      {&MainForm.FloodButton, "tornado.gif on, tstorm.gif on, floods.gif on"}};
  for (const auto& [button, buttons] : clicks) {
    Bulletins = {};
    Check({{"10000", "TOR", "a"}, {"10000", "SVR", "b"}, {"10000", "FFW", "c"}});
    button->Press();
    EXPECT_EQ(Bulletins.NWSAlertActive, 0);
    EXPECT_EQ(Buttons(), buttons);
  }
}

TEST_F(BulletinsTest, AClickOnAButtonWithoutABulletinCannotHappen) {
  WishAll(0);
  Check({{"10000", "TOR", "text"}});
  Bulletins.NWSAlertActive = 0;
  Check({{"10000", "TOR", "text"}});
  MainForm.FloodButton.Press();
  EXPECT_EQ(Bulletins.NWSAlertActive, 0) << "it is disabled";
}

TEST_F(BulletinsTest, AMessageOfTheServerThatAClickBringsUpTakesNoPresses) {
  WishAll(0);
  Check({{"10000", "TOR", "text"}});
  MessageSet& set = Messages.Sets[MessagePlace::Ticker];
  set.Entries[0] = {"3/1/2003", "3/31/2003", "60", "message", "1"};
  set.MessageIndexMax = 0;
  TickerRotation.TickerPage = 4;
  TickerRotation.TickerLocationIndex = 1;
  MainForm.TornadoButton.Press();
  EXPECT_EQ(Bar(), "message");
  EXPECT_FALSE(TickerForm.Ticker.Enabled);
}

TEST_F(BulletinsTest, AClickReplaysTheBucketAsItStandsWithoutSoundForItsOwnTime) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertAudio, ProfileRow::NWSAlertEmail});
  const struct {
    ImageButton* button;
    const char* text;
    double duration;
    const char* state;
  } clicks[] = {{&MainForm.TornadoButton, "Tornado one. Tornado two.", 240, "tornado.gif on"},
                {&MainForm.ThunderstormButton, "Storm.", 120, "tstorm.gif on"},
                {&MainForm.FloodButton, "Flood.", 120, "flood.gif on"}};
  Check({{"10000", "TOR", "Tornado one. "},
         {"10000", "SVR", "Storm."},
         {"10000", "TOR", "Tornado two."},
         {"10000", "FFW", "Flood."}});
  for (const auto& click : clicks) {
    Bulletins.NWSAlertActive = 0;
    Bulletins.NWSAlertElapsed = 90;
    TickerForm.Visible = false;
    Messages.MessageActive = 1;
    click.button->Click();
    EXPECT_EQ(Bar(), BulletinPage(click.text));
    EXPECT_TRUE(TickerForm.Visible);
    EXPECT_EQ(Bulletins.NWSAlertActive, 1);
    EXPECT_EQ(Bulletins.NWSAlertElapsed, 0);
    EXPECT_EQ(Bulletins.NWSAlertDuration, click.duration);
    EXPECT_EQ(State(*click.button), click.state);
    EXPECT_EQ(Messages.MessageActive, 0);
  }
  EXPECT_EQ(Doubles.mails.size(), 1u);
}

TEST_F(BulletinsTest, AnEveningOfBulletins) {
  WishAll(0);
  Wish(0, {ProfileRow::NWSAlertEmail, ProfileRow::NWSAlertAudio});
  HostTable.messageinterval = "100000";
  SystemOptionsForm.ShowTicker.Checked = false;
  SystemOptionsForm.NWSIndexMax.Select(0);  // every two minutes
  const Entry watch{"10000", "WTO", ""}, warning{"10000", "TOR", "Tornado!"}, flood{"10000", "FFW", "Water!"};
  const auto feed = [](const std::vector<Entry>& entries) {
    Doubles.replies.clear();
    Doubles.Reply("bulletins.asp", BulletinReply(entries));
    Doubles.requests.clear();
  };
  const auto checks = [] {
    return static_cast<size_t>(std::ranges::count_if(Doubles.requests, [](const std::string& url) {
      return url.find("bulletins.asp") != std::string::npos;
    }));
  };
  struct Moment {
    int ticks;      // that pass
    size_t checks;  // made since the feed's last change
    const char* buttons;
    bool bar;
    size_t mails;
  };
  const auto expect = [&](const Moment& moment, int line) {
    Tick(moment.ticks);
    EXPECT_EQ(checks(), moment.checks) << line;
    EXPECT_EQ(Buttons(), moment.buttons) << line;
    EXPECT_EQ(TickerForm.Visible, moment.bar) << line;
    EXPECT_EQ(Doubles.mails.size(), moment.mails) << line;
  };
  const char* tornado = "tornado.gif on, tstormd.gif off, floodd.gif off";
  const char* waits = "tornados.gif on, tstormd.gif off, floodd.gif off";
  feed({});
  expect({3, 0, kIdle, false, 0}, __LINE__);
  expect({1, 1, kIdle, false, 0}, __LINE__);
  feed({watch});
  expect({3, 0, kIdle, false, 0}, __LINE__);
  expect({1, 1, tornado, true, 1}, __LINE__);
  expect({3, 1, tornado, true, 1}, __LINE__);  // 90 seconds on the bar
  expect({1, 1, waits, false, 1}, __LINE__);   // 120; the check due since then waits for its tick
  feed({watch, warning});
  expect({1, 1, tornado, true, 2}, __LINE__);  // at once
  EXPECT_EQ(Bar(), BulletinPage(UpperCase(Bulletins.TornadoAlertText), kWarningSound));
  expect({7, 1, tornado, true, 2}, __LINE__);  // 210 of 240 seconds
  MainForm.TornadoButton.Click();              // the user has seen it
  expect({0, 1, waits, false, 2}, __LINE__);
  MainForm.TornadoButton.Click();  // and wants it again
  EXPECT_EQ(Bar(), BulletinPage(Bulletins.TornadoAlertText));
  expect({7, 1, tornado, true, 2}, __LINE__);
  expect({1, 1, waits, false, 2}, __LINE__);
  feed({flood});  // the tornado is over
  // Its button keeps its picture until a quiet check.
  expect({1, 1, "tornados.gif on, tstormd.gif off, flood.gif on", true, 3}, __LINE__);
  expect({4, 1, "tornadod.gif off, tstormd.gif off, floods.gif on", false, 3}, __LINE__);
  feed({});
  expect({1, 1, "tornadod.gif off, tstormd.gif off, floods.gif on", false, 3}, __LINE__);
  expect({4, 2, kIdle, false, 3}, __LINE__);
}

}  // namespace
}  // namespace skyloft
