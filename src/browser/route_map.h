// The stops of a road trip, picked on the map of a product whose name begins with "RouteScope".
#pragma once

#include "pages/route_report.h"
#include "platform/controls.h"

namespace skyloft {

struct RouteState {
  RouteList RouteLatitude, RouteLongitude;
  int RouteStopCount = 0;  // the selection of a product begins a new route
};
extern RouteState Route;

// A press on the map, in pixels of the view. With the left button, in pointer mode and at scale, it appends
// the place as a stop and shows its mark, up to kRouteStops; on the last stop's own mark it appends nothing.
// A double click shows the report.
void PressRouteMap(const MousePress& press);

// Writes the report and shows it; nothing with fewer than two stops.
void ShowRouteReport();

// Puts the marks of the stops to their places on the map on show.
void PlaceRouteMarks();

// Attaches the marks, the entry of their menu and the two forms of the route.
void ConnectRouteMap();

}  // namespace skyloft
