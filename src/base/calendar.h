// What reading, writing and counting dates share inside base/: names, limits and the seconds of a day.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace skyloft::calendar {

constexpr std::int64_t kDaySeconds = 86400;

inline constexpr std::array<std::string_view, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                              "Thursday", "Friday", "Saturday"};
inline constexpr std::array<std::string_view, 12> kMonths = {"January",   "February", "March",    "April",
                                                             "May",       "June",     "July",     "August",
                                                             "September", "October",  "November", "December"};

// Division that cuts off downward, for moments before day 0.
constexpr std::int64_t FloorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsLetter(char c) { return Lower(c) >= 'a' && Lower(c) <= 'z'; }

// Equal but for the case of letters.
bool SameWord(std::string_view a, std::string_view b);

// Seconds of a day's midnight; nothing when there is no such day.
std::optional<std::int64_t> SecondsOfDay(int year, int month, int day);
// Seconds since midnight; nothing when there is no such time.
std::optional<std::int64_t> SecondsOfTime(int hour, int minute, int second);

}  // namespace skyloft::calendar
