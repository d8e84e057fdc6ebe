#include "weather/periods.h"

#include "feed/forecast.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

// Hour 0 is 7 March 2003, a Friday, 1 GMT; two places six hours west.
class PeriodsTest : public Station {
 protected:
  PeriodsTest() {
    SetUpLocations(2);
    SetUpForecast("3/7/2003 1:00:00 AM", -6);
  }

  static std::string Days(int location = 0) {
    std::string text;
    for (const ForecastPeriodFields& period : ForecastPeriod[location]) text += period.Day + ",";
    return text;
  }
  static std::string Dates(int location = 0) {
    std::string text;
    for (const ForecastPeriodFields& period : ForecastPeriod[location]) text += period.Date + ",";
    return text;
  }

  // The phrases of the hours of a day period, by turns.
  static void SetPhrases(std::initializer_list<const char*> phrases) {
    for (int h = 0; h < 12; ++h) {
      ForecastHour[0][h].Desc = phrases.begin()[static_cast<size_t>(h) % phrases.size()];
    }
  }
  static std::string SkyOf(bool day) {
    PeriodWeather(0, 0, 0, 11, day);
    return ForecastPeriod[0][0].Sky;
  }
};

TEST_F(PeriodsTest, TheStartOfTheFeedDecidesHoursKindNameAndDateOfThePeriods) {
  const struct {
    const char* first_gmt;
    int start, stop;
    const char *label, *days, *dates;
  } cases[] = {
      {"3/7/2003 1:00:00 AM", 0, 11, "Low:", "Thu Night,Fri,Fri Night,Sat,Sat Night,",
       "03/07,03/07,03/08,03/08,03/09,"},
      {"3/7/2003 7:00:00 AM", 6, 17, "High:", "Fri,Fri Night,Sat,Sat Night,Sun,",
       "03/07,03/08,03/08,03/09,03/09,"},
      {"3/7/2003 1:00:00 PM", 0, 11, "High:", "Fri,Fri Night,Sat,Sat Night,Sun,",
       "03/07,03/08,03/08,03/09,03/09,"},
      {"3/7/2003 7:00:00 PM", 6, 17, "Low:", "Fri Night,Sat,Sat Night,Sun,Sun Night,",
       "03/08,03/08,03/09,03/09,03/10,"},
  };
  for (const auto& c : cases) {
    ForecastPeriod = {};
    SetUpForecast(c.first_gmt, -6);
    GetPeriod(0);
    for (int j = 0; j < kPeriods; ++j) {
      EXPECT_EQ(Periods.PeriodStart[j], c.start + 12 * j) << c.first_gmt;
      EXPECT_EQ(Periods.PeriodStop[j], c.stop + 12 * j) << c.first_gmt;
    }
    EXPECT_EQ(ForecastPeriod[0][0].Label, c.label) << c.first_gmt;
    EXPECT_EQ(ForecastPeriod[0][1].Label, std::string(c.label) == "Low:" ? "High:" : "Low:");
    EXPECT_EQ(Days(), c.days) << c.first_gmt;
    EXPECT_EQ(Dates(), c.dates) << c.first_gmt;
  }
}

TEST_F(PeriodsTest, AFeedFromOneGmtIsTheNightOfTheDayBeforeUpToThreeInTheMorning) {
  // The first hour is 7 March, 3:00 in the morning at +2, and 4:00 at +3.
  SetUpForecast("3/7/2003 1:00:00 AM", 2);
  GetPeriod(0);
  EXPECT_EQ(ForecastPeriod[0][0].Day, "Thu Night");
  SetUpForecast("3/7/2003 1:00:00 AM", 3);
  GetPeriod(0);
  EXPECT_EQ(ForecastPeriod[0][0].Day, "Fri Night");
}

TEST_F(PeriodsTest, ASundaysNightBeforeThreeIsTheNightOfSaturdayAndSaturdaysNightEndsInSunday) {
  SetUpForecast("3/9/2003 1:00:00 AM", 0);
  GetPeriod(0);
  EXPECT_EQ(Days(), "Sat Night,Sun,Sun Night,Mon,Mon Night,");
}

