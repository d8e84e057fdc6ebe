// A feed that was well at one start and fails at the next.
#include <gtest/gtest.h>
#include <signal.h>

#include <QFile>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::RunningServer;

constexpr const char* kBanner = "MainForm.WeatherConditionsBanner";

QStringList HostsOf(const RunningServer& server) {
  return {"--hosts", "127.0.0.1:" + QString::number(server.Port())};
}

class SecondCall : public testing::TestWithParam<const char*> {
 protected:
  // A start with a snapshot against the feed, one hour after the town's readings.
  Ending Start(const RunningServer& server, const char* snapshot) {
    return RunInRoot(folder_, HostsOf(server) << "--now"
                                              << "2003-03-07T16:05:00"
                                              << "--snapshot" << folder_.Path(snapshot));
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

TEST_P(SecondCall, ForAPlaceLeavesTheTownThatWasFound) {
  const RunningServer server(
      {"--port", "0", "--fault", std::string("/location_setup.asp=") + GetParam() + "@2"});
  ASSERT_EQ(RunInRoot(folder_, HostsOf(server) << "--demo", "menu ExitSkyloft\n").code, 0);
  EXPECT_EQ(folder_.Setting("Settings/LocationIndexMax"), "0");
  EXPECT_EQ(RunInRoot(folder_, {"--snapshot", folder_.Path("next")}).code, 0);
  EXPECT_EQ(Snapshot(folder_.Path("next")).Text("MainForm.LocationSelection", "text"), "Lawrence, KS");
}

INSTANTIATE_TEST_SUITE_P(Kinds, SecondCall,
                         testing::Values("500", "empty", "cut", "garbage", "refuse", "huge"),
                         [](const auto& test) { return std::string(test.param); });

// Lists that run short or over mix the towns up, until the next good readings.
TEST(SecondCallWithWrongCounts, IsSetRightByTheThird) {
  for (const std::string query : {"d=meta", "d=current"}) {
    const Folder folder;
    SetUpTowns(folder);
    const RunningServer server({"--port", "0", "--now", "2003-03-07T22:05:00", "--fault",
                                "/forecast.asp?" + query + "=wrong-count@2"});
    const auto start = [&](const QStringList& hosts, const char* now, const char* snapshot) {
      const Ending ending =
          RunInRoot(folder, hosts + QStringList{"--now", now, "--snapshot", folder.Path(snapshot)});
      EXPECT_EQ(ending.code, 0) << query << ending.errors;
      EXPECT_EQ(ending.errors.find("box "), std::string::npos) << query << ending.errors;
      return Snapshot(folder.Path(snapshot));
    };
    start(HostsOf(server), "2003-03-07T16:05:00", "first");
    ASSERT_TRUE(QFile::remove(folder.DataFile()));  // so that the second start asks for everything
    EXPECT_TRUE(start(HostsOf(server), "2003-03-07T16:05:00", "second").Flag("MainForm", "visible"));
    const RunningServer well({"--port", "0", "--now", "2003-03-08T01:05:00"});
    const std::string page = start(HostsOf(well), "2003-03-07T19:05:00", "third").Page(kBanner);
    const std::string feed = feed::BodyOf(feed::Get(well.Port(), "/forecast.asp?t=xml&d=current&pc=66044"));
    EXPECT_NE(page.find("Temperature</B>: " + TextsOf(feed, "Tf").at(0) + " F"), page.npos) << page;
  }
}

TEST(SecondCallWithWrongCounts, ForTheHostTableStillServes) {
  const Folder folder;
  SetUpTowns(folder);
  const RunningServer server({"--port", "0", "--fault", "/skyloft/config/hosts.xml=wrong-count@2"});
  for (const char* snapshot : {"first", "second"}) {
    const Ending ending = RunInRoot(folder, HostsOf(server) << "--snapshot" << folder.Path(snapshot));
    EXPECT_EQ(ending.code, 0) << ending.errors;
    EXPECT_TRUE(Snapshot(folder.Path(snapshot)).Flag("MainForm", "visible")) << snapshot;
  }
}

TEST(SecondCallWithWrongCounts, ForAPlaceDoesNotStopTheDemo) {
  const Folder folder;
  const RunningServer server({"--port", "0", "--fault", "/location_setup.asp=wrong-count@2"});
  EXPECT_EQ(RunInRoot(folder, HostsOf(server) << "--demo", "menu ExitSkyloft\n").code, 0);
  EXPECT_EQ(RunInRoot(folder, {"--snapshot", folder.Path("next")}).code, 0);
  EXPECT_TRUE(Snapshot(folder.Path("next")).Flag("MainForm", "visible"));
}

// A second call whose reply has no end: the file, a piece of its query, and the fault.
struct Endless {
  const char* name;
  const char* file;
  const char* kind;
  const char* fault;
};

void PrintTo(const Endless& endless, std::ostream* out) { *out << endless.name; }

class EndlessSecondCall : public testing::TestWithParam<Endless> {};

TEST_P(EndlessSecondCall, SignalEndsItAndTheFirstsDataStay) {
  const Endless& endless = GetParam();
  const Folder folder;
  SetUpTowns(folder);
  const std::string path = std::string(endless.file) + (*endless.kind ? "?" : "") + endless.kind;
  const RunningServer server({"--port", "0", "--now", "2003-03-07T22:05:00", "--log",
                              folder.Path("log").toStdString(), "--fault",
                              path + "=" + endless.fault + "@2"});
  const QStringList options = HostsOf(server) << "--now"
                                              << "2003-03-07T16:05:00";
  const QByteArray old_data = ReadBytes(folder.DataFile());
  ASSERT_EQ(RunInRoot(folder, options + QStringList{"--snapshot", folder.Path("first")}).code, 0);
  // The readings of the former hour are there again, so that the second start asks for new ones.
  folder.Write("root/program files/skyloft/sklt.dat", old_data);

  ProgramRun second(folder, InRoot(folder, options));
  ASSERT_TRUE(Await(
      20000, [&] { return Only(ReadLog(folder.Path("log")), endless.file, endless.kind).size() == 2; }));
  ASSERT_TRUE(second.Running(500)) << "it waits for the reply";
  kill(second.Process(), SIGTERM);
  EXPECT_FALSE(second.Running(1000));
  EXPECT_EQ(second.Wait().code, 0);

  EXPECT_EQ(ReadBytes(folder.DataFile()).count('\n'), old_data.count('\n'));
  const RunningServer well({"--port", "0", "--now", "2003-03-07T22:05:00"});
  const QStringList again = HostsOf(well) << "--now"
                                          << "2003-03-07T16:05:00";
  ASSERT_EQ(RunInRoot(folder, again + QStringList{"--snapshot", folder.Path("third")}).code, 0);
  EXPECT_EQ(Snapshot(folder.Path("third")).Page(kBanner), Snapshot(folder.Path("first")).Page(kBanner));
}

const Endless kEndless[] = {
    {"HangingHosts", "/skyloft/config/hosts.xml", "", "hang"},
    {"HangingStamps", "/forecast.asp", "d=meta", "hang"},
    {"HangingReadings", "/forecast.asp", "d=current", "hang"},
    {"DrippingHosts", "/skyloft/config/hosts.xml", "", "drip"},
    {"DrippingStamps", "/forecast.asp", "d=meta", "drip"},
    {"DrippingReadings", "/forecast.asp", "d=current", "drip"},
};

INSTANTIATE_TEST_SUITE_P(Paths, EndlessSecondCall, testing::ValuesIn(kEndless),
                         [](const auto& test) { return std::string(test.param.name); });

class EndlessSecondPlace : public testing::TestWithParam<const char*> {};

TEST_P(EndlessSecondPlace, SignalEndsItAndTheNextStartSetsTheTownsUp) {
  const Folder folder;
  const RunningServer server({"--port", "0", "--log", folder.Path("log").toStdString(), "--fault",
                              std::string("/location_setup.asp=") + GetParam() + "@2"});
  ProgramRun run(folder, InRoot(folder, HostsOf(server) << "--demo"));
  ASSERT_TRUE(
      Await(20000, [&] { return Only(ReadLog(folder.Path("log")), "/location_setup.asp").size() == 2; }));
  ASSERT_TRUE(run.Running(500));
  kill(run.Process(), SIGTERM);
  EXPECT_FALSE(run.Running(1000));
  EXPECT_EQ(run.Wait().code, 0);
  SetUpTowns(folder);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EndlessSecondPlace, testing::Values("hang", "drip"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace skyloft::program
