#include "browser/point_click.h"

#include "base/guard.h"
#include "base/values.h"
#include "browser/selection.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/point_forecast.h"
#include "feed/projection.h"
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
  const ImageView& view = MainForm.Display1;
  return view.Zoom == 1.0 && view.MouseTool == 0 &&
         MainForm.CategorySelection.ListIndex() == kForecastMapsCategory && MainForm.HttpData.Idle();
}

// The place under a pixel of the view. The two directions are meant to differ in their sign of the origin.
GeoPoint PlaceAt(int x, int y) {
  const CatalogueState& map = Catalogues;
  const MapScale metres = ScaleOfSector();
  const int pixel_x = x - MainForm.Display1.ViewX;
  const int pixel_y = y + MainForm.Display1.ViewY;
  return MapToLocation(RoundHalfEven(map.SectorXMin + metres.x * pixel_x, 0),
                       RoundHalfEven(map.SectorYMax - metres.y * pixel_y, 0));
}

void TellForecastAt(const MousePress& press) {
  if (press.button != MouseButton::Left || !TellsForecasts()) return;
  const int location = SelectedLocation();
  const GeoPoint place = PlaceAt(press.x, press.y);
  const PointForecast hour = QueryPointForecast(NumberText(RoundHalfEven(place.latitude, 2)),
                                                NumberText(RoundHalfEven(place.longitude, 2)),
                                                ReadDate(ForecastHour[location][Periods.HourIndex].Lt));
  if (hour.Lt.empty()) return;
  MainForm.WeatherConditionsBanner.Document = BuildForecastConditionsPage(
      hour.city_state, hour.Lt + " " + LocationZone(location), IconPath(hour.Ic), hour.Desc, hour.Tf, hour.Df,
      hour.At, hour.Rh, GetWindDirection(LenientNumber(hour.Wd)), hour.Ws);
}

}  // namespace

void ConnectPointClick() {
  MainForm.Display1.MouseDown = [](const MousePress& press) { Guarded([&] { TellForecastAt(press); }); };
}

}  // namespace skyloft
