#include "pages/weekly_planner.h"

#include "feed/forecast.h"
#include "forms/main_form.h"
#include "pages/extended_planner.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

const std::string kHead = "C:\\program files\\skyloft\\backgrounds\\";

// 7 March 2003 was a Friday; the place is six hours west of Greenwich.
class WeeklyPlanner : public Station {
 protected:
  WeeklyPlanner() { SetUp("3/7/2003 1:00:00 PM"); }

  static void SetUp(const std::string& first_gmt) {
    MainForm.TimeSelection.Clear();
    SetUpLocations(1);
    SetUpForecast(first_gmt, -6);
    for (int h = 0; h < 66; ++h) ForecastHour[0][h].Ws = std::to_string(100 + h);
    // Each half day tells its place in its values.
    for (int d = 0; d < kForecastDays; ++d) {
      ForecastDay[0][d].Th = "H" + std::to_string(d);
      ForecastDay[0][d].Tl = "L" + std::to_string(d);
    }
  }

  // The columns of the page by their fields: the cells of the rows with this label, days and nights by turns.
  static std::vector<std::string> Cells(const std::string& label) {
    std::vector<std::string> halves[2];
    const std::string page = MainForm.Display2.Document;
    size_t row = 0;
    for (auto& half : halves) {
      row = page.find("width='40'>" + label + "</td>", row + 1);
      const size_t end = page.find("</tr>", row);
      size_t cell = page.find("</td>", row) + 5;
      while (cell < end) {
        const size_t close = page.find("</td>", cell);
        if (close == std::string::npos || close > end) break;
        half.push_back(Plain(page.substr(cell, close - cell)));
        cell = close + 5;
      }
    }
    std::vector<std::string> columns;
    for (size_t i = 0; i < halves[0].size(); ++i) {
      columns.push_back(halves[0][i]);
      columns.push_back(halves[1][i]);
    }
    columns.resize(24);  // a page without its rows has empty columns
    return columns;
  }
  // The text of a cell, without its tags.
  static std::string Plain(const std::string& cell) {
    std::string text;
    bool in_tag = false;
    for (const char c : cell.substr(cell.find('<'))) {
      if (c == '<') in_tag = true;
      if (!in_tag) text += c;
      if (c == '>') in_tag = false;
    }
    return text;
  }
};

TEST_F(WeeklyPlanner, AFeedFromThirteenGmtGivesFiveNearColumnsAndANightAsTheFirstFarOne) {
  WeatherPlannerWeekly();
  const auto days = Cells("Day");
  ASSERT_EQ(days.size(), 24u);
  EXPECT_EQ((std::vector<std::string>(days.begin(), days.begin() + 8)),
            (std::vector<std::string>{"Fri", "Fri Night", "Sat", "Sat Night", "Sun", "Sun night", "Mon",
                                      "Mon night"}));
  // The last near hour is 10 March 00 GMT; the first of the extended stamps closes twelve hours later.
  const auto temperatures = Cells("Temp");
  EXPECT_EQ(temperatures[4], "40 ") << "the blank stays";
  EXPECT_EQ(temperatures[5], "L0");
  EXPECT_EQ(temperatures[6], "H1");
}

TEST_F(WeeklyPlanner, TheNightThatIsUnderWayDoesNotAppear) {
  for (const char* first : {"3/7/2003 1:00:00 AM", "3/6/2003 7:00:00 PM"}) {
    SetUp(first);
    WeatherPlannerWeekly();
    const auto days = Cells("Day");
    EXPECT_EQ((std::vector<std::string>(days.begin(), days.begin() + 6)),
              (std::vector<std::string>{"Fri", "Fri Night", "Sat", "Sat Night", "Sun", "Sun night"}))
        << first;
  }
}

TEST_F(WeeklyPlanner, AFeedFromSevenGmtBeginsWithTheDay) {
  SetUp("3/7/2003 7:00:00 AM");
  WeatherPlannerWeekly();
  EXPECT_EQ(Cells("Day")[0], "Fri");
  EXPECT_EQ(Cells("Day")[5], "Sun night");
}

TEST_F(WeeklyPlanner, DatesAreThoseOfTheNearPeriodsAndTheLocalOnesOfTheFarStamps) {
  WeatherPlannerWeekly();
  const auto dates = Cells("Date");
  // Near: the last hours of Friday, Saturday and Sunday, 00 GMT, are 18:00 here. Far: Monday ends at 00 GMT
  // of 11 March, which is 18:00 of the 10th.
  EXPECT_EQ((std::vector<std::string>{dates[0], dates[2], dates[4], dates[6]}),
            (std::vector<std::string>{"03/07", "03/08", "03/09", "03/10"}));
  EXPECT_EQ(dates[1], dates[0]) << "both tables show the same dates";
  ASSERT_EQ(MainForm.TimeSelection.Count(), 1);
  EXPECT_EQ(MainForm.TimeSelection.Items()[0], "03/07 thru 03/18");
}

TEST_F(WeeklyPlanner, AFarDateCanBeADayLaterThanItsDaysName) {
  SetUpForecast("3/7/2003 1:00:00 PM", 3);  // 00 GMT is 3:00 in the morning of the next day here
  WeatherPlannerWeekly();
  EXPECT_EQ(Cells("Day")[6], "Mon");
  EXPECT_EQ(Cells("Date")[6], "03/11");
}

