#include "browser/catalogue_product.h"

#include "browser/selection.h"
#include "core/mainform.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/hosts.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

// One location at -6 like the computer, which is at 14:05; its forecast starts at 13 GMT, 7:00 there.
class CatalogueProduct : public Station {
 protected:
  CatalogueProduct() {
    SetUpLocations(1);
    SetUpForecast("3/7/2003 1:00:00 PM", -6);
    Doubles.zone = {360, 1};
    SetZone("-6", "0");
    GetPeriod(0);
    ObservationRecord.Lt[0] = "Mar 07 2003 01:53PM";
    Observations.ModelServerTrip = "Mar 07 2003 12:00PM";
    HostTable.imageserver = "image.skyloft.example/";
    HostTable.fileserver = "file.skyloft.example/";
    Doubles.Reply("image.skyloft.example/", "picture");
  }
  static void SetZone(const char* zone, const char* dst) {
    LocationProfile[ProfileRow::TimeZone][0] = zone;
    LocationProfile[ProfileRow::Dst][0] = dst;
  }
  // Chooses a product of the catalogue.
  static void Choose(const std::string& code, const std::string& count, const std::string& name = "Wind",
                     const std::string& file = "wind") {
    std::string records;
    for (const auto& [tag, text] : {std::pair<std::string, std::string>{"id", "2"},
                                    {"product", name},
                                    {"category", "0"},
                                    {"code", code},
                                    {"period", count},
                                    {"file", file},
                                    {"type", "gif"}}) {
      records += Element(tag, text);
    }
    Doubles.Reply("products.", Reply(records));
    GetProductData();
    Doubles.requests.clear();
    GetAvailableProducts(0);
  }
  static std::vector<std::string> Times() { return MainForm.TimeSelection.Items(); }
  static std::string Range() {
    return std::to_string(Periods.HourIndex) + " " + std::to_string(Browser.HourIndexMin) + " " +
           std::to_string(Periods.HourIndexMax);
  }
  using Names = std::vector<std::string>;
};

TEST_F(CatalogueProduct, EveryCodeListsItsTimesAndSetsItsRange) {
  const struct {
    const char *code, *count;
    Names times;
    const char* range;  // hour on show, first, last
  } cases[] = {
      {"0", "1", {"Friday 1:53 PM CST"}, "0 0 0"},
      {"1", "1", {"Friday 7:00 AM CST"}, "0 0 0"},
      {"2",
       "10",
       {"Friday 3:00 PM CST", "Friday 4:00 PM CST"},
       "8 8 0"},  // the range is ended by the picture
      {"3", "11", {"Friday 3:00 PM CST", "Friday 4:00 PM CST", "Friday 5:00 PM CST"}, "8 8 10"},
      {"4", "3", {"Friday, Mar 07", "Friday Night, Mar 07", "Saturday, Mar 08"}, "0 0 2"},
      {"5", "2", {"Friday, Mar 07", "Saturday, Mar 08"}, "0 0 1"},  // from hour 11, 18:00
      {"6", "2", {"Saturday, Mar 08", "Sunday, Mar 09"}, "0 0 1"},  // from hour 17, midnight
      {"7", "2", {"Saturday, Mar 08", "Sunday, Mar 09"}, "0 0 1"},  // from hour 23, 6:00
      {"8", "3", {"Saturday, Mar 08", "Sunday, Mar 09", "Monday, Mar 10"}, "0 0 2"},  // from hour 29
      {"9", "1", {"Fri thru Sun"}, "0 0 0"},
      {"10", "1", {"Friday 2:05 PM CST"}, "0 0 0"},
      {"11", "3", {"Friday, Mar 07", "Friday Night, Mar 07", "Saturday, Mar 08"}, "0 0 2"},
  };
  for (const auto& c : cases) {
    Choose(c.code, c.count);
    EXPECT_EQ(Times(), c.times) << c.code;
    EXPECT_EQ(Range(), c.range) << c.code;
    EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 0) << c.code;
    EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Wind " + c.times[0]) << c.code;
  }
}

