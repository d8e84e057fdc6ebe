// The start against a feed that fails, with the readings of a former run at hand.
#include <gtest/gtest.h>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::BodyOf;
using feed::Get;
using feed::RunningServer;

constexpr const char* kLater = "2003-03-07T22:05:00";      // every town has a new reading by then
constexpr const char* kLaterHere = "2003-03-07T16:05:00";  // the same moment at the program's clock
constexpr const char* kMuchLater = "2003-03-08T01:05:00";
constexpr const char* kBanner = "MainForm.WeatherConditionsBanner";

// A start with a snapshot against a feed with these faults.
Ending StartAgainst(const Folder& folder, const QString& snapshot, const char* feed_now,
                    const std::vector<std::string>& faults) {
  std::vector<std::string> arguments = {"--port", "0", "--now", feed_now};
  for (const std::string& fault : faults) arguments.insert(arguments.end(), {"--fault", fault});
  const RunningServer server(arguments);
  return RunInRoot(folder, {"--hosts", "127.0.0.1:" + QString::number(server.Port()), "--now", kLaterHere,
                            "--snapshot", folder.Path(snapshot)});
}

std::string PageIn(const Folder& folder, const char* snapshot) {
  return Snapshot(folder.Path(snapshot)).Page(kBanner);
}

TEST(Fault, WithoutOneNewReadingsReplaceTheOld) {
  const Folder folder;
  SetUpTowns(folder);
  ASSERT_EQ(StartAgainst(folder, "old", kFeedNow, {}).code, 0);
  ASSERT_EQ(StartAgainst(folder, "new", kLater, {}).code, 0);
  EXPECT_NE(PageIn(folder, "old"), PageIn(folder, "new"));
}

class ForecastFault : public testing::TestWithParam<const char*> {};

TEST_P(ForecastFault, OldReadingsStayOnShow) {
  const Folder folder;
  SetUpTowns(folder);
  ASSERT_EQ(StartAgainst(folder, "old", kFeedNow, {}).code, 0);
  const std::string old_page = PageIn(folder, "old");
  ASSERT_NE(old_page.find("Temperature</B>: "), old_page.npos);
  // First all of the forecasts' page fails, then only one kind of query at a time.
  for (const std::string page : {"/forecast.asp", "/forecast.asp?d=meta", "/forecast.asp?d=current"}) {
    const Ending ending = StartAgainst(folder, "new", kLater, {page + "=" + GetParam()});
    EXPECT_EQ(ending.code, 0) << page << ending.errors;
    EXPECT_EQ(ending.errors.find("box "), std::string::npos) << page << ending.errors;
    const Snapshot shown(folder.Path("new"));
    EXPECT_TRUE(shown.Flag("MainForm", "visible")) << page;
    EXPECT_EQ(shown.Page(kBanner), old_page) << page;
  }
}

TEST_P(ForecastFault, ReadingsAreFetchedOnceTheFeedIsWell) {
  const Folder faulty, well;
  SetUpTowns(faulty);
  SetUpTowns(well);
  ASSERT_EQ(StartAgainst(faulty, "s", kLater, {std::string("/forecast.asp?d=current=") + GetParam()}).code,
            0);
  ASSERT_EQ(StartAgainst(faulty, "s", kLater, {}).code, 0);
  ASSERT_EQ(StartAgainst(well, "s", kLater, {}).code, 0);
  EXPECT_EQ(PageIn(faulty, "s"), PageIn(well, "s"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, ForecastFault,
                         testing::Values("500", "empty", "cut", "garbage", "refuse", "huge"),
                         [](const auto& test) { return std::string(test.param); });

// Rows have no bounds of their own in the feed: lists that run short or over give a town the values of its
// neighbour. So what is on show may be wrong, but the next readings set it right.
TEST(WrongCounts, NextReadingsSetThemRight) {
  const Folder folder;
  SetUpTowns(folder);
  for (const std::string page : {"/forecast.asp", "/forecast.asp?d=meta", "/forecast.asp?d=current"}) {
    const Ending ending = StartAgainst(folder, "wrong", kLater, {page + "=wrong-count"});
    EXPECT_EQ(ending.code, 0) << page << ending.errors;
    EXPECT_TRUE(Snapshot(folder.Path("wrong")).Flag("MainForm", "visible")) << page;
  }
  ASSERT_EQ(StartAgainst(folder, "right", kMuchLater, {}).code, 0);
  const RunningServer server({"--port", "0", "--now", kMuchLater});
  const std::string feed = BodyOf(Get(server.Port(), "/forecast.asp?t=xml&d=current&pc=66044"));
  const std::string page = PageIn(folder, "right");
  EXPECT_NE(page.find("Temperature</B>: " + TextsOf(feed, "Tf").at(0) + " F"), page.npos) << page;
  EXPECT_NE(page.find("Humidity</B>: " + TextsOf(feed, "Rh").at(0) + " %"), page.npos) << page;
}

// The version and the forecasts' server are not among the elements that go.
TEST(WrongCounts, HostTableThatStillNamesTheForecastsServes) {
  const Folder folder;
  SetUpTowns(folder);
  ASSERT_EQ(StartAgainst(folder, "old", kFeedNow, {}).code, 0);
  const Ending ending = StartAgainst(folder, "new", kLater, {"/skyloft/config/hosts.xml=wrong-count"});
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(ending.errors.find("box "), std::string::npos) << ending.errors;
  EXPECT_NE(PageIn(folder, "new"), PageIn(folder, "old"));
}

class HostTableFault : public testing::TestWithParam<const char*> {};

TEST_P(HostTableFault, CountsAsAServerOutOfReach) {
  const Folder folder;
  SetUpTowns(folder);
  const QByteArray data = ReadBytes(folder.DataFile());
  const Ending ending =
      StartAgainst(folder, "s", kLater, {std::string("/skyloft/config/hosts.xml=") + GetParam()});
  EXPECT_EQ(ending.code, 0);
  EXPECT_EQ(ReadBytes(folder.DataFile()), data);
  EXPECT_NE(ending.errors.find("box critical \"ERROR: SKYLOFT SERVER UNREACHABLE."), std::string::npos)
      << ending.errors;
  EXPECT_FALSE(Snapshot(folder.Path("s")).Saved());
}

INSTANTIATE_TEST_SUITE_P(Kinds, HostTableFault,
                         testing::Values("500", "empty", "cut", "garbage", "refuse", "huge"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace skyloft::program
