#include "pages/route_report.h"

#include <algorithm>
#include <vector>

#include "feed/forecast.h"
#include "forms/main_form.h"
#include "forms/route_scope_form.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

using Words = std::vector<std::string>;

std::string Lines(const Words& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

const std::string kHead = Lines({
    "<html>",
    "<head>",
    "<title>Location</title>",
    "<style type=\"text/css\">",
    "TD {",
    "font-family: Tahoma;",
    "font-size: 11px;",
    "color: #FFFFFF;",
    "}",
    "</style>",
    "<link rel=\"stylesheet\" type=\"text/css\" href=\"http://www.skyloft.example/skyloft/style.css\">",
    "</head>",
    "<div>",
    "<body bgcolor=\"#FFFFFF\">",
    "<div align=\"left\">",
    "<table border=\"1\" cellpadding=\"0\" cellspacing=\"0\" width=\"740\">",
    "<tr>",
    "<td align=\"center\" bgcolor=\"#FFFFFF\" style=\"border: none; color: #000000\">",
    "&nbsp;<b><font face=\"Arial\" size=\"5\">Skyloft RouteScope</font></b>",
    "</td>",
    "</tr>",
    "</table>",
    "<table border=\"1\" width=\"740\" cellpadding=\"0\" cellspacing=\"0\">",
});
const std::string kTail = Lines({"</table>", "</div>", "</body>", "</html>"});
const Words kHeadings = {"Location", "Distance (mi)", "Arrival Time", "Sky",  "Weather",   "Temp (F)",
                         "Dewp (F)", "RH (%)",        "Fslk (F)",     "Wdir", "Wspd (mph)"};
const Words kWidths = {"200", "60", "100", "40", "100", "40", "40", "40", "40", "40", "40"};

// A row of eleven cells, each between two texts behind its width and height.
std::string Cells(const Words& values, const std::string& before, const std::string& after) {
  std::string row = "<tr>\r\n";
  for (size_t i = 0; i < values.size(); ++i) {
    row += "<td valign=\"middle\" align=\"center\" width=\"" + kWidths[i] + "\" height=\"30\" " + before +
           values[i] + after + "\r\n";
  }
  return row + "</tr>\r\n";
}
std::string StopRow(const Words& values) {
  return Cells(values, "<font face=\"Arial\" size=\"2\" color=\"#000000\">", "</font></b></td>");
}
std::string HeadingRow() {
  return Cells(kHeadings, "bgcolor=\"#000080\"><b><font face=\"Arial\" size=\"2\" color=\"#FFFFFF\">",
               "</font></b></td>");
}

std::string HourReply(const std::string& town, const std::string& wind = "225") {
  return Reply(Element("city_state", town) + Element("Lt", "Mar 07 2003 03:00PM") +
               Element("Desc", "light rain") + Element("Ic", "sliterain.gif") + Element("Tf", "43") +
               Element("Df", "41") + Element("Rh", "92") + Element("At", "36") + Element("Wd", wind) +
               Element("Ws", "13"));
}
const std::string kPicture =
    "<img border=\"0\" src=\"C:\\program files\\skyloft\\icons\\sliterain.gif\" width=\"40\" height=\"30\">";

// A route from 50 N, 100 W; the departure is at 15:00.
class RouteReport : public Station {
 protected:
  RouteReport() {
    SetUpLocations(2);
    SetUpForecast("3/7/2003 7:00:00 PM", -6);
    MainForm.LocationSelection.Click = {};
    MainForm.LocationSelection.Select(0);
    Periods.HourIndex = 2;  // 15:00 there
    Doubles.requests.clear();
  }
  void Stop(double north, double east) {
    ++count;
    latitude[count] = 50 + north;
    longitude[count] = -100 + east;
  }
  std::string Report() {
    GetForecastRT(latitude, longitude, count);
    return Doubles.files["c:\\program files\\skyloft\\temp\\routescope.htm"];
  }
  // The cells of a column in a report, by the text before them.
  static Words Column(const std::string& report, const std::string& heading) {
    const size_t column = static_cast<size_t>(std::ranges::find(kHeadings, heading) - kHeadings.begin());
    Words values;
    const std::string open = "color=\"#000000\">";
    size_t cell = 0;
    for (size_t at = report.find(open); at != report.npos; at = report.find(open, at + 1), ++cell) {
      const size_t begin = at + open.size();
      if (cell % kHeadings.size() == column)
        values.push_back(report.substr(begin, report.find("</font>", begin) - begin));
    }
    return values;
  }

  RouteList latitude, longitude;
  int count = 0;
};

TEST_F(RouteReport, IsMadeOfTheToldFragments) {
  Doubles.Reply("lat=50&", HourReply("Minot, ND"));
  Doubles.Reply("lat=51&", HourReply("Regina, ND", "0"));
  Stop(0, 0);
  Stop(1, 0);
  EXPECT_EQ(Report(), kHead + HeadingRow() +
                          StopRow({"Minot, ND", "0", "3:00 pm Fri", kPicture, "light rain", "43", "41", "92",
                                   "36", "SSW", "13"}) +
                          StopRow({"Regina, ND", "69", "4:09 pm Fri", kPicture, "light rain", "43", "41",
                                   "92", "36", "VAR", "13"}) +
                          kTail);
}

TEST_F(RouteReport, TheCellsTagIsLeftOpenAndADivisionStandsBeforeTheBody) {
  Stop(0, 0);
  const std::string report = Report();
  EXPECT_NE(report.find("height=\"30\" <font"), std::string::npos);
  EXPECT_LT(report.find("<div>"), report.find("<body"));
}

TEST_F(RouteReport, OneDegreeOfLatitudeIsSixtyNineMilesAndOnePointTwoHours) {
  Stop(0, 0);
  Stop(1, 0);
  const std::string report = Report();
  EXPECT_EQ(Column(report, "Distance (mi)"), (Words{"0", "69"}));
  EXPECT_EQ(Column(report, "Arrival Time"), (Words{"3:00 pm Fri", "4:09 pm Fri"}));
  EXPECT_EQ(RouteScopeForm.Label3.Caption.Get(), "69 miles");
  EXPECT_EQ(RouteScopeForm.Label4.Caption.Get(), "1.2 hours");
  EXPECT_EQ(Doubles.requests,
            (Words{"forecast.skyloft.example/forecast.asp?lat=50&long=-100&st=3%2F7%2F2003+3%3A00%3A00+PM"
                   "&et=3%2F7%2F2003+3%3A00%3A00+PM&t=xml",
                   "forecast.skyloft.example/forecast.asp?lat=51&long=-100&st=3%2F7%2F2003+4%3A00%3A00+PM"
                   "&et=3%2F7%2F2003+4%3A00%3A00+PM&t=xml"}));
}

TEST_F(RouteReport, DistancesAreStraightLinesRoundedToMiles) {
  // 69.1 * cos(50 / 57.3) is 44.40 miles to a degree of longitude; 36 by 27 miles make 45.
  const struct {
    double north, east;
    const char* miles;
  } cases[] = {
      {0, 1, "44"},     {0, -1, "44"},  {-1, 0, "69"},   {0.5210, 0.6081, "45"},
      {0, 0, "0"},      {10, 0, "691"}, {15, 0, "1036"},  // 1036.5: a half goes to the even neighbour
      {-10, 10, "821"},  // by the cosine of the stop before, 691 and 444.2 miles
      {0, 90, "3998"}};  // 3997.8; it were 3997.5 with 57.2958 degrees to the radian
  for (const auto& c : cases) {
    count = 0;
    Stop(0, 0);
    Stop(c.north, c.east);
    EXPECT_EQ(Column(Report(), "Distance (mi)")[1], c.miles) << c.north << " " << c.east;
  }
}

TEST_F(RouteReport, TotalsAddUpOverTheLegs) {
  Stop(0, 0);
  Stop(1, 0);
  Stop(2, 0);
  Stop(2.5, 0);  // 34.55, 35 miles
  EXPECT_EQ(Column(Report(), "Arrival Time"),
            (Words{"3:00 pm Fri", "4:09 pm Fri", "5:18 pm Fri", "5:53 pm Fri"}));
  EXPECT_EQ(RouteScopeForm.Label3.Caption.Get(), "173 miles");
  EXPECT_EQ(RouteScopeForm.Label4.Caption.Get(), "2.9 hours");
}

TEST_F(RouteReport, AWaitDelaysTheNextArrivalsAndStaysOutOfTheTotalHours) {
  Stop(0, 0);
  Stop(1, 0);
  Stop(2, 0);
  MainForm.ImagePoints[1].Tag = "5400";
  MainForm.ImagePoints[2].Tag = "0";
  MainForm.ImagePoints[3].Tag = "3600";  // of the last stop, which no one leaves
  EXPECT_EQ(Column(Report(), "Arrival Time"), (Words{"3:00 pm Fri", "5:39 pm Fri", "6:48 pm Fri"}));
  EXPECT_EQ(RouteScopeForm.Label4.Caption.Get(), "2.3 hours");
}

TEST_F(RouteReport, TheWaitOfMarkNullDelaysTheFirstStop) {
  MainForm.ImagePoints[0].Tag = "1800";
  Stop(0, 0);
  Stop(1, 0);
  EXPECT_EQ(Column(Report(), "Arrival Time"), (Words{"3:30 pm Fri", "4:39 pm Fri"}));
}

TEST_F(RouteReport, AnArrivalHalfAnHourAfterMidnightAsksForTwelveAm) {
  ForecastHour[0][2].Lt = "Mar 07 2003 11:21PM";
  Stop(0, 0);
  Stop(1, 0);
  EXPECT_EQ(Column(Report(), "Arrival Time"), (Words{"11:21 pm Fri", "12:30 am Sat"}));
  EXPECT_NE(Doubles.requests[0].find("&st=3%2F7%2F2003+11%3A00%3A00+PM&"), std::string::npos);
  EXPECT_NE(Doubles.requests[1].find("&st=3%2F8%2F2003+12%3A00%3A00+AM&et=3%2F8%2F2003+12%3A00%3A00+AM&"),
            std::string::npos);
}

TEST_F(RouteReport, NoonAsksForTwelvePm) {
  ForecastHour[0][2].Lt = "Mar 07 2003 12:59PM";
  Stop(0, 0);
  Report();
  EXPECT_NE(Doubles.requests[0].find("+12%3A00%3A00+PM&"), std::string::npos);
}

TEST_F(RouteReport, StartsAtTheHourOnShowOfTheSelectedLocation) {
  ForecastHour[1][5].Lt = "Jul 04 2003 08:00AM";
  MainForm.LocationSelection.Select(1);
  Settings.Location = "0";
  Periods.HourIndex = 5;
  Stop(0, 0);
  EXPECT_EQ(Column(Report(), "Arrival Time"), Words{"8:00 am Fri"});
}

TEST_F(RouteReport, ABusyConnectionEndsTheTableBeforeItsStopAndTheTagsAreClosed) {
  Stop(0, 0);
  Stop(1, 0);
  MainForm.Http.State = 1;
  EXPECT_EQ(Report(), kHead + HeadingRow() + kTail);
  EXPECT_TRUE(Doubles.requests.empty());
  EXPECT_EQ(RouteScopeForm.Label3.Caption.Get(), "0 miles") << "of the first stop";
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "RouteScope");
}