// The feed's first hour, 13 GMT, is 8:00, 7:00, 6:00 and 5:00 there; the last of these is still a night. It
// is 14:05 at each place, and the computer stands there.
TEST_F(CatalogueProduct, TimesAreTheLocationsInEveryZone) {
  const struct {
    int zone;
    const char *letters, *start, *second, *third, *hour11, *hour17, *hour23, *hour29;
  } cases[] = {
      {-5, "EST", "Friday", "Friday Night", "Saturday", "Friday, Mar 07", "Saturday, Mar 08",
       "Saturday, Mar 08", "Saturday, Mar 08"},
      {-6, "CST", "Friday", "Friday Night", "Saturday", "Friday, Mar 07", "Saturday, Mar 08",
       "Saturday, Mar 08", "Saturday, Mar 08"},
      {-7, "MST", "Friday", "Friday Night", "Saturday", "Friday, Mar 07", "Friday, Mar 07",
       "Saturday, Mar 08", "Saturday, Mar 08"},
      {-8, "PST", "Friday Night", "Friday", "Saturday Night", "Friday, Mar 07", "Friday, Mar 07",
       "Saturday, Mar 08", "Saturday, Mar 08"},
  };
  for (const auto& c : cases) {
    SetUpForecast("3/7/2003 1:00:00 PM", c.zone);
    Doubles.zone = {-60 * c.zone, 1};
    SetZone(std::to_string(c.zone).c_str(), "0");
    const std::string zone = std::string(" ") + c.letters;
    const std::string first_hour = std::to_string(13 + c.zone);
    const Names periods = {c.start + std::string(", Mar 07"), c.second + std::string(", Mar 07"),
                           c.third + std::string(", Mar 08")};
    const std::pair<const char*, Names> lists[] = {
        {"0", {"Friday 1:53 PM" + zone}},
        {"1", {"Friday " + first_hour + ":00 AM" + zone}},
        {"4", periods},
        {"5", {c.hour11}},
        {"6", {c.hour17}},
        {"7", {c.hour23}},
        {"8", {c.hour29}},
        {"10", {"Friday 2:05 PM" + zone}},
        {"11", periods},
    };
    for (const auto& [code, times] : lists) {
      Choose(code, std::to_string(times.size()));
      EXPECT_EQ(Times(), times) << code << zone;
    }
    for (const char* code : {"2", "3"}) {
      Choose(code, "66");
      ASSERT_GT(Times().size(), 1u) << code << zone;
      EXPECT_EQ(Times()[0], "Friday 3:00 PM" + zone) << code;
      EXPECT_EQ(Times()[1], "Friday 4:00 PM" + zone) << code;
      EXPECT_EQ(static_cast<int>(Times().size()), 66 - (15 - (13 + c.zone))) << code;
    }
  }
  SetZone("-5", "1");
  Doubles.zone = {360, 1};
  Choose("10", "1");
  EXPECT_EQ(Times(), Names{"Friday 4:05 PM EDT"});
}

TEST_F(CatalogueProduct, AnHourlyPicturesFirstEntryIsTheHourToCome) {
  Choose("3", "11");
  MainForm.TimeSelection.Select(2);
  EXPECT_EQ(Periods.HourIndex, 10);
}

TEST_F(CatalogueProduct, ARouteLeavesPastDeparturesOut) {
  const struct {
    const char* stamp;
    int count, first;
    Names times;
  } cases[] = {
      // The first departure is one hour after the run, local; the forecast starts on Friday at 7:00.
      {"Mar 07 2003 12:00PM", 2, 1, {"Friday, Mar 07", "Friday Night, Mar 07"}},
      {"Mar 07 2003 06:00AM", 3, 2, {"Friday, Mar 07", "Friday Night, Mar 08"}},  // 1:00, 13:00, 1:00
      {"Mar 06 2003 12:00AM", 2, 0, {}},
  };
  for (const auto& c : cases) {
    Observations.ModelServerTrip = c.stamp;
    MainForm.Display1.SetPicture("former", 1, 1);
    Choose("11", std::to_string(c.count));
    EXPECT_EQ(Times(), c.times) << c.stamp;
    EXPECT_EQ(Browser.FirstRouteFrame, c.first) << c.stamp;
    EXPECT_EQ(MainForm.TimeSelection.ListIndex(), c.times.empty() ? -1 : 0);
    EXPECT_EQ(MainForm.Display1.PicturePath() == "former", c.times.empty()) << c.stamp;
  }
}

