#include "feedserver/maps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "client_map.h"
#include "decode.h"
#include "feedserver/answer.h"
#include "feedserver/products.h"

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);
constexpr std::uint64_t kWetSeed = 799;  // rain over Kansas and Illinois
constexpr Colour kLand{240, 236, 226}, kDot{32, 36, 44};

Reply Ask(const std::string& path, Date now = kNow, std::uint64_t seed = kWetSeed) {
  return Answer({path, "", now}, {.seed = seed});
}

Canvas Decode(const Reply& reply) {
  if (reply.type == "image/gif") return DecodeGif(reply.body);
  return reply.type == "image/png" ? DecodePng(reply.body) : DecodeJpeg(reply.body);
}

Canvas Picture(const std::string& path, Date now = kNow) {
  const Reply reply = Ask(path, now);
  EXPECT_EQ(reply.status, 200) << path;
  return Decode(reply);
}

// An address of each product with pictures of its own, in one sector.
std::vector<std::string> Addresses(const std::string& sector_end) {
  std::vector<std::string> paths;
  for (const Product& product : ProductsOf("12")) {
    if (!product.layer) continue;
    const bool is_static = product.code == "0" || product.code == "2" || product.code == "10";
    const std::string sector = sector_end == "200" ? sector_end : product.family + sector_end;
    paths.push_back("/" + std::string(product.file) + "." + sector + (is_static ? "." : ".12z.024.") +
                    std::string(product.type));
  }
  return paths;
}

TEST(Maps, EveryProductHasPicturesOfTheNationAndOfRegions) {
  for (const char* sector : {"200", "06"}) {
    const auto paths = Addresses(sector);
    EXPECT_EQ(paths.size(), 16u);
    for (const std::string& path : paths) {
      const Reply reply = Ask(path);
      EXPECT_EQ(reply.status, 200) << path;
      const std::string ending = path.substr(path.size() - 3);
      EXPECT_EQ(reply.type, "image/" + (ending == "jpg" ? "jpeg" : ending)) << path;
      const Canvas picture = Decode(reply);
      EXPECT_EQ(picture.Width(), 640) << path;
      EXPECT_EQ(picture.Height(), 480) << path;
    }
  }
}

TEST(Maps, TownsLieWhereTheClientLooksForThem) {
  // Their dots on a map of each size, of which the sectors' edges are those of the catalogue.
  const struct {
    const char *path, *sector;
    double latitude, longitude;
  } cases[] = {
      {"/mosaic.200.png", "200", 38.97, -95.24},  {"/mosaic.200.png", "200", 47.61, -122.33},
      {"/mosaic.200.png", "200", 25.76, -80.19},  {"/mosaic.404.png", "404", 38.97, -95.24},
      {"/mosaic.410.png", "410", 21.31, -157.85}, {"/analysis.106.12z.000.png", "106", 41.89, -87.62}};
  for (const auto& c : cases) {
    const Sector& sector = *FindSector(c.sector);
    const ClientPoint point = ClientMap(c.latitude, c.longitude);
    const double x = (point.x - sector.xmin) / ((sector.xmax - sector.xmin) / 640);
    const double y = (sector.ymax - point.y) / ((sector.ymax - sector.ymin) / 480);
    const Canvas picture = Picture(c.path);
    EXPECT_EQ(PixelAt(picture, static_cast<int>(x), static_cast<int>(y)), kDot)
        << c.path << ' ' << c.latitude;
  }
}

// Calls `check` with the pixel and the point of a net over inner parts of the country, beside the straight
// borders.
template <class Check>
void ForInlandPixels(const Sector& sector, Check check) {
  for (double latitude = 33.27; latitude < 46.5; latitude += 0.5) {
    for (double longitude = -116.27; longitude < -90.5; longitude += 0.5) {
      const Point point{latitude, longitude};
      check(sector.PixelOf(Project(point)), point);
    }
  }
}

