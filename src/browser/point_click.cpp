#include "browser/point_click.h"

#include "base/guard.h"
#include "base/values.h"
#include "browser/route_map.h"
#include "browser/selection.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/point_forecast.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "pages/conditions.h"
#include "settings/settings.h"
#include "weather/periods.h"
#include "weather/sky.h"
#include "weather/time.h"

namespace skyloft {
namespace {

bool TellsForecasts() {
  return IsPointerAtScale() && MainForm.CategorySelection.ListIndex() == kForecastMapsCategory &&
         MainForm.HttpData.Idle();
}

void TellForecastAt(const MousePress& press) {
  if (press.button != MouseButton::Left || !TellsForecasts()) return;
  const int location = SelectedLocation();
  const GeoPoint place = PlaceAt(press.x, press.y);
  const PointForecast hour = QueryPointForecast(NumberText(place.latitude), NumberText(place.longitude),
                                                ReadDate(ForecastHour[location][Periods.HourIndex].Lt));
  if (hour.Lt.empty()) return;
  MainForm.WeatherConditionsBanner.Document = BuildForecastConditionsPage(
      hour.city_state, hour.Lt + " " + LocationZone(location), IconPath(hour.Ic), hour.Desc, hour.Tf, hour.Df,
      hour.At, hour.Rh, GetWindDirection(LenientNumber(hour.Wd)), hour.Ws);
}

}  // namespace

bool IsPointerAtScale() { return MainForm.Display1.Zoom == 1.0 && MainForm.Display1.MouseTool == 0; }

GeoPoint PlaceAt(int x, int y) {
  const CatalogueState& map = Catalogues;
  const MapScale metres = ScaleOfSector();
  // The two directions are meant to differ in their sign of the origin.
  const int pixel_x = x - MainForm.Display1.ViewX;
  const int pixel_y = y + MainForm.Display1.ViewY;
  const GeoPoint place = MapToLocation(RoundHalfEven(map.SectorXMin + metres.x * pixel_x, 0),
                                       RoundHalfEven(map.SectorYMax - metres.y * pixel_y, 0));
  return {RoundHalfEven(place.latitude, 2), RoundHalfEven(place.longitude, 2)};
}

void ConnectPointClick() {
  MainForm.Display1.MouseDown = [](const MousePress& press) {
    Guarded([&] { PressRouteMap(press); });
    Guarded([&] { TellForecastAt(press); });
  };
}

}  // namespace skyloft
