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
