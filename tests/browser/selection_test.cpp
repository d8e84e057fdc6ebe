#include "browser/selection.h"

#include "core/mainform.h"
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

class Selection : public Station {};

TEST_F(Selection, AChosenLocationShowsItsConditionsAndFetchesNothing) {
  SetUpLocations(3);
  ObservationRecord.Tf[2] = "33";
  MainForm.LocationSelection.Select(2);
  EXPECT_EQ(Settings.Location, "2");
  EXPECT_EQ(MainForm.LocationLabel.Caption.Get(), "Town 2");
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("Temperature</B>: 33 F"), std::string::npos);
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(Selection, AChosenLocationResetsTheTwoViewButtons) {
  SetUpLocations(1);
  MainForm.NationalButton.Enabled = MainForm.NationalButton.Visible = false;
  MainForm.LocalButton.Enabled = MainForm.LocalButton.Visible = true;
  MainForm.LocationSelection.Select(0);
  EXPECT_TRUE(MainForm.NationalButton.Enabled);
  EXPECT_TRUE(MainForm.NationalButton.Visible);
  EXPECT_EQ(MainForm.NationalButton.PicturePath(), "C:\\program files\\skyloft\\icons\\national.gif");
  EXPECT_FALSE(MainForm.LocalButton.Enabled);
  EXPECT_FALSE(MainForm.LocalButton.Visible);
  EXPECT_EQ(MainForm.LocalButton.PicturePath(), "C:\\program files\\skyloft\\icons\\locald.gif");
}

TEST_F(Selection, ChoosingTheSameLocationAgainShowsItsNewReading) {
  SetUpLocations(1);
  MainForm.LocationSelection.Select(0);
  ObservationRecord.Tf[0] = "44";
  MainForm.LocationSelection.Select(0);
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("44 F"), std::string::npos);
}

TEST_F(Selection, AMissingButtonPictureEndsTheEventQuietly) {
  SetUpLocations(1);
  Doubles.missing_pictures.insert("C:\\program files\\skyloft\\icons\\national.gif");
  EXPECT_NO_THROW(MainForm.LocationSelection.Select(0));
  EXPECT_EQ(MainForm.LocationLabel.Caption.Get(), "") << "the rest of the event is abandoned";
}

// One location at -6 like the computer, which is at 14:05; its forecast starts at 13 GMT, 7:00 there.
class PageProducts : public Station {
 protected:
  PageProducts() {
    SetUpLocations(1);
    SetUpForecast("3/7/2003 1:00:00 PM", -6);
    Doubles.zone = {360, 1};
    LocationProfile[ProfileRow::TimeZone][0] = "-6";
    GetPeriod(0);
    for (const char* category : {"Planners", "Forecast Maps", "Historical"}) {
      MainForm.CategorySelection.AddItem(category);
    }
    for (const char* product :
         {"001 Hourly Planner", "002 Weekly Planner", "006 Historical Conditions", "042 Reflectivity"}) {
      MainForm.ProductSelection.AddItem(product);
    }
  }
  static std::string Title() { return MainForm.ProductTitle.Caption; }
  static std::string Picture(const ImageButton& button) {
    return button.PicturePath().substr(button.PicturePath().rfind('\\') + 1);
  }
  // Everything that a page turns off is on before it.
  static void TurnAllOn() {
    for (ImageButton* button :
         {&MainForm.LocalButton, &MainForm.NationalButton, &MainForm.AreaZoomButton, &MainForm.ZoomInButton,
          &MainForm.ZoomOutButton, &MainForm.ResetButton, &MainForm.LegendButton, &MainForm.PlayButton,
          &MainForm.StopButton, &MainForm.BackButton, &MainForm.NextButton}) {
      button->Enabled = true;
      button->SetPicture("on", 1, 1);
    }
    MainForm.Legend.Visible = true;
    Browser.HourIndexMin = 7;
    MainForm.ProgressBar.SetPosition(33, 22);
  }
  static void ExpectMapButtonsOff() {
    const std::pair<const ImageButton*, const char*> buttons[] = {
        {&MainForm.LocalButton, "locald.gif"},     {&MainForm.NationalButton, "nationald.gif"},
        {&MainForm.AreaZoomButton, "zmaread.gif"}, {&MainForm.ZoomInButton, "zoomind.gif"},
        {&MainForm.ZoomOutButton, "zoomoutd.gif"}, {&MainForm.ResetButton, "resetd.gif"},
    };
    for (const auto& [button, picture] : buttons) {
      EXPECT_FALSE(button->Enabled) << picture;
      EXPECT_EQ(Picture(*button), picture);
    }
    EXPECT_FALSE(MainForm.LegendButton.Enabled);
    EXPECT_FALSE(MainForm.Legend.Visible);
  }
};

