// How a date becomes a text.
#include "base/calendar.h"
#include "base/dates.h"
#include "base/values.h"

namespace skyloft {
namespace {

using namespace calendar;

std::string Digits(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

std::string NameOrDigits(int number, std::size_t length, std::string_view name) {
  if (length <= 2) return Digits(number, length);
  return std::string(length == 3 ? name.substr(0, 3) : name);
}

// The AM/PM mark at the front of a pattern, "" when there is none.
std::string_view HalfDayMark(std::string_view pattern) {
  for (const std::size_t length : {5u, 4u}) {
    const std::string_view mark = pattern.substr(0, length);
    if (SameWord(mark, length == 5 ? "AM/PM" : "AMPM")) return mark;
  }
  return {};
}

bool HasHalfDayMark(std::string_view pattern) {
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (!HalfDayMark(pattern.substr(i)).empty()) return true;
  }
  return false;
}

// The run of the pattern's first letter: "mmm", "Dd". Years and names have at most four letters, times two.
std::string_view LetterRun(std::string_view pattern) {
  const char letter = Lower(pattern[0]);
  const std::size_t most = letter == 'd' || letter == 'm' || letter == 'y' ? 4 : 2;
  std::size_t length = 1;
  while (length < most && length < pattern.size() && Lower(pattern[length]) == letter) ++length;
  return pattern.substr(0, length);
}

// The value of one run of letters; a run that is none of the pattern's letters is itself.
std::string RunText(const DateParts& parts, std::string_view run, bool is_after_hour, bool is_half_day) {
  const std::size_t length = run.size();
  switch (Lower(run[0])) {
    case 'd':
      return NameOrDigits(length <= 2 ? parts.day : parts.weekday, length,
                          kWeekdays[static_cast<std::size_t>(parts.weekday - 1)]);
    case 'm':
      if (is_after_hour && length <= 2) return Digits(parts.minute, length);
      return NameOrDigits(parts.month, length, kMonths[static_cast<std::size_t>(parts.month - 1)]);
    case 'y': return length <= 2 ? Digits(parts.year % 100, 2) : Digits(parts.year, 4);
    case 'h': return Digits(is_half_day ? (parts.hour + 11) % 12 + 1 : parts.hour, length);
    case 'n': return Digits(parts.minute, length);
    case 's': return Digits(parts.second, length);
    default: return std::string(run);
  }
}

}  // namespace

std::string DateText(Date date) {
  const DateParts parts = PartsOf(date);
  const std::int64_t day_count = FloorDivide(date.seconds, kDaySeconds);
  const std::string time = Format(date, "h:nn:ss AM/PM");
  if (day_count == 0) return time;
  // Not by a pattern: three digits of a year stay three, and are read as such.
  const std::string day_text =
      std::to_string(parts.month) + '/' + std::to_string(parts.day) + '/' + std::to_string(parts.year);
  return date.seconds == day_count * kDaySeconds ? day_text : day_text + ' ' + time;
}

std::string Format(Date date, std::string_view pattern) {
  const DateParts parts = PartsOf(date);
  const bool is_half_day = HasHalfDayMark(pattern);
  bool is_after_hour = false;
  std::string text;
  while (!pattern.empty()) {
    const std::string_view mark = HalfDayMark(pattern);
    if (!mark.empty()) {
      const std::string half = parts.hour < 12 ? "AM" : "PM";
      text += mark == "am/pm" ? LowerCase(half) : half;
      pattern.remove_prefix(mark.size());
      is_after_hour = false;
      continue;
    }
    const std::string_view run = LetterRun(pattern);
    text += RunText(parts, run, is_after_hour, is_half_day);
    pattern.remove_prefix(run.size());
    is_after_hour = Lower(run[0]) == 'h' || (is_after_hour && run.find_first_not_of(':') == run.npos);
  }
  return text;
}

std::string Format(std::string_view date_text, std::string_view pattern) {
  Date date;
  return TryReadDate(date_text, date) ? Format(date, pattern) : std::string(date_text);
}

}  // namespace skyloft