TEST_F(PeriodsTest, TheHoursBehindTheLastPeriodBelongToNone) {
  SetUpForecast("3/7/2003 1:00:00 PM", -6);
  for (int h = 60; h < 66; ++h) ForecastHour[0][h].Tf = "99";
  GetPeriod(0);
  EXPECT_EQ(Periods.PeriodStop[4], 59);
  for (const auto& period : ForecastPeriod[0]) EXPECT_EQ(period.Temperature, "40 F");
}

TEST_F(PeriodsTest, NamesComeFromTheSelectedLocationForAllAndWeatherFromEachOne) {
  ForecastHour[1] = {};
  SetUpForecast("3/7/2003 1:00:00 AM", -6);
  for (int h = 0; h < 66; ++h) {
    ForecastHour[1][h].Tf = "70";
    ForecastHour[1][h].Lt = "Jan 01 1999 02:00PM";
  }
  Settings.Location = "1";
  GetPeriod(0);
  EXPECT_EQ(Days(0), "Fri Night,Sat,Sat Night,Sun,Sun Night,") << "1 January 1999 was a Friday";
  EXPECT_EQ(Dates(0), "01/01,01/01,01/01,01/01,01/01,");
  Settings.Location = "0";
  GetPeriod(0);
  EXPECT_EQ(Days(1), "Thu Night,Fri,Fri Night,Sat,Sat Night,");
  EXPECT_EQ(Dates(1), "03/07,03/07,03/08,03/08,03/09,");
  EXPECT_EQ(ForecastPeriod[0][0].Temperature, "40 F");
  EXPECT_EQ(ForecastPeriod[1][0].Temperature, "70 F");
}

TEST_F(PeriodsTest, AnyOtherScopeSumsUpTheLastLocationOnlyButNamesAll) {
  GetPeriod(1);
  EXPECT_EQ(ForecastPeriod[0][0].Temperature, "");
  EXPECT_EQ(ForecastPeriod[0][0].Day, "Thu Night");
  EXPECT_EQ(ForecastPeriod[1][0].Temperature, "40 F");
  EXPECT_EQ(ForecastPeriod[1][4].Temperature, "40 F");
}

TEST_F(PeriodsTest, ADryPeriodHasTheMeanCodeWithHalvesToTheEvenNeighbour) {
  const struct {
    std::initializer_list<const char*> phrases;
    const char* sky;
  } cases[] = {
      {{"sunny", "cloudy"}, "partly sunny"},                // 1 and 6: 3.5 is 4
      {{"mostly sunny", "partly cloudy"}, "mostly sunny"},  // 2 and 3: 2.5 is 2
      {{"fog"}, "fog"},
      {{"snow", "snow", "sunny"}, "Tstorm"},           // 16, 16, 1: without any snow measured
      {{"sunny", "clear", "nothing known"}, "sunny"},  // what is not in the half adds nothing
  };
  for (const auto& c : cases) {
    SetPhrases(c.phrases);
    EXPECT_EQ(SkyOf(true), c.sky);
  }
}

TEST_F(PeriodsTest, AWetPeriodHasTheWorstCodeAndAtLeastLightRain) {
  SetPhrases({"sunny", "cloudy"});
  ForecastHour[0][7].Rn = "0.01";
  EXPECT_EQ(SkyOf(true), "light rain");
  EXPECT_EQ(ForecastPeriod[0][0].Icon, "C:\\program files\\skyloft\\icons\\sliterain.gif");
  SetPhrases({"heavy rain", "rain"});
  EXPECT_EQ(SkyOf(true), "heavy rain");
  SetPhrases({"rain", "snow"});
  EXPECT_EQ(SkyOf(false), "snow") << "36 is above 29";
  EXPECT_EQ(ForecastPeriod[0][0].Icon, "C:\\program files\\skyloft\\icons\\snmodsno.gif");
  SetPhrases({"clear"});
  EXPECT_EQ(SkyOf(false), "light rain");
  ForecastHour[0][7].Rn = "0";
  ForecastHour[0][8].Sn = "0.1";
  EXPECT_EQ(SkyOf(false), "light rain") << "snow is wet too";
}

