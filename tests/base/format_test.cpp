#include <gtest/gtest.h>

#include "base/dates.h"

namespace skyloft {
namespace {

struct FormatCase {
  const char* pattern;
  const char* text;
};

TEST(Format, FridayAfternoon) {
  const Date friday = MakeDate(2003, 3, 7, 14, 5, 9);
  const FormatCase cases[] = {
      {"h:nn:ss AM/PM", "2:05:09 PM"},
      {"hh", "14"},
      {"hh:nn mm/Dd/yyyy", "14:05 03/07/2003"},
      {"mmDdyyyyhhnn", "030720031405"},
      {"hh:mm AM/PM", "02:05 PM"},
      {"mm/Dd/yy", "03/07/03"},
      {"mm/Dd", "03/07"},
      {"h:nn AM/PM mm/Dd/yyyy", "2:05 PM 03/07/2003"},
      {"h:mm AMPM", "2:05 PM"},
      {"dddd h:mm AM/PM", "Friday 2:05 PM"},
      {", mmm Dd", ", Mar 07"},
      {"mmm Dd yyyy hh:mmAM/PM", "Mar 07 2003 02:05PM"},
      {"Ddd", "Fri"},
      {"h:nn am/pm ddd", "2:05 pm Fri"},
      {"h:nn AM/PM dddd", "2:05 PM Friday"},
      {"hh:mm AM/PM dddd mmm Dd yyyy", "02:05 PM Friday Mar 07 2003"},
      {"h AM/PM , dddd", "2 PM , Friday"},
      {"h:mm AM/PM ", "2:05 PM "},
      {"m/d/y", "3/7/03"},
      {"H:N:S", "14:5:9"},
      {"mmmm D", "March 7"},
      {"h:m", "14:5"},
      {"hh/mm", "14/03"},  // only ":" makes what follows minutes
      {"h mm", "14 03"},
      {"h:mmm", "14:Mar"},
      {"nn:mm", "05:03"},
      {"", ""},
      {"\x80?", "\x80?"},
  };
  for (const auto& c : cases) EXPECT_EQ(Format(friday, c.pattern), c.text) << c.pattern;
}

TEST(Format, TwelveHourClock) {
  const struct {
    int hour;
    const char* text;
  } cases[] = {{0, "12 AM"}, {1, "1 AM"}, {11, "11 AM"}, {12, "12 PM"}, {13, "1 PM"}, {23, "11 PM"}};
  for (const auto& c : cases) EXPECT_EQ(Format(MakeDate(2003, 3, 7, c.hour), "h AM/PM"), c.text);
  EXPECT_EQ(Format(MakeDate(2003, 3, 7), "hh:nn"), "00:00");
}

TEST(Format, NamesAreEnglish) {
  const char* const days[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(Format(MakeDate(2003, 3, 2 + i), "dddd"), days[i]);
  const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  for (int i = 0; i < 12; ++i) EXPECT_EQ(Format(MakeDate(2003, i + 1, 1), "mmm"), months[i]);
}

TEST(Format, TextThatIsNoDateStaysUnchanged) {
  EXPECT_EQ(Format("3/7/2003 2:05:09 PM", "hh:nn"), "14:05");
  EXPECT_EQ(Format("Unknown", "hh:nn"), "Unknown");
  EXPECT_EQ(Format("", "hh:nn"), "");
}

}  // namespace
}  // namespace skyloft
