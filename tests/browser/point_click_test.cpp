#include "browser/point_click.h"

#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/projection.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

// A map of 640 by 480 pixels, 1000 m each, around the centre of the projection.
class PointClick : public Station {
 protected:
  PointClick() {
    SetUpLocations(1);
    SetUpForecast("3/7/2003 1:00:00 PM", -6);
    LocationProfile[ProfileRow::TimeZone][0] = "-6";
    Catalogues.SectorXMin = -320000;
    Catalogues.SectorXMax = 320000;
    Catalogues.SectorYMin = -240000;
    Catalogues.SectorYMax = 240000;
    Catalogues.ImageWidth = "640";
    Catalogues.ImageHeight = "480";
    MainForm.CategorySelection.Click = {};
    MainForm.CategorySelection.AddItem("Planners");
    MainForm.CategorySelection.AddItem("Forecast Maps");
    MainForm.CategorySelection.Select(1);
    Periods.HourIndex = 8;  // 15:00 there
  }
  static std::string Ask(int x, int y) {
    Doubles.requests.clear();
    MainForm.Display1.MouseDown({x, y, MouseButton::Left});
    return Doubles.requests.empty() ? "" : Doubles.requests[0];
  }
};

TEST_F(PointClick, ThePlaceUnderTheMouseIsAskedForAtTheHourOnShow) {
  EXPECT_EQ(Ask(320, 240),
            "forecast.skyloft.example/forecast.asp?lat=50&long=-100"
            "&st=3%2F7%2F2003+3%3A00%3A00+PM&et=3%2F7%2F2003+3%3A00%3A00+PM&t=xml");
  // 100 km north of the centre: a chord of 0.8993 degrees.
  EXPECT_NE(Ask(320, 140).find("lat=50.9&long=-100&"), std::string::npos);
}

TEST_F(PointClick, TheOriginOfTheViewCountsWithBothItsSigns) {
  MainForm.Display1.ViewX = 20;
  MainForm.Display1.ViewY = -100;
  EXPECT_NE(Ask(340, 240).find("lat=50.9&long=-100&"), std::string::npos) << "340 - 20 and 240 - 100";
}

TEST_F(PointClick, TheReplyStandsInTheBanner) {
  Doubles.Reply("lat=", Reply(Element("city_state", "Minot, ND") + Element("Lt", "Mar 07 2003 03:00PM") +
                              Element("Desc", "snow") + Element("Ic", "smodsnow.gif") + Element("Tf", "20") +
                              Element("Wd", "200") + Element("Ws", "15")));
  Ask(320, 240);
  const std::string page = MainForm.WeatherConditionsBanner.Document;
  EXPECT_NE(page.find("</BR>Minot, NDMar 07 2003 03:00PM CST"), std::string::npos) << page;
  EXPECT_NE(page.find("src='file:C:\\program files\\skyloft\\icons\\smodsnow.gif'"), std::string::npos);
  EXPECT_NE(page.find("Temperature</B>: 20 F"), std::string::npos);
  EXPECT_NE(page.find("Wind</B>:   S 15 mph"), std::string::npos);
}

TEST_F(PointClick, OnlyAMapOfTheForecastsAtScaleWithoutAToolTells) {
  EXPECT_NE(Ask(320, 240), "");
  Doubles.requests.clear();
  MainForm.Display1.MouseDown({320, 240, MouseButton::Right});
  MainForm.Display1.MouseDown({320, 240, MouseButton::Double});
  EXPECT_TRUE(Doubles.requests.empty());
  MainForm.Display1.Zoom = 1.1;
  EXPECT_EQ(Ask(320, 240), "");
  MainForm.Display1.Zoom = 1.0;
  MainForm.Display1.MouseTool = 3;
  EXPECT_EQ(Ask(320, 240), "");
  MainForm.Display1.MouseTool = 0;
  MainForm.HttpData.State = 1;
  EXPECT_EQ(Ask(320, 240), "");
  MainForm.HttpData.State = 0;
  MainForm.CategorySelection.Select(0);
  EXPECT_EQ(Ask(320, 240), "");
}

TEST_F(PointClick, WithoutAReplyOrAMapTheBannerStays) {
  MainForm.WeatherConditionsBanner.Document = "old";
  EXPECT_NE(Ask(320, 240), "");
  EXPECT_EQ(MainForm.WeatherConditionsBanner.Document.Get(), "old");
  Catalogues.ImageWidth = "";
  EXPECT_EQ(Ask(320, 240), "");
  EXPECT_EQ(MainForm.WeatherConditionsBanner.Document.Get(), "old");
}

}  // namespace
}  // namespace skyloft
