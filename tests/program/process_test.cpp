// The program among other processes: signals, its feed, the folders it may write to.
#include <gtest/gtest.h>
#include <signal.h>

#include <QDir>
#include <QFile>
#include <QSet>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

// "comm", state and parent of a process; empty when there is none of that id.
QList<QByteArray> StateOf(pid_t process) {
  const QByteArray stat = ReadBytes(QString("/proc/%1/stat").arg(process));
  if (stat.isEmpty()) return {};
  const qsizetype name_end = stat.lastIndexOf(')');
  const QList<QByteArray> fields = stat.mid(name_end + 2).split(' ');
  return {stat.mid(stat.indexOf('(') + 1).chopped(stat.size() - name_end), fields[0], fields[1]};
}

// One that has ended may stay as a zombie until its parent looks.
bool IsAlive(pid_t process) {
  const auto state = StateOf(process);
  return !state.isEmpty() && state[1] != "Z";
}

pid_t FeedOf(pid_t parent) {
  for (const QString& entry : QDir("/proc").entryList(QDir::Dirs)) {
    const pid_t process = entry.toInt();
    const auto state = process > 0 ? StateOf(process) : QList<QByteArray>();
    if (!state.isEmpty() && state[0].startsWith("skyloft-feed") && state[2].toInt() == parent) return process;
  }
  return 0;
}

// The port at which a process listens; the kernel names its sockets by their inodes.
int PortOf(pid_t process) {
  const QDir files(QString("/proc/%1/fd").arg(process));
  QSet<QByteArray> sockets;
  for (const QString& file : files.entryList(QDir::Files | QDir::System)) {
    const QByteArray link = QFile::symLinkTarget(files.filePath(file)).section("socket:", 1).toLatin1();
    if (!link.isEmpty()) sockets.insert(link.mid(1).chopped(1));
  }
  for (const QByteArray& line : ReadBytes("/proc/net/tcp").split('\n')) {
    const QList<QByteArray> fields = line.simplified().split(' ');
    constexpr const char* listening = "0A";
    if (fields.size() > 9 && fields[3] == listening && sockets.contains(fields[9]))
      return fields[1].split(':').last().toInt(nullptr, 16);
  }
  return 0;
}

TEST(Process, FeedsClockFollowsTheProgramsClock) {
  const struct {
    const char *acts, *model;
  } cases[] = {{"", "Mar 07 2003 12:00PM"},
               {"clock 2003-03-07T14:59:00\n", "Mar 07 2003 12:00PM"},
               {"clock 2003-03-07T14:59:00\ntick UpdateTimer 2\n", "Mar 07 2003 06:00PM"},
               {"clock 2003-07-04T10:30:00\n", "Jul 04 2003 12:00PM"}};
  for (const auto& c : cases) {
    const Folder folder;
    const auto run = StartAndStay(folder, c.acts);
    const int port = PortOf(FeedOf(run->Process()));
    ASSERT_GT(port, 0) << c.acts;
    const std::string meta = feed::Get(port, "/forecast.asp?t=xml&d=meta&pc=66044");
    EXPECT_EQ(TextsOf(meta, "Model_TS_UTC"), std::vector<std::string>{c.model}) << c.acts;
  }
}

TEST(Process, ClockMovesOnWithoutItsFeed) {
  const Folder folder;
  folder.Write("script", "snapshot " + folder.Path("s").toUtf8() +
                             "\nwait 1000\ntick UpdateTimer 2\nmenu ExitSkyloft\n");
  ProgramRun run(folder, InRoot(folder, {"--demo", "--script", folder.Path("script")}));
  ASSERT_TRUE(Within(20000, [&] { return Snapshot(folder.Path("s")).Saved(); }));
  kill(FeedOf(run.Process()), SIGKILL);
  const Ending ending = run.Wait();
  EXPECT_EQ(ending.code, 0) << ending.errors;
}

TEST(Process, FeedEndsWithAKilledProgram) {
  const Folder folder;
  const auto run = StartAndStay(folder);
  const pid_t feed = FeedOf(run->Process());
  ASSERT_GT(feed, 0);
  EXPECT_TRUE(IsAlive(feed));
  kill(run->Process(), SIGKILL);
  EXPECT_TRUE(Within(2000, [&] { return !IsAlive(feed); }));
  EXPECT_EQ(run->Wait().code, -1);
}

TEST(Process, FeedEndsWithTheProgram) {
  const Folder folder;
  const auto run = StartAndStay(folder);
  const pid_t feed = FeedOf(run->Process());
  ASSERT_GT(feed, 0);
  kill(run->Process(), SIGTERM);
  EXPECT_EQ(run->Wait().code, 0);
  EXPECT_TRUE(Within(2000, [&] { return !IsAlive(feed); }));
}

class EndSignal : public testing::TestWithParam<int> {};

