#include "base/dates.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "base/guard.h"

namespace skyloft {
namespace {

TEST(Dates, CountFromTheirFirstDay) {
  EXPECT_EQ(MakeDate(1899, 12, 30).seconds, 0);
  EXPECT_EQ(MakeDate(1899, 12, 31, 0, 0, 1).seconds, 86401);
  EXPECT_EQ(MakeDate(1899, 12, 29).seconds, -86400);
  EXPECT_EQ(MakeDate(1970, 1, 1).seconds, 25569LL * 86400);  // the days from 30 December 1899 to 1970
}

TEST(Dates, PartsAreThoseTheDateWasMadeOf) {
  const DateParts parts = PartsOf(MakeDate(2003, 3, 7, 14, 5, 9));
  EXPECT_EQ(parts.year, 2003);
  EXPECT_EQ(parts.month, 3);
  EXPECT_EQ(parts.day, 7);
  EXPECT_EQ(parts.hour, 14);
  EXPECT_EQ(parts.minute, 5);
  EXPECT_EQ(parts.second, 9);
  EXPECT_EQ(parts.weekday, 6);  // a Friday
  EXPECT_EQ(PartsOf(MakeDate(1899, 12, 29, 23, 0, 0)).hour, 23);
  EXPECT_EQ(PartsOf(MakeDate(1899, 12, 30)).weekday, 7);
}

TEST(Dates, ThereIsNoSuchDayOrTime) {
  EXPECT_THROW(MakeDate(2003, 2, 29), RuntimeError);
  EXPECT_NO_THROW(MakeDate(2004, 2, 29));
  EXPECT_THROW(MakeDate(1900, 2, 29), RuntimeError);
  EXPECT_THROW(MakeDate(2003, 13, 1), RuntimeError);
  EXPECT_THROW(MakeDate(2003, 0, 1), RuntimeError);
  EXPECT_THROW(MakeDate(2003, 257, 1), RuntimeError);
  EXPECT_THROW(MakeDate(2003, 1, -1), RuntimeError);
  EXPECT_THROW(MakeDate(99, 1, 1), RuntimeError);
  EXPECT_THROW(MakeDate(10000, 1, 1), RuntimeError);
  EXPECT_THROW(MakeDate(2003, 1, 1, 24), RuntimeError);
  EXPECT_THROW(MakeDate(2003, 1, 1, 0, 60), RuntimeError);
  EXPECT_THROW(MakeDate(2003, 1, 1, 0, 0, -1), RuntimeError);
  EXPECT_THROW(PartsOf({std::numeric_limits<std::int64_t>::max()}), RuntimeError);
}

TEST(Dates, EveryFormIsRead) {
  const Date afternoon = MakeDate(2003, 3, 7, 14, 5, 0);
  const struct {
    const char* text;
    Date date;
  } cases[] = {
      {"3/7/2003 2:05:09 PM", MakeDate(2003, 3, 7, 14, 5, 9)},
      {"3/7/2003 2:05 PM", afternoon},
      {"3/7/2003", MakeDate(2003, 3, 7)},
      {"03/07/2003", MakeDate(2003, 3, 7)},
      {"2:05:00 PM", MakeDate(1899, 12, 30, 14, 5, 0)},
      {"12:00:00 AM", MakeDate(1899, 12, 30)},
      {"12:30 PM", MakeDate(1899, 12, 30, 12, 30, 0)},
      {"17:30", MakeDate(1899, 12, 30, 17, 30, 0)},
      {"14:05 03/07/2003", afternoon},
      {"02:05 PM 03/07/03", afternoon},
      {"2003/3/7 14:05:00", afternoon},
      {"2003-03-07 14:05:00", afternoon},
      {"2003-03-07T14:05:00", afternoon},
      {"2003-03-07", MakeDate(2003, 3, 7)},
      {"Mar  7 2003  2:05PM", afternoon},
      {"Mar 07 2003 02:05PM", afternoon},
      {"mar 7 2003 2:05pm", afternoon},
      {"March 7 2003 14:05", afternoon},
      {" \t3/7/2003 14:05 ", afternoon},
      {"3/7/03", MakeDate(2003, 3, 7)},
      {"12/31/99", MakeDate(2099, 12, 31)},
  };
  for (const auto& c : cases) {
    Date date;
    EXPECT_TRUE(TryReadDate(c.text, date)) << c.text;
    EXPECT_EQ(DateText(date), DateText(c.date)) << c.text;
    EXPECT_EQ(date, c.date) << c.text;
  }
}

TEST(Dates, OtherTextsAreNoDates) {
  for (const char* text : {"",
                           " ",
                           "24:00",
                           "abc",
                           "12",
                           "3/7",
                           "3/7/2003x",
                           "2/29/2003",
                           "13/1/2003",
                           "3/7-2003",
                           "3/7/20031",
                           "10:60",
                           "10:00:60",
                           "13:00 PM",
                           "10:",
                           "10:00:",
                           ":10",
                           "100:00",
                           "10:00 XM",
                           "10:00 PMx",
                           "3/7/2003T",
                           "Mar 2003",
                           "Mai 7 2003",
                           "Mar7 2003",
                           "3/7/2003 10:00 3/7/2003",
                           "10:00 11:00",
                           "99999999999/1/1",
                           "10:99999999999",
                           "2003-03-07-10:00",
                           "2003/3/7/",
                           "0/0/0",
                           "3/7/99999999999",
                           "10:003/7/2003"}) {
    Date date{42};
    EXPECT_FALSE(TryReadDate(text, date)) << text;
    EXPECT_EQ(date.seconds, 42) << text;
    EXPECT_THROW(ReadDate(text), RuntimeError) << text;
  }
}

TEST(Dates, HostileBytesAreNoDates) {
  Date date;
  EXPECT_FALSE(TryReadDate(std::string(100000, '9'), date));
  EXPECT_FALSE(TryReadDate(std::string(100000, ':'), date));
  EXPECT_FALSE(TryReadDate(std::string_view("3/7/2003\0", 9), date));
  EXPECT_FALSE(TryReadDate("\xFF\xFE/\x80", date));
}

TEST(Dates, GeneralFormLeavesOutWhatIsNothing) {
  EXPECT_EQ(DateText(MakeDate(2003, 3, 7, 14, 15, 0)), "3/7/2003 2:15:00 PM");
  EXPECT_EQ(DateText(MakeDate(2003, 3, 7)), "3/7/2003");
  EXPECT_EQ(DateText(MakeDate(1899, 12, 30, 14, 15, 0)), "2:15:00 PM");
  EXPECT_EQ(DateText(MakeDate(1899, 12, 30)), "12:00:00 AM");
  EXPECT_EQ(DateText(MakeDate(2003, 3, 7, 0, 0, 1)), "3/7/2003 12:00:01 AM");
  EXPECT_EQ(DateText(MakeDate(2003, 12, 31, 12, 0, 0)), "12/31/2003 12:00:00 PM");
}

TEST(Dates, GeneralFormIsReadBack) {
  for (const Date date :
       {MakeDate(100, 1, 1), MakeDate(9999, 12, 31, 23, 59, 59), MakeDate(1899, 12, 30),
        MakeDate(1899, 12, 29, 1, 2, 3), MakeDate(2004, 2, 29, 12, 0, 0), MakeDate(150, 6, 5, 0, 0, 7)}) {
    EXPECT_EQ(ReadDate(DateText(date)), date) << DateText(date);
  }
}

TEST(Dates, AddingGoesOverTheEndOfDays) {
  const Date evening = MakeDate(2003, 2, 28, 23, 30, 0);
  EXPECT_EQ(DateAdd(DateUnit::Hours, 1, evening), MakeDate(2003, 3, 1, 0, 30, 0));
  EXPECT_EQ(DateAdd(DateUnit::Hours, -24, evening), MakeDate(2003, 2, 27, 23, 30, 0));
  EXPECT_EQ(DateAdd(DateUnit::Minutes, 30, evening), MakeDate(2003, 3, 1));
  EXPECT_EQ(DateAdd(DateUnit::Seconds, 1800, evening), MakeDate(2003, 3, 1));
}

TEST(Dates, AddingBeyondTheKnownYearsRaises) {
  const Date last = MakeDate(9999, 12, 31, 23, 59, 59);
  EXPECT_THROW(DateAdd(DateUnit::Seconds, 1, last), RuntimeError);
  EXPECT_THROW(DateAdd(DateUnit::Seconds, -1, MakeDate(100, 1, 1)), RuntimeError);
  EXPECT_THROW(DateAdd(DateUnit::Hours, std::numeric_limits<std::int64_t>::max(), last), RuntimeError);
  EXPECT_THROW(DateAdd(DateUnit::Hours, std::numeric_limits<std::int64_t>::min(), last), RuntimeError);
}

TEST(Dates, ArithmeticOnNoDateRaises) {
  EXPECT_THROW(DateAdd(DateUnit::Hours, 1, ReadDate("abc")), RuntimeError);
  EXPECT_THROW(DateDiff(DateUnit::Hours, ReadDate("3/7/2003"), ReadDate("")), RuntimeError);
  EXPECT_THROW(PartsOf(ReadDate("24:00")), RuntimeError);
}

TEST(Dates, DifferenceCountsBoundariesCrossed) {
  const Date before = MakeDate(2003, 3, 7, 10, 59, 0);
  const Date after = MakeDate(2003, 3, 7, 11, 0, 0);
  EXPECT_EQ(DateDiff(DateUnit::Hours, before, after), 1);
  EXPECT_EQ(DateDiff(DateUnit::Hours, after, before), -1);
  EXPECT_EQ(DateDiff(DateUnit::Hours, after, MakeDate(2003, 3, 7, 11, 59, 59)), 0);
  EXPECT_EQ(DateDiff(DateUnit::Minutes, before, after), 1);
  EXPECT_EQ(DateDiff(DateUnit::Minutes, MakeDate(2003, 3, 7, 10, 59, 59), after), 1);
  EXPECT_EQ(DateDiff(DateUnit::Minutes, before, MakeDate(2003, 3, 7, 10, 59, 59)), 0);
  EXPECT_EQ(DateDiff(DateUnit::Seconds, before, after), 60);
  EXPECT_EQ(DateDiff(DateUnit::Hours, MakeDate(1899, 12, 29, 23, 59, 59), MakeDate(1899, 12, 30)), 1);
}

}  // namespace
}  // namespace skyloft
