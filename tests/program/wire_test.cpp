// The requests of the program as a feed sees them.
#include <gtest/gtest.h>

#include <QFile>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::BodyOf;
using feed::Get;
using feed::RunningServer;

constexpr const char* kAllTowns = "pc=66044&pc=33131&pc=80202&pc=98101&pc=04101";
constexpr const char* kZipCodes[] = {"66044", "33131", "80202", "98101", "04101"};

// A start with stored towns against a feed at that moment, and its requests.
std::vector<Logged> RequestsOfAStart(const Folder& folder, const char* feed_now,
                                     const QStringList& options = {}) {
  QFile::remove(folder.Path("log"));
  const RunningServer server({"--port", "0", "--now", feed_now, "--log", folder.Path("log").toStdString()});
  const QString hosts = "127.0.0.1:" + QString::number(server.Port());
  const Ending ending =
      RunInRoot(folder, QStringList{"--hosts", hosts} + options, "until idle 5000\nmenu ExitSkyloft\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
  return ReadLog(folder.Path("log"));
}

std::vector<std::string> StampsAt(const char* feed_now) {
  const RunningServer server({"--port", "0", "--now", feed_now});
  return TextsOf(BodyOf(Get(server.Port(), std::string("/forecast.asp?t=xml&d=meta&") + kAllTowns)),
                 "Obs_TS_UTC");
}

TEST(Wire, EveryRequestIsHttp10UnderTheProgramsAgent) {
  const Folder folder;
  const auto requests = RequestsOfAStart(folder, kFeedNow, {"--demo"});
  EXPECT_GT(requests.size(), 7u);
  for (const Logged& request : requests) {
    EXPECT_EQ(request.http, "HTTP/1.0") << request.path;
    EXPECT_EQ(request.agent, "Dart Communications PowerTCP") << request.path;
  }
}

TEST(Wire, StartAsksOnceForEachKindAndForAllTownsAtOnce) {
  const Folder folder;
  SetUpTowns(folder);
  ASSERT_TRUE(QFile::remove(folder.DataFile()));
  const auto requests = RequestsOfAStart(folder, kFeedNow);
  ASSERT_FALSE(requests.empty());
  EXPECT_EQ(requests[0].path, "/skyloft/config/hosts.xml");
  EXPECT_EQ(Only(requests, "/skyloft/config/hosts.xml").size(), 1u);
  const auto meta = Only(requests, "/forecast.asp", "d=meta");
  const auto current = Only(requests, "/forecast.asp", "d=current");
  ASSERT_EQ(meta.size(), 1u);
  ASSERT_EQ(current.size(), 1u);
  EXPECT_EQ(meta[0].query, std::string(kAllTowns) + "&t=xml&d=meta");
  EXPECT_EQ(current[0].query, std::string(kAllTowns) + "&t=xml&d=current");
}

TEST(Wire, RestartAtTheSameTimeAsksForNoReadings) {
  const Folder folder;
  SetUpTowns(folder);
  const auto requests = RequestsOfAStart(folder, kFeedNow);
  EXPECT_EQ(Only(requests, "/forecast.asp", "d=meta").size(), 1u);
  EXPECT_TRUE(Only(requests, "/forecast.asp", "d=current").empty());
}

TEST(Wire, OnlyTownsWithNewReadingsAreAskedFor) {
  const Folder folder;
  SetUpTowns(folder);
  constexpr const char* later = "2003-03-07T20:12:00";
  const auto before = StampsAt(kFeedNow), after = StampsAt(later);
  ASSERT_EQ(before.size(), 5u);
  ASSERT_EQ(after.size(), 5u);
  std::string moved;
  int count = 0;
  for (size_t i = 0; i < 5; ++i) {
    if (before[i] == after[i]) continue;
    moved += std::string("pc=") + kZipCodes[i] + "&";
    ++count;
  }
  ASSERT_GT(count, 0);
  ASSERT_LT(count, 5);
  const auto current = Only(RequestsOfAStart(folder, later), "/forecast.asp", "d=current");
  ASSERT_EQ(current.size(), 1u);
  EXPECT_EQ(current[0].query, moved + "t=xml&d=current");
}

}  // namespace
}  // namespace skyloft::program
