// What the commands of a script do.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

// A script that must go through to its end.
void ExpectThrough(const Folder& folder, const QByteArray& script, const QStringList& options = {"--demo"}) {
  const Ending ending = RunInRoot(folder, options, script + "quit\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
}

TEST(Script, UntilWaitsForWhatALaterEventBrings) {
  const Folder folder;
  ExpectThrough(folder, R"(async select MainForm.LocationSelection 2
until MainForm.LocationSelection index 2 5000
expect MainForm.LocationSelection text "Denver, CO"
expect MainForm.LocationLabel caption Denver, CO
until idle 5000
)");
}

TEST(Script, AValueOfSeveralWordsNeedsNoQuotes) {
  const Folder folder;
  ExpectThrough(folder,
                "until MainForm.LocationLabel caption Lawrence, KS 5000\n"
                "until MainForm.LocationLabel caption \"Lawrence, KS\" 5000\n");
}

TEST(Script, AQuoteInAQuotedTextIsWrittenWithABackslash) {
  const Folder folder;
  ExpectThrough(folder, R"(type SystemOptionsForm.Email1Value "say \"hi\" \\ there"
expect SystemOptionsForm.Email1Value value say "hi" \ there
)");
}

TEST(Script, TabsAreCountedFromZeroLikeLists) {
  const Folder folder;
  ExpectThrough(folder,
                "select SystemOptionsForm.TabStripOptions 1\n"
                "expect SystemOptionsForm.TabStripOptions text Ticker\n"
                "expect SystemOptionsForm.TabStripOptions index 1\n"
                "select SystemOptionsForm.TabStripOptions \"Update\"\n"
                "expect SystemOptionsForm.TabStripOptions index 2\n");
}

TEST(Script, TypeReplacesTheText) {
  const Folder folder;
  ExpectThrough(folder, R"(type SystemOptionsForm.Email1Value someone@skyloft.example
expect SystemOptionsForm.Email1Value value someone@skyloft.example
type SystemOptionsForm.Email1Value "two  words"
expect SystemOptionsForm.Email1Value value "two  words"
)");
}

TEST(Script, CheckSetsWhateverWasBeforeAndClickTurns) {
  const Folder folder;
  ExpectThrough(folder, R"(check SystemOptionsForm.ShowAlmanac 0
expect SystemOptionsForm.ShowAlmanac checked 0
check SystemOptionsForm.ShowAlmanac 0
expect SystemOptionsForm.ShowAlmanac checked 0
check SystemOptionsForm.ShowAlmanac 1
expect SystemOptionsForm.ShowAlmanac checked 1
click SystemOptionsForm.ShowAlmanac
expect SystemOptionsForm.ShowAlmanac checked false
)");
}

TEST(Script, PressOnAButtonIsTheWholeClick) {
  const Folder folder;
  ExpectThrough(folder, "press MainForm.ExitButton 3 3 left\nexpect MainForm visible 0\n");
}

TEST(Script, WaitWaits) {
  const Folder folder;
  QElapsedTimer clock;
  clock.start();
  ExpectThrough(folder, "wait 700\n");
  EXPECT_GE(clock.elapsed(), 700);
}

TEST(Script, WaitInTheBackgroundHurriesNoOtherLine) {
  const Folder folder;
  QElapsedTimer clock;
  clock.start();
  ExpectThrough(folder, "async wait 20\nwait 700\n");
  EXPECT_GE(clock.elapsed(), 700);
}

TEST(Script, UntilInTheBackgroundHurriesNoOtherLine) {
  const Folder folder;
  QElapsedTimer clock;
  clock.start();
  ExpectThrough(folder, "async until idle 5000\nwait 700\n");
  EXPECT_GE(clock.elapsed(), 700);
}

TEST(Script, QuitLeavesWithoutSavingAndTheRestLapses) {
  const Folder folder;
  SetUpTowns(folder);
  const Ending ending = RunInRoot(folder, {}, "select MainForm.LocationSelection 2\nquit\nno command\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(folder.Setting("Settings/Location"), "0");
}

TEST(Script, ProgramGoesOnAfterTheLastLine) {
  const Folder folder;
  folder.Write("script", "expect MainForm visible 1\n");
  ProgramRun run(folder, InRoot(folder, {"--demo", "--script", folder.Path("script")}));
  EXPECT_TRUE(run.Running(1500));
}

QDateTime SavedAt(const Folder& folder) {
  return QFileInfo(folder.DataFile()).lastModified().toTimeZone(QTimeZone(kZone));
}

QDateTime Here(const char* iso) {
  QDateTime moment = QDateTime::fromString(iso, Qt::ISODate);
  moment.setTimeZone(QTimeZone(kZone));
  return moment;
}

TEST(Script, TicksMoveAStandingClockByTheTimersInterval) {
  const Folder folder;
  ASSERT_EQ(RunInRoot(folder, {"--demo"}, "menu ExitSkyloft\n").code, 0);
  EXPECT_EQ(SavedAt(folder), Here(kNow));
  ASSERT_EQ(RunInRoot(folder, {}, "tick UpdateTimer 3\nmenu ExitSkyloft\n").code, 0);
  EXPECT_EQ(SavedAt(folder), Here("2003-03-07T14:06:30"));  // three times 30 s
  ASSERT_EQ(RunInRoot(folder, {}, "tick MainForm.Clock\nmenu ExitSkyloft\n").code, 0);
  EXPECT_EQ(SavedAt(folder), Here("2003-03-07T14:05:01"));
}

TEST(Script, ClockStandsAtTheMomentTold) {
  const Folder folder;
  ASSERT_EQ(RunInRoot(folder, {"--demo"}, "clock 2003-07-04T23:59:58\nmenu ExitSkyloft\n").code, 0);
  EXPECT_EQ(SavedAt(folder), Here("2003-07-04T23:59:58"));
  ASSERT_EQ(RunInRoot(folder, {}, "clock \"2003-07-05 00:10:00\"\nmenu ExitSkyloft\n").code, 0);
  EXPECT_EQ(SavedAt(folder), Here("2003-07-05T00:10:00"));
}

TEST(Options, AreStoredAs0And1AndComeBack) {
  const Folder folder;
  const Ending ending = RunInRoot(folder, {"--demo"}, R"(expect SystemOptionsForm.ShowTicker checked 1
expect SystemOptionsForm.EmailOptionValue checked 1
check SystemOptionsForm.Show3DayForecast 0
check SystemOptionsForm.EmailOptionValue 0
menu ExitSkyloft
)");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(folder.Setting("Options/Show3DayForecast"), "0");
  EXPECT_EQ(folder.Setting("Options/EmailOption"), "0");
  EXPECT_EQ(folder.Setting("Options/ShowTicker"), "1");
  EXPECT_EQ(folder.Setting("Options/ShowAlmanac"), "1");
  ExpectThrough(folder, R"(expect SystemOptionsForm.Show3DayForecast checked 0
expect SystemOptionsForm.EmailOptionValue checked 0
expect SystemOptionsForm.ShowAlmanac checked 1
)",
                {});
}

// An update on offer asks with a box at the start.
struct Offer {
  Folder folder;
  feed::RunningServer server;

  static std::string Installer(const Folder& folder) {
    folder.Write("installer", "the new version");
    return folder.Path("installer").toStdString();
  }
  Offer() : server({"--port", "0", "--offer-version", "1.21.00", "--update", Installer(folder)}) {
    SetUpTowns(folder);
  }
  Ending Start(const QByteArray& script) {
    return RunInRoot(folder, {"--hosts", "127.0.0.1:" + QString::number(server.Port())}, script);
  }
  QString Download() const { return folder.Path("root/program files/skyloft/temp/skltupdate.exe"); }
};

constexpr const char* kOfferBox =
    "box information \"Skyloft updates are available! Click OK to continue.\" -> ";

TEST(Answer, CancelEndsTheProgramWithoutTheUpdate) {
  Offer offer;
  const Ending ending = offer.Start("answer Cancel\nno command\n");
  EXPECT_EQ(ending.code, 0);
  EXPECT_NE(ending.errors.find(std::string(kOfferBox) + "Cancel\n"), std::string::npos) << ending.errors;
  EXPECT_FALSE(QFile::exists(offer.Download()));
  EXPECT_TRUE(QFile::exists(offer.folder.DataFile()));
}

TEST(Answer, OkFetchesTheUpdate) {
  Offer offer;
  const Ending ending = offer.Start("answer Ok\nno command\n");
  EXPECT_EQ(ending.code, 0);
  EXPECT_NE(ending.errors.find(std::string(kOfferBox) + "Ok\n"), std::string::npos) << ending.errors;
  EXPECT_EQ(ReadBytes(offer.Download()), "the new version");
  EXPECT_FALSE(QFile::exists(offer.folder.DataFile()));
}

TEST(Answer, OnlyTheHeadOfTheScriptIsThereForTheStart) {
  Offer offer;
  const Ending ending = offer.Start("wait 1\nanswer Ok\n");
  EXPECT_EQ(ending.code, 0);
  EXPECT_NE(ending.errors.find(std::string(kOfferBox) + "Cancel\n"), std::string::npos) << ending.errors;
}

}  // namespace
}  // namespace skyloft::program
