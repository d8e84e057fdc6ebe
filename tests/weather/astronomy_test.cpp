#include "weather/astronomy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/guard.h"

namespace skyloft {
namespace {

TEST(Astronomy, FractionalPartLiesFromZeroToOneForNegativeNumbersToo) {
  EXPECT_DOUBLE_EQ(FractionalPart(2.25), 0.25);
  EXPECT_DOUBLE_EQ(FractionalPart(-2.25), 0.75);
  EXPECT_EQ(FractionalPart(-3), 0);
}

TEST(Astronomy, IntegerPartCutsOffTowardZero) {
  EXPECT_EQ(IntegerPart(2.9), 2);
  EXPECT_EQ(IntegerPart(-2.9), -2);
  EXPECT_EQ(IntegerPart(-0.5), 0);
}

TEST(Astronomy, SineAndCosineTakeDegrees) {
  EXPECT_NEAR(SinDegrees(30), 0.5, 1e-12);
  EXPECT_NEAR(SinDegrees(-90), -1, 1e-12);
  EXPECT_NEAR(CosDegrees(60), 0.5, 1e-12);
  EXPECT_NEAR(CosDegrees(180), -1, 1e-12);
}

TEST(Astronomy, ModifiedJulianDayIsThatOfThePublishedDates) {
  // The Julian Days of J. Meeus, Astronomical Algorithms, chapter 7; his year -1000 is 1001 B.C..
  const struct {
    int year, month, day;
    double hour, julian_day;
  } cases[] = {
      {2000, 1, 1, 12, 2451545.0},   {1999, 1, 1, 0, 2451179.5},   {1987, 1, 27, 0, 2446822.5},
      {1987, 6, 19, 12, 2446966.0},  {1988, 1, 27, 0, 2447187.5},  {1900, 1, 1, 0, 2415020.5},
      {1600, 1, 1, 0, 2305447.5},    {1600, 12, 31, 0, 2305812.5}, {1582, 10, 15, 0, 2299160.5},
      {1582, 10, 4, 0, 2299159.5},   {837, 4, 10, 7.2, 2026871.8}, {333, 1, 27, 12, 1842713.0},
      {-1001, 7, 12, 12, 1356001.0},
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(ModifiedJulianDay(c.year, c.month, c.day, c.hour), c.julian_day - 2400000.5, 1e-6)
        << c.year << ' ' << c.month;
  }
  EXPECT_EQ(ModifiedJulianDay(1858, 11, 17, 0), 0);
}

TEST(Astronomy, JanuaryAndFebruaryAreMonths13And14OfTheYearBefore) {
  for (const int year : {1987, 2000, 2003, 2004}) {
    EXPECT_EQ(ModifiedJulianDay(year, 1, 15, 6), ModifiedJulianDay(year - 1, 13, 15, 6));
    EXPECT_EQ(ModifiedJulianDay(year, 2, 28, 0), ModifiedJulianDay(year - 1, 14, 28, 0));
  }
}

TEST(Astronomy, SiderealTimeIsThatOfThePublishedExamples) {
  // Meeus, examples 12.a and 12.b: 10 April 1987 at 0h and at 19h21m Universal Time, Greenwich.
  EXPECT_NEAR(LocalSiderealTime(46895, 0), 13 + 10.0 / 60 + 46.3668 / 3600, 1e-6);
  EXPECT_NEAR(LocalSiderealTime(46895 + 19.35 / 24, 0), 8 + 34.0 / 60 + 57.0896 / 3600, 1e-6);
}

TEST(Astronomy, SiderealTimeIsEarlierInTheWestAndStaysADay) {
  const double greenwich = LocalSiderealTime(46895, 0);
  EXPECT_NEAR(LocalSiderealTime(46895, 75), greenwich - 5, 1e-9);
  EXPECT_NEAR(LocalSiderealTime(46895, -150), greenwich + 10, 1e-9);
  EXPECT_NEAR(LocalSiderealTime(46895, -180), greenwich + 12 - 24, 1e-9);
}

constexpr double kArcMinute = 1.0 / 60;             // degrees
constexpr double kArcMinuteOfHour = 1.0 / 60 / 15;  // hours

TEST(Astronomy, SunStandsWhereItIsPublished) {
  // Meeus, example 25.a: 13 October 1992, 0h.
  const Equatorial sun = SunPosition(-0.072183436);
  EXPECT_NEAR(sun.right_ascension, 198.38083 / 15, kArcMinuteOfHour);
  EXPECT_NEAR(sun.declination, -7.78507, kArcMinute);
}

TEST(Astronomy, MoonStandsWhereItIsPublished) {
  // Meeus, example 47.a: 12 April 1992, 0h.
  const Equatorial moon = MoonPosition(-0.077221081451);
  EXPECT_NEAR(moon.right_ascension, 134.688470 / 15, 5 * kArcMinuteOfHour);
  EXPECT_NEAR(moon.declination, 13.768368, 3 * kArcMinute);
}

// Right ascension and declination of a direction of the ecliptic, both in radians.
Equatorial Turned(double longitude, double latitude) {
  const double v = std::cos(latitude) * std::sin(longitude), w = std::sin(latitude);
  const double x = std::cos(latitude) * std::cos(longitude);
  const double y = 0.91748 * v - 0.39778 * w, z = 0.39778 * v + 0.91748 * w;
  const double rho = std::sqrt(1 - z * z);
  const double hours = 48 / 6.283185307 * std::atan(y / (x + rho));
  return {hours < 0 ? hours + 24 : hours, 360 / 6.283185307 * std::atan(z / rho)};
}

// The series once more, term by term.
Equatorial MoonOfTheSeries(double t) {
  const auto angle = [](double x) { return 6.283185307 * (x - std::floor(x)); };
  const auto sine = [](double x) { return std::sin(x); };
  const double l = angle(0.374897 + 1325.55241 * t), ls = angle(0.993133 + 99.997361 * t);
  const double d = angle(0.827361 + 1236.853086 * t), f = angle(0.259086 + 1342.227825 * t);
  const double dl = 22640 * sine(l) - 4586 * sine(l - 2 * d) + 2370 * sine(2 * d) + 769 * sine(2 * l) -
                    668 * sine(ls) - 412 * sine(2 * f) - 212 * sine(2 * l - 2 * d) -
                    206 * sine(l + ls - 2 * d) + 192 * sine(l + 2 * d) - 165 * sine(ls - 2 * d) -
                    125 * sine(d) - 110 * sine(l + ls) + 148 * sine(l - ls) - 55 * sine(2 * f - 2 * d);
  const double s = f + (dl + 412 * sine(2 * f) + 541 * sine(ls)) / 206264.8062, h = f - 2 * d;
  const double n = -526 * sine(h) + 44 * sine(l + h) - 31 * sine(h - l) - 23 * sine(ls + h) +
                   11 * sine(h - ls) - 25 * sine(f - 2 * l) + 21 * sine(f - l);
  return Turned(angle(0.606433 + 1336.855225 * t + dl / 1296000), (18520 * sine(s) + n) / 206264.8062);
}

TEST(Astronomy, SeriesHaveTheirConstantsAsWritten) {
  for (double t = -0.3; t < 0.5; t += 0.0071) {
    const Equatorial moon = MoonPosition(t), same = MoonOfTheSeries(t);
    EXPECT_NEAR(moon.right_ascension, same.right_ascension, 1e-9) << t;
    EXPECT_NEAR(moon.declination, same.declination, 1e-9) << t;
    const double m = 6.283185307 * FractionalPart(0.993133 + 99.997361 * t);
    const double revolutions =
        0.7859453 + m / 6.283185307 + (6191.2 * t + 6893 * std::sin(m) + 72 * std::sin(2 * m)) / 1296000;
    const Equatorial sun = SunPosition(t), again = Turned(6.283185307 * FractionalPart(revolutions), 0);
    EXPECT_NEAR(sun.right_ascension, again.right_ascension, 1e-9) << t;
    EXPECT_NEAR(sun.declination, again.declination, 1e-9) << t;
  }
}

TEST(Astronomy, PositionsStayWithinTheirRanges) {
  for (double t = -0.5; t < 0.5; t += 0.000137) {
    for (const Equatorial& place : {SunPosition(t), MoonPosition(t)}) {
      EXPECT_GE(place.right_ascension, 0);
      EXPECT_LT(place.right_ascension, 24);
      EXPECT_LT(std::abs(place.declination), 29);  // the ecliptic's 23.4 and the moon's 5.3
    }
    EXPECT_LT(std::abs(SunPosition(t).declination), 23.5);
  }
}

TEST(Astronomy, PositionOfNoMomentRaises) {
  EXPECT_THROW(SunPosition(std::nan("")), RuntimeError);
  EXPECT_THROW(MoonPosition(std::numeric_limits<double>::infinity()), RuntimeError);
}

TEST(Astronomy, AltitudeIsThatOfThePolesAndTheMeridian) {
  const double day = 46895;
  for (const Body body : {Body::Moon, Body::Sun}) {
    // At the pole a body stands as high as its declination.
    const Altitude pole = SineAltitude(body, day, 6, 0, 0, 1);
    EXPECT_NEAR(pole.sine, SinDegrees(pole.position.declination), 1e-12);
    EXPECT_NEAR(pole.t, (day + 0.25 - 51544.5) / 36525, 1e-12);
    // Where the sidereal time is its right ascension, at the equator, it lacks its declination to the zenith.
    const double lambda = 15 * (LocalSiderealTime(day + 0.25, 0) - pole.position.right_ascension);
    EXPECT_NEAR(SineAltitude(body, day, 6, lambda, 1, 0).sine, CosDegrees(pole.position.declination), 1e-12);
  }
  const double t = (day + 0.25 - 51544.5) / 36525;
  EXPECT_EQ(SineAltitude(Body::Moon, day, 6, 0, 1, 0).position.declination, MoonPosition(t).declination);
  EXPECT_EQ(SineAltitude(Body::Sun, day, 6, 0, 1, 0).position.declination, SunPosition(t).declination);
}

// Of the parabola scale * (x - first) * (x - second).
Crossings CrossingsOf(double scale, double first, double second) {
  const auto y = [&](double x) { return scale * (x - first) * (x - second); };
  Crossings crossings;
  QuadraticCrossings(y(-1), y(0), y(1), crossings);
  return crossings;
}

TEST(Crossings, AreTheRootsOfTheParabolaAndItsExtremePoint) {
  for (const double scale : {1.0, -0.25, 1e-6}) {
    const Crossings both = CrossingsOf(scale, -0.75, 0.25);
    EXPECT_EQ(both.nz, 2);
    EXPECT_NEAR(both.z1, -0.75, 1e-9);
    EXPECT_NEAR(both.z2, 0.25, 1e-9);
    EXPECT_NEAR(both.xe, -0.25, 1e-9);
    EXPECT_NEAR(both.ye, -0.25 * scale, 1e-9 * std::abs(scale));
  }
}

TEST(Crossings, SingleOneWithinIsAlwaysTheFirst) {
  const Crossings upper = CrossingsOf(1, -3, 0.5);
  EXPECT_EQ(upper.nz, 1);
  EXPECT_NEAR(upper.z1, 0.5, 1e-12);
  const Crossings lower = CrossingsOf(1, 0.5, 3);
  EXPECT_EQ(lower.nz, 1);
  EXPECT_NEAR(lower.z1, 0.5, 1e-12);
}

TEST(Crossings, OutsideTheWindowDoNotCount) {
  EXPECT_EQ(CrossingsOf(1, 1.1, 3).nz, 0);
  EXPECT_EQ(CrossingsOf(1, -3, -1.1).nz, 0);
  EXPECT_EQ(CrossingsOf(1, -3, 3).nz, 0);
}

TEST(Crossings, GrazingTouchIsNone) {
  Crossings crossings = {.z1 = 0.7, .z2 = 0.9, .nz = 2};
  QuadraticCrossings(1, 0, 1, crossings);
  EXPECT_EQ(crossings.nz, 0);
  EXPECT_EQ(crossings.z1, 0.7);
  EXPECT_EQ(crossings.z2, 0.9);
}

TEST(Crossings, ParabolaWithoutRootsHasNoneAndKeepsTheFormer) {
  Crossings crossings = {.z1 = 0.7, .z2 = 0.9, .nz = 1};
  QuadraticCrossings(3, 1, 3, crossings);
  EXPECT_EQ(crossings.nz, 0);
  EXPECT_EQ(crossings.z1, 0.7);
  EXPECT_EQ(crossings.z2, 0.9);
  EXPECT_EQ(crossings.ye, 1);
}

TEST(Crossings, WindowEndsInSinglePrecision) {
  EXPECT_EQ(CrossingsOf(1, -3, 1 + 1e-9).nz, 1);
  EXPECT_EQ(CrossingsOf(1, -3, 1 + 1e-6).nz, 0);
  EXPECT_EQ(CrossingsOf(1, -1, 1).nz, 2);
}

TEST(Crossings, OneALittleBelowTheWindowCountsAndTakesTheValueOfTheOther) {
  const Crossings lost = CrossingsOf(1, -1 - 1e-9, 3);
  EXPECT_EQ(lost.nz, 1);
  EXPECT_NEAR(lost.z1, 3, 1e-6);
}

TEST(Crossings, StraightLineRaises) {
  Crossings crossings;
  EXPECT_THROW(QuadraticCrossings(-1, 0, 1, crossings), RuntimeError);
  EXPECT_THROW(QuadraticCrossings(0, 0, 0, crossings), RuntimeError);
}

}  // namespace
}  // namespace skyloft
