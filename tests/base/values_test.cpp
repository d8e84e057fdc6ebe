#include "base/values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "base/guard.h"

namespace skyloft {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

TEST(Values, LenientNumberReadsTheStartOfAText) {
  const struct {
    const char* text;
    double number;
  } cases[] = {
      {"066.", 66},
      {" 30 ", 30},
      {"12 mph", 12},
      {"url", 0},
      {"1,000", 1},
      {"", 0},
      {"-5", -5},
      {"+5", 5},
      {" - 5", -5},
      {"1 2\t3", 123},
      {"1.5.7", 1.5},
      {".5", 0.5},
      {"-.5x", -0.5},
      {".", 0},
      {"-", 0},
      {"+-5", 0},
      {"--5", 0},
      {"5-3", 5},
      {"1e3", 1000},
      {"1E+3", 1000},
      {"1e-3", 0.001},
      {"12e", 12},
      {"12e+", 12},
      {"e5", 0},
      {"1 e 2", 100},
      {"0x10", 0},
      {"inf", 0},
      {"nan", 0},
      {"\xA0"
       "5",
       0},
      {"29.92", 29.92},
      {"1e400", kLargest},
      {"-1e400", -kLargest},
      {"1e-400", 0},
      {"0e999", 0},
      {"1e99999999999999999999", kLargest},
      {"1e-99999999999999999999", 0},
      {"0.000e99999999999999999999", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(LenientNumber(c.text), c.number) << c.text;
}

TEST(Values, LenientNumberReadsVeryLongTexts) {
  const std::string zeros(400, '0');
  EXPECT_EQ(LenientNumber("1" + zeros), kLargest);
  EXPECT_EQ(LenientNumber("1" + zeros + "e-400"), 1);
  EXPECT_EQ(LenientNumber("0." + zeros + "1"), 0);
  EXPECT_EQ(LenientNumber("0." + zeros + "1e401"), 1);
}

TEST(Values, LenientNumberKeepsNulBytesOut) {
  EXPECT_EQ(LenientNumber(std::string_view("1\0"
                                           "2",
                                           3)),
            1);
}

TEST(Values, StrictNumberTakesWholeNumbersOnly) {
  EXPECT_EQ(StrictNumber("66"), 66);
  EXPECT_EQ(StrictNumber(" \t-1.5e2 "), -150);
  EXPECT_EQ(StrictNumber("+7"), 7);
  EXPECT_EQ(StrictNumber("066."), 66);
  for (const char* text : {"", " ", "12 mph", "1 2", "1,000", "abc", "-", "+", ".", "+-5", "12e", "1e400",
                           "0x10", "inf", "nan"}) {
    EXPECT_THROW(StrictNumber(text), RuntimeError) << text;
  }
}

TEST(Values, NumberTextHasNoMoreThanItNeeds) {
  const struct {
    double number;
    const char* text;
  } cases[] = {{0, "0"},
               {-0.0, "0"},
               {5, "5"},
               {-5, "-5"},
               {0.01, "0.01"},
               {1.0, "1"},
               {0.1 + 0.2, "0.3"},
               {100, "100"},
               {29.92, "29.92"},
               {-95.25, "-95.25"},
               {1.0 / 3, "0.333333333333333"},
               {123456789012345, "123456789012345"}};
  for (const auto& c : cases) EXPECT_EQ(NumberText(c.number), c.text);
  EXPECT_THROW(NumberText(std::nan("")), RuntimeError);
  EXPECT_THROW(NumberText(HUGE_VAL), RuntimeError);
}

TEST(Values, BooleansAreWords) {
  EXPECT_EQ(BooleanText(true), "True");
  EXPECT_EQ(BooleanText(false), "False");
}

TEST(Values, RoundHalfEvenTakesTheEvenNeighbour) {
  const struct {
    double value;
    long long whole;
  } cases[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {2.4, 2}, {2.6, 3}, {-0.2, 0}};
  for (const auto& c : cases) EXPECT_EQ(RoundHalfEven(c.value), c.whole) << c.value;
}

TEST(Values, RoundHalfEvenAtDecimalsScalesAndUnscales) {
  EXPECT_EQ(RoundHalfEven(1.15, 1), 1.2);
  EXPECT_EQ(RoundHalfEven(1.25, 1), 1.2);
  EXPECT_EQ(NumberText(RoundHalfEven(38.9, 2)), "38.9");
  EXPECT_EQ(NumberText(RoundHalfEven(38.904, 2)), "38.9");
  EXPECT_EQ(NumberText(RoundHalfEven(-95.255, 1)), "-95.3");
  EXPECT_EQ(RoundHalfEven(7.4, 0), 7);
}

TEST(Values, RoundHalfAwayLeavesZero) {
  const struct {
    double value;
    long long whole;
  } cases[] = {{2.5, 3}, {3.5, 4}, {-2.5, -3}, {-3.5, -4}, {0.4, 0}, {-0.4, 0}};
  for (const auto& c : cases) EXPECT_EQ(RoundHalfAway(c.value), c.whole) << c.value;
}

TEST(Values, RoundFloorTakesHalvesUp) {
  EXPECT_EQ(RoundFloor(2.5), 3);
  EXPECT_EQ(RoundFloor(-2.5), -2);
  EXPECT_EQ(RoundFloor(-2.6), -3);
}

TEST(Values, RoundingOutsideTheRangeRaises) {
  for (const double value : {1e19, -1e19, 9223372036854775808.0, std::nan(""), HUGE_VAL}) {
    EXPECT_THROW(RoundHalfEven(value), RuntimeError) << value;
    EXPECT_THROW(RoundHalfAway(value), RuntimeError) << value;
  }
  EXPECT_EQ(RoundHalfEven(-9223372036854775808.0), std::numeric_limits<long long>::min());
}

TEST(Values, DivisionNeverYieldsInfinity) {
  EXPECT_EQ(Divide(1, 4), 0.25);
  EXPECT_THROW(Divide(1, 0), RuntimeError);
  EXPECT_THROW(Divide(0, 0), RuntimeError);
  EXPECT_THROW(Divide(1e308, 1e-308), RuntimeError);
  EXPECT_THROW(Divide(std::nan(""), 1), RuntimeError);
}

TEST(Values, WholeDivisionCutsOff) {
  EXPECT_EQ(DivideWhole(7, 2), 3);
  EXPECT_EQ(DivideWhole(-7, 2), -3);
  EXPECT_THROW(DivideWhole(7, 0), RuntimeError);
  EXPECT_THROW(DivideWhole(std::numeric_limits<long long>::min(), -1), RuntimeError);
}

TEST(Values, RootOfANegativeRaises) {
  EXPECT_EQ(SquareRoot(9), 3);
  EXPECT_EQ(SquareRoot(0), 0);
  EXPECT_THROW(SquareRoot(-1), RuntimeError);
  EXPECT_THROW(SquareRoot(std::nan("")), RuntimeError);
}

TEST(Values, CaseChangesAsciiLettersOnly) {
  EXPECT_EQ(UpperCase("aZ1\xE4"), "AZ1\xE4");
  EXPECT_EQ(LowerCase("aZ1\xC4"), "az1\xC4");
}

TEST(Values, PiecesOfShorterTextsAreWhatThereIs) {
  EXPECT_EQ(RightText("03/07/2003 2:15 PM", 7), "2:15 PM");
  EXPECT_EQ(RightText("abc", 7), "abc");
  EXPECT_EQ(LeftText("abc", 2), "ab");
  EXPECT_EQ(LeftText("abc", 7), "abc");
  EXPECT_EQ(LeftText("abc", 0), "");
  EXPECT_EQ(RightText("abc", -1), "");
  EXPECT_EQ(MiddleText("abc", 1), "abc");
  EXPECT_EQ(MiddleText("abc", 3), "c");
  EXPECT_EQ(MiddleText("abc", 4), "");
  EXPECT_EQ(MiddleText("abc", 40), "");
  EXPECT_THROW(MiddleText("abc", 0), RuntimeError);
}

TEST(Values, TrimmingTakesBlanksAndTabs) {
  EXPECT_EQ(TrimText(" \ta b\t "), "a b");
  EXPECT_EQ(TrimText("  "), "");
  EXPECT_EQ(TrimText(""), "");
}

TEST(Values, AWholeNumberOfATextIsRoundedToTheEvenNeighbourAndNeverWraps) {
  const std::pair<const char*, int> cases[] = {{"3", 3},   {" -2 ", -2}, {"2.5", 2},
                                               {"3.5", 4}, {"", 0},      {"12 mph", 12}};
  for (const auto& [text, number] : cases) EXPECT_EQ(WholeNumber(text), number) << text;
  for (const char* text : {"4294967296", "-2147483649", "1e300"})
    EXPECT_THROW(WholeNumber(text), RuntimeError) << text;
}

TEST(Values, ANumberHasAtLeastThreeDigits) {
  for (const auto& [number, text] :
       {std::pair{0, "000"}, {7, "007"}, {42, "042"}, {123, "123"}, {1000, "1000"}}) {
    EXPECT_EQ(ThreeDigits(number), text);
  }
}

}  // namespace
}  // namespace skyloft
