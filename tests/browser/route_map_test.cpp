#include "browser/route_map.h"

#include "browser/selection.h"
#include "feed/catalogues.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/route_scope_form.h"
#include "forms/route_scope_options_form.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

constexpr int kWhite = 0xffffff, kYellow = 0x00ffff;

// A route map of 640 by 480 pixels, 1000 m each, around 50 N, 100 W.
class RouteMap : public Station {
 protected:
  RouteMap() {
    SetUpLocations(1);
    SetUpForecast("3/7/2003 7:00:00 PM", -6);
    MainForm.LocationSelection.Click = {};
    MainForm.LocationSelection.Select(0);
    Periods.HourIndex = 2;
    Catalogues.SectorXMin = -320000;
    Catalogues.SectorXMax = 320000;
    Catalogues.SectorYMin = -240000;
    Catalogues.SectorYMax = 240000;
    Catalogues.ImageWidth = "640";
    Catalogues.ImageHeight = "480";
    Browser.SelectedProduct = "RouteScope by Road";
  }
  static void Press(int x, int y, MouseButton button = MouseButton::Left) {
    MainForm.Display1.MouseDown({x, y, button});
  }
  static void DoubleClick(int x, int y) {
    Press(x, y);
    Press(x, y, MouseButton::Double);
  }
  static std::vector<int> MarksShown() {
    std::vector<int> shown;
    for (int i = 0; i < MainForm.ImagePoints.Size(); ++i) {
      if (MainForm.ImagePoints[i].Visible) shown.push_back(i);
    }
    return shown;
  }
  // The user waits there for a time; then OK.
  static void WaitAt(int hours, int minutes) {
    Doubles.during_modal = [=] {
      RouteScopeOptionsForm.StopHours.Select(hours);
      RouteScopeOptionsForm.StopMinutes.Select(minutes);
      RouteScopeOptionsForm.OK.Press();
    };
    MenuForm.AddStop.Press();
  }
  static std::string Tag(int mark) { return MainForm.ImagePoints[mark].Tag; }
  static int Color(int mark) { return MainForm.ImagePoints[mark].Color; }
};

