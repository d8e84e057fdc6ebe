#include "ticker/messages.h"

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "message_feed.h"
#include "ticker/ticker_pages.h"

namespace skyloft {
namespace {

// On a computer in GMT it is 14:05:09 on 7 March 2003.
class MessagesTest : public Station {
 protected:
  MessagesTest() { Doubles.zone = {0, 0}; }
  static MessageSet& Set(int place) { return Messages.Sets[place]; }
  static const std::string& Shown(const HtmlDisplay& display) { return display.Document; }
  static std::string StripPage(const std::string& text) {
    return MessageScrollPage(text, "", "000000", "FFFF00", "14");
  }
  static void Rotate(int times = 1) {
    for (int i = 0; i < times; ++i) RotateSponsors();
  }
};

struct Banner {
  const char* type;
  int place;
  HtmlDisplay* display;
};
const Banner kBanners[] = {{"0", MessagePlace::MainBanner, &MainForm.Sponsor0},
                           {"1", MessagePlace::TopBanner, &MainForm.Sponsor1},
                           {"4", MessagePlace::BarBanner, &TickerForm.Sponsor4}};

TEST_F(MessagesTest, TheFeedIsTheServersAddressADotAndADigit) {
  LoadFeed({});
  EXPECT_EQ(Doubles.requests, std::vector<std::string>{"messages.skyloft.example/messages.xml.1"});
}

TEST_F(MessagesTest, EachEntryGoesBehindTheOthersOfItsSet) {
  LoadFeed(
      {{"3", "c1", "30", "T", "s", "e"}, {"0", "a1"}, {"3", "c2"}, {"4", "e1"}, {"2", "b1"}, {"1", "d1"}});
  const int last[] = {0, 0, 0, 1, 0};
  for (int place = 0; place < MessagePlace::Count; ++place) {
    EXPECT_EQ(Set(place).MessageIndexMax, last[place]) << place;
    EXPECT_EQ(Set(place).MessageIndex, 0);
    EXPECT_EQ(Set(place).MessageCounter, 100000);
    EXPECT_EQ(Set(place).MessageInterval, 0);
  }
  const MessageEntry& entry = Set(3).Entries[0];
  EXPECT_EQ(entry.messagetext, "c1");
  EXPECT_EQ(entry.interval, "30");
  EXPECT_EQ(entry.priority, "T");
  EXPECT_EQ(entry.starttime, "s");
  EXPECT_EQ(entry.endtime, "e");
  EXPECT_EQ(Set(3).Entries[1].messagetext, "c2");
}

TEST_F(MessagesTest, AnEntryOfAnUnknownTypeIsDropped) {
  LoadFeed({{"5", "x"}, {"-1", "x"}, {"", "x"}, {"banner", "x"}, {"0", "kept"}});
  EXPECT_EQ(Set(0).MessageIndexMax, 0);
  EXPECT_EQ(Set(0).Entries[0].messagetext, "kept");
}

TEST_F(MessagesTest, ATwelfthEntryOfASetEndsTheLoadAndWhatWasStoredStays) {
  std::vector<FeedEntry> feed{{"1", "before"}};
  for (int i = 0; i < 12; ++i) feed.push_back({"0", "banner " + std::to_string(i)});
  feed.push_back({"1", "behind"});
  LoadFeed(feed);
  EXPECT_EQ(Set(0).MessageIndexMax, 10);
  EXPECT_EQ(Set(0).Entries[10].messagetext, "banner 10");
  EXPECT_EQ(Set(1).MessageIndexMax, 0);
  Rotate();
  EXPECT_EQ(Shown(MainForm.Sponsor0), "banner 0");
}

TEST_F(MessagesTest, ALoadBeginsEverySetAnewSoThatItsFirstEntryShowsAtOnce) {
  const std::vector<FeedEntry> feed = {{"0", "one", "600"}, {"0", "two", "600"}};
  LoadFeed(feed);
  Rotate();
  EXPECT_EQ(Set(0).MessageIndex, 1);
  EXPECT_EQ(Set(0).MessageInterval, 600);
  MainForm.Sponsor0.Document = "former";
  LoadFeed(feed);
  EXPECT_EQ(Set(0).MessageInterval, 0);
  EXPECT_EQ(Set(0).MessageCounter, 100000);
  Rotate();
  EXPECT_EQ(Shown(MainForm.Sponsor0), "one");
}

TEST_F(MessagesTest, ALoadClearsTheEntriesOfEverySet) {
  LoadFeed({{"0", "a"}, {"0", "b"}, {"3", "page", "60"}});
  LoadFeed({{"0", "new"}});
  EXPECT_EQ(Set(0).Entries[0].messagetext, "new");
  EXPECT_EQ(Set(0).Entries[1].messagetext, "");
  EXPECT_EQ(Set(3).Entries[0].interval, "");
}

TEST_F(MessagesTest, AtMost61EntriesAreRead) {
  std::vector<FeedEntry> feed(60, {"9", "dropped"});
  feed.push_back({"0", "the 61st"});
  feed.push_back({"0", "the 62nd"});
  LoadFeed(feed);
  EXPECT_EQ(Set(0).MessageIndexMax, 0);
  EXPECT_EQ(Set(0).Entries[0].messagetext, "the 61st");
}

TEST_F(MessagesTest, AFailedLoadOrABusyTransportLeavesTheSetsEmptyAndTheBannersGoAtTheNextRotation) {
  for (const bool busy : {true, false}) {
    MainForm.Http.State = 0;
    LoadFeed({{"0", "a"}, {"1", "b"}, {"4", "e"}});
    Rotate();
    for (const Banner& banner : kBanners) EXPECT_TRUE(banner.display->Visible);
    Doubles.replies.clear();
    if (busy) {
      Doubles.Reply("messages.xml", MessageReply({{"0", "new"}}));
      MainForm.Http.State = 1;
    }
    LoadMessages();
    for (const Banner& banner : kBanners) {
      EXPECT_EQ(Set(banner.place).MessageIndexMax, -1);
      EXPECT_TRUE(banner.display->Visible) << "until the next rotation";
    }
    Rotate();
    for (const Banner& banner : kBanners) EXPECT_FALSE(banner.display->Visible);
  }
}

TEST_F(MessagesTest, ATagShortOfElementsEndsTheLoadThere) {
  HostTable.messageserver = "messages.xml";
  std::string reply = MessageReply({{"0", "first"}, {"1", "second"}});
  reply.replace(reply.rfind("<priority>"), 10, "<prixxity>");
  reply.replace(reply.rfind("</priority>"), 11, "</prixxity>");
  Doubles.Reply("messages.xml", reply);
  LoadMessages();
  EXPECT_EQ(Set(0).MessageIndexMax, 0);
  EXPECT_EQ(Set(1).MessageIndexMax, -1);
}

TEST_F(MessagesTest, TheFirstRotationAfterALoadShowsTheBannersAtOnce) {
  LoadFeed({{"0", "a"}, {"1", "b"}, {"4", "e"}});
  TickerForm.Sponsor4.Enabled = false;
  Rotate();
  EXPECT_EQ(Shown(MainForm.Sponsor0), "a");
  EXPECT_EQ(Shown(SystemOptionsForm.SponsorBanner), "a") << "both displays of the set";
  EXPECT_EQ(Shown(MainForm.Sponsor1), "b");
  EXPECT_EQ(Shown(TickerForm.Sponsor4), "e");
  for (HtmlDisplay* display :
       {&MainForm.Sponsor0, &SystemOptionsForm.SponsorBanner, &MainForm.Sponsor1, &TickerForm.Sponsor4}) {
    EXPECT_TRUE(display->Visible);
    EXPECT_TRUE(display->Enabled);
  }
}

TEST_F(MessagesTest, AnEntryStandsForItsIntervalAndThenTheNextFollowsAround) {
  for (const Banner& banner : kBanners) {
    LoadFeed({{banner.type, "one", "60"}, {banner.type, "two", "30"}, {banner.type, "three", "0"}});
    const char* shown[] = {"one", "one", "two", "three", "one", "one", "two"};
    for (const char* text : shown) {
      Rotate();
      EXPECT_EQ(Shown(*banner.display), text) << banner.type;
    }
  }
}

TEST_F(MessagesTest, AnEntryShowsFromItsStartToItsEndAndWithAText) {
  const struct {
    const char *start, *end, *text;
    bool due;
  } entries[] = {
      {"3/7/2003 2:05:09 PM", "3/7/2003 2:05:09 PM", "x", true},
      {"3/7/2003 2:05:10 PM", "3/8/2003", "x", false},
      {"3/7/2003", "3/7/2003 2:05:08 PM", "x", false},
      {"3/7/2003", "3/8/2003", "", false},
  };
  for (const auto& entry : entries) {
    EXPECT_EQ(IsDue({entry.start, entry.end, "0", entry.text, "1"}), entry.due) << entry.start << entry.end;
  }
  Doubles.zone = {360, 1};  // times are GMT: 20:05:09 there
  EXPECT_FALSE(IsDue({"3/7/2003", "3/7/2003 8:05:08 PM", "0", "x", "1"}));
  EXPECT_TRUE(IsDue({"3/7/2003 8:05:09 PM", "3/8/2003", "0", "x", "1"}));
}

TEST_F(MessagesTest, AWindowIsTestedAtScansOnly) {
  LoadFeed({{"0", "a", "60", "1", "3/7/2003", "3/7/2003 2:05:30 PM"}});
  Rotate();
  Doubles.now = DateAdd(DateUnit::Seconds, 30, Doubles.now);
  Rotate();
  EXPECT_TRUE(MainForm.Sponsor0.Visible) << "ended, and not looked at";
  Rotate();
  EXPECT_FALSE(MainForm.Sponsor0.Visible);
}

TEST_F(MessagesTest, AnEntryThatIsNotDueIsPassedOverAndTheScanStartsBehindTheWinner) {
  LoadFeed({{"0", "a", "0"}, {"0", "future", "0", "1", "Mar 08 2003 12:00AM"}, {"0", "b", "0"}});
  for (const char* text : {"a", "b", "a", "b"}) {
    Rotate();
    EXPECT_EQ(Shown(MainForm.Sponsor0), text);
  }
}

TEST_F(MessagesTest, WhenNothingIsDueOnlyTheMainWindowsControlOfTheMainBannerIsHidden) {
  LoadFeed({{"0", "a", "0", "1", "3/7/2003", "3/7/2003 2:05:30 PM"}});
  Rotate();
  Doubles.now = DateAdd(DateUnit::Seconds, 60, Doubles.now);
  Rotate();
  EXPECT_FALSE(MainForm.Sponsor0.Visible);
  EXPECT_TRUE(SystemOptionsForm.SponsorBanner.Visible);
}

TEST_F(MessagesTest, AnEmptyFeedHidesTheBannersAtTheFirstRotation) {
  for (const Banner& banner : kBanners) banner.display->Visible = true;
  MainForm.Sponsor2.Visible = true;
  LoadFeed({});
  Rotate();
  for (const Banner& banner : kBanners) EXPECT_FALSE(banner.display->Visible);
  EXPECT_FALSE(MainForm.Sponsor2.Visible);
}

TEST_F(MessagesTest, ATimeThatIsNoDateEndsTheRotationOfThatPass) {
  LoadFeed({{"0", "a", "0", "1", "whenever"}, {"1", "b"}});
  MainForm.Sponsor0.Visible = true;
  Rotate();
  EXPECT_TRUE(MainForm.Sponsor0.Visible) << "not even hidden";
  EXPECT_FALSE(MainForm.Sponsor1.Visible);
}

TEST_F(MessagesTest, TheRotationCountsTheTickersSecondsAndNoOtherOfIts) {
  LoadFeed({{"3", "page", "60"}});
  Rotate(3);
  EXPECT_EQ(Set(MessagePlace::Ticker).MessageCounter, 100090);
  EXPECT_EQ(Set(MessagePlace::Ticker).MessageIndex, 0);
}

TEST_F(MessagesTest, TheStripRunsYellowOnBlackFor120SecondsWhateverItsInterval) {
  LoadFeed({{"2", "Hello", "0"}});
  Rotate();
  EXPECT_EQ(Shown(MainForm.Sponsor2), StripPage("Hello"));
  EXPECT_TRUE(MainForm.Sponsor2.Visible);
  EXPECT_EQ(Messages.MessageActive, 1);
  EXPECT_EQ(Messages.MessageShown, "Hello");
  Rotate(3);
  EXPECT_EQ(Messages.MessageSeconds, 90);
  EXPECT_TRUE(MainForm.Sponsor2.Visible);
  Rotate();
  EXPECT_FALSE(MainForm.Sponsor2.Visible);
  EXPECT_EQ(Shown(MainForm.Sponsor2), "<html></html>");
  EXPECT_EQ(Messages.MessageActive, 0);
  EXPECT_EQ(Messages.MessageSeconds, 0);
  Rotate();
  EXPECT_EQ(Messages.MessageActive, 1) << "its interval is over, so it runs again";
}

TEST_F(MessagesTest, TheStripsSecondsCountOnlyWhileNothingRuns) {
  LoadFeed({{"2", "one", "60"}, {"2", "two", "60"}});
  Rotate(5);  // shown, and down again
  EXPECT_EQ(Set(MessagePlace::Strip).MessageCounter, 0);
  Rotate();
  EXPECT_EQ(Messages.MessageActive, 0) << "30 of 60 seconds";
  Rotate();
  EXPECT_EQ(Messages.MessageShown, "two");
}

TEST_F(MessagesTest, ARunningTextRunsOnThroughALoad) {
  LoadFeed({{"2", "old"}});
  Rotate(2);
  LoadFeed({{"2", "new"}});
  Rotate(2);
  EXPECT_EQ(Shown(MainForm.Sponsor2), StripPage("old"));
  EXPECT_EQ(Messages.MessageSeconds, 90);
  Rotate();
  EXPECT_FALSE(MainForm.Sponsor2.Visible);
  Rotate();
  EXPECT_EQ(Messages.MessageShown, "new");
}

TEST_F(MessagesTest, ATextTiedToAnAlertNeverShowsByItself) {
  LoadFeed({{"2", "tornado", "0", "T"},
            {"2", "storm", "0", "S"},
            {"2", "flood", "0", "F"},
            {"2", "none", "0", ""}});
  MainForm.Sponsor2.Visible = true;
  Rotate();
  EXPECT_EQ(Messages.MessageActive, 0);
  EXPECT_FALSE(MainForm.Sponsor2.Visible);
}

TEST_F(MessagesTest, TheStripStandsStillDuringAnAlertAndTheBannersDoNot) {
  LoadFeed({{"2", "Hello"}, {"4", "e"}});
  for (int* alert : {&Bulletins.NWSAlertActive, &PersonalAlertsState.PersonalAlertActive}) {
    *alert = 1;
    Messages.MessageActive = 1;
    Rotate(5);
    EXPECT_EQ(Messages.MessageSeconds, 0);
    Messages.MessageActive = 0;
    Rotate();
    EXPECT_EQ(Messages.MessageActive, 0);
    EXPECT_EQ(Set(MessagePlace::Strip).MessageCounter, 100000);
    EXPECT_EQ(Shown(TickerForm.Sponsor4), "e");
    *alert = 0;
  }
}

TEST_F(MessagesTest, AfterABulletinTheTextThatGoesWithItRuns) {
  const std::vector<FeedEntry> feed = {{"2", "common", "10", "1"},
                                       {"2", "flood", "20", "F"},
                                       {"2", "storm", "30", "S"},
                                       {"2", "tornado", "40", "T"},
                                       {"2", "more", "50", "T"}};
  const struct {
    const char *tornado, *storm, *text;
    double interval;
  } cases[] = {{"t", "s", "tornado", 40}, {"", "s", "storm", 30}, {"", "", "flood", 20}};
  for (const auto& c : cases) {
    Messages = {};
    LoadFeed(feed);
    Set(MessagePlace::Strip).MessageIndex = 3;
    Bulletins.TornadoAlertText = c.tornado;
    Bulletins.ThunderstormAlertText = c.storm;
    FindAlertMessage();
    EXPECT_EQ(Shown(MainForm.Sponsor2), StripPage(c.text));
    EXPECT_EQ(Messages.MessageShown, c.text);
    EXPECT_EQ(Messages.MessageActive, 1);
    EXPECT_EQ(Set(MessagePlace::Strip).MessageInterval, c.interval);
    EXPECT_EQ(Set(MessagePlace::Strip).MessageCounter, 0);
    EXPECT_EQ(Set(MessagePlace::Strip).MessageIndex, 3) << "its place stays";
  }
}

TEST_F(MessagesTest, NoAlertTextRunsWhileAnAlertOrATextIsOnShowOrNoneIsDue) {
  LoadFeed({{"2", "ended", "0", "F", "3/6/2003", "3/7/2003"}, {"2", "flood", "0", "F"}});
  for (int* active :
       {&Bulletins.NWSAlertActive, &PersonalAlertsState.PersonalAlertActive, &Messages.MessageActive}) {
    *active = 1;
    FindAlertMessage();
    EXPECT_EQ(Messages.MessageShown, "");
    *active = 0;
  }
  FindAlertMessage();
  EXPECT_EQ(Messages.MessageShown, "flood");
}

TEST_F(MessagesTest, TheEndOfABulletinStartsItsText) {
  LoadFeed({{"2", "tornado", "0", "T"}});
  Bulletins.TornadoAlertText = "held";
  Bulletins.NWSAlertActive = 1;
  Bulletins.NWSAlertDuration = 30;
  HostTable.messageinterval = "100000";
  MainForm.UpdateTimer.Elapse();
  EXPECT_EQ(Messages.MessageShown, "tornado");
  EXPECT_EQ(Messages.MessageSeconds, 30) << "the rotation of the same tick follows it";
}

TEST_F(MessagesTest, ABulletinThatEndsTogetherWithAPersonalMessageStartsNoText) {
  LoadFeed({{"2", "tornado", "0", "T"}});
  Bulletins.TornadoAlertText = "held";
  Bulletins.NWSAlertActive = PersonalAlertsState.PersonalAlertActive = 1;
  HostTable.messageinterval = "100000";
  MainForm.UpdateTimer.Elapse();
  EXPECT_FALSE(IsAlertShowing());
  EXPECT_EQ(Messages.MessageShown, "") << "the personal message ends behind the bulletin";
}

TEST_F(MessagesTest, TheBannersEventHidesAndShowsThem) {
  for (HtmlDisplay* banner :
       {&MainForm.Sponsor0, &MainForm.Sponsor1, &TickerForm.Sponsor4, &SystemOptionsForm.SponsorBanner}) {
    banner->Visible = false;
    TakeDirtyControls();
    banner->SecondaryClick();
    EXPECT_TRUE(banner->Visible);
    EXPECT_EQ(TakeDirtyControls(), std::vector<Control*>{banner});
  }
  EXPECT_FALSE(MainForm.Sponsor2.SecondaryClick) << "the strip has none";
}

}  // namespace
}  // namespace skyloft
