#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "base/values.h"
#include "feedserver/answer.h"
#include "scan.h"

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);

struct Entry {
  std::string type, start, end, interval, text, priority;
};

std::vector<Entry> Ask(const std::string& path = "/messages.xml.1", Date now = kNow) {
  const Elements elements = Scan(Answer({path, "", now}, {}).body);
  std::vector<Entry> entries;
  for (std::size_t i = 0; i + 5 < elements.size(); i += 6) {
    const char* const tags[] = {"type", "starttime", "endtime", "interval", "messagetext", "priority"};
    for (std::size_t tag = 0; tag < 6; ++tag) EXPECT_EQ(elements[i + tag].first, tags[tag]);
    entries.push_back({elements[i].second, elements[i + 1].second, elements[i + 2].second,
                       elements[i + 3].second, elements[i + 4].second, elements[i + 5].second});
  }
  EXPECT_EQ(elements.size(), entries.size() * 6);
  return entries;
}

bool Stands(const Entry& entry, Date now) {
  return ReadDate(entry.start) <= now && now <= ReadDate(entry.end);
}

TEST(Messages, FillTheFiveSetsWithinTheirBounds) {
  std::map<std::string, int> sets;
  for (const Entry& entry : Ask()) ++sets[entry.type];
  EXPECT_EQ(sets.size(), 5u);
  int all = 0;
  for (const char* set : {"0", "1", "2", "3", "4"}) {
    EXPECT_GE(sets[set], 2) << set;
    EXPECT_LE(sets[set], 11) << set;
    all += sets[set];
  }
  EXPECT_LE(all, 61);
}

TEST(Messages, AreTheSameUnderEveryDigit) {
  for (const char digit : std::string("023456789"))
    EXPECT_EQ(Answer({std::string("/messages.xml.") + digit, "", kNow}, {}).body,
              Answer({"/messages.xml.1", "", kNow}, {}).body);
}

TEST(Messages, EverySetHasOneToShowAtAnyHour) {
  for (int hour = 0; hour < 24; ++hour) {
    const Date now = MakeDate(2003, 3, 7, hour, 30);
    std::map<std::string, int> standing;
    for (const Entry& entry : Ask("/messages.xml.1", now)) standing[entry.type] += Stands(entry, now);
    for (const char* set : {"0", "1", "2", "3", "4"}) EXPECT_GE(standing[set], 1) << set << " at " << hour;
  }
}

TEST(Messages, SomeStandForPartOfTheDayOnly) {
  const auto entries = Ask();
  const auto standing = [&](int hour) {
    return std::count_if(entries.begin(), entries.end(),
                         [&](const Entry& entry) { return Stands(entry, MakeDate(2003, 3, 7, hour, 30)); });
  };
  EXPECT_LT(standing(3), static_cast<long>(entries.size()));
  EXPECT_GT(standing(12), standing(3));
}

TEST(Messages, StandOnAfterMidnightUntilTheyAreAskedForAgain) {
  const Date before = MakeDate(2003, 3, 7, 23, 59), after = MakeDate(2003, 3, 8, 0, 10);
  for (const Entry& entry : Ask("/messages.xml.1", before)) {
    if (entry.type == "0") {
      EXPECT_TRUE(Stands(entry, after));
    }
  }
}

TEST(Messages, HaveWholeDocumentsForBannersAndPlainTextForTheStrip) {
  for (const Entry& entry : Ask()) {
    EXPECT_GT(StrictNumber(entry.interval), 0);
    EXPECT_EQ(entry.text.find('\n'), entry.text.npos);
    if (entry.type == "2") {
      EXPECT_EQ(entry.text.find_first_of("<>&"), entry.text.npos) << entry.text;
    } else {
      EXPECT_TRUE(entry.text.starts_with("<html>") && entry.text.ends_with("</html>")) << entry.text;
      EXPECT_EQ(entry.priority, "1");
      for (const char* foreign : {"<script", "http:", "src="})
        EXPECT_EQ(entry.text.find(foreign), entry.text.npos) << entry.text;
    }
  }
}

TEST(Messages, OfTheStripHaveEveryPriority) {
  std::map<std::string, std::string> texts;
  for (const Entry& entry : Ask()) {
    if (entry.type == "2") texts[entry.priority] = entry.text;
  }
  EXPECT_EQ(texts.size(), 4u);
  EXPECT_TRUE(texts.contains("1"));
  for (const char* alert : {"T", "S", "F"}) EXPECT_TRUE(texts[alert].starts_with("SIMULATED. ")) << alert;
}

TEST(Messages, OfTheStationAndOfTheBarAlwaysSayThatTheWeatherIsSimulated) {
  for (const Entry& entry : Ask()) {
    if (entry.type == "0" || entry.type == "3") {
      EXPECT_NE(LowerCase(entry.text).find("simulated"), std::string::npos) << entry.text;
    }
  }
}

}  // namespace
}  // namespace skyloft::feed