TEST_F(PageProducts, AnEntryTellsTheChannelAndTheName) {
  MainForm.Channel.Visible = false;
  Refresh.ChannelCounter = 3;
  MainForm.TimeLabel.Caption = "Departure Time";
  MainForm.ProductSelection.Select(3);
  EXPECT_EQ(MainForm.Channel.Text.Get(), "042");
  EXPECT_TRUE(MainForm.Channel.Visible);
  EXPECT_TRUE(MainForm.Channel.Enabled);
  EXPECT_EQ(Refresh.ChannelCounter, 0);
  EXPECT_EQ(Browser.SelectedProduct, "Reflectivity");
  EXPECT_EQ(MainForm.TimeLabel.Caption.Get(), "Time");
}

TEST_F(PageProducts, EveryProductHidesThePointsOfTheMap) {
  for (int i : {0, 60}) {
    MainForm.ImagePoints[i].Visible = true;
    MainForm.ImagePoints[i].Color = 255;
    MainForm.ImagePoints[i].Enabled = false;
  }
  MainForm.ProductSelection.Select(3);
  for (int i : {0, 60}) {
    EXPECT_FALSE(MainForm.ImagePoints[i].Visible);
    EXPECT_EQ(MainForm.ImagePoints[i].Color, 0xffffff);
    EXPECT_TRUE(MainForm.ImagePoints[i].Enabled);
  }
}

TEST_F(PageProducts, TheHourlyPlannerListsItsFivePeriodsAndShowsTheFirst) {
  MainForm.Display1.Visible = true;
  MainForm.Display1.Zoom = 3.0;
  TurnAllOn();
  for (Control* control : std::initializer_list<Control*>{&MainForm.LocationLabel,
                                                          &MainForm.LocationSelection, &MainForm.ProductTitle,
                                                          &MainForm.TimeSelection, &MainForm.TimeLabel}) {
    control->Enabled = false;
  }
  MainForm.ProductSelection.Select(0);
  EXPECT_EQ(MainForm.TimeSelection.Items(),
            (std::vector<std::string>{"Friday", "Friday Night", "Saturday", "Saturday Night", "Sunday"}));
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 0);
  EXPECT_EQ(Browser.HourIndexMin, 0);
  EXPECT_EQ(Periods.HourIndexMax, 59);
  EXPECT_EQ(Periods.TickerHourIndex, 7);
  EXPECT_TRUE(MainForm.Display2.Visible);
  EXPECT_FALSE(MainForm.Display1.Visible);
  EXPECT_EQ(MainForm.Display1.Zoom, 1.0);
  EXPECT_NE(MainForm.Display2.Document.Get().find("<title>Weather Planner</title>"), std::string::npos);
  EXPECT_EQ(Title(), "Hourly Planner Friday");
  for (const ImageButton* button : {&MainForm.BackButton, &MainForm.NextButton}) {
    EXPECT_TRUE(button->Enabled);
    EXPECT_TRUE(button->Visible);
  }
  EXPECT_EQ(Picture(MainForm.BackButton) + Picture(MainForm.NextButton), "back.gifnext.gif");
  EXPECT_FALSE(MainForm.PlayButton.Enabled);
  EXPECT_FALSE(MainForm.StopButton.Enabled);
  ExpectMapButtonsOff();
  EXPECT_TRUE(MainForm.LocationLabel.Enabled && MainForm.LocationSelection.Enabled &&
              MainForm.ProductTitle.Enabled && MainForm.TimeSelection.Enabled && MainForm.TimeLabel.Enabled);
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(PageProducts, ThePositionBarEndsAtTheLastUsableHourAfterTheProductAndAt65AfterATime) {
  MainForm.ProductSelection.Select(0);
  EXPECT_EQ(MainForm.ProgressBar.Max, 59);
  EXPECT_EQ(MainForm.ProgressBar.Value, 8);
  MainForm.TimeSelection.Select(2);
  EXPECT_EQ(MainForm.ProgressBar.Max, 65);
  EXPECT_EQ(MainForm.ProgressBar.Value, 24);
}

