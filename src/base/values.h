// Numbers and texts: how a text becomes a number and a number a text, and how numbers are rounded.
#pragma once

#include <string>
#include <string_view>

namespace skyloft {

// The number at the start of a text. Blanks and tabs are skipped anywhere; then an optional sign, digits, one
// ".", an exponent; reading stops at the first other character. Nothing read is 0: "066." is 66, "12 mph" is
// 12, "url" is 0, "1,000" is 1. Never fails (a number too large is the largest double), knows no locale.
double LenientNumber(std::string_view text);

// The whole text as a number, outer blanks allowed. Raises for anything else, "" too.
double StrictNumber(std::string_view text);

// Up to 15 significant digits, no trailing zeros or point, always ".": "0.01", "0.3" for 0.1 + 0.2, "-5".
std::string NumberText(double number);

// A whole number, not negative, with at least three digits: 7 is "007".
std::string ThreeDigits(int number);

// "True" or "False".
std::string BooleanText(bool value);

// Whole number nearest to `value`, halves to the even neighbour: 2.5 is 2, 3.5 is 4. Raises outside the range
// of long long.
long long RoundHalfEven(double value);
// The same at a number of decimals, done as scale, round, unscale: 1.15 to one decimal is 1.2.
double RoundHalfEven(double value, int decimals);
// The number at the start of a text, lenient, as a whole one, halves to even. Raises outside the range of
// int.
int WholeNumber(std::string_view text);
// Whole number nearest to `value`, halves away from zero: 3.5 is 4, -3.5 is -4.
long long RoundHalfAway(double value);
// floor(value + 0.5).
double RoundFloor(double value);

// a / b; raises when b is 0 or the result is no finite number.
double Divide(double a, double b);
// Whole-number division that cuts off toward zero; raises when b is 0.
long long DivideWhole(long long a, long long b);
// Square root; raises for a negative number.
double SquareRoot(double value);

// Upper and lower case of ASCII letters; other bytes are kept.
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
// The first or last `count` characters; a shorter text yields what there is.
std::string_view LeftText(std::string_view text, int count);
std::string_view RightText(std::string_view text, int count);
// The text from the character `first` on, counted from 1; "" past its end.
std::string_view MiddleText(std::string_view text, int first);
// `count` characters from there; fewer where the text ends.
std::string_view MiddleText(std::string_view text, int first, int count);
// Blanks and tabs cut off at both ends.
std::string_view TrimText(std::string_view text);

}  // namespace skyloft
