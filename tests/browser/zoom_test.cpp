#include "browser/zoom.h"

#include <sstream>

#include "browser/selection.h"
#include "core/mainform.h"
#include "feed/catalogues.h"
#include "feed/projection.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

// A picture of 620 by 620 in a control of 604 by 415; the location lies half a degree west and a quarter
// south of its radar.
class ZoomTest : public Station {
 protected:
  ZoomTest() {
    SetUpLocations(1);
    LocationProfile[ProfileRow::NEXRADLongitude][0] = "-95";
    LocationProfile[ProfileRow::NEXRADLatitude][0] = "39";
    LocationProfile[ProfileRow::Longitude][0] = "-95.5";
    LocationProfile[ProfileRow::Latitude][0] = "38.75";
    MainForm.Display1.SetPicture("radar", 620, 620);
    MainForm.CategorySelection.Click = {};
    MainForm.CategorySelection.AddItem("Forecast Maps");
    MainForm.CategorySelection.AddItem("NEXRAD Radar");
    SelectCategory("NEXRAD Radar");
    for (ImageButton* button : {&MainForm.ZoomInButton, &MainForm.ZoomOutButton, &MainForm.AreaZoomButton,
                                &MainForm.ResetButton, &MainForm.LocalButton, &MainForm.NationalButton}) {
      button->Enabled = true;
    }
  }
  static void SelectCategory(const std::string& name) {
    MainForm.CategorySelection.Select(name == "NEXRAD Radar" ? 1 : 0);
  }
  static std::string Picture(const ImageButton& button) {
    return button.PicturePath().substr(button.PicturePath().rfind('\\') + 1);
  }
};

TEST_F(ZoomTest, ARadarViewIsCentredOnTheLocationWithItsTrim) {
  ASSERT_EQ(MainForm.Display1.Width, 604);
  ASSERT_EQ(MainForm.Display1.Height, 415);
  NEXRADZoom();
  // dx = 100 * 0.5 = 50, dy = 140 * 0.25 = 35; at scale nothing else is added.
  EXPECT_EQ(MainForm.Display1.ViewX, 8 - 50 + 12);
  EXPECT_EQ(MainForm.Display1.ViewY, 136) << "102.5 + 35 - 2 = 135.5, to the even neighbour";
  EXPECT_EQ(Catalogues.SectorXMax, 302) << "used for the moment";
  EXPECT_EQ(Catalogues.SectorYMax, 207.5);
}

TEST_F(ZoomTest, ZoomKeepsThePointInTheMiddle) {
  MainForm.Display1.Zoom = 2.0;
  NEXRADZoom();
  EXPECT_EQ(MainForm.Display1.ViewX, 8 - 50 + 12 + 151);
  EXPECT_EQ(MainForm.Display1.ViewY, 239) << "102.5 + 35 - 2 + 103.75 = 239.25";
}

TEST_F(ZoomTest, ALocationWithoutASiteCountsAsZeroDegrees) {
  LocationProfile[ProfileRow::NEXRADLongitude][0] = "";
  LocationProfile[ProfileRow::NEXRADLatitude][0] = "";
  NEXRADZoom();
  EXPECT_EQ(MainForm.Display1.ViewX, 8 - 9550 + 12);
  EXPECT_EQ(MainForm.Display1.ViewY, -5324) << "102.5 - 5425 - 2 = -5324.5";
}

TEST_F(ZoomTest, AMapViewGoesByTheMetresOfItsSector) {
  const MapPoint point = LocationOnMap(0);
  // The location lies 100 pixels right of the middle and 50 above it, at 1000 m a pixel.
  Catalogues.SectorXMin = point.x - 100000 - 310000;
  Catalogues.SectorXMax = point.x - 100000 + 310000;
  Catalogues.SectorYMin = point.y - 50000 - 310000;
  Catalogues.SectorYMax = point.y - 50000 + 310000;
  ImageZoom();
  EXPECT_EQ(MainForm.Display1.ViewX, 8 + 100);
  EXPECT_EQ(MainForm.Display1.ViewY, 52) << "102.5 - 50 = 52.5";
}

