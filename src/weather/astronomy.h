// Where sun and moon stand: truncated series of low precision. Sun positions are good to about an arc minute
// and moon positions to about five, in the years around 2000. The constants are part of the almanac, short as
// they are: with others its times would move. Source of the series and of the search for horizon crossings:
// O. Montenbruck and T. Pfleger, Astronomy on the Personal Computer, Springer, 1991. West is positive here.
#pragma once

namespace skyloft {

// x minus the largest whole number not above it: 0 to 1.
double FractionalPart(double x);
// x without its decimals, toward zero.
double IntegerPart(double x);
// Of an angle in degrees.
double SinDegrees(double angle);
double CosDegrees(double angle);

// Modified Julian Day of a moment (0 is midnight of 17 November 1858), in the Julian calendar to 4 October
// 1582. The year before year 1 is -1. Months 13 and 14 are January and February of the next year.
double ModifiedJulianDay(int year, int month, int day, double hour);

// Local mean sidereal time in hours, 0 to 24, at a Modified Julian Day and a longitude in degrees.
double LocalSiderealTime(double moment, double lambda);

// Right ascension in hours, 0 to 24; declination in degrees.
struct Equatorial {
  double right_ascension, declination;
};
// At t Julian centuries from J2000. Raise for a t that is no number.
Equatorial MoonPosition(double t);
Equatorial SunPosition(double t);

enum class Body { Moon = 1, Sun };

// The sine of a body's altitude, and what it came from: its position and the century count.
struct Altitude {
  double sine;
  Equatorial position;
  double t;
};
// `day_number` is the Modified Julian Day of the midnight that `hour` counts from; cphi and sphi are cosine
// and sine of the latitude.
Altitude SineAltitude(Body body, double day_number, double hour, double lambda, double cphi, double sphi);

// The parabola through three samples at x = -1, 0 and 1.
struct Crossings {
  double xe = 0, ye = 0;  // its extreme point
  double z1 = 0, z2 = 0;  // its roots, the lower first
  int nz = 0;             // how many of them lie within -1 to 1
};
// Without two different roots nz is 0 and z1 and z2 stay as they are. A z1 below -1 takes the value of z2, so
// that a single root within is always z1; whether a root is within is asked in single precision, so that one
// a little below -1 counts and is lost. Both are meant. Raises for a straight line.
void QuadraticCrossings(double ym, double y0, double yp, Crossings& crossings);

}  // namespace skyloft
