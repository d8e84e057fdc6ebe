#include "browser/route_map.h"

#include <cstdlib>

#include "base/guard.h"
#include "base/values.h"
#include "browser/point_click.h"
#include "browser/selection.h"
#include "browser/zoom.h"
#include "feed/projection.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/route_scope_form.h"
#include "forms/route_scope_options_form.h"
#include "platform/print.h"
#include "platform/window.h"

namespace skyloft {

RouteState Route;

namespace {

constexpr int kWhite = 0xffffff, kYellow = 0x00ffff;

bool IsRouteMap() { return Browser.SelectedProduct.starts_with("RouteScope"); }

// The first click of a double click does not add a stop at one place twice.
bool IsOnLastStop(int x, int y) {
  const Mark& mark = MainForm.ImagePoints[Route.RouteStopCount];
  return Route.RouteStopCount > 0 && std::abs(mark.Left + kPointRadius - x) <= kPointRadius &&
         std::abs(mark.Top + kPointRadius - y) <= kPointRadius;
}

void AppendStop(int x, int y) {
  if (!IsPointerAtScale() || Route.RouteStopCount == kRouteStops || IsOnLastStop(x, y)) return;
  const GeoPoint place = PlaceAt(x, y);
  const int stop = ++Route.RouteStopCount;
  Route.RouteLatitude[stop] = place.latitude;
  Route.RouteLongitude[stop] = place.longitude;
  Mark& mark = MainForm.ImagePoints[stop];
  mark.Tag = "";
  mark.Left = x - kPointRadius;
  mark.Top = y - kPointRadius;
  mark.Visible = true;
}

// A mark lies over the map: what is pressed on it is pressed on the map too.
void PressMark(const Mark& mark, const MousePress& press) {
  if (!IsRouteMap()) return;
  if (press.button == MouseButton::Right) {
    PopUpMenu(MainForm, MenuForm.RouteScope);
  } else {
    PressRouteMap({press.x + mark.Left, press.y + mark.Top, press.button});
  }
}

void AskForWaitingTime() {
  RouteScopeOptionsForm.StopHours.Select(0);
  RouteScopeOptionsForm.StopMinutes.Select(0);
  ShowModal(RouteScopeOptionsForm);
}

// Of the stop placed last, whichever mark was pressed.
void SetWaitingTime() {
  const ListControl& hours = RouteScopeOptionsForm.StopHours;
  const ListControl& minutes = RouteScopeOptionsForm.StopMinutes;
  const bool waits = hours.ListIndex() > 0 || minutes.ListIndex() > 0;
  Mark& mark = MainForm.ImagePoints[Route.RouteStopCount];
  mark.Tag =
      waits ? NumberText(LenientNumber(hours.Text()) * 3600 + LenientNumber(minutes.Text()) * 60) : "0";
  mark.Color = waits ? kYellow : kWhite;
  RouteScopeOptionsForm.Visible = false;
}

// A new route starts clean.
void EndRoute() {
  MainForm.ProgressBar.Value = 0;
  RouteScopeForm.Visible = false;
  Route.RouteStopCount = 0;
  MainForm.ImagePoints[0].Tag = "";
  for (int i = 1; i <= kRouteStops; ++i) {
    Mark& mark = MainForm.ImagePoints[i];
    mark.Visible = false;
    mark.Color = kWhite;
    mark.Tag = "";
  }
}

}  // namespace

void PressRouteMap(const MousePress& press) {
  if (!IsRouteMap()) return;
  if (press.button == MouseButton::Left) AppendStop(press.x, press.y);
  if (press.button == MouseButton::Double) ShowRouteReport();
}

void ShowRouteReport() {
  if (Route.RouteStopCount < 2) return;
  GetForecastRT(Route.RouteLatitude, Route.RouteLongitude, Route.RouteStopCount);
  RouteScopeForm.RouteScopeBrowser.Navigate(RouteReportPath());
  RouteScopeForm.Visible = true;
}

void PlaceRouteMarks() {
  for (int stop = 1; stop <= Route.RouteStopCount; ++stop) {
    PlaceMark(MainForm.ImagePoints[stop],
              LocationToMap(Route.RouteLongitude[stop], Route.RouteLatitude[stop]));
  }
}

void ConnectRouteMap() {
  for (int i = 0; i < MainForm.ImagePoints.Size(); ++i) {
    Mark& mark = MainForm.ImagePoints[i];
    mark.MouseDown = [&mark](const MousePress& press) { Guarded([&] { PressMark(mark, press); }); };
  }
  MenuForm.AddStop.Click = AskForWaitingTime;
  RouteScopeOptionsForm.OK.Click = SetWaitingTime;
  RouteScopeOptionsForm.Unload = [] { RouteScopeOptionsForm.Visible = false; };
  RouteScopeForm.Done.Click = EndRoute;
  RouteScopeForm.Unload = EndRoute;
  RouteScopeForm.Print.Click = [] { PrintPage(RouteReportPath(), "Skyloft RouteScope"); };
}

}  // namespace skyloft
