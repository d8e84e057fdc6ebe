// The radar products of the browser: the loop of a site, and the two single pictures.
#include <gtest/gtest.h>

#include "browser/selection.h"
#include "core/mainform.h"
#include "core/refresh.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

const std::string kTemp = "C:\\program files\\skyloft\\temp\\";

// It is 20:05 GMT of 7 March 2003 and 14:05 at the computer and the location.
class RadarProducts : public Station {
 protected:
  RadarProducts() {
    SetUpLocations(1);
    Doubles.zone = {360, 1};
    LocationProfile[ProfileRow::TimeZone][0] = "-6";
    for (const char* product : {"003 Reflectivity", "004 1-Hour Precipitation", "005 Total Precipitation"}) {
      MainForm.ProductSelection.AddItem(product);
    }
    Doubles.Reply("/radar/", "a picture");
    SystemOptionsForm.NexradIndexMax.Select(0);  // 10 minutes
    MainForm.Display1.Visible = false;
    MainForm.Display2.Visible = MainForm.Legend.Visible = true;
    MainForm.Display1.Zoom = 2.0;
    MainForm.Display1.ViewX = MainForm.Display1.ViewY = 50;
    MainForm.LegendButton.Enabled = MainForm.LocalButton.Enabled = true;
    Browser.HourIndexMin = 7;
  }
  static void PutFrame(const std::string& stamp) {
    const std::string path = "c:\\program files\\skyloft\\temp\\nexr.ktw0." + stamp + ".png";
    Doubles.files[path] = "picture";
    Doubles.file_times[path] = Doubles.now;
  }
  static void ExpectRadarOnShow() {
    EXPECT_TRUE(MainForm.Display1.Visible);
    EXPECT_FALSE(MainForm.Display2.Visible);
    EXPECT_FALSE(MainForm.Legend.Visible);
    EXPECT_EQ(MainForm.Display1.Zoom, 1.0);
    EXPECT_EQ(Browser.HourIndexMin, 0);
    EXPECT_TRUE(MainForm.ZoomInButton.Enabled && MainForm.AreaZoomButton.Enabled);
    EXPECT_FALSE(MainForm.LocalButton.Enabled || MainForm.NationalButton.Enabled ||
                 MainForm.ZoomOutButton.Enabled || MainForm.ResetButton.Enabled ||
                 MainForm.LegendButton.Enabled);
    EXPECT_TRUE(MainForm.TimeSelection.Enabled && MainForm.LocationSelection.Enabled);
  }
};

TEST_F(RadarProducts, ReflectivityFetchesTheNewestPictureAndShowsTheLoop) {
  PutFrame("030720031900");
  PutFrame("030720031930");
  MainForm.ProductSelection.Select(0);
  ASSERT_EQ(Doubles.requests.size(), 1u) << "no frame is fresh";
  EXPECT_NE(Doubles.requests[0].find("DS.p19r0/SI.ktw0/latest.gif"), std::string::npos);
  EXPECT_EQ(
      MainForm.TimeSelection.Items(),
      (std::vector<std::string>{"01:00 PM CST 03/07/03", "01:30 PM CST 03/07/03", "02:05 PM CST 03/07/03"}));
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 2) << "the new one";
  EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "nexr.ktw0.030720032005.png");
  EXPECT_EQ(Periods.HourIndexMax, 2);
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Reflectivity 02:05 PM CST 03/07/03");
  EXPECT_TRUE(MainForm.PlayButton.Enabled);
  ExpectRadarOnShow();
}

TEST_F(RadarProducts, ASiteWithOneFrameDoesNotPlay) {
  MainForm.ProductSelection.Select(0);
  EXPECT_EQ(MainForm.TimeSelection.Count(), 1);
  EXPECT_EQ(Periods.HourIndexMax, 0);
  EXPECT_FALSE(MainForm.PlayButton.Enabled);
}

TEST_F(RadarProducts, EachPrecipitationIsASinglePictureOfItsAddress) {
  for (const auto& [product, kind, name] :
       {std::tuple{1, "DS.78ohp", "1-Hour Precipitation"}, {2, "DS.80stp", "Total Precipitation"}}) {
    Doubles.requests.clear();
    Browser.HourIndexMin = 7;
    MainForm.Display1.ViewX = 50;
    MainForm.ProductSelection.Select(product);
    EXPECT_EQ(Doubles.requests, std::vector<std::string>{std::string("radar.skyloft.example/radar/images/") +
                                                         kind + "/SI.ktw0/latest.gif"});
    EXPECT_EQ(MainForm.TimeSelection.Items(), std::vector<std::string>{"Latest"});
    EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "latest.png");
    EXPECT_EQ(MainForm.Display1.ViewX + MainForm.Display1.ViewY, 0) << "no zoom has moved it";
    EXPECT_EQ(Periods.HourIndexMax, 0);
    EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), std::string(name) + " Latest");
    EXPECT_FALSE(MainForm.PlayButton.Enabled);
    ExpectRadarOnShow();
    // Its one time shows the file again.
    MainForm.Display1.SetPicture("other", 1, 1);
    MainForm.TimeSelection.Select(0);
    EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "latest.png");
    EXPECT_EQ(MainForm.ProgressBar.Max, 100);
  }
}

TEST_F(RadarProducts, APrecipitationThatNeverCameKeepsTheFormerPicture) {
  Doubles.replies.clear();
  Doubles.missing_pictures.insert(kTemp + "latest.png");
  MainForm.Display1.SetPicture("former", 1, 1);
  MainForm.ProductSelection.Select(1);
  EXPECT_EQ(MainForm.Display1.PicturePath(), "former");
  EXPECT_EQ(MainForm.TimeSelection.Items(), std::vector<std::string>{"Latest"});
}

TEST_F(RadarProducts, EachTakesTheStateOfTheNationalButtonAsTheView) {
  for (const int product : {0, 1, 2}) {
    for (const bool enabled : {true, false}) {
      MainForm.NationalButton.Enabled = enabled;
      MainForm.ProductSelection.Select(product);
      EXPECT_EQ(Start.LocalView, enabled ? "True" : "False") << product;
    }
  }
}

TEST_F(RadarProducts, ARadarRefreshFillsTheTimesEvenOverAPrecipitation) {
  MainForm.CategorySelection.Click = {};
  MainForm.CategorySelection.AddItem("NEXRAD Radar");
  MainForm.CategorySelection.Select(0);
  MainForm.ProductSelection.Select(1);
  PutFrame("030720032004");
  Refresh.NexradTimer = 1e6;
  MainForm.UpdateTimer.Elapse();
  EXPECT_EQ(MainForm.TimeSelection.Items(), std::vector<std::string>{"02:04 PM CST 03/07/03"});
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "1-Hour Precipitation 02:04 PM CST 03/07/03");
}

TEST_F(RadarProducts, APressOfPlayAfterAMapWithoutASeriesDoesNothing) {
  // A list of an hourly picture without a run has many times and one frame.
  MainForm.TimeSelection.Click = {};
  for (const char* time : {"one", "two", "three"}) MainForm.TimeSelection.AddItem(time);
  MainForm.PlayButton.Enabled = true;
  Periods.HourIndexMax = 0;
  MainForm.PlayButton.Press();
  EXPECT_FALSE(MainForm.ImageForwardTimer.Enabled);
}

}  // namespace
}  // namespace skyloft
