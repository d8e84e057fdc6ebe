#include "base/values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/guard.h"

namespace skyloft {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The longest start of `text` that has the shape of a number, without its leading "+"; "" when it has no
// digit.
std::string_view NumberPart(std::string_view text) {
  const std::size_t start = text.starts_with('+') ? 1 : 0;
  std::size_t at = start + (text.substr(start).starts_with('-') && start == 0 ? 1 : 0);
  const auto skip_digits = [&] {
    const std::size_t from = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at - from;
  };
  std::size_t digits = skip_digits();
  if (at < text.size() && text[at] == '.') {
    ++at;
    digits += skip_digits();
  }
  if (digits == 0) return {};
  const std::size_t mantissa_end = at;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    if (skip_digits() == 0) at = mantissa_end;
  }
  return text.substr(start, at - start);
}

// Whether a number outside the range of a double is too large rather than too small: its first digit other
// than 0 stands before the point once the exponent has moved it.
bool IsTooLarge(std::string_view number) {
  const std::size_t exponent_at = std::min(number.find_first_of("eE"), number.size());
  const std::string_view mantissa = number.substr(0, exponent_at);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
  if (first == mantissa.size()) return false;
  const long long place = static_cast<long long>(point) - static_cast<long long>(first);

  long long exponent = 0;
  std::string_view digits = number.substr(std::min(exponent_at + 1, number.size()));
  const bool is_negative = digits.starts_with('-');
  if (!digits.empty() && !IsDigit(digits[0])) digits.remove_prefix(1);
  for (const char c : digits) exponent = std::min(exponent * 10 + (c - '0'), 1'000'000'000'000LL);
  return place + (is_negative ? -exponent : exponent) > 0;
}

// The value of what NumberPart returned; infinite when it is too large.
double NumberValue(std::string_view number) {
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  if (!IsTooLarge(number)) return 0;
  return number.starts_with('-') ? -HUGE_VAL : HUGE_VAL;
}

long long ToWhole(double value) {
  constexpr double limit = 9223372036854775808.0;  // 2 to the 63
  if (!(value >= -limit && value < limit)) throw RuntimeError("number outside the range of whole numbers");
  return static_cast<long long>(value);
}

template <class Change>
std::string Changed(std::string_view text, Change change) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), change);
  return result;
}

std::size_t Clip(int count, std::size_t size) {
  return count <= 0 ? 0 : std::min(static_cast<std::size_t>(count), size);
}

}  // namespace

double LenientNumber(std::string_view text) {
  std::string without_blanks;
  for (const char c : text) {
    if (IsBlank(c)) continue;
    if (!IsDigit(c) && std::string_view("+-.eE").find(c) == std::string_view::npos) break;
    without_blanks += c;
  }
  constexpr double largest = std::numeric_limits<double>::max();
  return std::clamp(NumberValue(NumberPart(without_blanks)), -largest, largest);
}

double StrictNumber(std::string_view text) {
  const std::string_view trimmed = TrimText(text);
  const std::string_view number = NumberPart(trimmed);
  const std::size_t sign = trimmed.starts_with('+') ? 1 : 0;
  if (number.empty() || number.size() + sign != trimmed.size()) throw RuntimeError("the text is no number");
  const double value = NumberValue(number);
  if (!std::isfinite(value)) throw RuntimeError("the number is too large");
  return value;
}

std::string NumberText(double number) {
  if (!std::isfinite(number)) throw RuntimeError("no finite number");
  // Whole numbers are the most and the cheapest; the negative zero is one of them.
  if (std::abs(number) < 1e15 && number == std::trunc(number))
    return std::to_string(static_cast<long long>(number));
  std::array<char, 40> buffer;
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, 15);
  return {buffer.data(), result.ptr};
}

std::string ThreeDigits(int number) {
  const std::string digits = std::to_string(number);
  return std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

std::string BooleanText(bool value) { return value ? "True" : "False"; }

// nearbyint obeys the rounding mode, which nothing in the program changes from "to nearest, halves to even".
long long RoundHalfEven(double value) { return ToWhole(std::nearbyint(value)); }

double RoundHalfEven(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::nearbyint(value * scale) / scale;
}

int WholeNumber(std::string_view text) {
  const long long number = RoundHalfEven(LenientNumber(text));
  if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) {
    throw RuntimeError("no whole number in range: " + std::string(text));
  }
  return static_cast<int>(number);
}

long long RoundHalfAway(double value) { return ToWhole(std::round(value)); }

double RoundFloor(double value) { return std::floor(value + 0.5); }

double Divide(double a, double b) {
  if (b == 0) throw RuntimeError("division by zero");
  const double result = a / b;
  if (!std::isfinite(result)) throw RuntimeError("the quotient is no finite number");
  return result;
}

long long DivideWhole(long long a, long long b) {
  if (b == 0) throw RuntimeError("division by zero");
  if (b == -1 && a == std::numeric_limits<long long>::min()) throw RuntimeError("the quotient is too large");
  return a / b;
}

double SquareRoot(double value) {
  if (!(value >= 0)) throw RuntimeError("root of a negative number");
  return std::sqrt(value);
}

std::string UpperCase(std::string_view text) {
  return Changed(text, [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
}

std::string LowerCase(std::string_view text) {
  return Changed(text, [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
}

std::string_view LeftText(std::string_view text, int count) {
  return text.substr(0, Clip(count, text.size()));
}

std::string_view RightText(std::string_view text, int count) {
  return text.substr(text.size() - Clip(count, text.size()));
}

std::string_view MiddleText(std::string_view text, int first) {
  if (first < 1) throw RuntimeError("characters are counted from 1");
  return text.substr(Clip(first - 1, text.size()));
}

std::string_view MiddleText(std::string_view text, int first, int count) {
  return LeftText(MiddleText(text, first), count);
}

std::string_view TrimText(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace skyloft
