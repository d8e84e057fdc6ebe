// How a text becomes a date.
#include <algorithm>

#include "base/calendar.h"
#include "base/dates.h"
#include "base/guard.h"
#include "base/values.h"

namespace skyloft {
namespace {

using namespace calendar;

struct DayFields {
  int year = 0, month = 0, day = 0;
};

// Walks over a text and takes pieces off its front; each Take... says whether the piece was there.
class DateScanner {
 public:
  explicit DateScanner(std::string_view text) : rest_(TrimText(text)) {}

  bool AtEnd() const { return rest_.empty(); }

  bool AtTime() const {
    std::size_t digits = 0;
    while (digits < rest_.size() && IsDigit(rest_[digits])) ++digits;
    return digits > 0 && digits < rest_.size() && rest_[digits] == ':';
  }

  bool TakeBlanks() {
    const std::size_t before = rest_.size();
    rest_ = rest_.substr(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
    return rest_.size() < before;
  }

  bool TakeMark(char mark) {
    if (!rest_.starts_with(mark)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  std::optional<std::int64_t> TakeTime() {
    int hour = 0, minute = 0, second = 0;
    if (!TakeNumber(hour, 2) || !TakeMark(':') || !TakeNumber(minute, 2)) return {};
    if (TakeMark(':') && !TakeNumber(second, 2)) return {};
    const std::string_view after_digits = rest_;
    TakeBlanks();
    const std::string_view half = TakeWord();
    const bool is_pm = SameWord(half, "PM");
    if (is_pm || SameWord(half, "AM")) {
      if (hour > 12) return {};
      hour = hour % 12 + (is_pm ? 12 : 0);
    } else {
      rest_ = after_digits;
    }
    return SecondsOfTime(hour, minute, second);
  }

  std::optional<std::int64_t> TakeDay() {
    DayFields fields;
    const bool is_read = !rest_.empty() && IsLetter(rest_[0]) ? TakeNamedDay(fields) : TakeNumericDay(fields);
    return is_read ? SecondsOfDay(fields.year, fields.month, fields.day) : std::nullopt;
  }

 private:
  // At most `most_digits` digits, and no digit after them.
  bool TakeNumber(int& number, std::size_t most_digits) {
    std::size_t digits = 0;
    number = 0;
    for (; digits < rest_.size() && digits <= most_digits && IsDigit(rest_[digits]); ++digits) {
      number = number * 10 + (rest_[digits] - '0');
    }
    rest_.remove_prefix(digits);
    return digits > 0 && digits <= most_digits;
  }

  std::string_view TakeWord() {
    std::size_t letters = 0;
    while (letters < rest_.size() && IsLetter(rest_[letters])) ++letters;
    const std::string_view word = rest_.substr(0, letters);
    rest_.remove_prefix(letters);
    return word;
  }

  // One or two digits are a year of this century.
  bool TakeYear(int& year) {
    const std::size_t before = rest_.size();
    if (!TakeNumber(year, 4)) return false;
    if (before - rest_.size() <= 2) year += 2000;
    return true;
  }

  // "Mar  7 2003"
  bool TakeNamedDay(DayFields& fields) {
    const std::string_view name = TakeWord();
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
      const bool is_named = SameWord(name, kMonths[i]) || SameWord(name, kMonths[i].substr(0, 3));
      if (is_named) fields.month = static_cast<int>(i) + 1;
    }
    return TakeBlanks() && TakeNumber(fields.day, 2) && TakeBlanks() && TakeYear(fields.year);
  }

  // "3/7/2003", or with the year first: "2003/3/7", "2003-03-07"
  bool TakeNumericDay(DayFields& fields) {
    int first = 0;
    const std::size_t before = rest_.size();
    if (!TakeNumber(first, 4)) return false;
    const bool has_year_first = before - rest_.size() > 2;
    const char mark = rest_.starts_with('-') ? '-' : '/';
    if (!TakeMark(mark)) return false;
    if (has_year_first) {
      fields.year = first;
      return TakeNumber(fields.month, 2) && TakeMark(mark) && TakeNumber(fields.day, 2);
    }
    fields.month = first;
    return TakeNumber(fields.day, 2) && TakeMark(mark) && TakeYear(fields.year);
  }

  std::string_view rest_;
};

// A time, alone or before a day.
std::optional<std::int64_t> ReadTimeFirst(DateScanner& scanner) {
  const auto time = scanner.TakeTime();
  if (!time || scanner.AtEnd()) return time;
  if (!scanner.TakeBlanks()) return {};
  const auto midnight = scanner.TakeDay();
  if (!midnight) return {};
  return *midnight + *time;
}

// A day, alone or before a time.
std::optional<std::int64_t> ReadDayFirst(DateScanner& scanner) {
  const auto midnight = scanner.TakeDay();
  if (!midnight || scanner.AtEnd()) return midnight;
  if (!scanner.TakeMark('T') && !scanner.TakeBlanks()) return {};
  const auto time = scanner.TakeTime();
  if (!time) return {};
  return *midnight + *time;
}

}  // namespace

bool TryReadDate(std::string_view text, Date& date) {
  DateScanner scanner(text);
  const auto seconds = scanner.AtTime() ? ReadTimeFirst(scanner) : ReadDayFirst(scanner);
  if (!seconds || !scanner.AtEnd()) return false;
  date.seconds = *seconds;
  return true;
}

Date ReadDate(std::string_view text) {
  Date date;
  if (!TryReadDate(text, date)) throw RuntimeError("the text is no date");
  return date;
}

}  // namespace skyloft