TEST_F(CatalogueProduct, TheRouteMapTellsDepartures) {
  Choose("11", "2", "RouteScope by Road");
  EXPECT_EQ(MainForm.TimeLabel.Caption.Get(), "Departure Time");
  Choose("4", "2");
  EXPECT_EQ(MainForm.TimeLabel.Caption.Get(), "Time");
}

TEST_F(CatalogueProduct, AnUnknownCodeListsNothingAndGoesOn) {
  MainForm.Display1.Visible = false;
  Choose("12", "2");
  EXPECT_EQ(Times(), Names{});
  EXPECT_TRUE(MainForm.Display1.Visible);
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Wind ");
}

TEST_F(CatalogueProduct, APageOfTheWebDisablesTheListsUntilTheNextProduct) {
  Choose("url", "", "Help", "www.skyloft.example/help.htm");
  EXPECT_EQ(Times(), Names{""});
  EXPECT_EQ(MainForm.Display2.Address(), "www.skyloft.example/help.htm");
  EXPECT_TRUE(MainForm.Display2.Visible);
  EXPECT_FALSE(MainForm.Display1.Visible);
  const std::initializer_list<Control*> controls = {&MainForm.LocationLabel, &MainForm.LocationSelection,
                                                    &MainForm.ProductTitle, &MainForm.TimeSelection,
                                                    &MainForm.TimeLabel};
  for (Control* control : controls) EXPECT_FALSE(control->Enabled) << control->Name();
  EXPECT_FALSE(MainForm.NationalButton.Enabled || MainForm.ZoomInButton.Enabled ||
               MainForm.LegendButton.Enabled || MainForm.NextButton.Enabled);
  EXPECT_TRUE(Doubles.requests.empty()) << "no picture and no legend";
  Choose("4", "2");
  for (Control* control : controls) EXPECT_TRUE(control->Enabled) << control->Name();
}

TEST_F(CatalogueProduct, TheButtonsAreThoseOfTheView) {
  for (const char* local : {"", "True"}) {
    Start.LocalView = local;
    Choose("4", "2");
    EXPECT_FALSE(MainForm.LocalButton.Enabled || MainForm.LocalButton.Visible);
    EXPECT_TRUE(MainForm.NationalButton.Enabled && MainForm.NationalButton.Visible);
    EXPECT_TRUE(MainForm.ZoomInButton.Enabled && MainForm.AreaZoomButton.Enabled &&
                MainForm.LegendButton.Enabled);
    EXPECT_FALSE(MainForm.ZoomOutButton.Enabled || MainForm.ResetButton.Enabled);
    EXPECT_EQ(Start.LocalView, "True");
  }
  Start.LocalView = "False";
  Choose("4", "2");
  EXPECT_TRUE(MainForm.LocalButton.Enabled && MainForm.LocalButton.Visible);
  EXPECT_FALSE(MainForm.NationalButton.Enabled || MainForm.ZoomInButton.Enabled ||
               MainForm.AreaZoomButton.Enabled || MainForm.ZoomOutButton.Enabled ||
               MainForm.ResetButton.Enabled);
  EXPECT_TRUE(MainForm.LegendButton.Enabled);
  EXPECT_EQ(Start.LocalView, "False");
  EXPECT_EQ(Catalogues.SectorID, "200") << "the national sector";
}

TEST_F(CatalogueProduct, AMapAfterAPageHasItsViewAgain) {
  MainForm.NationalButton.Enabled = MainForm.LocalButton.Enabled = false;  // as a page leaves them
  Start.LocalView = "True";
  Catalogues.SectorID = "former";
  Choose("4", "2");
  EXPECT_EQ(Catalogues.SectorID, "former") << "the local view looks for a sector; there is none here";
}

