// What the program leaves alone while nobody looks at it.
#include <gtest/gtest.h>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

TEST(Idle, AHiddenProgramWhoseTimersRunAsksForNothingBetweenItsPeriods) {
  const Folder folder;
  SetUpTowns(folder);
  const feed::RunningServer server({"--port", "0", "--log", folder.Path("log").toStdString()});
  const auto run = StartAndStay(
      folder, "click MainForm.ExitButton\nexpect MainForm visible 0\nuntil idle 5000\ntimers on\n",
      {"--hosts", "127.0.0.1:" + QString::number(server.Port())});
  const size_t asked = ReadLog(folder.Path("log")).size();
  EXPECT_GT(asked, 0u) << "by the start";
  EXPECT_TRUE(run->Running(4000)) << "four ticks of its clock";
  EXPECT_EQ(ReadLog(folder.Path("log")).size(), asked);
}

}  // namespace
}  // namespace skyloft::program
