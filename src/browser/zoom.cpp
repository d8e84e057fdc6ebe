#include "browser/zoom.h"

#include <vector>

#include "base/guard.h"
#include "base/values.h"
#include "browser/buttons.h"
#include "browser/images.h"
#include "browser/route_map.h"
#include "browser/selection.h"
#include "core/mainform.h"
#include "feed/catalogues.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"

namespace skyloft {
namespace {

constexpr double kPixelsPerLongitude = 100, kPixelsPerLatitude = 140;  // of a radar picture
constexpr int kTrimX = 12, kTrimY = -2;
constexpr double kRadarCentre = 310;  // pixels from the left and the top

// From the site to a location on its radar picture, pixels left and down.
struct Offset {
  double x, y;
};
Offset FromSite(int slot) {
  const auto number = [&](int row) { return LenientNumber(LocationProfile[row][slot]); };
  return {kPixelsPerLongitude * (number(ProfileRow::NEXRADLongitude) - number(ProfileRow::Longitude)),
          kPixelsPerLatitude * (number(ProfileRow::NEXRADLatitude) - number(ProfileRow::Latitude))};
}

int WholePixels(double value) { return static_cast<int>(RoundHalfEven(value)); }

// Puts the view so that a point `dx` pixels left of the picture's centre and `dy` below it stays in the
// middle.
void CentreView(double dx, double dy) {
  ImageView& view = MainForm.Display1;
  const double centre_x = view.Width / 2.0;
  const double centre_y = view.Height / 2.0;
  const double extra_x = centre_x - Divide(centre_x, view.Zoom);
  const double extra_y = centre_y - Divide(centre_y, view.Zoom);
  view.ViewX = WholePixels((view.PictureWidth() - view.Width) / 2.0 - dx + extra_x);
  view.ViewY = WholePixels((view.PictureHeight() - view.Height) / 2.0 + dy + extra_y);
}

void ZoomOnProduct() {
  if (MainForm.CategorySelection.Text() == "NEXRAD Radar") {
    NEXRADZoom();
  } else {
    ImageZoom();
  }
}

void ZoomIn() {
  TurnOn(ZoomOutButtonState);
  TurnOn(AreaZoomButtonState);
  TurnOn(ResetButtonState);
  MainForm.Display1.MouseTool = 0;
  MainForm.Display1.Zoom = MainForm.Display1.Zoom * 1.1;
  ZoomOnProduct();
}

void ZoomOut() {
  TurnOn(AreaZoomButtonState);
  MainForm.Display1.MouseTool = 0;
  MainForm.Display1.Zoom = MainForm.Display1.Zoom * 0.9;
  if (MainForm.Display1.Zoom <= 1.0) {
    MainForm.Display1.Zoom = 1.0;
    TurnOff(ZoomOutButtonState);
    TurnOff(ResetButtonState);
  }
  ZoomOnProduct();
}

void ZoomArea() {
  TurnOff(AreaZoomButtonState);
  TurnOff(ZoomInButtonState);
  TurnOff(ZoomOutButtonState);
  TurnOn(ResetButtonState);
  MainForm.Display1.MouseTool = kRectangleTool;
}

void ResetZoom() {
  TurnOn(ZoomInButtonState);
  TurnOn(AreaZoomButtonState);
  TurnOff(ZoomOutButtonState);
  TurnOff(ResetButtonState);
  MainForm.Display1.Zoom = 1.0;
  MainForm.Display1.MouseTool = 0;
  ZoomOnProduct();
}

// After the buttons of the new view: its sector and its picture.
void ShowView() {
  Start.LocalView = BooleanText(MainForm.NationalButton.Enabled);
  const MapPoint point = LocationOnMap(SelectedLocation());
  GetSectorID(MainForm.ProductSelection.ListIndex(), point.x, point.y);
  PlaceRouteMarks();
  ImageFetch();
  ShowEntryTitle();
}

void OverlayLocations(int trim_y) {
  Guarded([&] {
    std::vector<OverlayText> marks;
    for (int slot = 0; slot <= LastLocation(); ++slot) {
      const Offset offset = FromSite(slot);
      marks.push_back(
          {"+", WholePixels(kRadarCentre - offset.x + 4), WholePixels(kRadarCentre + offset.y + trim_y)});
    }
    MainForm.Display1.Overlay = marks;
  });
}

}  // namespace

void NEXRADZoom() {
  Guarded([] {
    const Offset offset = FromSite(SelectedLocation());
    Catalogues.SectorXMax = MainForm.Display1.Width / 2.0;
    Catalogues.SectorYMax = MainForm.Display1.Height / 2.0;
    CentreView(offset.x - kTrimX, offset.y + kTrimY);
  });
}

void ImageZoom() {
  Guarded([] {
    const ImageView& view = MainForm.Display1;
    const CatalogueState& map = Catalogues;
    const MapPoint point = LocationOnMap(SelectedLocation());
    const MapScale metres = ScaleOfSector(view.PictureWidth(), view.PictureHeight());
    CentreView(Divide((map.SectorXMin + map.SectorXMax) / 2 - point.x, metres.x),
               Divide((map.SectorYMin + map.SectorYMax) / 2 - point.y, metres.y));
  });
}

void PlaceMark(Mark& mark, const MapPoint& point) {
  const CatalogueState& map = Catalogues;
  const MapScale metres = ScaleOfSector();
  mark.Left = WholePixels(Divide(point.x - map.SectorXMin, metres.x) - kPointRadius);
  mark.Top = WholePixels(Divide(map.SectorYMax - point.y, metres.y) - kPointRadius);
}

void PlaceLocationPoints() {
  for (int slot = 0; slot <= LastLocation(); ++slot) {
    Mark& mark = MainForm.ImagePoints[slot];
    mark.Color = 0xffffff;
    PlaceMark(mark, LocationOnMap(slot));
    mark.Visible = true;
  }
}

void NEXRADOverlay1() { OverlayLocations(-16); }

void NEXRADOverlay2() { OverlayLocations(-18); }

void ConnectZoom() {
  MainForm.ZoomInButton.Click = [] { Guarded(ZoomIn); };
  MainForm.ZoomOutButton.Click = [] { Guarded(ZoomOut); };
  MainForm.AreaZoomButton.Click = [] { Guarded(ZoomArea); };
  MainForm.ResetButton.Click = [] { Guarded(ResetZoom); };
  MainForm.LocalButton.Click = [] {
    Guarded([] {
      ShowLocalViewButtons();
      ShowView();
    });
  };
  MainForm.NationalButton.Click = [] {
    Guarded([] {
      ShowNationalViewButtons();
      ShowView();
    });
  };
}

}  // namespace skyloft
