#include "feedserver/storms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

#include "ask.h"
#include "client_map.h"
#include "decode.h"
#include "feedserver/layers.h"
#include "feedserver/radar.h"
#include "feedserver/sectors.h"

namespace skyloft::feed {
namespace {

constexpr std::uint64_t kSeed = 8;
Place Lawrence() { return *FindPlace("66044"); }

const Bulletin* Find(const std::vector<Bulletin>& bulletins, const char* type) {
  const auto found = std::ranges::find(bulletins, type, &Bulletin::type);
  return found == bulletins.end() ? nullptr : &*found;
}

// The first bulletin of a kind in a summer inland, and the town that it names.
struct Storm {
  Place place;
  Bulletin bulletin;
};

// The town of a county that a bulletin names; of several with that name one where it rains.
Place NamedTown(const Place& place, const Bulletin& bulletin) {
  std::optional<Place> named;
  for (const Place& town : TownsOverCounty(place)) {
    if (bulletin.text.find(" THE WEATHER NEAR " + UpperCase(town.city) + " WAS MOVING ") == std::string::npos)
      continue;
    if (!named || WaterAt(named->point, bulletin.issued, kSeed) == 0) named = town;
  }
  EXPECT_TRUE(named) << bulletin.text;
  return named ? *named : place;
}

Storm FirstStorm(const char* type) {
  for (const char* postal_code : {"66044", "73102", "30303", "72201"}) {
    const Place place = *FindPlace(postal_code);
    for (int hour = 0; hour < 92 * 24; ++hour) {
      const Date now = DateAdd(DateUnit::Hours, hour, MakeDate(2003, 6, 1));
      const auto bulletins = StormBulletins(place, now, kSeed);
      if (const Bulletin* found = Find(bulletins, type)) return {NamedTown(place, *found), *found};
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

TEST(Storms, MoveWhereTheWindBlows) {
  const std::map<std::string, double> courses = {{"NORTH", 0},       {"NORTHEAST", 45}, {"EAST", 90},
                                                 {"SOUTHEAST", 135}, {"SOUTH", 180},    {"SOUTHWEST", 225},
                                                 {"WEST", 270},      {"NORTHWEST", 315}};
  for (const char* type : kTypes) {
    const Storm storm = FirstStorm(type);
    const std::string start = " WAS MOVING ";
    const std::size_t at = storm.bulletin.text.find(start) + start.size();
    const std::string word = storm.bulletin.text.substr(at, storm.bulletin.text.find(' ', at) - at);
    ASSERT_TRUE(courses.contains(word)) << word;
    const double from = WeatherAt(storm.place.point, storm.bulletin.issued, kSeed).wind_from;
    EXPECT_LE(std::abs(std::remainder(from + 180 - courses.at(word), 360)), 22.5) << type << ' ' << from;
  }
}

TEST(Storms, TornadoesComeWithAStrongWindAndFloodsWithMuchRain) {
  const Storm tornado = FirstStorm("TOR"), flood = FirstStorm("FFW"), ahead = FirstStorm("FFA");
  const auto at = [](const Storm& storm, int hour) {
    return WeatherAt(storm.place.point, DateAdd(DateUnit::Hours, hour, storm.bulletin.issued), kSeed);
  };
  EXPECT_GT(at(tornado, 0).wind_speed, 15);
  EXPECT_GT(at(tornado, 0).thunder, 0.8);
  EXPECT_GT(at(flood, 0).rain, 0.3);
  double inches = 0;
  for (int hour = 0; hour < 6; ++hour) inches += at(ahead, hour).rain;
  EXPECT_GT(inches, 0.75);
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

// Weather that comes back day after day, under seed 1.
TEST(Storms, BulletinsOfALongStretchOfWeatherKeepTheirTimesToo) {
  const struct {
    const char* postal_code;
    Date begin;
  } cases[] = {{"36602", MakeDate(2003, 7, 1)}, {"96910", MakeDate(2003, 9, 4)}};
  for (const auto& c : cases) {
    const Place place = *FindPlace(c.postal_code);
    std::optional<Bulletin> last;
    int bulletins = 0;
    for (int step = 0; step < 3 * 48; ++step) {
      const Date now = DateAdd(DateUnit::Minutes, 30 * step, c.begin);
      const auto told = StormBulletins(place, now, 1);
      const Bulletin* const found = Find(told, "WSV");
      if (last && now < last->expires) {
        ASSERT_TRUE(found) << DateText(now);
        EXPECT_EQ(found->issued, last->issued) << DateText(now);
        EXPECT_EQ(found->text, last->text);
      } else {
        bulletins += found ? 1 : 0;
      }
      last = found ? std::optional(*found) : std::nullopt;
    }
    EXPECT_GT(bulletins, 5) << "of four hours, in three days";
  }
}

bool IsWetOver(const Place& place, Date gmt) {
  return std::ranges::any_of(TownsOverCounty(place),
                             [&](const Place& town) { return WaterAt(town.point, gmt, kSeed) > 0; });
}

TEST(Storms, AQuietDayHasNone) {
  int quiet = 0;
  for (int day = 1; day <= 31; ++day) {
    const Date begin = MakeDate(2003, 1, day);
    bool is_wet = false;
    for (int hour = -24; hour < 36; ++hour) {
      is_wet = is_wet || IsWetOver(Lawrence(), DateAdd(DateUnit::Hours, hour, begin));
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

using Facts = std::vector<std::tuple<std::string, Date, Date, std::string>>;
Facts FactsOf(const std::vector<Bulletin>& bulletins) {
  Facts facts;
  for (const Bulletin& bulletin : bulletins)
    facts.emplace_back(bulletin.type, bulletin.issued, bulletin.expires, bulletin.text);
  return facts;
}

TEST(Storms, TownsOfOneCountyHaveTheSameBulletinsAndAQuietCountyHasNone) {
  const Place lawrence = Lawrence(), baldwin = *FindPlace("66006");
  ASSERT_EQ(baldwin.county, lawrence.county);
  ASSERT_NE(baldwin.point.latitude, lawrence.point.latitude);
  int with_storms = 0, with_quiet_others = 0;
  for (int hour = 0; hour < 40 * 24; ++hour) {
    const Date now = DateAdd(DateUnit::Hours, hour, MakeDate(2003, 6, 1));
    const auto bulletins = StormBulletins(lawrence, now, kSeed);
    ASSERT_EQ(FactsOf(StormBulletins(baldwin, now, kSeed)), FactsOf(bulletins)) << DateText(now);
    if (bulletins.empty() || ++with_storms > 40) continue;
    for (const char* other : {"80202", "98101", "85003", "10001"}) {
      const Place place = *FindPlace(other);
      bool is_wet = false;
      for (int i = -48; i <= 8; ++i)
        is_wet = is_wet || IsWetOver(place, DateAdd(DateUnit::Minutes, i * 30, now));
      if (is_wet) continue;
      ++with_quiet_others;
      // All three at once: a bulletin for either town of the one county, none for the other.
      const std::string query = "pc=66006&pc=66044&t=xml&pc=" + std::string(other);
      const Elements told =
          Scan(Answer({"/bulletins.asp", query, now}, {.seed = kSeed, .storms = true}).body);
      const auto codes = Values(told, "pc"), types = Values(told, "Type"), texts = Values(told, "Text");
      ASSERT_EQ(codes.size(), 2 * bulletins.size());
      for (std::size_t i = 0; i < bulletins.size(); ++i) {
        EXPECT_EQ(codes[2 * i], "66006");
        EXPECT_EQ(codes[2 * i + 1], "66044");
        EXPECT_EQ(types[2 * i], types[2 * i + 1]);
        EXPECT_EQ(texts[2 * i], texts[2 * i + 1]);
        EXPECT_TRUE(texts[2 * i].starts_with(bulletins[i].text));
      }
    }
  }
  EXPECT_GT(with_storms, 0);
  EXPECT_GT(with_quiet_others, 0);
}

TEST(Storms, AStormOverAnyEndOfTheCountyIsToldToAllOfIt) {
  // Severe weather at its rim but not in its middle, somewhere in a summer.
  for (const char* postal_code : {"66044", "73102", "80202", "85003"}) {
    const auto towns = TownsOverCounty(*FindPlace(postal_code));
    ASSERT_GT(towns.size(), 1u);
    for (int step = 0; step < 92 * 24 * 4; ++step) {
      const Date now = DateAdd(DateUnit::Minutes, 15 * step, MakeDate(2003, 6, 1));
      const auto thunder = [&](const Place& town) { return WeatherAt(town.point, now, kSeed).thunder; };
      if (thunder(towns.back()) < 0.72 || thunder(towns.front()) > 0.68) continue;
      EXPECT_TRUE(Find(StormBulletins(towns.front(), now, kSeed), "SVR")) << DateText(now);
      return;
    }
  }
  ADD_FAILURE() << "no such storm";
}

bool IsStormy(const std::string& phrase) {
  return phrase.find("Tstorm") != std::string::npos || phrase.find("rain") != std::string::npos ||
         phrase.find("shower") != std::string::npos;
}

// How many of the pixels around a place, up to `reach` each way, one of these colours has been mixed into.
int CountNear(const Canvas& canvas, Pixel place, int reach, std::span<const Band> bands, double most_apart) {
  int count = 0;
  for (int dx = -reach; dx <= reach; ++dx) {
    for (int dy = -reach; dy <= reach; ++dy) {
      const Colour pixel = PixelAt(canvas, static_cast<int>(place.x) + dx, static_cast<int>(place.y) + dy);
      count += std::ranges::any_of(bands, [&](const Band& band) {
        return std::hypot(pixel.red - band.colour.red, pixel.green - band.colour.green,
                          pixel.blue - band.colour.blue) <= most_apart;
      });
    }
  }
  return count;
}

// A moment without rain for many miles around.
Date DryMoment(const Place& place) {
  for (int hour = 0; hour < 92 * 24; ++hour) {
    const Date now = DateAdd(DateUnit::Hours, hour, MakeDate(2003, 6, 1));
    bool is_wet = false;
    for (const double north : {-0.5, 0.0, 0.5}) {
      for (const double east : {-0.5, 0.0, 0.5}) {
        const Point point{place.point.latitude + north, place.point.longitude + east};
        is_wet = is_wet || WaterAt(point, now, kSeed) > 0;
      }
    }
    if (!is_wet) return now;
  }
  ADD_FAILURE() << "it always rains";
  return {};
}

// The place of a town on the first map of a family that has it well within, as a client computes it.
std::pair<const Sector*, Pixel> PlaceOnMap(char family, Point point) {
  const ClientPoint at = ClientMap(point.latitude, point.longitude);
  for (const Sector& sector : Sectors()) {
    const Pixel pixel{(at.x - sector.xmin) / ((sector.xmax - sector.xmin) / 640),
                      (sector.ymax - at.y) / ((sector.ymax - sector.ymin) / 480)};
    if (sector.id[0] == family && pixel.x > 60 && pixel.x < 540 && pixel.y > 100 && pixel.y < 380)
      return {&sector, pixel};
  }
  ADD_FAILURE() << "no map";
  return {&Sectors().front(), {320, 240}};
}

// One storm, seen by everything that looks at the weather.
TEST(Storms, ReadingHourRadarMapAndWarningAgreeOnOne) {
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

  // The map of echoes of the same moment and of a dry one. A colour covers most of the land below it, and a
  // name or the lines of states may cover some of the colour.
  const auto [sector, pixel] = PlaceOnMap('4', place.point);
  const Canvas mosaic =
      DecodePng(Answer({"/mosaic." + sector->id + ".png", "", issued}, {.seed = kSeed}).body);
  EXPECT_GT(CountNear(mosaic, pixel, 6, LayerOf(LayerId::Radar).scale.bands, 20), 100) << "of 169 pixels";
  const Date dry = DryMoment(place);
  const Canvas before = DecodePng(Answer({"/mosaic." + sector->id + ".png", "", dry}, {.seed = kSeed}).body);
  EXPECT_EQ(CountNear(before, pixel, 6, LayerOf(LayerId::Radar).scale.bands, 20), 0) << DateText(dry);
}

}  // namespace
}  // namespace skyloft::feed
