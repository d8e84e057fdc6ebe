// Lines of a script that fail.
#include <gtest/gtest.h>

#include "program/program.h"

namespace skyloft::program {
namespace {

struct BadLine {
  const char* name;
  const char* line;
};

void PrintTo(const BadLine& bad, std::ostream* out) { *out << bad.line; }

class FailedLine : public testing::TestWithParam<BadLine> {};

TEST_P(FailedLine, EndsWithCode3AndItsNumber) {
  const Folder folder;
  const std::string line = GetParam().line;
  const Ending ending = RunInRoot(folder, {"--demo"},
                                  "# a comment counts as a line\nexpect MainForm visible 1\n" +
                                      QByteArray::fromStdString(line) + "\nquit\n");
  EXPECT_EQ(ending.code, 3);
  EXPECT_NE(ending.errors.find("script line 3: " + line + ": "), std::string::npos) << ending.errors;
}

const BadLine kBadLines[] = {
    {"UnknownCommand", "fly MainForm"},
    {"UnknownForm", "click NoForm.ExitButton"},
    {"UnknownControl", "click MainForm.NoButton"},
    {"MemberOutsideItsArray", "expect MainForm.SysTray[3] added 0"},
    {"MissingWord", "select MainForm.LocationSelection"},
    {"ExpectationNotMet", "expect MainForm.LocationLabel caption Nowhere"},
    {"UnknownProperty", "expect MainForm.LocationLabel colour red"},
    {"UntilThatRunsOut", "until MainForm.LocationLabel caption Nowhere 50"},
    {"IndexBehindTheList", "select MainForm.LocationSelection 5"},
    {"IndexBeforeTheList", "select MainForm.LocationSelection -1"},
    {"TextNotInTheList", "select MainForm.LocationSelection \"Topeka, KS\""},
    {"NothingToCheck", "check MainForm.ExitButton 1"},
    {"NothingToTypeInto", "type MainForm.ExitButton text"},
    {"NothingToSelectFrom", "select MainForm.ExitButton 0"},
    {"NothingToClick", "click MainForm.ProgressBar"},
    {"UnknownMouseButton", "press MainForm 1 1 middle"},
    {"UnknownTimer", "tick NoTimer"},
    {"UnknownMenuEntry", "menu NoEntry"},
    {"MenuEntryOutsideItsArray", "menu TrayLocationTitle 10"},
    {"ClockWithoutADate", "clock soon"},
    {"UnknownAnswer", "answer Maybe"},
    {"WaitForNoNumber", "wait abc"},
    {"CheckNeitherOnNorOff", "check SystemOptionsForm.ShowAlmanac maybe"},
    {"TimersNeitherOnNorOff", "timers maybe"},
    {"IndexThatIsNoNumber", "select MainForm.LocationSelection Denver"},
    {"PressNowhere", "press MainForm a b left"},
    {"UnknownTab", "select SystemOptionsForm.TabStripOptions \"Nothing\""},
    {"SnapshotWithoutAFolder", "snapshot /dev/null/s"},
};

INSTANTIATE_TEST_SUITE_P(Lines, FailedLine, testing::ValuesIn(kBadLines),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(Script, UnknownAnswerAtItsHeadEndsTheStart) {
  const Folder folder;
  const Ending ending = RunInRoot(folder, {"--demo"}, "answer Maybe\n");
  EXPECT_EQ(ending.code, 3);
  EXPECT_NE(ending.errors.find("script line 1: "), std::string::npos) << ending.errors;
}

}  // namespace
}  // namespace skyloft::program