TEST_F(WeeklyPlanner, FarWindsTakeTheirSpeedFromTheHourlyForecastAtTheSamePlace) {
  WeatherPlannerWeekly();
  const std::string page = MainForm.Display2.Document;
  EXPECT_NE(page.find("class='tinytext'>  S 100</td>"), std::string::npos) << "column 5 is half day 0";
  EXPECT_NE(page.find("class='tinytext'>  S 101</td>"), std::string::npos);
  EXPECT_NE(page.find("class='tinytext'> NE 111 </td>"), std::string::npos)
      << "near: mph goes, a blank stays";
}

TEST_F(WeeklyPlanner, NothingToMeasurePrintsADash) {
  ForecastHour[0][3].Rn = "0.5";
  ForecastDay[0][0].Rn = "0.25";
  ForecastDay[0][1].Rn = "trace";
  ForecastDay[0][2].Sn = "1.5";
  WeatherPlannerWeekly();
  const auto rain = Cells("Rain");
  EXPECT_EQ((std::vector<std::string>(rain.begin(), rain.begin() + 8)),
            (std::vector<std::string>{"0.5 in", "-", "-", "-", "-", "0.25", "-", "-"}));
  EXPECT_EQ(Cells("Snow")[7], "1.5");
  EXPECT_EQ(Cells("Snow")[5], "-");
}

TEST_F(WeeklyPlanner, AMissedStampLeavesAllLaterColumnsEmpty) {
  ForecastDay[0][3].Ut = "Mar 01 2003 12:00AM";
  WeatherPlannerWeekly();
  const auto days = Cells("Day");
  EXPECT_EQ(days[7], "Mon night");
  for (size_t c = 8; c < 24; ++c) EXPECT_EQ(days[c], "") << c;
  EXPECT_EQ(MainForm.TimeSelection.Items()[0], "03/07 thru ");
}

TEST_F(WeeklyPlanner, StampsBeforeTheFirstFarOneArePassedOver) {
  for (int d = kForecastDays - 1; d > 2; --d) ForecastDay[0][d] = ForecastDay[0][d - 3];
  ForecastDay[0][0].Ut = ForecastDay[0][1].Ut = "not yet";
  WeatherPlannerWeekly();
  EXPECT_EQ(Cells("Temp")[5], "L0") << "found three places later";
}

TEST_F(WeeklyPlanner, AnOddLastHourFindsNoFarColumnNotEvenOneWithoutAStamp) {
  ForecastHour[0][59].Ut = "Mar 10 2003 03:00AM";
  ForecastDay[0][4].Ut = "";
  WeatherPlannerWeekly();
  for (size_t c = 5; c < 24; ++c) EXPECT_EQ(Cells("Day")[c], "") << c;
}

TEST_F(WeeklyPlanner, SixHoursFromTheLastNearHourWhenItIsSixOrEighteenGmt) {
  ForecastHour[0][59].Ut = "Mar 10 2003 06:00AM";
  WeatherPlannerWeekly();
  EXPECT_EQ(Cells("Temp")[5], "L0") << "12 GMT";
  ForecastHour[0][59].Ut = "Mar 10 2003 06:00PM";
  WeatherPlannerWeekly();
  EXPECT_EQ(Cells("Temp")[5], "H1") << "00 GMT";
}

TEST_F(WeeklyPlanner, TheBandsDoNotFollowTheLight) {
  WeatherPlannerWeekly();
  const std::string page = MainForm.Display2.Document;
  EXPECT_NE(page.find("background='file:" + kHead + "weeklya.jpg'"), std::string::npos);
  EXPECT_NE(page.find("background='file:" + kHead + "weeklyn.jpg'"), std::string::npos);
}

TEST_F(WeeklyPlanner, ThePositionBarEndsWhereTheFormerProductDid) {
  Periods.HourIndexMax = 59;
  WeatherPlannerWeekly();
  EXPECT_EQ(MainForm.ProgressBar.Max, 59);
  EXPECT_EQ(MainForm.ProgressBar.Value, 0);
}

TEST_F(WeeklyPlanner, ThePeriodsOfAllLocationsAreSummedUpAnewAndTheSelectedOneIsShown) {
  SetUpLocations(2);
  SetUpForecast("3/7/2003 1:00:00 PM", -6);
  for (int h = 0; h < 66; ++h) ForecastHour[1][h].Tf = "77";
  ForecastDay[1][0].Tl = "second";
  ForecastPeriod = {};
  Settings.Location = "1";
  WeatherPlannerWeekly();
  EXPECT_EQ(ForecastPeriod[0][4].Temperature, "40 F");
  EXPECT_EQ(ForecastPeriod[1][4].Temperature, "77 F");
  EXPECT_EQ(Cells("Temp")[4], "77 ");
  EXPECT_EQ(Cells("Temp")[5], "second");
}

TEST_F(WeeklyPlanner, AnyFailureKeepsTheOldPage) {
  for (const int failure : {0, 1, 2}) {
    SetUp("3/7/2003 1:00:00 PM");
    MainForm.Display2.Document = "the old page";
    if (failure == 0) ForecastHour[0][0].Lt = "";
    if (failure == 1) ForecastHour[0][59].Ut = "";
    if (failure == 2) {
      for (int h = 0; h < 12; ++h) ForecastHour[0][h].Desc = "clear";  // no phrase of a day
    }
    WeatherPlannerWeekly();
    EXPECT_EQ(MainForm.Display2.Document.Get(), "the old page") << failure;
  }
}

}  // namespace
}  // namespace skyloft
