#include "feed/forecast.h"

#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

const std::string kServer = "forecast.skyloft.example/forecast.asp?";
const std::string kHourly = "&st=1%2F1%2F2000+0%3A00%3A00+AM&et=12%2F31%2F2100+12%3A00%3A00+AM&t=xml";
const std::string kExtended = "&t=xml&fcsttype=extended";

const char* const kHourTags[] = {"Ut", "Lt", "Desc", "Ic", "Tf", "Df", "Rh", "At", "Wd", "Ws", "Rn", "Sn"};
const char* const kDayTags[] = {"Ut", "Desc", "Ic", "Th", "Tl", "Rn", "Sn", "Wd", "Ws"};

// A run of a tag: each value names tag, location and row; winds are degrees, times dates.
std::string Cell(const std::string& tag, int location, int row) {
  if (tag == "Wd") return std::to_string(100 * (location + 1));
  if (tag == "Ut" && location == 0 && row == 0) return "Mar 07 2003 07:00AM";
  return tag + std::to_string(location) + "." + std::to_string(row);
}

template <class Tags>
std::string Rows(const Tags& tags, int locations, int rows) {
  std::string elements;
  for (int location = 0; location < locations; ++location) {
    for (int row = 0; row < rows; ++row) {
      for (const char* tag : tags) elements += Element(tag, Cell(tag, location, row));
    }
  }
  return Reply(elements);
}

class Forecast : public Station {
 protected:
  Forecast() {
    SetUpLocations(3);
    Settings.ModelServer = "new";
    Settings.ModelLocal = "old";
  }
  static void SetReplies(int locations, int hours, int days) {
    Doubles.replies.clear();
    Doubles.Reply("&st=", Rows(kHourTags, locations, hours));
    Doubles.Reply("fcsttype=extended", Rows(kDayTags, locations, days));
  }
  static bool Loaded() { return Settings.ModelLocal == "new"; }
};

TEST_F(Forecast, TwoQueriesAskForAllThatTheServerHasOfAllLocations) {
  SetReplies(3, 66, 25);
  GetForecastData(0);
  const std::string zips = "pc=10000&pc=10001&pc=10002";
  EXPECT_EQ(Doubles.requests,
            (std::vector<std::string>{kServer + zips + kHourly, kServer + zips + kExtended}));
  EXPECT_TRUE(Loaded());
}

TEST_F(Forecast, AnUnchangedModelAndModeZeroAskNothingAndChangeNothing) {
  Settings.ModelLocal = Settings.ModelServer;
  Settings.GMTStartTime = "13";
  ForecastHour[0][0].Tf = "old";
  SetReplies(3, 66, 25);
  GetForecastData(0);
  GetForecastData(2);
  EXPECT_TRUE(Doubles.requests.empty());
  EXPECT_EQ(ForecastHour[0][0].Tf, "old");
  EXPECT_EQ(Settings.GMTStartTime, "13");
}

TEST_F(Forecast, AChangedModelAndModeOneLoadAllLocations) {
  SetReplies(3, 66, 25);
  GetForecastData(1);
  EXPECT_EQ(Doubles.requests[0], kServer + "pc=10000&pc=10001&pc=10002" + kHourly);
  EXPECT_EQ(ForecastHour[0][0].Tf, "Tf0.0");
  EXPECT_EQ(ForecastHour[2][65].Tf, "Tf2.65");
}

TEST_F(Forecast, AnUnchangedModelAndModeOneLoadTheLastLocationOnly) {
  Settings.ModelLocal = Settings.ModelServer;
  ForecastHour[0][0].Ut = "Mar 07 2003 01:00PM";
  ForecastHour[0][0].Tf = "old";
  SetReplies(1, 66, 25);
  GetForecastData(1);
  EXPECT_EQ(Doubles.requests,
            (std::vector<std::string>{kServer + "pc=10002" + kHourly, kServer + "pc=10002" + kExtended}));
  EXPECT_EQ(ForecastHour[0][0].Tf, "old");
  EXPECT_EQ(ForecastHour[1][0].Tf, "");
  EXPECT_EQ(ForecastHour[2][0].Tf, "Tf0.0") << "the first of the reply";
  EXPECT_EQ(ForecastDay[2][24].Th, "Th0.24");
  EXPECT_EQ(Settings.GMTStartTime, "13") << "told by location 0";
}

TEST_F(Forecast, NodesAreSharedOutEvenlyAmongTheLocationsAndEveryFieldIsCopied) {
  SetReplies(3, 66, 25);
  GetForecastData(0);
  const ForecastHourFields& hour = ForecastHour[1][0];  // node 66
  EXPECT_EQ(hour.Ut, "Ut1.0");
  EXPECT_EQ(hour.Lt, "Lt1.0");
  EXPECT_EQ(hour.Desc, "Desc1.0");
  EXPECT_EQ(hour.Ic, "C:\\program files\\skyloft\\icons\\Ic1.0");
  EXPECT_EQ(hour.Tf + hour.Df + hour.Rh + hour.At, "Tf1.0Df1.0Rh1.0At1.0");
  EXPECT_EQ(hour.Wd, "  S") << "200 degrees";
  EXPECT_EQ(hour.Ws + hour.Rn + hour.Sn, "Ws1.0Rn1.0Sn1.0");
  const ForecastDayFields& day = ForecastDay[2][24];
  EXPECT_EQ(day.Ut, "Ut2.24");
  EXPECT_EQ(day.Lt, "") << "no tag fills it";
  EXPECT_EQ(day.Desc + day.Th + day.Tl, "Desc2.24Th2.24Tl2.24");
  EXPECT_EQ(day.Ic, "C:\\program files\\skyloft\\icons\\Ic2.24");
  EXPECT_EQ(day.Wd, "WNW") << "300 degrees";
  EXPECT_EQ(day.Ws + day.Rn + day.Sn, "Ws2.24Rn2.24Sn2.24");
}