TEST_F(PageProducts, APeriodStartsAtItsFirstHourButNeverBeforeTheHourToCome) {
  MainForm.ProductSelection.Select(0);
  EXPECT_EQ(Periods.HourIndex, 8) << "15:00: hours 0 to 7 of the period are past";
  MainForm.TimeSelection.Select(2);
  EXPECT_EQ(Periods.HourIndex, Periods.PeriodStart[2]);
  MainForm.TimeSelection.Select(0);
  EXPECT_EQ(Periods.HourIndex, 8);
}

TEST_F(PageProducts, WhenThePresentHourIsNotInTheForecastTheFirstHoursShow) {
  Doubles.now = MakeDate(2003, 3, 20, 14, 5, 0);
  MainForm.ProductSelection.Select(0);
  EXPECT_EQ(Periods.HourIndex, 0);
  EXPECT_NE(MainForm.Display2.Document.Get().find("<b>07 AM</b>"), std::string::npos);
}

TEST_F(PageProducts, ATimesTitleIsItsDayAndAStepsTitleIsItsEntry) {
  MainForm.ProductSelection.Select(0);
  MainForm.TimeSelection.Select(1);
  EXPECT_EQ(Title(), "Hourly Planner Friday") << "the day of its first hour";
  MainForm.NextButton.Press();
  EXPECT_EQ(Title(), "Hourly Planner Saturday");
  MainForm.NextButton.Press();
  EXPECT_EQ(Title(), "Hourly Planner Saturday Night");
  MainForm.BackButton.Press();
  MainForm.BackButton.Press();
  EXPECT_EQ(Title(), "Hourly Planner Friday Night");
  EXPECT_EQ(MainForm.ProgressBar.Max, 65);
}

TEST_F(PageProducts, AForecastThatEndsWithinTwelveHoursKeepsTheOldPage) {
  MainForm.ProductSelection.Select(0);
  MainForm.Display2.Document = "old";
  Doubles.now = MakeDate(2003, 3, 9, 14, 5, 0);  // the next hour is place 56
  MainForm.TimeSelection.Select(0);
  EXPECT_EQ(Periods.HourIndex, 56);
  EXPECT_EQ(MainForm.Display2.Document.Get(), "old");
}

TEST_F(PageProducts, TheHourlyPlannerWithoutAForecastListsNothing) {
  ForecastHour = {};
  MainForm.Display2.Document = "old";
  MainForm.ProductSelection.Select(0);
  EXPECT_EQ(MainForm.TimeSelection.Count(), 0);
  EXPECT_EQ(MainForm.Display2.Document.Get(), "old");
}

TEST_F(PageProducts, TheHourlyPlannerIsThatOfTheSelectedLocation) {
  SetUpLocations(2);
  SetUpForecast("3/8/2003 1:00:00 PM", -6);  // for both, then the first as it was
  const auto second = ForecastHour[1];
  SetUpForecast("3/7/2003 1:00:00 PM", -6);
  ForecastHour[1] = second;
  LocationProfile[ProfileRow::TimeZone][1] = "-6";
  MainForm.ProductSelection.Select(0);
  MainForm.LocationSelection.Select(1);
  EXPECT_EQ(Title(), "Hourly Planner Saturday") << "the product is shown again for it";
  EXPECT_EQ(MainForm.TimeSelection.Items()[4], "Monday");
  EXPECT_EQ(Periods.HourIndex, 0) << "its forecast begins tomorrow";
}

TEST_F(PageProducts, AChangeOfTheLocationTouchesNoCounter) {
  Refresh.CurrentTimer = Refresh.NexradTimer = Refresh.MessageTimer = 30;
  Refresh.ForecastTimer = "60";
  MainForm.LocationSelection.Select(0);
  EXPECT_EQ(Refresh.CurrentTimer + Refresh.NexradTimer + Refresh.MessageTimer, 90);
  EXPECT_EQ(Refresh.ForecastTimer, "60");
}