TEST_F(RouteReport, AStopWithoutAReplyHasARowWithoutData) {
  Doubles.Reply("lat=51&", HourReply("Regina, ND"));
  Stop(0, 0);
  Stop(1, 0);
  const std::string report = Report();
  EXPECT_NE(report.find(StopRow({"", "0", "3:00 pm Fri", "", "", "", "", "", "", "", ""})),
            std::string::npos);
  EXPECT_EQ(Column(report, "Location"), (Words{"", "Regina, ND"}));
  EXPECT_TRUE(report.ends_with(kTail));
}

TEST_F(RouteReport, TheWindIsTurnedOnceAndWhatHasNoDigitStays) {
  const std::pair<const char*, const char*> cases[] = {
      {"181", "  S"}, {"270", "WSW"}, {" NE", " NE"}, {"VAR", "VAR"}, {"361", "VAR"}};
  for (const auto& [received, shown] : cases) {
    Doubles.Reply("lat=", HourReply("Minot, ND", received));
    count = 0;
    Stop(0, 0);
    EXPECT_EQ(Column(Report(), "Wdir"), Words{shown}) << received;
  }
}

TEST_F(RouteReport, TellsItsProgress) {
  for (int i = 0; i < 3; ++i) Stop(i, 0);
  MainForm.ProgressBar.SetPosition(100, 70);  // of the route before
  std::vector<std::pair<int, std::string>> told;
  Doubles.during_fetch = [&](const std::string&) {
    told.emplace_back(MainForm.ProgressBar.Value, MainForm.ProductTitle.Caption);
  };
  Report();
  const std::string title = "Generating RouteScope";
  EXPECT_EQ(told, (std::vector<std::pair<int, std::string>>{{0, title}, {1, title}, {2, title}}));
  EXPECT_EQ(MainForm.ProgressBar.Max.Get(), 3);
  EXPECT_EQ(MainForm.ProgressBar.Value.Get(), 3);
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "RouteScope");
}

TEST_F(RouteReport, WithoutADepartureTheFileEndsBehindItsHeadings) {
  ForecastHour[0][2].Lt = "";
  Stop(0, 0);
  Stop(1, 0);
  EXPECT_EQ(Report(), kHead + HeadingRow());
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Generating RouteScope");
}

TEST_F(RouteReport, SixtyStopsHaveSixtyRows) {
  Doubles.Reply("lat=", HourReply("Minot, ND"));
  for (int i = 0; i < 60; ++i) Stop(i / 10.0, 0);
  const std::string report = Report();
  EXPECT_EQ(Column(report, "Location").size(), 60u);
  EXPECT_EQ(Doubles.requests.size(), 60u);
  EXPECT_EQ(RouteScopeForm.Label3.Caption.Get(), "413 miles") << "59 legs of 6.91, 7 miles each";
}

TEST_F(RouteReport, AFileThatCannotBeWrittenEndsQuietly) {
  Stop(0, 0);
  Doubles.file_failure.at = 1;
  GetForecastRT(latitude, longitude, count);
  EXPECT_FALSE(Doubles.files.contains("c:\\program files\\skyloft\\temp\\routescope.htm"));
}

}  // namespace
}  // namespace skyloft
