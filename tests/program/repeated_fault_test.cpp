// A feed that was well at one start and fails at the next.
#include <gtest/gtest.h>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::RunningServer;

constexpr const char* kBanner = "MainForm.WeatherConditionsBanner";

class SecondCall : public testing::TestWithParam<const char*> {
 protected:
  // A start with a snapshot against the feed, one hour after the town's readings.
  Ending Start(const RunningServer& server, const char* snapshot) {
    return RunInRoot(folder_, {"--hosts", "127.0.0.1:" + QString::number(server.Port()), "--now",
                               "2003-03-07T16:05:00", "--snapshot", folder_.Path(snapshot)});
  }
  std::string Page(const char* snapshot) const { return Snapshot(folder_.Path(snapshot)).Page(kBanner); }

  Folder folder_;
};

TEST_P(SecondCall, KeepsWhatTheFirstBrought) {
  SetUpTowns(folder_);
  const QByteArray old_data = ReadBytes(folder_.DataFile());
  for (const std::string query : {"d=meta", "d=current"}) {
    folder_.Write("root/program files/skyloft/sklt.dat", old_data);
    const std::string log = folder_.Path(QString::fromStdString("log-" + query)).toStdString();
    const RunningServer server({"--port", "0", "--now", "2003-03-07T22:05:00", "--log", log, "--fault",
                                "/forecast.asp?" + query + "=" + GetParam() + "@2"});
    ASSERT_EQ(Start(server, "first").code, 0);
    // The readings of the former hour are there again, so that the second start asks for new ones.
    if (query == "d=current") folder_.Write("root/program files/skyloft/sklt.dat", old_data);
    const Ending ending = Start(server, "second");
    EXPECT_EQ(ending.code, 0) << query << ending.errors;
    EXPECT_EQ(ending.errors.find("box "), std::string::npos) << query << ending.errors;
    EXPECT_EQ(Only(ReadLog(QString::fromStdString(log)), "/forecast.asp", query.c_str()).size(), 2u);
    EXPECT_EQ(Page("second") == Page("first"), query == "d=meta") << query;
  }
}

TEST_P(SecondCall, ForTheHostTableLeavesTheDataOfTheFirst) {
  SetUpTowns(folder_);
  const RunningServer server({"--port", "0", "--now", "2003-03-07T22:05:00", "--fault",
                              std::string("/skyloft/config/hosts.xml=") + GetParam() + "@2"});
  ASSERT_EQ(Start(server, "first").code, 0);
  const QByteArray data = ReadBytes(folder_.DataFile());
  const Ending ending = Start(server, "second");
  EXPECT_EQ(ending.code, 0);
  EXPECT_NE(ending.errors.find("SERVER UNREACHABLE"), std::string::npos) << ending.errors;
  EXPECT_FALSE(Snapshot(folder_.Path("second")).Saved());
  EXPECT_EQ(ReadBytes(folder_.DataFile()), data);
}

INSTANTIATE_TEST_SUITE_P(Kinds, SecondCall,
                         testing::Values("500", "empty", "cut", "garbage", "refuse", "huge"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace skyloft::program
