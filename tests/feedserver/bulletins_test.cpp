#include "feedserver/bulletins.h"

#include <gtest/gtest.h>

#include "base/guard.h"
#include "feedserver/answer.h"
#include "scan.h"

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);

Elements Ask(const std::string& query, const std::string& file, Date now = kNow) {
  World world;
  world.bulletins = [&](Date) { return ReadBulletins(file, kNow); };
  const Reply reply = Answer({"/bulletins.asp", query, now}, world);
  EXPECT_EQ(reply.status, 200);
  EXPECT_EQ(reply.type, "text/xml");
  return Scan(reply.body);
}

using Texts = std::vector<std::string>;

TEST(Bulletins, HaveTheFiveTags) {
  const Elements expected = {{"pc", "66044"},
                             {"Type", "TOR"},
                             {"IT", "Mar 07 2003 08:00PM"},
                             {"ET", "Mar 07 2003 08:50PM"},
                             {"Text", "SIMULATED. TAKE SHELTER | NOW     "}};
  EXPECT_EQ(Ask("pc=66044&t=xml", "66044 | TOR | -5 | +45 | TAKE SHELTER | NOW\n"), expected);
  EXPECT_EQ(Ask("&pc=66044&t=xml", "66044|TOR|2003-03-07T20:00:00|3/7/2003 8:50:00 PM|TAKE SHELTER | NOW"),
            expected);
}

TEST(Bulletins, AreNoneUnlessAskedFor) {
  EXPECT_TRUE(Scan(Answer({"/bulletins.asp", "pc=66044&t=xml", kNow}, {}).body).empty());
  EXPECT_TRUE(Ask("pc=66044&t=xml", "").empty());
  EXPECT_TRUE(Ask("t=xml", "* | TOR | -5 | +45 | x").empty());
}

TEST(Bulletins, AllBeginWithTheWordThatTheyAreSimulated) {
  EXPECT_EQ(
      Values(Ask("pc=66044",
                 "* | TOR | -5 | +45 | x\n* | TOR | -5 | +45 | SIMULATED. y\n"
                 "* | TOR | -5 | +45 | SIMULATED: z\n* | TOR | -5 | +45 |"),
             "Text"),
      (Texts{"SIMULATED. x     ", "SIMULATED. y     ", "SIMULATED. SIMULATED: z     ", "SIMULATED.      "}));
}

TEST(Bulletins, AreForThePlacesThatTheyName) {
  const char* const file =
      "66044 | TOR | -5 | +45 | one\n"
      "* | SVR | -5 | +45 | all\n"
      "ks douglas, 33131 | FFW | -5 | +45 | county\n"
      "FL Miami-Dade | WTO | -5 | +45 | other\n"
      "99999 | FFA | -5 | +45 | unknown\n";
  const std::pair<const char*, Texts> cases[] = {
      {"pc=66044", {"one", "all", "county"}},
      {"pc=33131", {"all", "county", "other"}},
      {"pc=80202", {"all"}},
      {"pc=99999", {"all", "unknown"}},
      {"pc=66044&pc=33131", {"one", "all", "all", "county", "county", "other"}},
      {"pc=66044&pc=66044", {"one", "all", "county"}}};
  for (const auto& [query, texts] : cases) {
    Texts marked;
    for (const auto& text : texts) marked.push_back("SIMULATED. " + text + "     ");
    EXPECT_EQ(Values(Ask(query, file), "Text"), marked) << query;
  }
  EXPECT_EQ(Values(Ask("pc=33131&pc=66044", file), "pc"),
            (Texts{"66044", "33131", "66044", "33131", "66044", "33131"}))
      << "in the order of the file, then of the query";
}

TEST(Bulletins, StandFromTheirIssueToTheirExpiry) {
  const char* const file = "* | TOR | +10 | +20 | x";
  const std::pair<int, size_t> cases[] = {{9, 0}, {10, 1}, {20, 1}, {21, 0}};
  for (const auto& [minute, count] : cases)
    EXPECT_EQ(Values(Ask("pc=66044", file, DateAdd(DateUnit::Minutes, minute, kNow)), "ET"),
              Texts(count, "Mar 07 2003 08:25PM"))
        << minute;
}

TEST(Bulletins, TextsHoldWhatTheyLike) {
  const std::pair<const char*, const char*> cases[] = {{"a \\n b\\\\n", "a \r\n b\\n"},
                                                       {"<b>&amp; \"x\"</b>", "<b>&amp; \"x\"</b>"},
                                                       {"x \\t \\", "x \\t \\"}};
  for (const auto& [written, text] : cases)
    EXPECT_EQ(First(Ask("pc=66044", std::string("* | TOR | -5 | +45 | ") + written), "Text"),
              std::string("SIMULATED. ") + text + "     ");
  const std::string longest(100'000, 'x');
  EXPECT_EQ(First(Ask("pc=66044", "* | TOR | -5 | +45 | " + longest), "Text"),
            "SIMULATED. " + longest + "     ");
}

TEST(Bulletins, ComeInUtf8OrWindows1252) {
  for (const char* text : {"caf\xC3\xA9", "caf\xE9"})
    EXPECT_EQ(ReadBulletins(std::string("* | TOR | -5 | +45 | ") + text, kNow)[0].text, "SIMULATED. caf\xE9");
}

TEST(Bulletins, CommentsAndEmptyLinesArePassedOver) {
  EXPECT_EQ(ReadBulletins("# x\r\n\r\n  \n* | TOR | -5 | +45 | x\r\n#", kNow).size(), 1u);
}

TEST(Bulletins, LineThatIsNoneRaisesAndIsNamed) {
  for (const char* line :
       {"x", "* | TOR | -5 | +45", " | TOR | -5 | +45 | x", "* | TORN | -5 | +45 | x", "* | | -5 | +45 | x",
        "* | TOR | 5x | +45 | x", "* | TOR | -5 | +x | x", "* | TOR | -5 | + | x", "* | TOR | noon | +45 | x",
        "* | TOR | -5 | +99999999999 | x", "* | TOR | -5 | +-5 | x", "* | TOR | --5 | +45 | x",
        "* | TOR | --2147483648 | +45 | x"}) {
    try {
      ReadBulletins(std::string("* | TOR | -5 | +45 | fine\n") + line + "\n", kNow);
      ADD_FAILURE() << line;
    } catch (const RuntimeError& error) {
      EXPECT_STREQ(error.what(), "line 2 is no bulletin") << line;
    }
  }
}

TEST(Bulletins, BytesThatNoXmlMayHoldAreLeftOut) {
  const Elements told = Ask("pc=%00%0166%1F044&t=xml", "* | TOR | -5 | +45 | a\001b\tc\n");
  EXPECT_EQ(Values(told, "pc"), std::vector<std::string>{"66044"});
  EXPECT_EQ(First(told, "Text"), "SIMULATED. ab\tc     ");
}

}  // namespace
}  // namespace skyloft::feed