TEST_F(Forecast, TheFirstHourOfLocationZeroTellsStartAndStop) {
  const struct {
    const char *first, *gmt, *start, *stop;
  } cases[] = {
      {"Mar 07 2003 01:00AM", "1", "0", "59"},
      {"Mar 07 2003 07:00AM", "7", "6", "65"},
      {"Mar 07 2003 01:00PM", "13", "0", "59"},
      {"Mar 07 2003 07:00PM", "19", "6", "65"},
  };
  for (const auto& c : cases) {
    Settings.ModelLocal = "old";
    SetReplies(3, 66, 25);
    std::string& hourly = Doubles.replies[1].second;
    hourly.replace(hourly.find("Mar 07 2003 07:00AM"), 19, c.first);
    GetForecastData(0);
    EXPECT_TRUE(Loaded());
    EXPECT_EQ(Settings.GMTStartTime, c.gmt);
    EXPECT_EQ(Settings.StartHourIndex, c.start) << c.first;
    EXPECT_EQ(Settings.StopHourIndex, c.stop) << c.first;
  }
}

TEST_F(Forecast, ATagWithAnotherCountIsReadWithItsOwnRunLengthAndTheLastOneTellsTheRows) {
  std::string elements;
  for (int i = 0; i < 12; ++i) elements += Element("Ut", "Mar 07 2003 07:00AM");
  for (int i = 0; i < 6; ++i) elements += Element("Tf", std::to_string(i));
  for (int i = 0; i < 12; ++i) elements += Element("Sn", std::to_string(i));
  SetReplies(3, 66, 25);
  Doubles.Reply("&st=", Reply(elements));
  GetForecastData(0);
  EXPECT_EQ(ForecastHour[0][0].Tf + ForecastHour[0][1].Tf, "01");
  EXPECT_EQ(ForecastHour[1][0].Tf + ForecastHour[1][1].Tf, "23");
  EXPECT_EQ(ForecastHour[2][0].Tf + ForecastHour[2][1].Tf, "45");
  EXPECT_EQ(ForecastHour[1][0].Sn, "4") << "four rows a location";
  EXPECT_EQ(ForecastHour[1][3].Sn, "7");
  EXPECT_EQ(ForecastHour[1][2].Tf, "") << "no node was left for it";
}

TEST_F(Forecast, ARunOf68HoursIsBeyondTheTableAndTriedAgainWithTheSameResult) {
  for (int attempt = 0; attempt < 2; ++attempt) {
    Doubles.requests.clear();
    SetReplies(3, 68, 25);
    GetForecastData(0);
    EXPECT_EQ(Doubles.requests.size(), 1u) << "the second query is not reached";
    EXPECT_EQ(ForecastHour[0][66].Tf, "Tf0.66");
    EXPECT_EQ(ForecastHour[1][0].Tf, "");
    EXPECT_FALSE(Loaded());
    EXPECT_EQ(Settings.GMTStartTime, "");
  }
}

TEST_F(Forecast, ARunOf26HalfDaysStopsAtTheBoundAndIsTriedAgain) {
  SetReplies(3, 66, 26);
  GetForecastData(0);
  EXPECT_EQ(ForecastHour[2][65].Tf, "Tf2.65");
  EXPECT_EQ(ForecastDay[0][24].Th, "Th0.24");
  EXPECT_EQ(ForecastDay[1][0].Th, "");
  EXPECT_FALSE(Loaded());
}

TEST_F(Forecast, AReplyWithoutRowsEndsTheLoadBeforeTheStartIsToldAndIsTriedAgain) {
  for (const char* bad : {"", "garbage", "<r>", "<r/>", "<r><Tf>1</Tf></r>"}) {
    for (const bool second : {false, true}) {
      SetReplies(3, 66, 25);
      Doubles.Reply(second ? "fcsttype" : "&st=", bad);
      Settings.GMTStartTime = "kept";
      GetForecastData(0);
      EXPECT_FALSE(Loaded()) << bad;
      EXPECT_EQ(Settings.GMTStartTime, "kept") << bad;
    }
  }
  SetReplies(3, 66, 25);
  GetForecastData(0);
  EXPECT_TRUE(Loaded());
}

TEST_F(Forecast, AFirstHourThatIsNoTimeLeavesTheModelOld) {
  SetReplies(3, 66, 25);
  std::string& hourly = Doubles.replies[1].second;
  hourly.replace(hourly.find("Mar 07 2003 07:00AM"), 19, "whenever");
  GetForecastData(0);
  EXPECT_EQ(ForecastDay[2][24].Th, "Th2.24");
  EXPECT_FALSE(Loaded());
}

TEST_F(Forecast, ABusyTransportEndsTheLoadAtTheStepThatFindsIt) {
  SetReplies(3, 66, 25);
  MainForm.Http.State = 1;
  GetForecastData(0);
  EXPECT_TRUE(Doubles.requests.empty());
  EXPECT_FALSE(Loaded());
  MainForm.Http.State = 0;
  Settings.LocationIndexMax = "";
  GetForecastData(0);
  EXPECT_TRUE(Doubles.requests.empty()) << "and without a location there is nothing to ask";
}

}  // namespace
}  // namespace skyloft
