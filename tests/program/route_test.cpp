// A road trip in the whole program: picked on the map, reported, printed, ended.
#include <gtest/gtest.h>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::RunningServer;

constexpr const char* kRouteMap =
    "select MainForm.CategorySelection \"Travel\"\nuntil idle 20000\n"
    "expect MainForm.ProductTitle caption RouteScope by Road Friday, Mar 07\n"
    "expect MainForm.TimeLabel caption Departure Time\n";

class Trip : public testing::Test {
 protected:
  Trip() { SetUpTowns(folder_); }
  // These acts on the map against a feed with these options; then a snapshot to s/.
  Ending Travel(const std::string& acts, std::vector<std::string> feed = {}) {
    std::vector<std::string> options = {"--port", "0", "--log", folder_.Path("log").toStdString()};
    options.insert(options.end(), feed.begin(), feed.end());
    const RunningServer server(options);
    const std::string script =
        kRouteMap + acts + "until idle 20000\nsnapshot " + folder_.Path("s").toStdString() + "\nquit\n";
    return RunInRoot(
        folder_,
        {"--hosts", "127.0.0.1:" + QString::number(server.Port()), "--print", folder_.Path("trip.pdf")},
        QByteArray::fromStdString(script));
  }
  std::string Report() const {
    return ReadBytes(folder_.Root() + "/program files/skyloft/temp/routescope.htm").toStdString();
  }
  static int Rows(const std::string& report) {
    int rows = 0;
    for (size_t at = report.find("<tr>"); at != report.npos; at = report.find("<tr>", at + 1)) ++rows;
    return rows - 2;  // the title and the headings
  }
  // The queries for one hour at one place.
  std::vector<Logged> Asked() const {
    std::vector<Logged> asked = Only(ReadLog(folder_.Path("log")), "/forecast.asp");
    std::erase_if(asked, [](const Logged& request) { return !request.query.starts_with("lat="); });
    return asked;
  }

  Folder folder_;
};

std::string Press(int x, int y, const char* button) {
  return "press MainForm.Display1 " + std::to_string(x) + " " + std::to_string(y) + " " + button + "\n";
}

TEST_F(Trip, OfThreeStopsWithAWaitIsReportedAndPrintedAndDoneClearsTheMap) {
  const Ending ending =
      Travel(Press(200, 200, "left") +
             "press MainForm.ImagePoints[1] 3 3 right\nasync menu AddStop\nwait 100\n"
             "expect RouteScopeOptionsForm visible 1\nselect RouteScopeOptionsForm.StopHours 2\n"
             "click RouteScopeOptionsForm.OK\nuntil RouteScopeOptionsForm visible 0 2000\n"
             "expect MainForm.ImagePoints[1] tag 7200\nexpect MainForm.ImagePoints[1] color 65535\n" +
             Press(300, 200, "left") + Press(300, 300, "double") +
             "until idle 20000\nexpect RouteScopeForm visible 1\nclick RouteScopeForm.Print\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  const std::string report = Report();
  EXPECT_EQ(Rows(report), 3);
  EXPECT_TRUE(report.ends_with("</html>\r\n"));
  const Snapshot shown(folder_.Path("s"));
  EXPECT_TRUE(shown.HasPicture("RouteScopeForm"));
  EXPECT_TRUE(shown.Text("RouteScopeForm.Label3", "caption").ends_with(" miles"));
  EXPECT_TRUE(shown.Text("RouteScopeForm.Label4", "caption").ends_with(" hours"));
  EXPECT_EQ(shown.Text("MainForm.ProductTitle", "caption"), "RouteScope");
  EXPECT_TRUE(ReadBytes(folder_.Path("trip.pdf")).startsWith("%PDF"));
  ASSERT_EQ(Asked().size(), 3u);
  for (const Logged& request : Asked()) {
    const QString query = QString::fromStdString(request.query);
    EXPECT_EQ(query.section("&st=", 1).section("&et=", 0, 0), query.section("&et=", 1).section("&t=", 0, 0));
  }

  ASSERT_EQ(Travel(Press(200, 200, "left") + Press(300, 300, "double") +
                   "until idle 20000\nclick RouteScopeForm.Done\n" + Press(300, 300, "double"))
                .code,
            0);
  const Snapshot done(folder_.Path("s"));
  EXPECT_FALSE(done.Flag("RouteScopeForm", "visible"));
  EXPECT_TRUE(done.Flag("MainForm.ImagePoints[1]", "visible")) << "the stop of the last double click";
  EXPECT_FALSE(done.Flag("MainForm.ImagePoints[2]", "visible"));
}

TEST_F(Trip, OfSixtyStopsTakesNoMore) {
  std::string acts;
  for (int i = 0; i < 61; ++i) acts += Press(8 + 9 * i, 200 + i % 5 * 20, "left");
  const Ending ending = Travel(acts + Press(300, 100, "double"));
  ASSERT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(Rows(Report()), 60);
  EXPECT_EQ(Asked().size(), 60u);
}

TEST_F(Trip, WithoutAServerIsReportedWithoutWeather) {
  const Ending ending =
      Travel(Press(200, 200, "left") + Press(300, 300, "double"), {"--fault", "/forecast.asp?lat=refuse"});
  ASSERT_EQ(ending.code, 0) << ending.errors;
  const std::string report = Report();
  EXPECT_EQ(Rows(report), 2);
  EXPECT_EQ(report.find("<img"), report.npos);
  EXPECT_TRUE(report.ends_with("</html>\r\n"));
}

}  // namespace
}  // namespace skyloft::program
