// The start of the program and what it shows then.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>

#include <set>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::BodyOf;
using feed::Get;
using feed::RunningServer;

constexpr const char* kTowns[] = {"Lawrence, KS", "Miami, FL", "Denver, CO", "Seattle, WA", "Portland, ME"};
constexpr const char* kZipCodes[] = {"66044", "33131", "80202", "98101", "04101"};
constexpr const char* kUnreachable =
    "box critical \"ERROR: SKYLOFT SERVER UNREACHABLE. Check your internet connection and/or firewall.\" -> ";

QStringList HostsOf(const RunningServer& server) {
  return {"--hosts", "127.0.0.1:" + QString::number(server.Port())};
}

TEST(Demo, ShowsTheFiveTownsAndTheFirstOnesConditions) {
  const Folder folder;
  const RunningServer server({"--port", "0"});
  const Ending ending = RunInRoot(folder, HostsOf(server) << "--demo"
                                                          << "--snapshot" << folder.Path("s"));
  ASSERT_EQ(ending.code, 0) << ending.errors;
  const Snapshot shown(folder.Path("s"));
  const QJsonArray towns = shown.Value("MainForm.LocationSelection", "items").toArray();
  ASSERT_EQ(towns.size(), 5);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(towns[i].toString().toStdString(), kTowns[i]);
  EXPECT_EQ(shown.Number("MainForm.LocationSelection", "index"), 0);
  const std::string feed = BodyOf(Get(server.Port(), "/forecast.asp?pc=66044&t=xml&d=current"));
  const std::string page = shown.Page("MainForm.WeatherConditionsBanner");
  EXPECT_NE(page.find("Temperature</B>: " + TextsOf(feed, "Tf").at(0) + " F"), page.npos) << page;
  EXPECT_NE(page.find("<B>" + TextsOf(feed, "Desc").at(0)), page.npos) << page;
}

TEST(Demo, PaintsTheMainWindow) {
  const Folder folder;
  ASSERT_EQ(RunInRoot(folder, {"--demo", "--snapshot", folder.Path("s")}).code, 0);
  const Snapshot shown(folder.Path("s"));
  const QImage picture = shown.Picture("MainForm");
  ASSERT_EQ(picture.size(), QSize(800, 590));
  // The cell of the conditions is #003399; it fills most of its page below the heading.
  const QRect page = shown.Place("MainForm.WeatherConditionsBanner");
  int blue = 0;
  for (int y = page.top(); y <= page.bottom(); ++y) {
    for (int x = page.left(); x <= page.right(); ++x) blue += picture.pixelColor(x, y) == QColor(0, 51, 153);
  }
  EXPECT_GT(blue, page.width() * page.height() / 4);
}

TEST(Demo, VisibleControlsLieInsideTheMainWindow) {
  const Folder folder;
  ASSERT_EQ(RunInRoot(folder, {"--demo", "--snapshot", folder.Path("s")}).code, 0);
  const Snapshot shown(folder.Path("s"));
  const QRect window(0, 0, 800, 590);
  int visible = 0;
  const QJsonObject controls = shown.Controls("MainForm");
  for (const QString& name : controls.keys()) {
    const QJsonObject control = controls[name].toObject();
    // What has no place in the window tells none or an empty one.
    if (name == "." || !control["visible"].toBool() || control["width"].toInt() == 0) continue;
    ++visible;
    EXPECT_TRUE(window.contains(shown.Place("MainForm." + name))) << name.toStdString();
  }
  EXPECT_GT(visible, 20);
}

TEST(Demo, FolderOfItsOwnGoesWithTheProgram) {
  const Folder folder;
  folder.Write("script",
               "expect MainForm visible 1\nsnapshot " + folder.Path("s").toUtf8() + "\nwait 60000\n");
  ProgramRun run(folder, {"--demo", "--now", kNow, "--zone", kZone, "--script", folder.Path("script")});
  const auto demo_folders = [&] { return folder.Entries("tmp").filter("skyloft-demo-"); };
  for (int i = 0; i < 200 && !Snapshot(folder.Path("s")).Saved(); ++i) ASSERT_TRUE(run.Running(50));
  EXPECT_FALSE(demo_folders().isEmpty());
  kill(run.Process(), SIGTERM);
  EXPECT_EQ(run.Wait().code, 0);
  EXPECT_TRUE(demo_folders().isEmpty()) << demo_folders().join('\n').toStdString();
}