TEST_F(RouteMap, ALeftClickAppendsItsPlaceAndShowsItsMark) {
  Press(320, 240);
  Press(320, 140);  // 100 km north: a chord of 0.8993 degrees
  EXPECT_EQ(Route.RouteStopCount, 2);
  EXPECT_DOUBLE_EQ(Route.RouteLatitude[1], 50);
  EXPECT_DOUBLE_EQ(Route.RouteLongitude[1], -100);
  EXPECT_DOUBLE_EQ(Route.RouteLatitude[2], 50.9);
  EXPECT_DOUBLE_EQ(Route.RouteLongitude[2], -100);
  EXPECT_EQ(MarksShown(), (std::vector<int>{1, 2}));
  EXPECT_EQ(MainForm.ImagePoints[2].Left.Get(), 317) << "its middle is the place of the click";
  EXPECT_EQ(MainForm.ImagePoints[2].Top.Get(), 137);
  EXPECT_EQ(Color(2), kWhite);
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(RouteMap, OnlyAPointerAtScaleOnARouteProductPicks) {
  Press(1, 1, MouseButton::Right);
  MainForm.Display1.Zoom = 1.1;
  Press(1, 1);
  MainForm.Display1.Zoom = 1.0;
  MainForm.Display1.MouseTool = 3;
  Press(1, 1);
  MainForm.Display1.MouseTool = 0;
  Browser.SelectedProduct = "Surface Temperature";
  Press(1, 1);
  EXPECT_EQ(Route.RouteStopCount, 0);
  Browser.SelectedProduct = "RouteScope";
  Press(1, 1);
  EXPECT_EQ(Route.RouteStopCount, 1);
}

TEST_F(RouteMap, WithoutAMapAClickPicksNothing) {
  Catalogues.ImageWidth = "";
  Press(320, 240);
  EXPECT_EQ(Route.RouteStopCount, 0);
  EXPECT_TRUE(MarksShown().empty());
}

TEST_F(RouteMap, SixtyStopsAreTheMost) {
  for (int i = 0; i < 61; ++i) Press(10 * i, 10);
  EXPECT_EQ(Route.RouteStopCount, 60);
  EXPECT_EQ(MarksShown().size(), 60u);
  EXPECT_FALSE(MainForm.ImagePoints[0].Visible);
  EXPECT_EQ(MainForm.ImagePoints[60].Left.Get(), 587) << "the 61st changed nothing";
}

TEST_F(RouteMap, ADoubleClickShowsTheReportAndItsFirstClickAddsAPlaceOnce) {
  Press(320, 240);
  DoubleClick(320, 140);
  EXPECT_EQ(Route.RouteStopCount, 2);
  EXPECT_TRUE(RouteScopeForm.Visible);
  EXPECT_EQ(RouteScopeForm.RouteScopeBrowser.Address(), "C:\\program files\\skyloft\\temp\\routescope.htm");
  EXPECT_EQ(Doubles.requests.size(), 2u);
  RouteScopeForm.Visible = false;
  DoubleClick(322, 141);  // on the mark of the last stop
  EXPECT_EQ(Route.RouteStopCount, 2);
  EXPECT_TRUE(RouteScopeForm.Visible);
  EXPECT_EQ(RouteScopeForm.RouteScopeBrowser.Visits(), 2);
}

TEST_F(RouteMap, WithFewerThanTwoStopsThereIsNoReport) {
  Press(1, 1, MouseButton::Double);
  DoubleClick(320, 240);
  EXPECT_EQ(Route.RouteStopCount, 1);
  EXPECT_FALSE(RouteScopeForm.Visible);
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(RouteMap, APressOnAMarkIsOneOnTheMapUnderIt) {
  Press(320, 240);
  Press(320, 140);
  MainForm.ImagePoints[2].MouseDown({3, 3, MouseButton::Left});
  EXPECT_EQ(Route.RouteStopCount, 2) << "the last stop's own mark";
  MainForm.ImagePoints[1].MouseDown({3, 3, MouseButton::Left});
  EXPECT_EQ(Route.RouteStopCount, 3) << "there and back again";
  EXPECT_DOUBLE_EQ(Route.RouteLatitude[3], 50);
  MainForm.ImagePoints[3].MouseDown({3, 3, MouseButton::Double});
  EXPECT_TRUE(RouteScopeForm.Visible);
}

TEST_F(RouteMap, ARightClickOnAMarkOpensTheStopMenuOnARouteProductOnly) {
  Press(320, 240);
  MainForm.ImagePoints[1].MouseDown({3, 3, MouseButton::Right});
  EXPECT_EQ(Doubles.menus, std::vector<std::string>{"RouteScope"});
  Browser.SelectedProduct = "Forecast Radar";
  MainForm.ImagePoints[1].MouseDown({3, 3, MouseButton::Right});
  EXPECT_EQ(Doubles.menus.size(), 1u);
}

TEST_F(RouteMap, AddStopOpensItsFormOnTheFirstEntries) {
  RouteScopeOptionsForm.StopHours.Select(5);
  RouteScopeOptionsForm.StopMinutes.Select(30);
  MenuForm.AddStop.Press();
  EXPECT_EQ(Doubles.modal_forms, std::vector<std::string>{"RouteScopeOptionsForm"});
  EXPECT_EQ(RouteScopeOptionsForm.StopHours.ListIndex(), 0);
  EXPECT_EQ(RouteScopeOptionsForm.StopMinutes.ListIndex(), 0);
}

TEST_F(RouteMap, TheWaitIsKeptInSecondsByTheMarkOfTheLastStop) {
  Press(320, 240);
  Press(320, 140);
  const struct {
    int hours, minutes;
    const char* tag;
    int color;
  } cases[] = {
      {2, 30, "9000", kYellow}, {0, 0, "0", kWhite}, {0, 59, "3540", kYellow}, {23, 0, "82800", kYellow}};
  for (const auto& c : cases) {
    WaitAt(c.hours, c.minutes);
    EXPECT_EQ(Tag(2), c.tag);
    EXPECT_EQ(Color(2), c.color);
    EXPECT_FALSE(RouteScopeOptionsForm.Visible);
  }
  EXPECT_EQ(Tag(1), "") << "whichever mark was pressed";
}

TEST_F(RouteMap, WithoutAStopTheWaitIsThatOfMarkNull) {
  WaitAt(1, 0);
  EXPECT_EQ(Tag(0), "3600");
}

TEST_F(RouteMap, ClosingTheWaitingTimeChangesNothing) {
  Press(320, 240);
  Doubles.during_modal = [] {
    RouteScopeOptionsForm.StopHours.Select(2);
    RouteScopeOptionsForm.Unload();
  };
  MenuForm.AddStop.Press();
  EXPECT_FALSE(RouteScopeOptionsForm.Visible);
  EXPECT_EQ(Tag(1), "");
  EXPECT_EQ(Color(1), kWhite);
}

TEST_F(RouteMap, DoneEmptiesTheMarksSoThatANewRouteStartsClean) {
  for (const bool by_button : {true, false}) {
    WaitAt(1, 0);
    Press(320, 240);
    WaitAt(1, 0);
    DoubleClick(320, 140);
    ASSERT_TRUE(RouteScopeForm.Visible);
    by_button ? RouteScopeForm.Done.Press() : RouteScopeForm.Unload();
    EXPECT_FALSE(RouteScopeForm.Visible);
    EXPECT_EQ(MainForm.ProgressBar.Value.Get(), 0);
    EXPECT_EQ(Route.RouteStopCount, 0);
    EXPECT_TRUE(MarksShown().empty());
    for (int i = 0; i <= 60; ++i) EXPECT_EQ(Tag(i), "") << i;
    EXPECT_EQ(Color(1), kWhite);
    Doubles.requests.clear();
    Press(100, 100, MouseButton::Double);
    EXPECT_TRUE(Doubles.requests.empty());
  }
}

TEST_F(RouteMap, ASelectionOfAProductBeginsANewRoute) {
  Press(320, 240);
  WaitAt(1, 0);
  SelectProduct();
  EXPECT_EQ(Route.RouteStopCount, 0);
  EXPECT_TRUE(MarksShown().empty());
  Browser.SelectedProduct = "RouteScope by Road";
  Press(320, 240);
  EXPECT_EQ(Tag(1), "") << "a new stop waits for nothing";
  EXPECT_EQ(Color(1), kWhite);
}

TEST_F(RouteMap, TheMarksGoToTheirPlacesOnAnotherSector) {
  Press(320, 240);
  Press(320, 140);
  Catalogues.SectorXMin = -640000;  // twice as many metres to a pixel
  Catalogues.SectorXMax = 640000;
  Catalogues.SectorYMin = -480000;
  Catalogues.SectorYMax = 480000;
  PlaceRouteMarks();
  EXPECT_EQ(MainForm.ImagePoints[1].Left.Get(), 317);
  EXPECT_EQ(MainForm.ImagePoints[1].Top.Get(), 237);
  EXPECT_EQ(MainForm.ImagePoints[2].Top.Get(), 187);
}

TEST_F(RouteMap, PrintPrintsTheReport) {
  RouteScopeForm.Print.Press();
  const std::pair<std::string, std::string> print("C:\\program files\\skyloft\\temp\\routescope.htm",
                                                  "Skyloft RouteScope");
  EXPECT_EQ(Doubles.printed, std::vector{print});
}

TEST_F(RouteMap, DepartureSelectionDoesNothing) {
  EXPECT_FALSE(MainForm.DepartureSelection.Click);
  SelectProduct();
  EXPECT_EQ(MainForm.DepartureSelection.Count(), 0);
  EXPECT_FALSE(MainForm.DepartureSelection.Visible);
}

TEST_F(RouteMap, TheListsOfTheWaitHoldADayAndAnHour) {
  EXPECT_EQ(RouteScopeOptionsForm.StopHours.Count(), 24);
  EXPECT_EQ(RouteScopeOptionsForm.StopMinutes.Count(), 60);
  EXPECT_EQ(RouteScopeOptionsForm.StopHours.Items()[23], "23");
  EXPECT_EQ(RouteScopeOptionsForm.StopMinutes.Items()[59], "59");
}

}  // namespace
}  // namespace skyloft