TEST_F(PageProducts, ACategoryLeadsToThePageOfItsFirstProduct) {
  std::string elements;
  for (const auto& [name, category] :
       {std::pair{"Reflectivity", "0"}, {"Weekly Planner", "2"}, {"Hourly Planner", "2"}}) {
    elements += Element("product", name) + Element("category", category) + Element("code", "url");
  }
  Doubles.Reply("products.", Reply(elements));
  GetProductData();
  MainForm.CategorySelection.Select(2);
  EXPECT_EQ(MainForm.ProductSelection.Items(),
            (std::vector<std::string>{"002 Weekly Planner", "003 Hourly Planner"}));
  EXPECT_EQ(Browser.SelectedProduct, "Weekly Planner");
  EXPECT_NE(MainForm.Display2.Document.Get().find("Weather Planner Extended"), std::string::npos);
}

TEST_F(PageProducts, TheWeeklyPlannerHasOneTimeAndOneFrame) {
  MainForm.ProductSelection.Select(0);
  const int bar_end = MainForm.ProgressBar.Max;
  TurnAllOn();
  MainForm.ProductSelection.Select(1);
  EXPECT_EQ(MainForm.TimeSelection.Items(), std::vector<std::string>{"03/07 thru 03/18"});
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 0);
  EXPECT_EQ(Browser.HourIndexMin, 0);
  EXPECT_EQ(Periods.HourIndexMax, 0);
  EXPECT_EQ(MainForm.ProgressBar.Max, bar_end) << "what the hourly planner left";
  EXPECT_EQ(MainForm.ProgressBar.Value, 0);
  EXPECT_EQ(Title(), "Weekly Planner");
  EXPECT_TRUE(MainForm.Display2.Visible);
  EXPECT_NE(MainForm.Display2.Document.Get().find("Weather Planner Extended"), std::string::npos);
  EXPECT_FALSE(MainForm.BackButton.Enabled || MainForm.NextButton.Enabled || MainForm.PlayButton.Enabled);
  ExpectMapButtonsOff();
}

TEST_F(PageProducts, TheLast48HoursComeFromTheirFile) {
  MainForm.Display2.Document = "a planner";
  TurnAllOn();
  MainForm.ProductSelection.Select(2);
  ASSERT_EQ(Doubles.requests.size(), 1u);
  EXPECT_NE(Doubles.requests[0].find("d=currenthistorical"), std::string::npos);
  EXPECT_EQ(MainForm.TimeSelection.Items(), std::vector<std::string>{"Last 48 Hours"});
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 0);
  EXPECT_EQ(MainForm.Display2.Document.Get(), "");
  EXPECT_EQ(MainForm.Display2.Address(), "C:\\program files\\skyloft\\temp\\historical.htm");
  EXPECT_EQ(MainForm.Display2.Visits(), 1);
  EXPECT_EQ(Browser.HourIndexMin, 0);
  EXPECT_EQ(Periods.HourIndexMax, 59);
  EXPECT_EQ(MainForm.ProgressBar.Max, 100);
  EXPECT_EQ(MainForm.ProgressBar.Value, 0);
  EXPECT_EQ(Title(), "Historical Conditions Last 48 Hours");
  EXPECT_TRUE(MainForm.Display2.Visible);
  EXPECT_FALSE(MainForm.BackButton.Enabled);
  ExpectMapButtonsOff();
  MainForm.ProductSelection.Select(2);
  EXPECT_EQ(MainForm.Display2.Visits(), 2) << "read anew";
}

TEST_F(PageProducts, APageTakesTheStateOfTheNationalButtonAsTheView) {
  for (int product : {0, 1, 2}) {
    for (const bool enabled : {true, false}) {
      MainForm.NationalButton.Enabled = enabled;
      MainForm.ProductSelection.Select(product);
      EXPECT_EQ(Start.LocalView, enabled ? "True" : "False") << product;
    }
  }
}

TEST_F(PageProducts, ACategoryListsItsProductsAndShowsTheConditionsUnlessItIsTheSecond) {
  ObservationRecord.Tf[0] = "72";
  for (const auto& [category, shows] : {std::pair{0, true}, {1, false}, {2, true}}) {
    MainForm.WeatherConditionsBanner.Document = "";
    MainForm.CategorySelection.Select(category);
    EXPECT_EQ(MainForm.ProductSelection.Count(), 0) << "an empty catalogue";
    EXPECT_EQ(MainForm.WeatherConditionsBanner.Document.Get().find("72 F") != std::string::npos, shows);
  }
}

}  // namespace
}  // namespace skyloft