TEST_P(EndSignal, SavesAndEndsAsTheMenuDoes) {
  const Folder folder;
  const auto run = StartAndStay(folder,
                                "select MainForm.LocationSelection 2\ncheck SystemOptionsForm.ShowAlmanac "
                                "0\n");
  ASSERT_TRUE(QFile::remove(folder.DataFile()));
  kill(run->Process(), GetParam());
  const Ending ending = run->Wait();
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(folder.Setting("Settings/Location"), "2");
  EXPECT_EQ(folder.Setting("Options/ShowAlmanac"), "0");
  EXPECT_TRUE(QFile::exists(folder.DataFile()));
}

INSTANTIATE_TEST_SUITE_P(Signals, EndSignal, testing::Values(SIGTERM, SIGINT),
                         [](const auto& test) { return test.param == SIGTERM ? "Terminate" : "Interrupt"; });

TEST(Process, SignalEndsItWhileAFetchHangs) {
  const Folder folder;
  SetUpTowns(folder);
  const feed::RunningServer server(
      {"--port", "0", "--log", folder.Path("log").toStdString(), "--fault", "/forecast.asp?d=meta=hang"});
  ProgramRun run(folder, InRoot(folder, {"--hosts", "127.0.0.1:" + QString::number(server.Port())}));
  ASSERT_TRUE(Within(20000, [&] { return !Only(ReadLog(folder.Path("log")), "/forecast.asp").empty(); }));
  kill(run.Process(), SIGTERM);
  EXPECT_FALSE(run.Running(2000));
  EXPECT_EQ(run.Wait().code, 0);
}

TEST(Process, SignalBeforeTheStoresAreReadLosesNothing) {
  const Folder folder;
  SetUpTowns(folder);
  const QByteArray store = ReadBytes(folder.Path("root/registry.ini"));
  const feed::RunningServer server({"--port", "0", "--log", folder.Path("log").toStdString(), "--fault",
                                    "/skyloft/config/hosts.xml=hang"});
  ProgramRun run(folder, InRoot(folder, {"--hosts", "127.0.0.1:" + QString::number(server.Port())}));
  ASSERT_TRUE(Within(20000, [&] { return !ReadLog(folder.Path("log")).empty(); }));
  kill(run.Process(), SIGTERM);
  EXPECT_EQ(run.Wait().code, 0);
  EXPECT_EQ(ReadBytes(folder.Path("root/registry.ini")), store);
}

TEST(Files, ARootThatCannotBeMadeIsABadOption) {
  const Folder folder;
  const Ending ending = ProgramRun(folder, {"--root", "/dev/null/x"}).Wait();
  EXPECT_EQ(ending.code, 2);
  EXPECT_NE(ending.errors.find("/dev/null/x"), std::string::npos);
}

TEST(Files, RootKeepsEverythingInside) {
  const Folder folder;
  const Ending ending =
      RunInRoot(folder, {"--demo"}, "select MainForm.LocationSelection 4\nmenu ExitSkyloft\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  EXPECT_TRUE(folder.Entries("root").contains("registry.ini"));
  for (const char* outside : {"home", "tmp", "cwd", "runtime"}) {
    EXPECT_TRUE(folder.Entries(outside).isEmpty())
        << outside << folder.Entries(outside).join('\n').toStdString();
  }
  EXPECT_TRUE(folder.Entries("cache").filter("skyloft").isEmpty());
}

TEST(Files, InTheRootAreTheStoreAndTheInstallFolderOnly) {
  const Folder folder;
  SetUpTowns(folder);
  for (const QString& entry : folder.Entries("root")) {
    const bool expected =
        entry == "registry.ini" || entry == "program files" || entry.startsWith("program files/skyloft");
    EXPECT_TRUE(expected) << entry.toStdString();
  }
  EXPECT_TRUE(folder.Entries("root").contains("program files/skyloft/temp"));
}

TEST(Files, WithoutARootTheUsersFoldersHoldThem) {
  const Folder folder;
  folder.Write("script", "click SetupWizardForm.CancelButton\n");
  ASSERT_EQ(ProgramRun(folder, {"--script", folder.Path("script")}).Wait().code, 0);
  EXPECT_TRUE(QFile::exists(folder.Path("home/.local/share/skyloft/program files/skyloft/temp")));
  EXPECT_FALSE(QFile::exists(folder.Root()));
  EXPECT_TRUE(folder.Entries("cwd").isEmpty());
}

TEST(Files, EnvironmentNamesTheRootThatNoOptionNames) {
  const Folder folder;
  folder.Write("script", "click SetupWizardForm.CancelButton\n");
  const QStringList environment = {"SKYLOFT_ROOT=" + folder.Path("elsewhere")};
  ASSERT_EQ(ProgramRun(folder, {"--script", folder.Path("script")}, environment).Wait().code, 0);
  EXPECT_TRUE(QFile::exists(folder.Path("elsewhere/program files/skyloft")));
  ASSERT_EQ(ProgramRun(folder, InRoot(folder, {"--script", folder.Path("script")}), environment).Wait().code,
            0);
  EXPECT_TRUE(QFile::exists(folder.Root()));
}

}  // namespace
}  // namespace skyloft::program