TEST_F(ZoomTest, ThreeTimesInAndThreeTimesOutEndAtScaleWithZoomOutOff) {
  for (int i = 0; i < 3; ++i) MainForm.ZoomInButton.Press();
  EXPECT_NEAR(MainForm.Display1.Zoom, 1.331, 1e-9);
  EXPECT_TRUE(MainForm.ZoomOutButton.Enabled && MainForm.AreaZoomButton.Enabled &&
              MainForm.ResetButton.Enabled);
  MainForm.ZoomOutButton.Press();
  MainForm.ZoomOutButton.Press();
  EXPECT_NEAR(MainForm.Display1.Zoom, 1.07811, 1e-9);
  EXPECT_TRUE(MainForm.ZoomOutButton.Enabled);
  MainForm.ZoomOutButton.Press();
  EXPECT_EQ(MainForm.Display1.Zoom, 1.0);
  EXPECT_FALSE(MainForm.ZoomOutButton.Enabled || MainForm.ResetButton.Enabled);
  EXPECT_EQ(Picture(MainForm.ZoomOutButton) + Picture(MainForm.ResetButton), "zoomoutd.gifresetd.gif");
}

TEST_F(ZoomTest, TheAreaButtonGivesTheMouseTheRectangle) {
  MainForm.AreaZoomButton.Press();
  EXPECT_EQ(MainForm.Display1.MouseTool, 3);
  EXPECT_FALSE(MainForm.AreaZoomButton.Enabled || MainForm.ZoomInButton.Enabled ||
               MainForm.ZoomOutButton.Enabled);
  EXPECT_TRUE(MainForm.ResetButton.Enabled);
  MainForm.Display1.Drag(400, 300, 198, 100);  // 202 by 200 pixels, from below right
  EXPECT_NEAR(MainForm.Display1.Zoom, 2.075, 1e-9) << "415 / 200, the lesser";
  EXPECT_EQ(MainForm.Display1.ViewX, 198);
  EXPECT_EQ(MainForm.Display1.ViewY, 100);
  MainForm.ResetButton.Press();
  EXPECT_EQ(MainForm.Display1.MouseTool, 0);
  EXPECT_EQ(MainForm.Display1.Zoom, 1.0);
  EXPECT_EQ(MainForm.Display1.ViewX, 8 - 50 + 12);
  EXPECT_TRUE(MainForm.ZoomInButton.Enabled && MainForm.AreaZoomButton.Enabled);
  EXPECT_FALSE(MainForm.ZoomOutButton.Enabled || MainForm.ResetButton.Enabled);
}

TEST_F(ZoomTest, ADragWithoutTheToolOrWithoutARectangleDoesNothing) {
  MainForm.Display1.Drag(0, 0, 100, 100);
  MainForm.Display1.MouseTool = 3;
  MainForm.Display1.Drag(10, 10, 10, 90);
  EXPECT_EQ(MainForm.Display1.Zoom, 1.0);
  MainForm.Display1.Drag(10, 10, 11, 11);
  EXPECT_EQ(MainForm.Display1.Zoom, 32.0) << "no nearer";
}

TEST_F(ZoomTest, TheViewButtonsChangeTheSectorAndShowItsPicture) {
  Catalogues.SectorIDPrevious = "before";
  std::string product;
  for (const auto& [tag, text] : {std::pair{"id", "2"},
                                  {"product", "Wind"},
                                  {"category", "0"},
                                  {"code", "0"},
                                  {"period", "1"},
                                  {"file", "wind"},
                                  {"type", "gif"}}) {
    product += Element(tag, text);
  }
  const auto sector = [](const char* name, const char* edge) {
    return Element("sector", name) + Element("xmin", "-" + std::string(edge)) + Element("xmax", edge) +
           Element("ymin", "-" + std::string(edge)) + Element("ymax", edge);
  };
  Doubles.Reply("products.", Reply(product));
  Doubles.Reply("sectors.", Reply(sector("200", "9000000") + sector("2a", "8000000")));
  Doubles.Reply("wind.", "picture");
  GetProductData();
  GetSectorData();
  MainForm.ProductSelection.Click = {};
  GetAvailableProducts(0);
  Browser.SelectedProduct = "Wind";
  const std::string temp = "C:\\program files\\skyloft\\temp\\";
  MainForm.NationalButton.Press();
  EXPECT_EQ(Catalogues.SectorID, "200");
  EXPECT_EQ(MainForm.Display1.PicturePath(), temp + "wind.200.gif");
  EXPECT_TRUE(MainForm.LocalButton.Enabled && MainForm.LocalButton.Visible);
  EXPECT_FALSE(MainForm.NationalButton.Enabled || MainForm.ZoomInButton.Enabled ||
               MainForm.ZoomOutButton.Enabled || MainForm.AreaZoomButton.Enabled ||
               MainForm.ResetButton.Enabled);
  EXPECT_EQ(Start.LocalView, "False");
  MainForm.LocalButton.Press();
  EXPECT_FALSE(MainForm.LocalButton.Enabled || MainForm.LocalButton.Visible ||
               MainForm.ZoomOutButton.Enabled);
  EXPECT_TRUE(MainForm.NationalButton.Enabled && MainForm.ZoomInButton.Enabled &&
              MainForm.AreaZoomButton.Enabled);
  EXPECT_EQ(Start.LocalView, "True");
  EXPECT_EQ(Catalogues.SectorXMax, 9000000) << "of two with one centre the first: it is of the family too";
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Wind ");
}