TEST(Maps, RainIsWhereTheFieldHasIt) {
  const Date valid = MakeDate(2003, 3, 7, 22);
  for (const char* path : {"/precip.200.12z.010.gif", "/fradar.200.12z.010.gif"}) {
    const Canvas picture = Picture(path);
    int wet = 0, wet_land = 0, dry = 0, dry_land = 0;
    ForInlandPixels(*FindSector("200"), [&](Pixel pixel, Point point) {
      const auto rain = [&](double north, double east) {
        return WaterAt({point.latitude + north, point.longitude + east}, valid, kWetSeed);
      };
      const double around[] = {rain(0.7, 0), rain(-0.7, 0), rain(0, 0.9), rain(0, -0.9)};
      const bool is_land = PixelAt(picture, static_cast<int>(pixel.x), static_cast<int>(pixel.y)) == kLand;
      if (std::ranges::min(around) > 0.02) ++wet, wet_land += is_land;
      if (std::ranges::max(around) == 0) ++dry, dry_land += is_land;
    });
    EXPECT_GT(wet, 100) << path;
    EXPECT_EQ(wet_land, 0) << path;
    EXPECT_GT(dry, 500) << path;
    EXPECT_GT(dry_land, dry * 85 / 100) << path;  // borders and names cover the rest
  }
}

TEST(Maps, TemperaturesOfOneBandHaveOneColour) {
  const Canvas picture = Picture("/sfctemp.200.12z.010.gif");
  const Date valid = MakeDate(2003, 3, 7, 22);
  std::map<int, std::map<std::string, int>> colours;  // of each band of ten degrees
  ForInlandPixels(*FindSector("200"), [&](Pixel pixel, Point point) {
    const double temperature = WeatherAt(point, valid, kWetSeed).temperature;
    if (std::abs(std::fmod(temperature, 10) - 5) > 4) return;  // near the rim of its band
    const Colour colour = PixelAt(picture, static_cast<int>(pixel.x), static_cast<int>(pixel.y));
    ++colours[static_cast<int>(temperature / 10)][std::to_string(colour.red) + ',' +
                                                  std::to_string(colour.green) + ',' +
                                                  std::to_string(colour.blue)];
  });
  std::set<std::string> of_bands;
  for (const auto& [band, counts] : colours) {
    const auto most = std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; });
    int all = 0;
    for (const auto& [colour, count] : counts) all += count;
    if (all < 100) continue;                          // one name would cover much of it
    EXPECT_GT(most->second, all * 85 / 100) << band;  // borders and names cover the rest
    EXPECT_TRUE(of_bands.insert(most->first).second) << band;
  }
  EXPECT_GE(of_bands.size(), 3u);
}

TEST(Maps, HighsAndLowsAndSumsAreThoseOfTheirHours) {
  const Point point{38.97, -95.24};
  const Date end = MakeDate(2003, 3, 8, 0);
  double high = -1000, low = 1000, water = 0, change = 0, next = NAN;
  for (int hour = 0; hour < 12; ++hour) {
    const Weather weather = WeatherAt(point, DateAdd(DateUnit::Hours, -hour, end), kWetSeed);
    high = std::max(high, weather.temperature);
    low = std::min(low, weather.temperature);
    water += weather.water;
    change = std::fmax(change, std::abs(weather.temperature - next));
    next = weather.temperature;
  }
  // Every second hour is looked at, so that an extreme is missed by the change of one hour at most.
  EXPECT_NEAR(ValueOf(LayerOf(LayerId::High), 12, point, end, kWetSeed), high, change);
  EXPECT_NEAR(ValueOf(LayerOf(LayerId::Low), 12, point, end, kWetSeed), low, change);
  EXPECT_LT(change, 4);
  EXPECT_GT(water, 0.5);
  EXPECT_NEAR(ValueOf(LayerOf(LayerId::HalfDayPrecipitation), 12, point, end, kWetSeed), water, 0.15 * water);
}

