// The pressure of the air over the earth, and the wind that it makes.
#pragma once

#include "feedserver/noise.h"
#include "feedserver/point.h"

namespace skyloft::feed {

// At the level of the sea. Highs and lows are weaker near the equator.
struct Pressure {
  double inches;       // of mercury
  double system;       // of the highs and lows alone, a standard deviation above the mean
  double advection;    // of warm air from the equator, standard deviations: behind a high, before a low
  double east, north;  // rise of the inches a degree
};

Pressure PressureAt(const Noise& noise, Point point);

struct Wind {
  double from;   // degrees, above 0 to 360
  double speed;  // mph, below 75
};
// The balance with the earth's turning, slowed and turned toward the low by the ground. Source: J. R. Holton,
// An Introduction to Dynamic Meteorology, 1992, sections 3.2 (geostrophic wind) and 5.3 (the Ekman layer).
Wind WindOf(const Pressure& pressure, Point point);

}  // namespace skyloft::feed