TEST_F(ZoomTest, EveryButtonOfTheMapGivesTheOthersTheirPictures) {
  const std::pair<ImageButton*, std::string> buttons[] = {
      {&MainForm.AreaZoomButton, "local.gif? national.gif? zmaread.gif zoomind.gif zoomoutd.gif reset.gif"},
      {&MainForm.ResetButton, "local.gif? national.gif? zmarea.gif zoomin.gif zoomoutd.gif resetd.gif"},
      {&MainForm.ZoomInButton, "local.gif? national.gif? zmarea.gif zoomin.gif? zoomout.gif reset.gif"},
      {&MainForm.LocalButton, "locald.gif national.gif zmarea.gif zoomin.gif zoomoutd.gif reset.gif?"},
      {&MainForm.NationalButton, "local.gif nationald.gif zmaread.gif zoomind.gif zoomoutd.gif resetd.gif"},
  };
  ImageButton* const shown[] = {&MainForm.LocalButton,  &MainForm.NationalButton, &MainForm.AreaZoomButton,
                                &MainForm.ZoomInButton, &MainForm.ZoomOutButton,  &MainForm.ResetButton};
  for (const auto& [button, pictures] : buttons) {
    for (ImageButton* each : shown) {
      each->Enabled = true;
      each->SetPicture("\\untouched", 1, 1);
    }
    button->Press();
    std::istringstream wanted(pictures);
    for (const ImageButton* each : shown) {
      std::string picture;
      wanted >> picture;
      const bool is_untouched = picture.ends_with('?');
      EXPECT_EQ(Picture(*each), is_untouched ? "untouched" : picture)
          << button->Name() << " " << each->Name();
    }
  }
}

TEST_F(ZoomTest, PointsLieWhereTheLocationsAreOnTheMap) {
  SetUpLocations(2);
  LocationProfile[ProfileRow::Longitude][1] = "-90";
  LocationProfile[ProfileRow::Latitude][1] = "45";
  const MapPoint first = LocationOnMap(0), second = LocationOnMap(1);
  Catalogues.SectorXMin = first.x - 10000;
  Catalogues.SectorXMax = first.x + 990000;
  Catalogues.SectorYMin = first.y - 480000;
  Catalogues.SectorYMax = first.y + 20000;
  Catalogues.ImageWidth = "1000";
  Catalogues.ImageHeight = "500";
  MainForm.ImagePoints[0].Color = 255;
  PlaceLocationPoints();
  EXPECT_EQ(MainForm.ImagePoints[0].Left, 10 - 3);
  EXPECT_EQ(MainForm.ImagePoints[0].Top, 20 - 3);
  EXPECT_NEAR(MainForm.ImagePoints[1].Left, (second.x - first.x) / 1000 + 10 - 3, 0.51);
  EXPECT_NEAR(MainForm.ImagePoints[1].Top, (first.y - second.y) / 1000 + 20 - 3, 0.51);
  EXPECT_EQ(MainForm.ImagePoints[0].Color, 0xffffff);
  EXPECT_TRUE(MainForm.ImagePoints[0].Visible && MainForm.ImagePoints[1].Visible);
  EXPECT_FALSE(MainForm.ImagePoints[2].Visible);
}

TEST_F(ZoomTest, TheTwoOverlaysDifferByTwoPixels) {
  NEXRADOverlay1();
  EXPECT_EQ(MainForm.Display1.Overlay.Get(), (std::vector<OverlayText>{{"+", 310 - 50 + 4, 310 + 35 - 16}}));
  NEXRADOverlay2();
  EXPECT_EQ(MainForm.Display1.Overlay.Get(), (std::vector<OverlayText>{{"+", 310 - 50 + 4, 310 + 35 - 18}}));
}

}  // namespace
}  // namespace skyloft
