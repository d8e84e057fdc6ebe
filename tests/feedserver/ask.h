// Asks the forecast feed and reads its replies for the tests.
#pragma once

#include <gtest/gtest.h>

#include "base/dates.h"
#include "base/values.h"
#include "feedserver/answer.h"
#include "scan.h"

namespace skyloft::feed {

inline const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);
inline constexpr char kWideRange[] = "st=1%2F1%2F2000&et=1%2F1%2F2099&t=xml";

inline Elements Ask(const std::string& query, Date now = kNow, std::uint64_t seed = 1) {
  const Reply reply = Answer({"/forecast.asp", query, now}, {.seed = seed});
  EXPECT_EQ(reply.status, 200) << query;
  return Scan(reply.body);
}

// A stamp of the feed; its form is checked letter by letter.
inline Date StampOf(const std::string& text) {
  const Date date = ReadDate(text);
  EXPECT_EQ(Format(date, "mmm Dd yyyy hh:mmAM/PM"), text);
  return date;
}

inline std::vector<double> Numbers(const Elements& elements, const char* tag) {
  std::vector<double> numbers;
  for (const auto& value : Values(elements, tag)) numbers.push_back(StrictNumber(value));
  return numbers;
}

}  // namespace skyloft::feed