TEST_F(CatalogueProduct, ALegendIsFetchedOnceAndShownUnlessItIsTurnedOff) {
  const std::string path = "C:\\program files\\skyloft\\legends\\wind_legend.gif";
  Doubles.Reply("file.skyloft.example/", "legend");
  MainForm.TimeSelection.Click = {};
  Choose("4", "2");
  EXPECT_EQ(Doubles.requests, Names{"file.skyloft.example/legends\\wind_legend.gif"});
  EXPECT_EQ(MainForm.Legend.PicturePath(), path);
  EXPECT_TRUE(MainForm.Legend.Visible);
  Settings.LegendFlag = 1;
  Choose("4", "2");
  EXPECT_TRUE(Doubles.requests.empty());
  EXPECT_EQ(MainForm.Legend.PicturePath(), path);
  EXPECT_FALSE(MainForm.Legend.Visible);
}

TEST_F(CatalogueProduct, WithoutALegendNoneIsShown) {
  MainForm.Legend.Visible = true;
  Choose("4", "2");
  EXPECT_FALSE(MainForm.Legend.Visible);
}

TEST_F(CatalogueProduct, ForecastMapsTellTheHoursForecastInTheBanner) {
  LocationProfile[ProfileRow::City][0] = "Lawrence";
  LocationProfile[ProfileRow::State][0] = "KS";
  MainForm.CategorySelection.Click = {};
  MainForm.CategorySelection.AddItem("Planners");
  MainForm.CategorySelection.AddItem("Forecast Maps");
  MainForm.CategorySelection.Select(1);
  ForecastHour[0][8].Tf = "47";
  Choose("3", "11");
  const std::string page = MainForm.WeatherConditionsBanner.Document;
  EXPECT_NE(page.find("Lawrence, KSMar 07 2003 03:00PM CST"), std::string::npos) << page;
  EXPECT_NE(page.find("Temperature</B>: 47 F"), std::string::npos);
  MainForm.CategorySelection.Select(0);
  MainForm.WeatherConditionsBanner.Document = "kept";
  MainForm.TimeSelection.Select(1);
  EXPECT_EQ(MainForm.WeatherConditionsBanner.Document.Get(), "kept");
}

TEST_F(CatalogueProduct, WhileAPictureIsFetchedAChoiceOfATimeDoesNothing) {
  Choose("4", "3");
  MainForm.HttpData.State = 1;
  MainForm.ProductTitle.Caption = "kept";
  MainForm.TimeSelection.Select(2);
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 2) << "but the list";
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "kept");
  EXPECT_EQ(Periods.HourIndex, 0);
}

TEST_F(CatalogueProduct, AnHourBeyondTheLastIsTheFirst) {
  Choose("4", "3");
  Periods.HourIndexMax = 1;
  MainForm.TimeSelection.Select(2);
  EXPECT_EQ(Periods.HourIndex, 0);
}

TEST_F(CatalogueProduct, ThePositionBarTellsThePlaceInTheList) {
  Choose("4", "3");
  MainForm.TimeSelection.Select(2);
  EXPECT_EQ(MainForm.ProgressBar.Min, 0);
  EXPECT_EQ(MainForm.ProgressBar.Max, 2);
  EXPECT_EQ(MainForm.ProgressBar.Value, 2);
  Choose("0", "1");
  EXPECT_EQ(MainForm.ProgressBar.Max, 100);
  EXPECT_EQ(MainForm.ProgressBar.Value, 0);
}

TEST_F(CatalogueProduct, ANewMapStartsUnzoomedAtItsCorner) {
  MainForm.Display1.Zoom = 2.0;
  MainForm.Display1.ViewX = MainForm.Display1.ViewY = 50;
  Choose("4", "3");
  EXPECT_EQ(MainForm.Display1.Zoom, 1.0);
  EXPECT_EQ(MainForm.Display1.ViewX + MainForm.Display1.ViewY, 0);
}

