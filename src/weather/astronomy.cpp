#include "weather/astronomy.h"

#include <cmath>

#include "base/values.h"

namespace skyloft {
namespace {

constexpr double kRevolution = 6.283185307;  // radians
constexpr double kArcSeconds = 206264.8062;  // of a radian
constexpr double kCosEcliptic = 0.91748, kSinEcliptic = 0.39778;
constexpr double kArcSecondsOfRevolution = 1296000;
constexpr double kEpoch = 51544.5, kCenturyDays = 36525;  // J2000

// A coefficient in arc seconds, and how often the mean arguments of the moon are in the angle of its sine.
struct Term {
  double coefficient;
  int l, ls, d, f;
};

constexpr Term kLongitudeTerms[] = {
    {22640, 1, 0, 0, 0}, {-4586, 1, 0, -2, 0}, {2370, 0, 0, 2, 0},  {769, 2, 0, 0, 0},  {-668, 0, 1, 0, 0},
    {-412, 0, 0, 0, 2},  {-212, 2, 0, -2, 0},  {-206, 1, 1, -2, 0}, {192, 1, 0, 2, 0},  {-165, 0, 1, -2, 0},
    {-125, 0, 0, 1, 0},  {-110, 1, 1, 0, 0},   {148, 1, -1, 0, 0},  {-55, 0, 0, -2, 2},
};
constexpr Term kLatitudeTerms[] = {
    {-526, 0, 0, -2, 1}, {44, 1, 0, -2, 1},  {-31, -1, 0, -2, 1}, {-23, 0, 1, -2, 1},
    {11, 0, -1, -2, 1},  {-25, -2, 0, 0, 1}, {21, -1, 0, 0, 1},
};

// Radians: anomalies of moon and sun, the moon's distance from the sun and from its node.
struct MoonArguments {
  double l, ls, d, f;

  template <int N>
  double Sum(const Term (&terms)[N]) const {
    double sum = 0;
    for (const Term& term : terms)
      sum += term.coefficient * std::sin(term.l * l + term.ls * ls + term.d * d + term.f * f);
    return sum;
  }
};

// Of revolutions, in radians.
double Angle(double revolutions) { return kRevolution * FractionalPart(revolutions); }

// A unit vector that points to the place of the ecliptic (x toward the equinox, v along, w above), turned
// into the equator.
Equatorial FromEcliptic(double x, double v, double w) {
  const double y = kCosEcliptic * v - kSinEcliptic * w;
  const double z = kSinEcliptic * v + kCosEcliptic * w;
  const double rho = SquareRoot(1 - z * z);
  const double declination = 360 / kRevolution * std::atan(Divide(z, rho));
  const double hours = 48 / kRevolution * std::atan(Divide(y, x + rho));
  return {hours < 0 ? hours + 24 : hours, declination};
}

bool IsWithinWindow(double z) { return static_cast<float>(std::abs(z)) <= 1; }

}  // namespace

double FractionalPart(double x) { return x - std::floor(x); }
double IntegerPart(double x) { return std::trunc(x); }

constexpr double kDegree = 0.0174532925199433;  // radians
double SinDegrees(double angle) { return std::sin(angle * kDegree); }
double CosDegrees(double angle) { return std::cos(angle * kDegree); }

double ModifiedJulianDay(int year, int month, int day, double hour) {
  constexpr double last_julian = 15821004.1;
  const double date = 10000.0 * year + 100.0 * month + day;
  if (year < 0) ++year;
  if (month < 3) {
    month += 12;
    --year;
  }
  const int leap_days = date <= last_julian ? static_cast<int>(std::floor((year + 4716) / 4.0)) - 2 - 1179
                                            : year / 400 - year / 100 + year / 4;
  return 365.0 * year - 679004 + leap_days + IntegerPart(30.6001 * (month + 1)) + day + hour / 24;
}

double LocalSiderealTime(double moment, double lambda) {
  const double midnight = IntegerPart(moment);
  const double ut = (moment - midnight) * 24;
  const double t = (midnight - kEpoch) / kCenturyDays;
  double gmst = 6.697374558 + 1.0027379093 * ut;
  gmst += (8640184.812866 + (0.093104 - 0.0000062 * t) * t) * t / 3600;
  return 24 * FractionalPart((gmst - lambda / 15) / 24);
}

Equatorial SunPosition(double t) {
  const double m = Angle(0.993133 + 99.997361 * t);
  const double dl = 6893 * std::sin(m) + 72 * std::sin(2 * m);
  const double longitude = Angle(0.7859453 + m / kRevolution + (6191.2 * t + dl) / kArcSecondsOfRevolution);
  return FromEcliptic(std::cos(longitude), std::sin(longitude), 0);
}

Equatorial MoonPosition(double t) {
  const double l0 = FractionalPart(0.606433 + 1336.855225 * t);
  const MoonArguments moon = {.l = Angle(0.374897 + 1325.55241 * t),
                              .ls = Angle(0.993133 + 99.997361 * t),
                              .d = Angle(0.827361 + 1236.853086 * t),
                              .f = Angle(0.259086 + 1342.227825 * t)};
  const double dl = moon.Sum(kLongitudeTerms);
  const double s = moon.f + (dl + 412 * std::sin(2 * moon.f) + 541 * std::sin(moon.ls)) / kArcSeconds;
  const double longitude = Angle(l0 + dl / kArcSecondsOfRevolution);
  const double latitude = (18520 * std::sin(s) + moon.Sum(kLatitudeTerms)) / kArcSeconds;
  const double cb = std::cos(latitude);
  return FromEcliptic(cb * std::cos(longitude), cb * std::sin(longitude), std::sin(latitude));
}

Altitude SineAltitude(Body body, double day_number, double hour, double lambda, double cphi, double sphi) {
  const double moment = day_number + hour / 24;
  const double t = (moment - kEpoch) / kCenturyDays;
  const Equatorial position = body == Body::Moon ? MoonPosition(t) : SunPosition(t);
  const double tau = 15 * (LocalSiderealTime(moment, lambda) - position.right_ascension);
  const double sine =
      sphi * SinDegrees(position.declination) + cphi * CosDegrees(position.declination) * CosDegrees(tau);
  return {sine, position, t};
}

void QuadraticCrossings(double ym, double y0, double yp, Crossings& crossings) {
  auto& [xe, ye, z1, z2, nz] = crossings;
  nz = 0;
  const double a = 0.5 * (ym + yp) - y0;
  const double b = 0.5 * (yp - ym);
  const double c = y0;
  xe = Divide(-b, 2 * a);
  ye = (a * xe + b) * xe + c;
  const double dis = b * b - 4 * a * c;
  if (!(dis > 0)) return;
  const double dx = Divide(0.5 * SquareRoot(dis), std::abs(a));
  z1 = xe - dx;
  z2 = xe + dx;
  nz = (IsWithinWindow(z1) ? 1 : 0) + (IsWithinWindow(z2) ? 1 : 0);
  if (z1 < -1) z1 = z2;
}

}  // namespace skyloft
