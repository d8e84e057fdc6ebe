// A second start while the program runs.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>

#include <algorithm>
#include <cstring>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::RunningServer;

// A window hidden to the tray; "shown" is saved once it has come forward.
QByteArray HideAndAwait(const Folder& folder) {
  return "click MainForm.ExitButton\nexpect MainForm visible 0\nsnapshot " + folder.Path("s").toUtf8() +
         "\nuntil MainForm visible 1 40000\nsnapshot " + folder.Path("shown").toUtf8() + "\nwait 60000\n";
}

std::unique_ptr<ProgramRun> StartHidden(const Folder& folder) {
  folder.Write("script", HideAndAwait(folder));
  auto run =
      std::make_unique<ProgramRun>(folder, InRoot(folder, {"--demo", "--script", folder.Path("script")}));
  EXPECT_TRUE(Within(20000, [&] { return Snapshot(folder.Path("s")).Saved(); }));
  EXPECT_FALSE(Snapshot(folder.Path("s")).Flag("MainForm", "visible"));
  return run;
}

bool HasComeForward(const Folder& folder) {
  return Within(10000, [&] { return Snapshot(folder.Path("shown")).Saved(); });
}

// The socket of the program that runs in the folder.
QString SocketOf(const Folder& folder) {
  const QStringList sockets = folder.Entries("runtime").filter(".socket");
  EXPECT_EQ(sockets.size(), 1);
  return sockets.isEmpty() ? "" : folder.Path("runtime/" + sockets[0]);
}

