// The program killed at any moment of its start and its end.
#include <gtest/gtest.h>
#include <signal.h>

#include <QElapsedTimer>
#include <QJsonArray>

#include <random>

#include "program/program.h"

namespace skyloft::program {
namespace {

constexpr int kMoments = 10;         // of each seed
constexpr int kLinesOfATown = 1143;  // of sklt.dat

// A run that has something to write: it selects a town and leaves.
QStringList RunThatWrites(const Folder& folder, int town) {
  folder.Write("script",
               "select MainForm.LocationSelection " + QByteArray::number(town) + "\nmenu ExitSkyloft\n");
  return InRoot(folder, {"--script", folder.Path("script")});
}

int MillisecondsOfARun(const Folder& folder) {
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(ProgramRun(folder, RunThatWrites(folder, 1)).Wait().code, 0);
  return static_cast<int>(clock.elapsed());
}

void ExpectWholeOrGone(const QByteArray& data, int moment) {
  if (data.isEmpty()) return;
  EXPECT_EQ(data.count("\r\n"), 5 * kLinesOfATown) << "killed after " << moment << " ms";
}

class Killed : public testing::TestWithParam<unsigned> {};

TEST_P(Killed, NextStartComesUpWithTheFiveTowns) {
  const Folder folder;
  SetUpTowns(folder);
  std::mt19937 random(GetParam());
  std::uniform_int_distribution<int> moments(0, MillisecondsOfARun(folder));
  for (int i = 0; i < kMoments; ++i) {
    const int moment = moments(random);
    {
      ProgramRun run(folder, RunThatWrites(folder, i % 5));
      if (run.Running(moment)) kill(run.Process(), SIGKILL);
      run.Wait();
    }
    ExpectWholeOrGone(ReadBytes(folder.DataFile()), moment);
    const QString snapshot = folder.Path("s" + QString::number(i));
    const Ending ending = RunInRoot(folder, {}, "snapshot " + snapshot.toUtf8() + "\nmenu ExitSkyloft\n");
    ASSERT_EQ(ending.code, 0) << "killed after " << moment << " ms: " << ending.errors;
    const Snapshot shown(snapshot);
    ASSERT_TRUE(shown.Flag("MainForm", "visible")) << "killed after " << moment << " ms";
    EXPECT_EQ(shown.Value("MainForm.LocationSelection", "items").toArray().size(), 5);
    EXPECT_EQ(ReadBytes(folder.DataFile()).count("\r\n"), 5 * kLinesOfATown);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Killed, testing::Values(1u, 2u, 3u, 4u));

class KilledInTheWizard : public testing::TestWithParam<unsigned> {};

TEST_P(KilledInTheWizard, EitherTheOldOrTheNewTownsAreStoredWhole) {
  const QByteArray first = ActsOfTheFirstPages() + ActsOfATown("66044", "First") + "menu ExitSkyloft\n";
  const QByteArray second = "menu AddLocation\n" + ActsOfATown("33131", "Second") + "menu ExitSkyloft\n";
  std::mt19937 random(GetParam());
  int whole_run = 0;
  for (int i = 0; i < 6; ++i) {
    const Folder folder;
    ASSERT_EQ(RunInRoot(folder, {}, first).code, 0);
    ASSERT_EQ(folder.Setting("Settings/LocationIndexMax"), "0");
    folder.Write("script", second);
    QElapsedTimer clock;
    clock.start();
    ProgramRun run(folder, InRoot(folder, {"--script", folder.Path("script")}));
    const int moment = i == 0 ? 20000 : std::uniform_int_distribution<int>(whole_run / 2, whole_run)(random);
    if (run.Running(moment)) kill(run.Process(), SIGKILL);
    run.Wait();
    if (i == 0) whole_run = static_cast<int>(clock.elapsed());
    const bool added = folder.Setting("Settings/LocationIndexMax") == "1";
    ASSERT_TRUE(added || i > 0) << "not killed";
    EXPECT_EQ(folder.Setting("Location1/Title"), added ? "Second" : "") << "killed after " << moment << " ms";
    EXPECT_EQ(folder.Setting("Location1/ZipCode"), added ? "33131" : "")
        << "killed after " << moment << " ms";
    EXPECT_EQ(folder.Setting("Location1/SKLTAlertEmail"), added ? "0" : "") << "the last of its values";
    EXPECT_EQ(folder.Setting("Location0/Title"), "First");
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, KilledInTheWizard, testing::Values(1u, 2u));

}  // namespace
}  // namespace skyloft::program
