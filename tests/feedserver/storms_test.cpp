#include "feedserver/storms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "ask.h"
#include "decode.h"
#include "feedserver/radar.h"

namespace skyloft::feed {
namespace {

constexpr std::uint64_t kSeed = 8;
Place Lawrence() { return *FindPlace("66044"); }

const Bulletin* Find(const std::vector<Bulletin>& bulletins, const char* type) {
  const auto found = std::ranges::find(bulletins, type, &Bulletin::type);
  return found == bulletins.end() ? nullptr : &*found;
}

// The first bulletin of a kind in a summer.
struct Storm {
  Place place;
  Bulletin bulletin;
};
Storm FirstStorm(const char* type) {
  for (const char* postal_code : {"66044", "80202", "33131"}) {
    const Place place = *FindPlace(postal_code);
    for (int hour = 0; hour < 92 * 24; ++hour) {
      const Date now = DateAdd(DateUnit::Hours, hour, MakeDate(2003, 6, 1));
      const auto bulletins = StormBulletins(place, now, kSeed);
      if (const Bulletin* found = Find(bulletins, type)) return {place, *found};
    }
  }
  ADD_FAILURE() << "no " << type;
  return {Lawrence(), {}};
}

constexpr const char* kTypes[] = {"TOR", "SVR", "FFW", "WTO", "WSV", "FFA"};

TEST(Storms, EachKindOccursAndBeginsWithTheWordThatItIsSimulated) {
  for (const char* type : kTypes) {
    const Storm storm = FirstStorm(type);
    EXPECT_TRUE(storm.bulletin.text.starts_with("SIMULATED. THE NATIONAL WEATHER SERVICE HAS ISSUED A "));
    EXPECT_NE(storm.bulletin.text.find(UpperCase(storm.place.county) + " COUNTY"), std::string::npos);
    EXPECT_LT(storm.bulletin.issued, storm.bulletin.expires);
  }
}

TEST(Storms, ABulletinKeepsItsTimesAndItsTextUntilItExpires) {
  for (const char* type : kTypes) {
    const Storm storm = FirstStorm(type);
    for (Date now = storm.bulletin.issued; now < storm.bulletin.expires;
         now = DateAdd(DateUnit::Minutes, 5, now)) {
      const auto bulletins = StormBulletins(storm.place, now, kSeed);
      const Bulletin* found = Find(bulletins, type);
      ASSERT_TRUE(found) << type << " at " << DateText(now);
      ASSERT_EQ(found->issued, storm.bulletin.issued) << type << " at " << DateText(now);
      ASSERT_EQ(found->text, storm.bulletin.text);
    }
  }
}

TEST(Storms, AQuietDayHasNone) {
  int quiet = 0;
  for (int day = 1; day <= 31; ++day) {
    const Date begin = MakeDate(2003, 1, day);
    bool is_wet = false;
    for (int hour = -24; hour < 36; ++hour) {
      is_wet = is_wet || WaterAt(Lawrence().point, DateAdd(DateUnit::Hours, hour, begin), kSeed) > 0;
    }
    if (is_wet) continue;
    ++quiet;
    for (int hour = 0; hour < 24; ++hour) {
      EXPECT_TRUE(StormBulletins(Lawrence(), DateAdd(DateUnit::Hours, hour, begin), kSeed).empty());
    }
  }
  EXPECT_GT(quiet, 3);
}

TEST(Storms, TornadoesAreRarerThanThunderstormsAndBothAreSummersWeather) {
  std::map<std::string, int> counts[2];
  for (const int summer : {0, 1}) {
    for (int hour = 0; hour < 28 * 24; ++hour) {
      const Date now = DateAdd(DateUnit::Hours, hour, MakeDate(2003, summer ? 7 : 1, 1));
      for (const Bulletin& bulletin : StormBulletins(Lawrence(), now, kSeed)) ++counts[summer][bulletin.type];
    }
  }
  EXPECT_LT(counts[1]["TOR"], counts[1]["SVR"]);
  EXPECT_LT(counts[0]["WSV"], counts[1]["WSV"]);
}

TEST(Storms, AreToldByTheServerOnlyWhenItIsAskedTo) {
  const Storm storm = FirstStorm("SVR");
  const Date now = storm.bulletin.issued;
  const std::string query = "pc=" + std::string(storm.place.postal_code) + "&t=xml";
  EXPECT_TRUE(Scan(Answer({"/bulletins.asp", query, now}, {.seed = kSeed}).body).empty());
  const Elements told = Scan(Answer({"/bulletins.asp", query, now}, {.seed = kSeed, .storms = true}).body);
  const auto types = Values(told, "Type");
  EXPECT_EQ(std::ranges::count(types, "SVR"), 1);
}

bool IsStormy(const std::string& phrase) {
  return phrase.find("Tstorm") != std::string::npos || phrase.find("rain") != std::string::npos ||
         phrase.find("shower") != std::string::npos;
}

// One storm, seen by everything that looks at the weather.
TEST(Storms, ReadingHourRadarAndWarningAgreeOnOne) {
  const Storm storm = FirstStorm("SVR");
  const Place& place = storm.place;
  const Date issued = storm.bulletin.issued;
  const std::string query = "pc=" + std::string(place.postal_code) + "&";

  // The first reading after the warning is at most twenty minutes younger.
  Date now = issued;
  while (StampOf(First(Ask(query + "t=xml&d=meta", now, kSeed), "Obs_TS_UTC")) < issued) {
    now = DateAdd(DateUnit::Minutes, 1, now);
  }
  EXPECT_LE(DateDiff(DateUnit::Minutes, issued, now), 20);
  EXPECT_TRUE(IsStormy(First(Ask(query + "t=xml&d=current", now, kSeed), "Desc")));

  // One of the two hours around it.
  const Elements hours = Ask(query + kWideRange, issued, kSeed);
  const auto times = Values(hours, "Ut"), phrases = Values(hours, "Desc");
  bool has_stormy_hour = false;
  for (std::size_t i = 0; i < times.size(); ++i) {
    const std::int64_t apart = DateDiff(DateUnit::Minutes, issued, StampOf(times[i]));
    has_stormy_hour = has_stormy_hour || (std::abs(apart) <= 60 && IsStormy(phrases[i]));
  }
  EXPECT_TRUE(has_stormy_hour);

  const Reply reply =
      Answer({RadarPath({RadarProduct::Reflectivity, place.radar}), "", issued}, {.seed = kSeed});
  const Canvas radar = DecodeGif(reply.body);
  const Pixel town = RadarPixel(*place.radar, place.point);
  int echoes = 0;
  for (int dx = -12; dx <= 12; ++dx) {
    for (int dy = -12; dy <= 12; ++dy) {
      const Colour colour = PixelAt(radar, static_cast<int>(town.x) + dx, static_cast<int>(town.y) + dy);
      echoes += colour != Colour{0, 0, 0} && colour != Colour{0, 139, 0} && colour != Colour{205, 0, 0};
    }
  }
  EXPECT_GT(echoes, 300) << "of 625 pixels around the town";
}

}  // namespace
}  // namespace skyloft::feed
