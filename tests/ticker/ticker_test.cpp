#include "ticker/ticker.h"

#include "feed/observations.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "message_feed.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "ticker/ticker_pages.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

constexpr const char* kTitles[] = {"CurrentWeatherTicker", "HourlyForecastTicker", "3DayForecastTicker",
                                   "AlmanacTicker"};

class TickerTest : public Station {
 protected:
  void Begin(int locations) {
    Doubles.zone = {0, 0};
    SetUpLocations(locations);
    for (int i = 0; i < locations; ++i)
      ObservationRecord.City[i] = std::string(1, static_cast<char>('A' + i));
    Pages(true, true, true, true);
    TickerForm.Visible = true;
    TickerForm.Ticker.Document = TickerBlankPage();
  }
  static void Pages(bool current, bool hourly, bool days, bool almanac) {
    SystemOptionsForm.ShowCurrentConditions.Checked = current;
    SystemOptionsForm.ShowHourlyForecast.Checked = hourly;
    SystemOptionsForm.Show3DayForecast.Checked = days;
    SystemOptionsForm.ShowAlmanac.Checked = almanac;
  }
  // What the bar shows: location and page as "B2", "-" for the blank page, else its text.
  static std::string Shown() {
    const std::string& page = TickerForm.Ticker.Document;
    for (size_t i = 0; i < std::size(kTitles); ++i) {
      if (page.find(kTitles[i]) == std::string::npos) continue;
      const size_t place = page.find(", </font>");
      return page.substr(place - 1, 1) + std::to_string(i);
    }
    return page == TickerBlankPage() ? "-" : page;
  }
  // The pages of so many seconds, in groups of six that must be alike.
  static std::string Sequence(int groups) {
    std::string pages;
    for (int group = 0; group < groups; ++group) {
      std::string first;
      for (int second = 0; second < 6; ++second) {
        MainForm.Clock.Elapse();
        if (second == 0) first = Shown();
        EXPECT_EQ(Shown(), first) << "second " << second << " of group " << group;
      }
      pages += (group == 0 ? "" : " ") + first;
    }
    return pages;
  }
};

TEST_F(TickerTest, APageStandsSixSecondsAndTheLastTwice) {
  Begin(1);
  EXPECT_EQ(Sequence(11), "A0 A1 A2 A3 A3 A0 A1 A2 A3 A3 A0");
}

TEST_F(TickerTest, TheLocationsFollowEachOther) {
  Begin(3);
  EXPECT_EQ(Sequence(16), "A0 A1 A2 A3 A3 B0 B1 B2 B3 B3 C0 C1 C2 C3 C3 A0");
}

TEST_F(TickerTest, APageThatIsSwitchedOffCostsNoTimeInAnyCombination) {
  for (const int locations : {1, 3}) {
    for (int mask = 0; mask < 16; ++mask) {
      Station::SetUpLocations(0);
      MainForm.LocationSelection.Clear();
      TickerRotation = {};
      Begin(locations);
      Pages(mask & 1, mask & 2, mask & 4, mask & 8);
      // Each location's pages in turn, and its last one once more in the time of its end.
      std::vector<std::string> expected;
      std::string last = "-";
      while (expected.size() < 24) {
        for (int location = 0; location < locations; ++location) {
          for (int page = 0; page < 4; ++page) {
            if (!(mask >> page & 1)) continue;
            last = std::string(1, static_cast<char>('A' + location)) + std::to_string(page);
            expected.push_back(last);
          }
          expected.push_back(last);
        }
      }
      std::string text;
      for (size_t i = 0; i < 24; ++i) text += (i == 0 ? "" : " ") + expected[i];
      EXPECT_EQ(Sequence(24), text) << "pages " << mask << ", locations " << locations;
    }
  }
}

TEST_F(TickerTest, WithAllPagesOffTheBarStaysBlankAndOnlyAMessageCanChangeIt) {
  Begin(1);
  Pages(false, false, false, false);
  EXPECT_EQ(Sequence(5), "- - - - -");
  LoadFeed({{"3", "message", "0"}});
  EXPECT_EQ(Sequence(2), "message message");
}

TEST_F(TickerTest, AMessageTakesTheSecondTimeOfTheLastLocationsLastPage) {
  Begin(2);
  LoadFeed({{"3", "message", "0"}});
  EXPECT_EQ(Sequence(11), "A0 A1 A2 A3 A3 B0 B1 B2 B3 message A0");
}