TEST_F(PeriodsTest, AWetPeriodNeedsNoPhraseAtAll) {
  SetPhrases({"nothing known"});
  ForecastHour[0][0].Rn = "0.2";
  EXPECT_EQ(SkyOf(true), "light rain");
}

TEST_F(PeriodsTest, ADryPeriodWithoutAPhraseOfItsHalfFailsAndLeavesTheLaterRows) {
  for (int h = 24; h < 36; ++h) ForecastHour[0][h].Desc = "sunny";  // period 2, a night
  ForecastPeriod[0][2].Temperature = "old";
  ForecastPeriod[0][4].Temperature = "old";
  EXPECT_THROW(GetPeriod(0), RuntimeError);
  EXPECT_EQ(ForecastPeriod[0][1].Temperature, "40 F");
  EXPECT_EQ(ForecastPeriod[0][2].Temperature, "old");
  EXPECT_EQ(ForecastPeriod[0][4].Temperature, "old");
  EXPECT_EQ(ForecastPeriod[1][0].Temperature, "") << "the next location is not reached";
}

TEST_F(PeriodsTest, APhraseOfTheOtherHalfAddsNothingButItsNumbersCount) {
  SetPhrases({"sunny"});
  ForecastHourFields& clear = ForecastHour[0][3];
  clear.Desc = "clear";
  clear.Tf = "90";
  clear.Wd = "  W";
  clear.Ws = "30";
  EXPECT_EQ(SkyOf(true), "sunny");
  EXPECT_EQ(ForecastPeriod[0][0].Temperature, "90 F");
  EXPECT_EQ(ForecastPeriod[0][0].Wind, "  W 30 mph");
}

TEST_F(PeriodsTest, ADayShowsTheHighestAndANightTheLowestTemperature) {
  ForecastHour[0][2].Tf = "-7";
  ForecastHour[0][5].Tf = "51";
  PeriodWeather(0, 0, 0, 11, true);
  EXPECT_EQ(ForecastPeriod[0][0].Label + ForecastPeriod[0][0].Temperature, "High:51 F");
  PeriodWeather(0, 0, 0, 11, false);
  EXPECT_EQ(ForecastPeriod[0][0].Label + ForecastPeriod[0][0].Temperature, "Low:-7 F");
}

TEST_F(PeriodsTest, FeelsLikeAsksTheAirTemperatureThatIsShown) {
  const struct {
    const char* highest;
    bool day;
    const char* feels_like;
  } cases[] = {{"64", true, "50 F"}, {"65", true, "70 F"}, {"64.9", true, "50 F"}, {"65", false, "50 F"}};
  for (int h = 0; h < 12; ++h) ForecastHour[0][h].At = "60";
  ForecastHour[0][1].At = "50";
  ForecastHour[0][2].At = "70";
  for (const auto& c : cases) {
    ForecastHour[0][6].Tf = c.highest;
    PeriodWeather(0, 0, 0, 11, c.day);
    EXPECT_EQ(ForecastPeriod[0][0].FeelsLike, c.feels_like) << c.highest << c.day;
  }
}

TEST_F(PeriodsTest, TheWindIsThatOfTheFirstHourThatReachedTheHighestSpeed) {
  ForecastHour[0][3].Ws = ForecastHour[0][8].Ws = "22";
  ForecastHour[0][3].Wd = "NNE";
  ForecastHour[0][8].Wd = "SSW";
  PeriodWeather(0, 0, 0, 11, true);
  EXPECT_EQ(ForecastPeriod[0][0].Wind, "NNE 22 mph");
}

TEST_F(PeriodsTest, RainAndSnowAreSummedUpAndPrintedPlainly) {
  for (int h = 0; h < 3; ++h) ForecastHour[0][h].Rn = "0.1";
  ForecastHour[0][5].Sn = "1.5";
  ForecastHour[0][6].Sn = "0.25";
  PeriodWeather(0, 0, 0, 11, true);
  EXPECT_EQ(ForecastPeriod[0][0].Rain, "0.3 in");
  EXPECT_EQ(ForecastPeriod[0][0].Snow, "1.75 in");
  PeriodWeather(0, 1, 12, 23, true);
  EXPECT_EQ(ForecastPeriod[0][1].Rain, "");
  EXPECT_EQ(ForecastPeriod[0][1].Snow, "");
}