TEST_F(CatalogueProduct, AMissingHourMakesTheListShorterOrEmpty) {
  ForecastHour[0][10].Lt = "";
  Choose("3", "12");
  EXPECT_EQ(Times(), (Names{"Friday 3:00 PM CST", "Friday 4:00 PM CST"}));
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), -1);
  ForecastHour[0][0].Lt = "";
  for (const char* code : {"1", "4"}) {
    Choose(code, "3");
    EXPECT_EQ(Times(), Names{}) << code;
  }
  ObservationRecord.Lt[0] = "";
  Choose("0", "1");
  EXPECT_EQ(Times(), Names{});
}

TEST_F(CatalogueProduct, ALegendThatIsNoPictureLeavesTheTitle) {
  Doubles.Reply("file.skyloft.example/", "garbage");
  Doubles.missing_pictures.insert("C:\\program files\\skyloft\\legends\\wind_legend.gif");
  Doubles.during_fetch = [](const std::string&) { MainForm.ProductTitle.Caption = "downloading"; };
  Choose("4", "2");
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Wind Friday, Mar 07");
}

TEST_F(CatalogueProduct, WhereNoSectorHoldsTheTownThePictureIsThatOfTheFormerSector) {
  Catalogues.SectorID = "304";
  Catalogues.ModelRun = "12z";
  Choose("4", "2");
  ASSERT_FALSE(Doubles.requests.empty());
  EXPECT_EQ(Doubles.requests[0], "image.skyloft.example/wind.304.12z.012.gif");
}

TEST_F(CatalogueProduct, AnHourlyPictureWithoutARunHasButtonsThatDoNothing) {
  Choose("2", "10");
  ASSERT_EQ(Times().size(), 2u);
  EXPECT_EQ(Periods.HourIndexMax, 0);
  EXPECT_TRUE(MainForm.BackButton.Enabled && MainForm.NextButton.Enabled && MainForm.PlayButton.Enabled);
  MainForm.NextButton.Press();
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 0);
  MainForm.PlayButton.Press();
  EXPECT_FALSE(MainForm.ImageForwardTimer.Enabled);
  EXPECT_TRUE(MainForm.PlayButton.Enabled);
}

TEST_F(CatalogueProduct, ASeriesPlayedOncePlaysAgainWithoutARequest) {
  Catalogues.ModelRun = "12z";
  Choose("4", "5");
  Doubles.requests.clear();
  MainForm.PlayButton.Press();
  for (const size_t requests : {4u, 0u}) {  // the first picture came with the product
    for (int i = 0; i < 5; ++i) MainForm.ImageForwardTimer.Elapse();
    EXPECT_EQ(Doubles.requests.size(), requests);
    EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 0);
    Doubles.requests.clear();
  }
}

TEST_F(CatalogueProduct, AProductChosenWhileAnotherPlaysPlaysOn) {
  Choose("4", "4");
  MainForm.PlayButton.Press();
  ASSERT_EQ(MainForm.ImageForwardTimer.Interval, 2500);
  Choose("5", "2", "Highs", "highs");  // as a choice of a category does
  EXPECT_TRUE(MainForm.ImageForwardTimer.Enabled);
  EXPECT_EQ(MainForm.ImageForwardTimer.Interval, 2500) << "as it was";
  for (const int index : {1, 0, 1}) {
    MainForm.ImageForwardTimer.Elapse();
    EXPECT_EQ(MainForm.TimeSelection.ListIndex(), index);
    EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Highs " + Times()[static_cast<size_t>(index)]);
  }
}

TEST_F(CatalogueProduct, AnotherTownShowsTheSameMapInItsView) {
  SetUpLocations(2);
  Choose("4", "3");
  Doubles.requests.clear();
  MainForm.LocationSelection.Select(1);
  EXPECT_EQ(Settings.Location, "1");
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get().find("Wind"), 0u);
  EXPECT_TRUE(MainForm.Display1.Visible);
}

}  // namespace
}  // namespace skyloft
