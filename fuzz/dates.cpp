// The first line is a date in any form, the second a pattern.
#include <string_view>

#include "base/dates.h"
#include "base/guard.h"
#include "require.h"

namespace skyloft {
namespace {

void UseDate(Date date, std::string_view pattern) {
  Require(ReadDate(DateText(date)) == date, "a date reads back from its own text");
  const DateParts parts = PartsOf(date);
  Require(MakeDate(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second) == date,
          "a date is made again of its parts");
  Require(Format(date, "m/d/yyyy") == Format(DateText(date), "m/d/yyyy"), "a date formats like its text");
  Format(date, pattern);
  for (DateUnit unit : {DateUnit::Seconds, DateUnit::Minutes, DateUnit::Hours}) {
    Guarded([&] { Require(DateDiff(unit, date, DateAdd(unit, 67, date)) == 67, "what is added differs"); });
  }
}

void ReadBytes(std::string_view text, std::string_view pattern) {
  Date date;
  if (TryReadDate(text, date)) {
    UseDate(date, pattern);
  } else {
    Require(!Guarded([&] { ReadDate(text); }), "both readers take the same texts");
    Require(Format(text, pattern) == text, "what is no date stays as it is");
  }
}

}  // namespace
}  // namespace skyloft

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(bytes), size);
  const std::size_t end = input.find('\n');
  if (end == std::string_view::npos) {
    skyloft::ReadBytes(input, "mm/dd/yy hh:mm AMPM");
  } else {
    skyloft::ReadBytes(input.substr(0, end), input.substr(end + 1));
  }
  return 0;
}