TEST_F(TickerTest, AMessageCanBeClickedAndAPageLetsPressesThroughToTheBar) {
  Begin(1);
  LoadFeed({{"3", "message", "0"}});
  Sequence(5);
  EXPECT_EQ(Shown(), "message");
  EXPECT_TRUE(TickerForm.Ticker.Enabled);
  MainForm.Clock.Elapse();
  EXPECT_FALSE(TickerForm.Ticker.Enabled);
}

TEST_F(TickerTest, AMessageOutsideItsTimeOrWithoutATextIsPassedOver) {
  Begin(1);
  LoadFeed({{"3", "future", "0", "1", "3/8/2003"},
            {"3", "", "0"},
            {"3", "past", "0", "1", "3/1/2003", "3/2/2003"}});
  EXPECT_EQ(Sequence(6), "A0 A1 A2 A3 A3 A0");
}

TEST_F(TickerTest, ThePlaceOfTheMessagesMovesByOneFromItselfAndTakesTheNewEntrysInterval) {
  Begin(1);
  Pages(false, false, false, false);  // every call that is due ends a location
  LoadFeed({{"3", "future", "11", "1", "3/8/2003"}, {"3", "b", "22"}, {"3", "c", "33"}});
  MessageSet& set = Messages.Sets[MessagePlace::Ticker];
  const auto next = [&] {
    TickerRotation.TickerCounter.reset();
    TickerDisplay();
  };
  next();
  EXPECT_EQ(Shown(), "b") << "the first that is due";
  EXPECT_EQ(set.MessageIndex, 1) << "and yet one from its own place";
  EXPECT_EQ(set.MessageInterval, 22);
  EXPECT_EQ(set.MessageCounter, 0);
  next();
  EXPECT_EQ(Shown(), "b");
  EXPECT_EQ(set.MessageIndex, 1) << "its interval is not over";
  set.MessageCounter = 22;
  next();
  EXPECT_EQ(Shown(), "b");
  EXPECT_EQ(set.MessageIndex, 2);
  EXPECT_EQ(set.MessageInterval, 33);
  set.MessageCounter = 33;
  next();
  EXPECT_EQ(Shown(), "c");
  EXPECT_EQ(set.MessageIndex, 0) << "around";
}

TEST_F(TickerTest, WithoutMessagesThePlaceGoesBackTo0) {
  Begin(1);
  LoadFeed({});
  MessageSet& set = Messages.Sets[MessagePlace::Ticker];
  set.MessageIndex = 3;
  Sequence(5);
  EXPECT_EQ(set.MessageIndex, 0);
}

TEST_F(TickerTest, ThePlaceMovesOnAlsoWhenNothingIsDue) {
  Begin(1);
  LoadFeed({{"3", "future", "60", "1", "3/8/2003"}, {"3", "too", "60", "1", "3/8/2003"}});
  Sequence(5);
  EXPECT_EQ(Messages.Sets[MessagePlace::Ticker].MessageIndex, 1);
}

TEST_F(TickerTest, AMessageWithATimeThatIsNoDateEndsTheCallAndTheNextTriesAgain) {
  Begin(1);
  LoadFeed({{"3", "message", "0", "1", "whenever"}});
  EXPECT_EQ(Sequence(7), "A0 A1 A2 A3 A3 A3 A3");
}

TEST_F(TickerTest, AnEmptyCounterRotatesAtTheVeryNextCall) {
  Begin(1);
  for (const char* page : {"A0", "A1", "A2"}) {
    TickerRotation.TickerCounter.reset();
    MainForm.Clock.Elapse();
    EXPECT_EQ(Shown(), page);
  }
}

TEST_F(TickerTest, TheRotationIsFrozenWhileTheBarIsHidden) {
  Begin(1);
  Sequence(1);
  TickerForm.Visible = false;
  EXPECT_EQ(Sequence(3), "A0 A0 A0");
}

TEST_F(TickerTest, WithoutALocationACallEndsQuietly) {
  TickerForm.Ticker.Document = TickerBlankPage();
  Begin(0);
  Pages(false, false, false, false);
  TickerDisplay();
  EXPECT_EQ(Shown(), "-");
}

TEST_F(TickerTest, TheLeftButtonShowsTheMainWindowAndAnyOtherOpensTheBarsMenu) {
  for (const MouseButton button : {MouseButton::Left, MouseButton::Double}) {
    MainForm.Visible = false;
    TickerForm.Press({0, 0, button});
    EXPECT_TRUE(MainForm.Visible);
    EXPECT_TRUE(Doubles.menus.empty());
  }
  MainForm.Visible = false;
  TickerForm.Press({0, 0, MouseButton::Right});
  EXPECT_FALSE(MainForm.Visible);
  EXPECT_EQ(Doubles.menus, std::vector<std::string>{"Ticker"});
}

}  // namespace
}  // namespace skyloft
