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

}  // namespace
}  // namespace skyloft::program