TEST_F(PeriodsTest, TheHourToComeIsFoundInTheLocationsOwnTime) {
  // The computer is at -6 (14:05); the location an hour east of it, so that its next hour is 16:00.
  SetUpForecast("3/7/2003 1:00:00 PM", -5);
  Doubles.zone = {360, 1};
  LocationProfile[ProfileRow::TimeZone][0] = "-5";
  LocationProfile[ProfileRow::Dst][0] = "0";
  SetHourIndex();
  EXPECT_EQ(Periods.HourIndex, 8) << ForecastHour[0][8].Lt;
  EXPECT_EQ(Periods.HourIndexMax, 65);
  LocationProfile[ProfileRow::Dst][0] = "1";
  SetHourIndex();
  EXPECT_EQ(Periods.HourIndex, 9);
}

TEST_F(PeriodsTest, TheHourToComeIsThatOfTheSelectedLocation) {
  SetUpForecast("3/7/2003 1:00:00 PM", -6);
  Settings.Location = "1";
  LocationProfile[ProfileRow::TimeZone][0] = "-6";
  LocationProfile[ProfileRow::TimeZone][1] = "-8";  // 12:05 there
  SetHourIndex();
  EXPECT_EQ(Periods.HourIndex, 6) << "13:00";
  ForecastHour[1][40].Lt = "Mar 07 2003 01:30PM";
  SetHourIndex();
  EXPECT_EQ(Periods.HourIndex, 40) << "by its own table";
}

TEST_F(PeriodsTest, AForecastOlderThanItsHoursLeavesTheFirst) {
  Doubles.now = MakeDate(2003, 4, 1, 14, 0, 0);
  Periods.HourIndex = Periods.TickerHourIndex = 30;
  SetHourIndex();
  SetTickerHourIndex();
  EXPECT_EQ(Periods.HourIndex, 0);
  EXPECT_EQ(Periods.TickerHourIndex, 0);
}

TEST_F(PeriodsTest, TheLastOfEqualHoursWins) {
  LocationProfile[ProfileRow::TimeZone][0] = "-6";
  SetUpForecast("3/7/2003 1:00:00 PM", -6);
  ForecastHour[0][40].Lt = "Mar 07 2003 03:10PM";
  ForecastHour[0][50].Lt = "Mar 07 2003 02:30PM";
  SetHourIndex();
  SetTickerHourIndex();
  EXPECT_EQ(Periods.HourIndex, 40);
  EXPECT_EQ(Periods.TickerHourIndex, 50);
}

TEST_F(PeriodsTest, AnHourWithoutATimeEndsTheSearchWithWhatItHasFound) {
  LocationProfile[ProfileRow::TimeZone][0] = "-6";
  SetUpForecast("3/7/2003 1:00:00 PM", -6);  // 66 hours: the 67th has no time
  SetHourIndex();
  SetTickerHourIndex();
  EXPECT_EQ(Periods.HourIndex, 8);
  EXPECT_EQ(Periods.TickerHourIndex, 7);
  ForecastHour[0][3].Lt = "";
  SetHourIndex();
  SetTickerHourIndex();
  EXPECT_EQ(Periods.HourIndex, 0);
  EXPECT_EQ(Periods.TickerHourIndex, 0);
}

TEST_F(PeriodsTest, TheTickersHourIsTheComputersHourAtTheFirstLocation) {
  SetUpForecast("3/7/2003 1:00:00 PM", -6);
  for (int h = 0; h < 66; ++h) ForecastHour[1][h].Lt = "Mar 07 2003 02:00PM";
  Settings.Location = "1";
  LocationProfile[ProfileRow::TimeZone][0] = "-10";
  SetTickerHourIndex();
  EXPECT_EQ(Periods.TickerHourIndex, 7) << "14:00, with no shift and no added hour";
}

}  // namespace
}  // namespace skyloft