// A connection to a socket; -1 when it is refused.
int Connect(const QString& path) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  std::strncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path - 1);
  const int line = socket(AF_UNIX, SOCK_STREAM, 0);
  if (connect(line, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return line;
  close(line);
  return -1;
}

TEST(SecondStart, ShowsTheHiddenWindowAndEnds) {
  const Folder folder;
  const auto first = StartHidden(folder);
  const QByteArray store = ReadBytes(folder.Path("root/registry.ini"));
  const RunningServer server({"--port", "0", "--log", folder.Path("log").toStdString()});
  ProgramRun second(folder, InRoot(folder, {"--hosts", "127.0.0.1:" + QString::number(server.Port())}));
  const Ending ending = second.Wait();
  EXPECT_EQ(ending.code, 0);
  EXPECT_EQ(ending.errors, "");
  EXPECT_TRUE(HasComeForward(folder));
  EXPECT_TRUE(first->Running(0));
  EXPECT_TRUE(ReadLog(folder.Path("log")).empty());
  EXPECT_EQ(ReadBytes(folder.Path("root/registry.ini")), store);
}

TEST(SecondStart, KnowsTheRootByAnotherName) {
  const Folder folder;
  const auto first = StartHidden(folder);
  ASSERT_TRUE(QFile::link(folder.Root(), folder.Path("link")));
  EXPECT_EQ(ProgramRun(folder, {"--root", folder.Path("link")}).Wait().code, 0);
  EXPECT_TRUE(HasComeForward(folder));
}

TEST(SecondStart, InAnotherRootRunsBesideTheFirst) {
  const Folder folder, other;
  const auto first = StartHidden(folder);
  const QStringList shared = {"XDG_RUNTIME_DIR=" + folder.Path("runtime")};
  EXPECT_EQ(ProgramRun(other, InRoot(other, {"--demo", "--snapshot", other.Path("s")}), shared).Wait().code,
            0);
  EXPECT_TRUE(Snapshot(other.Path("s")).Flag("MainForm", "visible"));
  EXPECT_TRUE(first->Running(0));
  EXPECT_FALSE(Snapshot(folder.Path("shown")).Saved());
}

TEST(SecondStart, WithoutALocationLeavesTheWizardInFront) {
  const Folder folder;
  const QByteArray wizard_only = "expect SetupWizardForm visible 1\nexpect MainForm visible 0\n";
  // The second start has four seconds; the last snapshot is taken after it.
  folder.Write("script", wizard_only + "snapshot " + folder.Path("s").toUtf8() + "\nwait 4000\n" +
                             wizard_only + "snapshot " + folder.Path("later").toUtf8() + "\nquit\n");
  ProgramRun first(folder, InRoot(folder, {"--script", folder.Path("script")}));
  ASSERT_TRUE(Within(20000, [&] { return Snapshot(folder.Path("s")).Saved(); }));
  const Ending ending = ProgramRun(folder, InRoot(folder, {})).Wait();
  EXPECT_EQ(ending.code, 0);
  EXPECT_EQ(ending.errors, "");
  EXPECT_TRUE(first.Running(0)) << "the second start came too late to tell";
  const Ending first_ending = first.Wait();
  EXPECT_EQ(first_ending.code, 0);
  // The offscreen display tells of a window that is brought to the front.
  EXPECT_NE(first_ending.errors.find("raise()"), std::string::npos) << first_ending.errors;
}

TEST(SecondStart, WhileTheFirstIsStartingShowsNoEmptyWindow) {
  const Folder folder;
  SetUpTowns(folder);
  const RunningServer server({"--port", "0", "--log", folder.Path("log").toStdString(), "--fault",
                              "/skyloft/config/hosts.xml=hang"});
  ProgramRun first(folder, InRoot(folder, {"--hosts", "127.0.0.1:" + QString::number(server.Port())}));
  ASSERT_TRUE(Within(20000, [&] { return !ReadLog(folder.Path("log")).empty(); }));
  const Ending ending = ProgramRun(folder, InRoot(folder, {})).Wait();
  EXPECT_EQ(ending.code, 0);
  EXPECT_EQ(ending.errors, "");
  kill(first.Process(), SIGTERM);
  EXPECT_EQ(first.Wait().errors.find("raise()"), std::string::npos);
}

TEST(SecondStart, AfterTheFirstHasEndedIsAFirst) {
  const Folder folder;
  SetUpTowns(folder);
  EXPECT_TRUE(folder.Entries("runtime").isEmpty()) << folder.Entries("runtime").join(' ').toStdString();
  ASSERT_EQ(RunInRoot(folder, {"--snapshot", folder.Path("s")}).code, 0);
  EXPECT_TRUE(Snapshot(folder.Path("s")).Flag("MainForm", "visible"));
}

TEST(SecondStart, AfterTheFirstWasKilledIsAFirst) {
  const Folder folder;
  auto first = StartHidden(folder);
  kill(first->Process(), SIGKILL);
  EXPECT_EQ(first->Wait().code, -1);
  EXPECT_TRUE(QFile::exists(SocketOf(folder)));
  ASSERT_EQ(RunInRoot(folder, {"--snapshot", folder.Path("again")}).code, 0);
  EXPECT_TRUE(Snapshot(folder.Path("again")).Flag("MainForm", "visible"));
  EXPECT_TRUE(folder.Entries("runtime").isEmpty()) << folder.Entries("runtime").join(' ').toStdString();
}

TEST(SecondStart, OfSeveralAtTheSameMomentOneStays) {
  const Folder folder;
  std::vector<std::unique_ptr<ProgramRun>> runs;
  for (int i = 0; i < 4; ++i) runs.push_back(std::make_unique<ProgramRun>(folder, InRoot(folder, {})));
  const auto count = [&] {
    return std::count_if(runs.begin(), runs.end(), [](const auto& run) { return run->Running(0); });
  };
  EXPECT_TRUE(Within(20000, [&] { return count() == 1; }));
  for (const auto& run : runs) {
    const bool stays = run->Running(0);
    if (stays) kill(run->Process(), SIGTERM);
    const Ending ending = run->Wait();
    EXPECT_EQ(ending.code, 0);
    EXPECT_TRUE(stays || ending.errors.empty()) << ending.errors;
  }
}

TEST(SecondStart, WithoutARuntimeFolderIsKnownByOneAmongTheTemporaryFiles) {
  const Folder folder;
  const QStringList none = {"XDG_RUNTIME_DIR="};
  folder.Write("script", HideAndAwait(folder));
  ProgramRun first(folder, InRoot(folder, {"--demo", "--script", folder.Path("script")}), none);
  ASSERT_TRUE(Within(20000, [&] { return Snapshot(folder.Path("s")).Saved(); }));
  EXPECT_EQ(ProgramRun(folder, InRoot(folder, {}), none).Wait().code, 0);
  EXPECT_TRUE(HasComeForward(folder));
  struct stat facts;
  const QString own = folder.Path("tmp/skyloft-" + QString::number(geteuid()));
  ASSERT_EQ(stat(QFile::encodeName(own), &facts), 0);
  EXPECT_EQ(facts.st_mode & 0777u, 0700u);
}

TEST(Caller, SilentOnesAndBabblersDoNoHarm) {
  const Folder folder;
  const auto first = StartHidden(folder);
  const QString socket = SocketOf(folder);
  std::vector<int> lines;
  for (int i = 0; i < 60; ++i) {
    lines.push_back(Connect(socket));
    if (i % 3 != 0) continue;
    const std::string babble(100000, 'x');
    send(lines.back(), babble.data(), babble.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
  }
  EXPECT_TRUE(first->Running(200));
  EXPECT_FALSE(Snapshot(folder.Path("shown")).Saved());
  EXPECT_EQ(ProgramRun(folder, InRoot(folder, {})).Wait().code, 0);
  EXPECT_TRUE(HasComeForward(folder));
  for (const int line : lines) close(line);
}

// The answer to a caller's request: its byte, or 0 when the connection ends without one.
char AnswerTo(int line) {
  char answer = 0;
  send(line, "f", 1, MSG_NOSIGNAL);
  if (recv(line, &answer, 1, 0) != 1) answer = 0;
  close(line);
  return answer;
}

TEST(Caller, OfAnotherUserIsRefused) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can play another user";
  const Folder folder;
  const auto first = StartHidden(folder);
  const QString socket = SocketOf(folder);
  for (const QString& open : {folder.Path(), folder.Path("runtime"), socket}) {
    ASSERT_EQ(chmod(QFile::encodeName(open), 0777), 0);
  }
  constexpr uid_t kNobody = 65534;
  ASSERT_EQ(seteuid(kNobody), 0);
  const int line = Connect(socket);
  ASSERT_EQ(seteuid(0), 0);
  ASSERT_GE(line, 0);
  EXPECT_EQ(AnswerTo(line), 0);
  EXPECT_FALSE(Snapshot(folder.Path("shown")).Saved());
  EXPECT_EQ(AnswerTo(Connect(socket)), 'k');  // the same from its own user is heard
  EXPECT_TRUE(HasComeForward(folder));
}

}  // namespace
}  // namespace skyloft::program