TEST(Maps, TimesAreCountedFromTheNewestRunOfTheName) {
  const struct {
    const char* path;
    Date now, valid;
  } cases[] = {{"/sfctemp.200.12z.010.gif", kNow, MakeDate(2003, 3, 7, 22)},
               {"/sfctemp.200.18z.010.gif", kNow, MakeDate(2003, 3, 7, 4)},  // that of today is not done
               {"/sfctemp.200.18z.010.gif", MakeDate(2003, 3, 7, 21), MakeDate(2003, 3, 8, 4)},
               {"/sfctemp.200.00z.000.gif", kNow, MakeDate(2003, 3, 7, 0)},
               {"/precip12.304.00z.084.gif", kNow, MakeDate(2003, 3, 10, 12)},
               {"/obstemp.104.gif", kNow, kNow},
               {"/obstemp.104.gif", MakeDate(2003, 3, 7, 20, 9, 59), kNow},
               {"/thunder.104.jpg", kNow, MakeDate(2003, 3, 8, 20, 5, 0)}};  // of the hours to come
  for (const auto& c : cases) {
    const auto map = ReadMapPath(c.path, c.now);
    ASSERT_TRUE(map) << c.path;
    EXPECT_EQ(map->valid, c.valid) << c.path;
  }
  EXPECT_EQ(ReadMapPath("/preciprun.200.12z.066.gif", kNow)->hours, 66);
  EXPECT_EQ(ReadMapPath("/preciprun.200.12z.060.gif", kNow)->hours, 60);
}

TEST(Maps, TellTheirTitleAndTime) {
  const auto bar = [](const std::string& path) {
    const Canvas picture = Picture(path);
    std::vector<Colour> pixels;
    for (int y = 0; y < 20; ++y) pixels.insert(pixels.end(), picture.Row(y).begin(), picture.Row(y).end());
    return pixels;
  };
  const auto title = bar("/analysis.101.12z.000.png");
  EXPECT_EQ(bar("/analysis.103.12z.000.png"), title);  // not of the map below
  EXPECT_NE(bar("/analysis.101.12z.001.png"), title);
  EXPECT_NE(bar("/wind.401.12z.000.png"), title);
}

TEST(Maps, SameSeedIsTheSameBytes) {
  for (const char* path : {"/precip.304.12z.010.gif", "/wind.404.12z.010.png", "/cloud.404.12z.010.jpg"}) {
    EXPECT_EQ(Ask(path).body, Ask(path).body) << path;
    EXPECT_NE(Ask(path).body, Ask(path, kNow, 9).body) << path;
  }
}

TEST(Maps, EveryFileHasALegend) {
  for (const Product& product : ProductsOf("00")) {
    if (!product.layer) continue;
    const std::string path = "/legends/" + std::string(product.file) + "_legend.gif";
    const Canvas legend = Picture(path);
    EXPECT_EQ(legend.Width(), 604) << path;
    EXPECT_EQ(legend.Height(), 40) << path;
    for (const Band& band : product.layer->scale.bands) {
      const auto row = legend.Row(20);  // through the middle of the boxes
      EXPECT_NE(std::ranges::find(row, band.colour), row.end()) << path << ' ' << band.label;
    }
  }
}

TEST(Maps, OtherNamesAreNotFound) {
  for (const std::string path : {"/sfctemp.200.12z.010.png",
                                 "/sfctemp.200.gif",
                                 "/sfctemp.999.12z.010.gif",
                                 "/sfctemp.404.12z.010.gif",
                                 "/sfctemp.200.13z.010.gif",
                                 "/sfctemp.200.12z.10.gif",
                                 "/sfctemp.200.12z.0100.gif",
                                 "/sfctemp.200.12z.-10.gif",
                                 "/sfctemp.200.12z.01a.gif",
                                 "/sfctemp.200.12z.010.gif.gif",
                                 "/sfctemp.200.12z.010.",
                                 "/sfctemp.200.12z.010",
                                 "/SFCTEMP.200.12z.010.gif",
                                 "/obstemp.104.12z.010.gif",
                                 "/obstemp..gif",
                                 "/.200.gif",
                                 "/..",
                                 "/../obstemp.104.gif",
                                 "/obstemp.104.gif%00",
                                 "/legends/x_legend.gif",
                                 "/legends/_legend.gif",
                                 "/legends/../sfctemp_legend.gif",
                                 "/legends/sfctemp_legend.png",
                                 "/legends\\sfctemp_legend.gif",
                                 "/legends_legend.gif",
                                 "/\xFF\xFE.200.gif",
                                 "/obs\"temp.104.gif"}) {
    EXPECT_EQ(Ask(path).status, 404) << path;
  }
  EXPECT_EQ(Ask(std::string("/obstemp.104.gif\0", 17)).status, 404);
}

}  // namespace
}  // namespace skyloft::feed
