#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "ask.h"
#include "feedserver/places.h"

namespace skyloft::feed {
namespace {

std::multiset<std::string> Tags(const Elements& elements) {
  std::multiset<std::string> tags;
  for (const auto& [tag, value] : elements) tags.insert(tag);
  return tags;
}

TEST(Meta, HasAStampForEveryLocationAndTwoOfTheModel) {
  const Elements meta = Ask("t=xml&d=meta&pc=66044&pc=33131&pc=80202");
  ASSERT_EQ(meta.size(), 5u);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(meta[static_cast<std::size_t>(i)].first, "Obs_TS_UTC");
  EXPECT_EQ(meta[3].first, "Model_TS_UTC");
  EXPECT_EQ(meta[4].first, "Model_TS_UTC_Trip");
  const Elements reversed = Ask("t=xml&d=meta&pc=80202&pc=33131&pc=66044");
  EXPECT_EQ(reversed[0], meta[2]);
  EXPECT_EQ(reversed[2], meta[0]);
}

TEST(Meta, ObservationsMoveEveryTwentyMinutesAtTheirOwnMinute) {
  std::set<int> minutes;
  for (const char* postal_code : {"66044", "33131", "80202", "98101", "04101"}) {
    std::set<Date> stamps;
    for (int minute = 0; minute < 60; ++minute) {
      const Date now = DateAdd(DateUnit::Minutes, minute, kNow), old = MakeDate(1850, 6, 1, 12, minute, 0);
      EXPECT_LE(StampOf(First(Ask(std::string("t=xml&d=meta&pc=") + postal_code, old), "Obs_TS_UTC")), old);
      const Date stamp =
          StampOf(First(Ask(std::string("t=xml&d=meta&pc=") + postal_code, now), "Obs_TS_UTC"));
      EXPECT_LE(stamp, now);
      EXPECT_LT(DateDiff(DateUnit::Seconds, stamp, now), 20 * 60);
      stamps.insert(stamp);
    }
    EXPECT_GE(stamps.size(), 3u);
    EXPECT_LE(stamps.size(), 4u);
    minutes.insert(PartsOf(*stamps.begin()).minute % 20);
  }
  EXPECT_GE(minutes.size(), 3u);
}

TEST(Meta, ModelIsTheNewestRunThreeHoursOld) {
  const struct {
    const char *now, *run;
  } cases[] = {{"2003-03-07 20:59:59", "Mar 07 2003 12:00PM"},
               {"2003-03-07 21:00:00", "Mar 07 2003 06:00PM"},
               {"2003-03-08 02:59:59", "Mar 07 2003 06:00PM"},
               {"2003-03-08 03:00:00", "Mar 08 2003 12:00AM"},
               {"2003-03-08 09:00:00", "Mar 08 2003 06:00AM"},
               // The calendar counts its days from the 30th.
               {"1899-12-30 02:59:59", "Dec 29 1899 06:00PM"},
               {"1850-06-01 12:00:00", "Jun 01 1850 06:00AM"}};
  for (const auto& c : cases) {
    const Elements meta = Ask("t=xml&d=meta&pc=66044", ReadDate(c.now));
    EXPECT_EQ(First(meta, "Model_TS_UTC"), c.run) << c.now;
    EXPECT_EQ(First(meta, "Model_TS_UTC_Trip"), c.run) << c.now;
  }
}

TEST(Current, HasABlockForEveryLocationInOrder) {
  const Elements current = Ask("t=xml&d=current&pc=33131&pc=66044");
  const std::multiset<std::string> block = {"City", "City", "State", "State", "Lt",    "SkyID",
                                            "Desc", "Ic",   "Tf",    "At",    "Df",    "Rh",
                                            "Wd",   "Ws",   "Vi",    "Avg_H", "Avg_L", "Slp"};
  ASSERT_EQ(current.size(), 2 * block.size());
  const auto middle = current.begin() + static_cast<std::ptrdiff_t>(block.size());
  EXPECT_EQ(Tags({current.begin(), middle}), block);
  EXPECT_EQ(Tags({middle, current.end()}), block);
  const auto cities = Values(current, "City");
  EXPECT_EQ(cities[1], "Miami");
  EXPECT_EQ(cities[3], "Lawrence");
  EXPECT_NE(cities[0], cities[1]);  // the station
  EXPECT_EQ(Values(current, "State"), (std::vector<std::string>{"FL", "FL", "KS", "KS"}));
}

TEST(Current, ReadingIsOfTheMomentOfItsStamp) {
  const Date stamp = StampOf(First(Ask("t=xml&d=meta&pc=66044"), "Obs_TS_UTC"));
  const Elements current = Ask("t=xml&d=current&pc=66044");
  EXPECT_EQ(StampOf(First(current, "Lt")), LocalTime(*FindPlace("66044"), stamp));
  const Weather weather = WeatherAt(FindPlace("66044")->point, stamp, 1);
  EXPECT_NEAR(StrictNumber(First(current, "Tf")), weather.temperature, 0.5);
  EXPECT_NEAR(StrictNumber(First(current, "Slp")), weather.pressure, 0.005001);
}

TEST(Current, PointHasTheNamesOfThePlaceNearby) {
  const Elements current = Ask("t=xml&d=current&lat=38.97&long=-95.24");
  EXPECT_EQ(Values(current, "City").size(), 2u);
  EXPECT_EQ(Values(current, "City")[1], "Lawrence");
  EXPECT_EQ(Values(current, "Tf").size(), 1u);
  const Elements south = Ask("t=xml&d=current&lat=30&long=-95.1");
  EXPECT_NE(First(current, "Slp") + First(current, "Tf"), First(south, "Slp") + First(south, "Tf"));
}

TEST(Current, NumbersHaveTheirForms) {
  const Elements current = Ask("t=xml&d=current&pc=66044&pc=33131&pc=99501&pc=96813");
  const auto has_decimals = [](const std::string& value, std::size_t decimals) {
    const std::size_t point = value.find('.');
    return decimals == 0 ? point == value.npos : value.size() - point == decimals + 1;
  };
  const struct {
    const char* tag;
    std::size_t decimals;
    double least, most;
  } cases[] = {{"Tf", 0, -60, 125},    {"Df", 0, -99, 125},    {"At", 0, -120, 200}, {"Rh", 0, 0, 100},
               {"Ws", 0, 0, 75},       {"Wd", 0, 0, 360},      {"Vi", 1, 0.1, 10},   {"Slp", 2, 29, 31},
               {"Avg_H", 0, -60, 125}, {"Avg_L", 0, -60, 125}, {"SkyID", 0, 1, 40}};
  for (const auto& c : cases) {
    for (const auto& value : Values(current, c.tag)) {
      EXPECT_TRUE(has_decimals(value, c.decimals)) << c.tag << ' ' << value;
      EXPECT_GE(StrictNumber(value), c.least) << c.tag;
      EXPECT_LE(StrictNumber(value), c.most) << c.tag;
    }
  }
}

TEST(History, HasTheLastTwoDaysNewestFirst) {
  const Elements history = Ask("t=xml&d=currenthistorical&pc=66044");
  for (const char* tag : {"Lt", "Ic", "Desc", "Tf", "Df", "Rh", "Wd", "Ws", "Vi"}) {
    EXPECT_EQ(Values(history, tag).size(), 48u) << tag;
  }
  const auto stamps = Values(history, "Lt");
  EXPECT_EQ(stamps.front(), "Mar 07 2003 02:00PM");  // the last full hour in Kansas
  for (std::size_t i = 1; i < stamps.size(); ++i) {
    EXPECT_EQ(DateDiff(DateUnit::Seconds, StampOf(stamps[i]), StampOf(stamps[i - 1])), 3600);
  }
}

TEST(Hourly, HasSixtySixHoursFromTheRunOn) {
  const struct {
    const char *now, *first;
  } cases[] = {{"2003-03-07 20:05:00", "Mar 07 2003 01:00PM"},
               {"2003-03-07 22:05:00", "Mar 07 2003 07:00PM"},
               {"2003-03-08 04:05:00", "Mar 08 2003 01:00AM"},
               {"2003-03-08 10:05:00", "Mar 08 2003 07:00AM"}};
  for (const auto& c : cases) {
    const Elements hourly = Ask(std::string(kWideRange) + "&pc=66044&pc=33131", ReadDate(c.now));
    for (const char* tag : {"Ut", "Lt", "Desc", "Ic", "Tf", "Df", "Rh", "At", "Wd", "Ws", "Rn", "Sn"}) {
      EXPECT_EQ(Values(hourly, tag).size(), 132u) << tag;
    }
    const auto stamps = Values(hourly, "Ut");
    for (std::size_t i = 0; i < stamps.size(); ++i) {
      const auto hours = static_cast<std::int64_t>(i % 66);
      EXPECT_EQ(StampOf(stamps[i]), DateAdd(DateUnit::Hours, hours, ReadDate(c.first)));
    }
  }
}

TEST(Hourly, AgreesWithTheReading) {
  for (const std::string postal_code : {"66044", "33131", "80202", "98101", "04101"}) {
    for (int hour = 0; hour < 48; hour += 5) {
      const Date now = DateAdd(DateUnit::Hours, hour, kNow);
      const Date stamp = StampOf(First(Ask("t=xml&d=meta&pc=" + postal_code, now), "Obs_TS_UTC"));
      const Elements current = Ask("t=xml&d=current&pc=" + postal_code, now);
      const Elements hourly = Ask(kWideRange + ("&pc=" + postal_code), now);
      const auto stamps = Values(hourly, "Ut");
      const Date whole_hour{stamp.seconds - stamp.seconds % 3600};
      const auto row =
          std::ranges::find(stamps, Format(whole_hour, "mmm Dd yyyy hh:mmAM/PM")) - stamps.begin();
      ASSERT_LT(row, 66);
      const double forecast = Numbers(hourly, "Tf")[static_cast<std::size_t>(row)];
      EXPECT_NEAR(forecast, StrictNumber(First(current, "Tf")), 5) << postal_code << ' ' << hour;
    }
  }
}

TEST(Hourly, StopOfATripIsASingleHourOfTheClockThere) {
  const Elements stop = Ask("st=3%2F8%2F03+3%3A00%3A00+AM&et=3%2F8%2F03+3%3A00%3A00+AM&t=xml&pc=66044");
  EXPECT_EQ(First(stop, "Ut"), "Mar 08 2003 09:00AM");
  EXPECT_EQ(First(stop, "Lt"), "Mar 08 2003 03:00AM");
  EXPECT_EQ(First(stop, "city_state"), "Lawrence, KS");
  EXPECT_EQ(stop.size(), 13u);
  const Elements hourly = Ask(std::string(kWideRange) + "&pc=66044");
  const auto stamps = Values(hourly, "Ut");
  const auto row =
      static_cast<std::size_t>(std::ranges::find(stamps, "Mar 08 2003 09:00AM") - stamps.begin());
  ASSERT_LT(row, stamps.size());
  for (const char* tag : {"Desc", "Tf", "Df", "Wd", "Ws", "Rn", "Sn"})
    EXPECT_EQ(First(stop, tag), Values(hourly, tag)[row]);
  EXPECT_TRUE(Ask("st=noon&et=noon&t=xml&pc=66044").empty());
  EXPECT_TRUE(Ask("st=12/31/9999+11:00:00+PM&et=12/31/9999+11:00:00+PM&t=xml&pc=66044").empty())
      << "in GMT it is no date";
}

TEST(Extended, HasTwentyFivePeriodsFromTheEndOfTheHourlyForecastOn) {
  const struct {
    const char *now, *first;
  } cases[] = {{"2003-03-07 20:05:00", "Mar 10 2003 12:00PM"},   // run at 12
               {"2003-03-07 22:05:00", "Mar 10 2003 12:00PM"},   // run at 18
               {"2003-03-08 04:05:00", "Mar 11 2003 12:00AM"},   // run at 0
               {"2003-03-08 10:05:00", "Mar 11 2003 12:00AM"}};  // run at 6
  for (const auto& c : cases) {
    const Elements extended = Ask("t=xml&fcsttype=extended&pc=66044&pc=33131", ReadDate(c.now));
    for (const char* tag : {"Ut", "Desc", "Ic", "Th", "Tl", "Rn", "Sn", "Wd", "Ws"}) {
      EXPECT_EQ(Values(extended, tag).size(), 50u) << tag;
    }
    const auto stamps = Values(extended, "Ut");
    for (std::size_t i = 0; i < stamps.size(); ++i) {
      const auto hours = static_cast<std::int64_t>(i % 25) * 12;
      EXPECT_EQ(StampOf(stamps[i]), DateAdd(DateUnit::Hours, hours, ReadDate(c.first)));
    }
  }
}

TEST(Extended, PeriodsAreTheExtremesAndSumsOfTheirHours) {
  for (std::uint64_t seed = 1; seed < 6; ++seed) {
    const Elements extended = Ask("t=xml&fcsttype=extended&pc=98101", kNow, seed);
    for (std::size_t period = 0; period < 5; ++period) {
      const Date end = StampOf(Values(extended, "Ut")[period]);
      std::vector<double> temperatures;
      double rain = 0;
      for (int i = 0; i < 12; ++i) {
        const std::string hour = DateText(DateAdd(DateUnit::Hours, -i, LocalTime(*FindPlace("98101"), end)));
        const Elements stop = Ask("st=" + hour + "&et=" + hour + "&t=xml&pc=98101", kNow, seed);
        temperatures.push_back(Numbers(stop, "Tf")[0]);
        rain += Numbers(stop, "Rn")[0];
      }
      const auto [low, high] = std::minmax_element(temperatures.begin(), temperatures.end());
      EXPECT_EQ(Numbers(extended, "Th")[period], *high);
      EXPECT_EQ(Numbers(extended, "Tl")[period], *low);
      EXPECT_NEAR(Numbers(extended, "Rn")[period], rain, 12 * 0.005 + 0.005);  // each hour is rounded
    }
  }
}

TEST(Forecast, AmountsOfNothingArePlain) {
  const Elements hourly = Ask(std::string(kWideRange) + "&pc=66044&pc=33131&pc=99501&pc=98101");
  for (const char* tag : {"Rn", "Sn"}) {
    for (const auto& value : Values(hourly, tag)) EXPECT_EQ(StrictNumber(value) == 0, value == "0") << value;
  }
}

TEST(Forecast, UnknownPlacesAreLeftOut) {
  for (const std::string kind :
       {"t=xml&d=current", "t=xml&d=currenthistorical", "t=xml&fcsttype=extended", kWideRange}) {
    EXPECT_TRUE(Ask(kind + "&pc=99999").empty()) << kind;
    EXPECT_EQ(Ask(kind + "&pc=99999&pc=66044"), Ask(kind + "&pc=66044")) << kind;
  }
  EXPECT_EQ(Values(Ask("t=xml&d=meta&pc=99999&pc=66044"), "Obs_TS_UTC").size(), 1u);
}

TEST(Forecast, SameSeedAndTimeAreTheSameReply) {
  for (const char* kind :
       {"t=xml&d=current", "t=xml&d=currenthistorical", "t=xml&fcsttype=extended", kWideRange}) {
    const Request request{"/forecast.asp", std::string(kind) + "&pc=66044&pc=33131", kNow};
    EXPECT_EQ(Answer(request, {.seed = 5}).body, Answer(request, {.seed = 5}).body) << kind;
    EXPECT_NE(Answer(request, {.seed = 5}).body, Answer(request, {.seed = 6}).body) << kind;
  }
}

}  // namespace
}  // namespace skyloft::feed
