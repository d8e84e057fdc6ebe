// Setting up the demo's towns, and replies that drip.
#include <gtest/gtest.h>
#include <signal.h>

#include <QFile>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::RunningServer;

QStringList HostsOf(const RunningServer& server) {
  return {"--hosts", "127.0.0.1:" + QString::number(server.Port())};
}

class PlaceFault : public testing::TestWithParam<const char*> {};

TEST_P(PlaceFault, LeavesTheWizardAndTheNextStartSetsTheTownsUp) {
  const Folder folder;
  const RunningServer server({"--port", "0", "--fault", std::string("/location_setup.asp=") + GetParam()});
  const Ending ending = RunInRoot(folder, HostsOf(server) << "--demo"
                                                          << "--snapshot" << folder.Path("s"));
  EXPECT_EQ(ending.code, 0) << ending.errors;
  const Snapshot shown(folder.Path("s"));
  EXPECT_TRUE(shown.Flag("SetupWizardForm", "visible"));
  EXPECT_FALSE(shown.Flag("MainForm", "visible"));
  EXPECT_FALSE(QFile::exists(folder.DataFile()));
  SetUpTowns(folder);
}

INSTANTIATE_TEST_SUITE_P(Kinds, PlaceFault,
                         testing::Values("500", "empty", "cut", "garbage", "refuse", "huge"),
                         [](const auto& test) { return std::string(test.param); });

// The second of the elements is the town's name; the first is its postal code.
TEST(WrongCounts, PlacesThatLackElementsDoNotStopTheDemo) {
  const Folder folder;
  const RunningServer server({"--port", "0", "--fault", "/location_setup.asp=wrong-count"});
  const Ending ending = RunInRoot(folder, HostsOf(server) << "--demo", "menu ExitSkyloft\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(RunInRoot(folder, {}, "answer Ok\nmenu ExitSkyloft\n").code, 0);
}

// Where a reply drips: the file, a piece of its query, and the options that make the program ask for it.
struct Drip {
  const char* name;
  const char* file;
  const char* kind;
  bool has_towns;
};

void PrintTo(const Drip& drip, std::ostream* out) { *out << drip.name; }

class DripFault : public testing::TestWithParam<Drip> {};

TEST_P(DripFault, SignalEndsTheProgramAndNothingIsLost) {
  const Drip& drip = GetParam();
  const Folder folder;
  if (drip.has_towns) SetUpTowns(folder);
  const QByteArray data = ReadBytes(folder.DataFile());
  const std::string query = *drip.kind ? std::string("?") + drip.kind : "";
  const RunningServer server({"--port", "0", "--now", "2003-03-07T22:05:00", "--log",
                              folder.Path("log").toStdString(), "--fault", drip.file + query + "=drip"});
  ProgramRun run(folder, InRoot(folder, HostsOf(server) << "--demo"));
  ASSERT_TRUE(AwaitRequest(folder.Path("log"), drip.file, drip.kind));
  ASSERT_TRUE(run.Running(500)) << "the first bytes have come, and the program waits for more";
  kill(run.Process(), SIGTERM);
  EXPECT_FALSE(run.Running(1000));
  EXPECT_EQ(run.Wait().code, 0);
  if (drip.has_towns) {
    EXPECT_EQ(ReadBytes(folder.DataFile()).count('\n'), data.count('\n'));
    EXPECT_EQ(folder.Setting("Settings/LocationIndexMax"), "4");
  }
  SetUpTowns(folder);
}

const Drip kDrips[] = {
    {"Hosts", "/skyloft/config/hosts.xml", "", true},
    {"Stamps", "/forecast.asp", "d=meta", true},
    {"Readings", "/forecast.asp", "d=current", true},
    {"Places", "/location_setup.asp", "", false},
};

INSTANTIATE_TEST_SUITE_P(Paths, DripFault, testing::ValuesIn(kDrips),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace skyloft::program