TEST(Selection, EachTownShowsItsOwnPageAndTitle) {
  const Folder folder;
  const RunningServer server({"--port", "0"});
  QByteArray script;
  for (int i = 0; i < 5; ++i) {
    script += "select MainForm.LocationSelection " + QByteArray::number(i) + "\nsnapshot " +
              folder.Path("s").toUtf8() + QByteArray::number(i) + "\n";
  }
  const Ending ending = RunInRoot(folder, HostsOf(server) << "--demo", script + "quit\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  std::set<std::string> pages;
  for (int i = 0; i < 5; ++i) {
    const Snapshot shown(folder.Path("s") + QString::number(i));
    EXPECT_EQ(shown.Text("MainForm.LocationLabel", "caption"), kTowns[i]);
    const std::string query = std::string("/forecast.asp?t=xml&d=current&pc=") + kZipCodes[i];
    const std::string feed = BodyOf(Get(server.Port(), query));
    const std::string page = shown.Page("MainForm.WeatherConditionsBanner");
    const std::string pressure = "Pressure</B>: " + TextsOf(feed, "Slp").at(0) + " in";
    EXPECT_NE(page.find(pressure), page.npos) << kTowns[i] << page;
    EXPECT_NE(page.find("Dewpoint</B>: " + TextsOf(feed, "Df").at(0) + " F"), page.npos) << kTowns[i] << page;
    pages.insert(page);
  }
  EXPECT_EQ(pages.size(), 5u);
}

TEST(Selection, RaisesNoRequest) {
  const Folder plain, selecting;
  const auto count_requests = [](const Folder& folder, const QByteArray& selects) {
    const RunningServer server({"--port", "0", "--log", folder.Path("log").toStdString()});
    EXPECT_EQ(RunInRoot(folder, HostsOf(server) << "--demo", selects + "until idle 5000\nquit\n").code, 0);
    return ReadLog(folder.Path("log")).size();
  };
  QByteArray selects;
  for (const char* town : kTowns)
    selects += "select MainForm.LocationSelection \"" + QByteArray(town) + "\"\n";
  const size_t requests = count_requests(plain, "");
  EXPECT_GT(requests, 2u);
  EXPECT_EQ(count_requests(selecting, selects), requests);
}

TEST(FirstStart, OpensTheWizardAndAsksForNoForecast) {
  const Folder folder;
  const RunningServer server({"--port", "0", "--log", folder.Path("log").toStdString()});
  const Ending ending = RunInRoot(folder, HostsOf(server) << "--snapshot" << folder.Path("s"));
  ASSERT_EQ(ending.code, 0) << ending.errors;
  const Snapshot shown(folder.Path("s"));
  EXPECT_TRUE(shown.Flag("SetupWizardForm", "visible"));
  EXPECT_TRUE(shown.HasPicture("SetupWizardForm"));
  for (const char* hidden : {"InitializingForm", "MainForm"}) {
    EXPECT_FALSE(shown.Flag(hidden, "visible")) << hidden;
    EXPECT_FALSE(shown.HasPicture(hidden)) << hidden;
  }
  const auto requests = ReadLog(folder.Path("log"));
  EXPECT_EQ(Only(requests, "/skyloft/config/hosts.xml").size(), 1u);
  EXPECT_TRUE(Only(requests, "/forecast.asp").empty());
}

TEST(FirstStart, CancelOfTheWizardEndsTheProgram) {
  const Folder folder;
  // The last line would fail if it were reached.
  const Ending ending = RunInRoot(
      folder, {}, "expect SetupWizardForm visible 1\nclick SetupWizardForm.CancelButton\nno command\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_FALSE(QFile::exists(folder.DataFile()));
}

TEST(Unreachable, BoxIsAnsweredByTheHeadOfTheScript) {
  const Folder folder;
  const Ending ending =
      RunInRoot(folder, {"--hosts", "127.0.0.1:1", "--snapshot", folder.Path("s")}, "answer Ok\n");
  EXPECT_EQ(ending.code, 0);
  EXPECT_NE(ending.errors.find(std::string(kUnreachable) + "Ok\n"), std::string::npos) << ending.errors;
  EXPECT_FALSE(QFile::exists(folder.Path("s")));
}

TEST(Unreachable, BoxIsCancelledWithoutAnAnswer) {
  const Folder folder;
  const Ending ending = RunInRoot(folder, {"--hosts", "127.0.0.1:1", "--snapshot", folder.Path("s")});
  EXPECT_EQ(ending.code, 0);
  EXPECT_NE(ending.errors.find(std::string(kUnreachable) + "Cancel\n"), std::string::npos) << ending.errors;
  EXPECT_FALSE(QFile::exists(folder.Path("s")));
}

TEST(Unreachable, StoredTownsStay) {
  const Folder folder;
  SetUpTowns(folder);
  const QByteArray data = ReadBytes(folder.DataFile());
  EXPECT_EQ(RunInRoot(folder, {"--hosts", "127.0.0.1:1"}, "answer Ok\n").code, 0);
  EXPECT_EQ(ReadBytes(folder.DataFile()), data);
  EXPECT_EQ(folder.Setting("Settings/LocationIndexMax"), "4");
}

TEST(DotsPerInch, OtherThan96ShowOnlyTheWarningWhoseOkEnds) {
  const Folder folder;
  SetUpTowns(folder);
  const QByteArray store = ReadBytes(folder.Path("root/registry.ini"));
  const QByteArray data = ReadBytes(folder.DataFile());
  const RunningServer server({"--port", "0", "--log", folder.Path("log").toStdString()});
  const Ending ending =
      RunInRoot(folder,
                HostsOf(server) << "--dpi"
                                << "120",
                "snapshot " + folder.Path("s").toUtf8() + "\nclick SystemFontForm.OKButton\nno command\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_TRUE(ReadLog(folder.Path("log")).empty());
  const Snapshot shown(folder.Path("s"));
  for (const char* form : {"MainForm", "InitializingForm", "TickerForm", "SetupWizardForm"}) {
    EXPECT_FALSE(shown.Flag(form, "visible")) << form;
  }
  EXPECT_TRUE(shown.Flag("SystemFontForm", "visible"));
  EXPECT_EQ(shown.Text("SystemFontForm", "caption"), "Skyloft System Check");
  EXPECT_EQ(shown.Text("SystemFontForm.Heading", "caption"),
            "Incompatible Windows Display DPI (dots per inch)");
  EXPECT_EQ(
      shown.Text("SystemFontForm.Message", "caption"),
      "Skyloft has detected that your Windows Display is NOT set to 96 DPI. The Skyloft software will NOT "
      "run "
      "properly with your current display configuration. Follow the instructions below to adapt your display "
      "to the Skyloft requirements. Support for other DPI configurations is coming soon!");
  const char* const steps[] = {"Step1: Click on the DISPLAY icon located in the Windows Control Panel",
                               "Step2: Click on the SETTINGS tab",
                               "Step3: Click on the ADVANCED button",
                               "Step4: Click on the GENERAL tab",
                               "Step5: Change FONT SIZE to SMALL or DPI SETTING to 96 DPI",
                               "Step6: Click on OK and folllow the Windows instructions"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(shown.Text("SystemFontForm.Step" + QString::number(i + 1), "caption"), steps[i]);
  }
  EXPECT_EQ(ReadBytes(folder.Path("root/registry.ini")), store);
  EXPECT_EQ(ReadBytes(folder.DataFile()), data);
}

TEST(DotsPerInch, Of96AreAUsualStart) {
  const Folder folder;
  ASSERT_EQ(RunInRoot(folder, {"--demo", "--dpi", "96", "--snapshot", folder.Path("s")}).code, 0);
  EXPECT_TRUE(Snapshot(folder.Path("s")).Flag("MainForm", "visible"));
}

}  // namespace
}  // namespace skyloft::program
