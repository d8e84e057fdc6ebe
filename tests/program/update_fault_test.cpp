// An update whose download fails: the first on offer, or a second after a good one.
#include <gtest/gtest.h>
#include <signal.h>

#include <QFile>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::RunningServer;

constexpr const char* kPath = "/skltupdate.exe";

class UpdateFault : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    SetUpTowns(folder_);
    folder_.Write("installer", "the new version\n");
  }
  std::vector<std::string> Offer(const char* from) const {
    return {"--port",          "0",
            "--offer-version", "1.21.00",
            "--update",        folder_.Path("installer").toStdString(),
            "--log",           folder_.Path("log").toStdString(),
            "--fault",         std::string(kPath) + "=" + GetParam() + from};
  }
  static QStringList HostsOf(const RunningServer& server) {
    return {"--hosts", "127.0.0.1:" + QString::number(server.Port())};
  }
  void StartAndTakeTheOffer(const RunningServer& server) const {
    const Ending ending = RunInRoot(folder_, HostsOf(server), "answer Ok\n");
    EXPECT_EQ(ending.code, 0) << ending.errors;
    EXPECT_NE(ending.errors.find("-> Ok"), std::string::npos) << ending.errors;
    EXPECT_FALSE(QFile::exists(folder_.DataFile()));
  }
  QString Download() const { return folder_.Path("root/program files/skyloft/temp/skltupdate.exe"); }

  Folder folder_;
};

// A reply that does not come whole.
class BrokenUpdate : public UpdateFault {};

TEST_P(BrokenUpdate, LeavesNoFileAndEndsTheProgram) {
  const RunningServer server(Offer(""));
  StartAndTakeTheOffer(server);
  EXPECT_FALSE(QFile::exists(Download()));
  SetUpTowns(folder_);  // the settings are there, and a start as usual follows
}

TEST_P(BrokenUpdate, SecondLeavesTheFileOfTheFirst) {
  const RunningServer server(Offer("@2"));
  StartAndTakeTheOffer(server);
  ASSERT_EQ(ReadBytes(Download()), "the new version\n");
  StartAndTakeTheOffer(server);
  EXPECT_EQ(ReadBytes(Download()), "the new version\n");
}

INSTANTIATE_TEST_SUITE_P(Kinds, BrokenUpdate, testing::Values("500", "cut", "refuse"),
                         [](const auto& test) { return std::string(test.param); });

// A reply that comes whole, with bytes that are no update: it is kept and refused.
class WrongUpdate : public UpdateFault {};

TEST_P(WrongUpdate, IsNotStarted) {
  for (const char* from : {"", "@2"}) {
    const RunningServer server(Offer(from));
    if (*from) StartAndTakeTheOffer(server);
    const Ending ending = RunInRoot(folder_, HostsOf(server), "answer Ok\n");
    EXPECT_EQ(ending.code, 0) << ending.errors;
    EXPECT_NE(ending.errors.find("skltupdate.exe"), std::string::npos) << ending.errors;
    EXPECT_TRUE(QFile::exists(Download()));
    EXPECT_NE(ReadBytes(Download()), "the new version\n");
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, WrongUpdate, testing::Values("empty", "garbage", "huge"),
                         [](const auto& test) { return std::string(test.param); });

class EndlessUpdate : public UpdateFault {};

TEST_P(EndlessUpdate, SignalEndsTheProgramAndTheDataStay) {
  const QByteArray data = ReadBytes(folder_.DataFile());
  const RunningServer server(Offer(""));
  folder_.Write("script", "answer Ok\n");
  ProgramRun run(folder_, InRoot(folder_, HostsOf(server) << "--script" << folder_.Path("script")));
  ASSERT_TRUE(AwaitRequest(folder_.Path("log"), kPath));
  ASSERT_TRUE(run.Running(500));
  kill(run.Process(), SIGTERM);
  EXPECT_FALSE(run.Running(1000));
  EXPECT_EQ(run.Wait().code, 0);
  EXPECT_FALSE(QFile::exists(Download()));
  EXPECT_EQ(ReadBytes(folder_.DataFile()), data);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EndlessUpdate, testing::Values("hang", "drip"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace skyloft::program
