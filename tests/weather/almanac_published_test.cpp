// The almanac against times of sun and moon that others have published.
#include <gtest/gtest.h>

#include <string>

#include "weather/almanac_day.h"

namespace skyloft {
namespace {

// Local times of one place and day; degrees are negative south and west, the zone is hours from GMT.
struct PublishedDay {
  const char* place;
  double latitude, longitude, zone;
  int year, month, day;
  const char *sunrise, *sunset, *moonrise, *moonset;
};

constexpr const char* kBlank = "";             // no such event on this day
constexpr const char* kNotPublished = "none";  // nothing to compare with

// Sources:
// U.S. Naval Observatory, Astronomical Applications Department, "Sun and Moon Data for One Day"
// (aa.usno.navy.mil), as quoted with its coordinates by the programs that ask it: Seattle to Mauna Kea, and
// the moons of London, Sydney and Tokyo. timeanddate.com, December 2019: the suns of the other cities.
constexpr PublishedDay kPublishedDays[] = {
    {"Seattle", 47.63, -122.33, -7, 2018, 8, 18, "6:09", "20:16", "14:41", kBlank},
    {"San Francisco", 37.76, -122.44, -7, 2018, 6, 10, "5:48", "20:31", "3:44", "17:08"},
    {"Rome", 41.89, 12.48, 1, 2016, 12, 1, "7:18", "16:40", "8:37", "18:32"},
    {"Fremont", 37.67, -122.02, -7, 2015, 7, 28, "6:08", "20:20", "17:57", "3:25"},
    {"New York", 40.73, -73.92, -5, 2018, 11, 7, "6:33", "16:45", "6:15", "17:12"},
    {"New Haven", 41.30, -72.79, -4, 2015, 7, 30, "5:44", "20:10", "19:25", "4:51"},
    {"Washington", 38.889444, -77.035278, -5, 2024, 3, 5, "6:34", "18:06", "3:27", "12:21"},
    {"Los Angeles", 34.05, -118.25, -7, 2026, 6, 10, "5:41", "20:04", "2:01", "15:22"},
    {"Grand Canyon", 36.08695, -111.86464, -7, 2025, 5, 15, "5:21", "19:27", "22:47", "7:06"},
    {"Atlanta", 33.8, -84.4, -4, 2009, 9, 6, "7:15", "19:56", "20:44", "9:05"},
    {"Mauna Kea", 19.8167, -155.4833, -10, 2003, 7, 15, "5:51", "19:04", "21:13", "7:46"},
    {"London", 51.5074, -0.1278, 0, 2026, 3, 8, kNotPublished, kNotPublished, kBlank, "7:43"},
    {"London", 51.5074, -0.1278, 0, 2026, 3, 20, kNotPublished, kNotPublished, "6:17", "20:35"},
    {"London", 51.5074, -0.1278, 0, 2026, 3, 23, kNotPublished, kNotPublished, kNotPublished, kBlank},
    {"Sydney", -33.8688, 151.2093, 11, 2026, 3, 4, kNotPublished, kNotPublished, "19:47", "7:10"},
    {"Sydney", -33.8688, 151.2093, 11, 2026, 3, 25, kNotPublished, kNotPublished, "13:50", "23:23"},
    {"Tokyo", 35.6762, 139.6503, 9, 2026, 3, 8, kNotPublished, kNotPublished, "22:35", "8:04"},
    {"Sydney", -33.8688, 151.2093, 11, 2019, 12, 15, "5:38", "20:01", kNotPublished, kNotPublished},
    {"Moscow", 55.7558, 37.6173, 3, 2019, 12, 15, "8:52", "15:56", kNotPublished, kNotPublished},
    {"Sao Paulo", -23.5505, -46.6333, -3, 2019, 12, 15, "5:14", "18:48", kNotPublished, kNotPublished},
};

// U.S. Naval Observatory, as above.
constexpr PublishedDay kMoonrisesAfterMidnight[] = {
    {"Sydney", -33.8688, 151.2093, 11, 2026, 3, 13, kNotPublished, kNotPublished, "0:32", "15:48"},
    {"Tokyo", 35.6762, 139.6503, 9, 2026, 3, 11, kNotPublished, kNotPublished, "0:34", "9:55"},
    {"London", 51.5074, -0.1278, 0, 2026, 3, 9, kNotPublished, kNotPublished, "0:20", "8:04"},
};

// Munich in Universal Time: the example of O. Montenbruck and T. Pfleger, Astronomy on the Personal Computer,
// chapter 3. The moonrise at 0:38 on 29 March has too few digits to be shown.
constexpr PublishedDay kBookDays[] = {
    {"Munich", 48.1, 11.6, 0, 1989, 3, 23, "5:11", "17:30", "18:57", "5:13"},
    {"Munich", 48.1, 11.6, 0, 1989, 3, 24, "5:09", "17:32", "20:05", "5:28"},
    {"Munich", 48.1, 11.6, 0, 1989, 3, 25, "5:07", "17:33", "21:15", "5:45"},
    {"Munich", 48.1, 11.6, 0, 1989, 3, 26, "5:05", "17:35", "22:26", "6:06"},
    {"Munich", 48.1, 11.6, 0, 1989, 3, 27, "5:02", "17:36", "23:34", "6:33"},
    {"Munich", 48.1, 11.6, 0, 1989, 3, 28, "5:00", "17:38", kBlank, "7:09"},
    {"Munich", 48.1, 11.6, 0, 1989, 3, 29, "4:58", "17:39", kBlank, "7:58"},
    {"Munich", 48.1, 11.6, 0, 1989, 3, 30, "4:56", "17:41", "1:31", "9:00"},
    {"Munich", 48.1, 11.6, 0, 1989, 3, 31, "4:54", "17:42", "2:14", "10:14"},
    {"Munich", 48.1, 11.6, 0, 1989, 4, 1, "4:52", "17:43", "2:47", "11:35"},
};

// Whether a text tells the published time within some minutes.
void ExpectEvent(const std::string& text, const std::string& published, int minutes,
                 const std::string& what) {
  if (published == kNotPublished) return;
  if (published == kBlank) {
    EXPECT_EQ(text, "") << what;
  } else {
    ASSERT_NE(text, "") << what;
    EXPECT_NEAR(MinuteOf(text), MinuteOf(published), minutes) << what << ' ' << text;
  }
}

void ExpectDay(const PublishedDay& p, int sun_minutes, int moon_minutes) {
  const Day day = DayAt(p.latitude, p.longitude, p.zone, p.year, p.month, p.day);
  const std::string at = std::string(p.place) + ' ' + std::to_string(p.month) + '/' + std::to_string(p.day);
  ExpectEvent(day.sunrise, p.sunrise, sun_minutes, at + " sunrise");
  ExpectEvent(day.sunset, p.sunset, sun_minutes, at + " sunset");
  ExpectEvent(day.moonrise, p.moonrise, moon_minutes, at + " moonrise");
  ExpectEvent(day.moonset, p.moonset, moon_minutes, at + " moonset");
}

TEST(PublishedAlmanac, TimesAreThoseThatAnObservatoryPublished) {
  for (const PublishedDay& day : kPublishedDays) ExpectDay(day, 3, 12);
}

TEST(PublishedAlmanac, TimesAreToTheMinuteThoseThatTheSourceOfTheMethodPrints) {
  for (const PublishedDay& day : kBookDays) ExpectDay(day, 1, 1);
}

TEST(PublishedAlmanac, MoonriseJustAfterMidnightIsBlank) {
  for (const PublishedDay& p : kMoonrisesAfterMidnight) {
    const Day day = DayAt(p.latitude, p.longitude, p.zone, p.year, p.month, p.day);
    EXPECT_EQ(day.moonrise, "") << p.place;
    ExpectEvent(day.moonset, p.moonset, 12, p.place);
    // An hour further east on the clock it is a time like others.
    const Day later = DayAt(p.latitude, p.longitude, p.zone + 1, p.year, p.month, p.day);
    EXPECT_NEAR(MinuteOf(later.moonrise), MinuteOf(p.moonrise) + 60, 12) << p.place;
  }
}

}  // namespace
}  // namespace skyloft
