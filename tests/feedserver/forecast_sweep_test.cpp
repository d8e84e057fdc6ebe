// What holds for every town, season, model run and weather.
#include <array>
#include <set>

#include "ask.h"

namespace skyloft::feed {
namespace {

constexpr char kAllTowns[] =
    "&pc=66044&pc=33131&pc=80202&pc=98101&pc=04101&pc=85003&pc=99501&pc=96813&pc=00901&pc=60601&pc=10001"
    "&pc=90012";
constexpr std::size_t kTowns = 12;

// Calls `check` with the moment of every run of some days through the year, under several seeds.
template <class Check>
void ForManyRuns(Check check) {
  constexpr std::array<std::array<int, 3>, 4> days = {
      {{2003, 1, 15}, {2003, 4, 20}, {2008, 7, 4}, {2008, 11, 1}}};
  for (const auto& [year, month, day] : days) {
    for (int hour = 0; hour < 24; hour += 6) {
      for (std::uint64_t seed = 1; seed <= 4; ++seed) check(MakeDate(year, month, day, hour), seed);
    }
  }
}

// When the run of that moment has been the newest for a while.
Date Later(Date run) { return DateAdd(DateUnit::Minutes, 4 * 60 + 20, run); }

Elements AskAll(const char* query, Date run, std::uint64_t seed) {
  return Ask(std::string(query) + kAllTowns, Later(run), seed);
}

bool IsDay(Date gmt) {
  const int hour = PartsOf(gmt).hour;
  return hour == 0 || hour >= 13;
}

// Each phrase and picture belongs to the half of its stamp.
void ExpectHalves(const Elements& reply) {
  static const std::set<std::string> day_only = {"sunny", "mostly sunny", "partly sunny"},
                                     night_only = {"clear", "mostly clear"},
                                     both = {"partly cloudy", "mostly cloudy",
                                             "cloudy",        "fog",
                                             "light rain",    "rain",
                                             "heavy rain",    "Tstorm",
                                             "frzng rain",    "frzng rain / snow",
                                             "rain / snow",   "light snow",
                                             "snow",          "heavy snow",
                                             "Tstorm?",       "shower",
                                             "snow shower"};
  const auto stamps = Values(reply, "Ut"), phrases = Values(reply, "Desc"), icons = Values(reply, "Ic");
  ASSERT_EQ(stamps.size(), phrases.size());
  ASSERT_EQ(stamps.size(), icons.size());
  for (std::size_t i = 0; i < stamps.size(); ++i) {
    const bool is_day = IsDay(StampOf(stamps[i]));
    const bool is_of_half =
        both.contains(phrases[i]) || (is_day ? day_only : night_only).contains(phrases[i]);
    EXPECT_TRUE(is_of_half) << stamps[i] << ' ' << phrases[i];
    EXPECT_EQ(icons[i].starts_with("sn"), !is_day) << stamps[i] << ' ' << icons[i];
  }
}

void ExpectNorthIs360(const Elements& reply) {
  const auto directions = Numbers(reply, "Wd"), speeds = Numbers(reply, "Ws");
  ASSERT_EQ(directions.size(), speeds.size());
  for (std::size_t i = 0; i < directions.size(); ++i) {
    EXPECT_EQ(directions[i] == 0, speeds[i] == 0);
    EXPECT_GE(directions[i], 0);
    EXPECT_LE(directions[i], 360);
  }
}

TEST(ForecastSweep, RunsThatFollowTellTheSameHourAlike) {
  constexpr std::size_t hours = 66, between = 6;
  ForManyRuns([](Date run, std::uint64_t seed) {
    const Elements before = AskAll(kWideRange, run, seed);
    const Elements after = AskAll(kWideRange, DateAdd(DateUnit::Hours, between, run), seed);
    ASSERT_NE(First(before, "Ut"), First(after, "Ut"));
    for (const char* tag : {"Ut", "Desc", "Tf", "Df", "Rh", "At", "Wd", "Ws", "Rn", "Sn"}) {
      const auto old_values = Values(before, tag), new_values = Values(after, tag);
      ASSERT_EQ(old_values.size(), kTowns * hours) << tag;
      for (std::size_t i = 0; i < old_values.size(); ++i) {
        if (i % hours < between) continue;
        EXPECT_EQ(old_values[i], new_values[i - between]) << tag << ' ' << i;
      }
    }
  });
}

TEST(ForecastSweep, ModelRunsAreAt0And6And12And18) {
  for (int minutes = 0; minutes < 3 * 24 * 60; minutes += 17) {
    const Date now = DateAdd(DateUnit::Minutes, minutes, kNow);
    const Elements meta = Ask("t=xml&d=meta&pc=66044", now);
    const Date run = StampOf(First(meta, "Model_TS_UTC"));
    EXPECT_EQ(PartsOf(run).hour % 6, 0);
    EXPECT_EQ(PartsOf(run).minute, 0);
    EXPECT_GE(DateDiff(DateUnit::Seconds, run, now), 3 * 3600);
    EXPECT_LT(DateDiff(DateUnit::Seconds, run, now), 9 * 3600);
  }
}

TEST(ForecastSweep, HourlyRepliesBeginAnHourAfterTheRunAndHave66Rows) {
  ForManyRuns([](Date run, std::uint64_t seed) {
    const auto stamps = Values(AskAll(kWideRange, run, seed), "Ut");
    ASSERT_EQ(stamps.size(), 66 * kTowns);
    for (std::size_t i = 0; i < stamps.size(); ++i)
      EXPECT_EQ(StampOf(stamps[i]), DateAdd(DateUnit::Hours, 1 + static_cast<std::int64_t>(i % 66), run));
    EXPECT_EQ(PartsOf(StampOf(stamps[0])).hour % 6, 1);
  });
}

TEST(ForecastSweep, ExtendedRepliesHave25StampsAt0And12) {
  ForManyRuns([](Date run, std::uint64_t seed) {
    const auto stamps = Values(AskAll("t=xml&fcsttype=extended", run, seed), "Ut");
    ASSERT_EQ(stamps.size(), 25 * kTowns);
    for (std::size_t i = 0; i < stamps.size(); ++i) {
      const Date stamp = StampOf(stamps[i]);
      EXPECT_EQ(PartsOf(stamp).hour % 12, 0);
      EXPECT_EQ(stamp, DateAdd(DateUnit::Hours, 12 * static_cast<std::int64_t>(i % 25), StampOf(stamps[0])));
    }
    // The hourly forecast ends 66 hours after the run.
    EXPECT_GE(DateDiff(DateUnit::Hours, run, StampOf(stamps[0])), 66);
    EXPECT_LE(DateDiff(DateUnit::Hours, run, StampOf(stamps[0])), 72);
  });
}

TEST(ForecastSweep, HoursHavePhrasesOfTheirHalfAndNorthIs360) {
  ForManyRuns([](Date run, std::uint64_t seed) {
    const Elements hourly = AskAll(kWideRange, run, seed);
    ExpectHalves(hourly);
    ExpectNorthIs360(hourly);
  });
}

TEST(ForecastSweep, PeriodsHavePhrasesOfTheirHalfAndNorthIs360) {
  ForManyRuns([](Date run, std::uint64_t seed) {
    const Elements extended = AskAll("t=xml&fcsttype=extended", run, seed);
    ExpectHalves(extended);
    ExpectNorthIs360(extended);
  });
}

TEST(ForecastSweep, StopsOfATripHavePhrasesOfTheirHalf) {
  for (int hour = 0; hour < 24; ++hour) {
    const std::string time = Format(MakeDate(2003, 3, 8, hour), "m%2Fd%2Fyyyy+h%3Ann%3Ass+AM/PM");
    const Elements stop =
        Ask(std::string("lat=38.97&long=-95.24&t=xml&st=").append(time).append("&et=").append(time));
    ASSERT_EQ(PartsOf(StampOf(First(stop, "Lt"))).hour, hour);
    ExpectHalves(stop);
  }
}

TEST(ForecastSweep, NoTwoTownsAreObservedAtOnce) {
  std::set<std::string> stamps;
  for (const auto& stamp : Values(Ask(std::string("t=xml&d=meta") + kAllTowns), "Obs_TS_UTC"))
    stamps.insert(stamp);
  EXPECT_EQ(stamps.size(), kTowns);
}

}  // namespace
}  // namespace skyloft::feed
