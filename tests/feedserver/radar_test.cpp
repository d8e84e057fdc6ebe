#include "feedserver/radar.h"
#include "feedserver/picture_store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "decode.h"
#include "feedserver/answer.h"
#include "feedserver/picture_store.h"
#include "feedserver/places.h"
#include "sample_places.h"

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);
constexpr std::uint64_t kWetSeed = 799;  // rain over Kansas and Illinois
constexpr Colour kGround{0, 0, 0}, kLines{0, 139, 0}, kMarks{205, 0, 0};

const std::string kKansas = "/radar/images/DS.p19r0/SI.ktwx/latest.gif";

Reply Ask(const std::string& path, Date now = kNow, std::uint64_t seed = kWetSeed) {
  return Answer({path, "", now}, {.seed = seed});
}

Canvas Picture(const std::string& path, std::uint64_t seed = kWetSeed) {
  const Reply reply = Ask(path, kNow, seed);
  EXPECT_EQ(reply.status, 200) << path;
  EXPECT_EQ(reply.type, "image/gif");
  return DecodeGif(reply.body);
}

bool IsDrawing(Colour colour) { return colour == kLines || colour == kMarks; }

TEST(Radar, EverySampleSiteHasEveryProduct) {
  for (const char* postal_code : kSampleZips) {
    const Place place = *FindPlace(postal_code);
    for (const auto product :
         {RadarProduct::Reflectivity, RadarProduct::HourPrecipitation, RadarProduct::TotalPrecipitation}) {
      const std::string path = RadarPath({product, place.radar});
      const Canvas picture = Picture(path);
      EXPECT_EQ(picture.Width(), 620) << path;
      EXPECT_EQ(picture.Height(), 620) << path;
      EXPECT_EQ(PixelAt(picture, 322, 308), kMarks) << path;
      EXPECT_EQ(PixelAt(picture, 619, 619), kGround) << path;
      EXPECT_EQ(PixelAt(picture, 322, 18), kLines) << path;  // 230 km to the north: 308 - 230 / 111.2 * 140
    }
  }
}

TEST(Radar, ProductsAreToldApartByTheirFolders) {
  const std::string kinds[] = {"DS.p19r0", "DS.78ohp", "DS.80stp"};
  std::vector<std::string> bodies;
  for (const std::string& kind : kinds) {
    const Reply reply = Ask("/radar/images/" + kind + "/SI.klot/latest.gif");
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(std::ranges::count(bodies, reply.body), 0) << kind;
    bodies.push_back(reply.body);
  }
}

TEST(Radar, ColoursThatAClientPutsInAreNotThereBefore) {
  for (const char* kind : {"DS.p19r0", "DS.78ohp", "DS.80stp"}) {
    const Canvas picture = Picture("/radar/images/" + std::string(kind) + "/SI.klot/latest.gif");
    for (int y = 0; y < picture.Height(); ++y) {
      for (const Colour colour : picture.Row(y)) {
        ASSERT_NE(colour, (Colour{90, 90, 80})) << kind;
        ASSERT_NE(colour, (Colour{255, 75, 75})) << kind;
      }
    }
  }
}

// The rain is sampled every ten pixels, so that its rim is known to about that.
TEST(Radar, EchoesAreWhereItRains) {
  const RadarSite& site = *FindRadarSite("KTWX");
  const Canvas picture = Picture(kKansas);
  const auto rain = [&](int x, int y) {
    return WaterAt({site.point.latitude - (y - 308) / 140.0, site.point.longitude + (x - 322) / 100.0}, kNow,
                   kWetSeed);
  };
  int wet = 0, dry = 0;
  for (int y = 60; y < 560; y += 7) {
    for (int x = 120; x < 520; x += 7) {
      const Colour colour = PixelAt(picture, x, y);
      if (IsDrawing(colour) || std::hypot((x - 322) / 266.0, (y - 308) / 290.0) > 0.98) continue;
      const double around[] = {rain(x - 12, y), rain(x + 12, y), rain(x, y - 12), rain(x, y + 12)};
      if (std::ranges::min(around) > 0) {
        ++wet;
        EXPECT_NE(colour, kGround) << x << ' ' << y;
      } else if (std::ranges::max(around) == 0) {
        ++dry;
        EXPECT_EQ(colour, kGround) << x << ' ' << y;
      }
    }
  }
  EXPECT_GT(wet, 1000);
  EXPECT_GT(dry, 100);
}

TEST(Radar, TownsLieWhereTheClientLooksForThem) {
  // The middle of the client's view is 322 - 100 (site - town) and 308 + 140 (site - town).
  const Canvas picture = Picture(kKansas, 1);
  EXPECT_EQ(PixelAt(picture, 421, 311),
            kMarks);  // Lawrence at 38.97 N 95.24 W, the site at 38.997 N 96.233 W
  const Pixel site = RadarPixel(*FindRadarSite("KTWX"), {38.997, -96.233});
  EXPECT_DOUBLE_EQ(site.x, 322);
  EXPECT_DOUBLE_EQ(site.y, 308);
  const Pixel corner = RadarPixel(*FindRadarSite("KTWX"), {39.997, -97.233});
  EXPECT_NEAR(corner.x, 222, 1e-6);
  EXPECT_NEAR(corner.y, 168, 1e-6);
}

TEST(Radar, PicturesLastFiveMinutesAndChangeWithTheSeed) {
  const std::string first = Ask(kKansas).body;
  EXPECT_EQ(Ask(kKansas, MakeDate(2003, 3, 7, 20, 9, 59)).body, first);
  EXPECT_NE(Ask(kKansas, MakeDate(2003, 3, 7, 20, 10, 0)).body, first);
  EXPECT_NE(Ask(kKansas, kNow, 9).body, first);
}

TEST(Radar, OtherAddressesAreNotFound) {
  for (const std::string path :
       {"/radar/images/DS.p19r0/SI.KTWX/latest.gif", "/radar/images/DS.p19r0/SI.kxxx/latest.gif",
        "/radar/images/DS.p19r0/SI.twx/latest.gif", "/radar/images/DS.p19r0/SI.../latest.gif",
        "/radar/images/DS.p19r0/SI.ktwx/latest.gif/", "/radar/images/DS.p19r0/SI.ktwx/latest.png",
        "/radar/images/DS.p20r0/SI.ktwx/latest.gif", "/radar/images/DS.p19r0/SI.", "/radar/images/",
        "/radar/images/DS.p19r0/SI.ktw\xFF/latest.gif", "/radar/images/DS.p19r0/../SI.ktwx/latest.gif"}) {
    EXPECT_EQ(Ask(path).status, 404) << path;
  }
  EXPECT_EQ(Ask(std::string("/radar/images/DS.p19r0/SI.ktw\0/latest.gif", 41)).status, 404);
}

TEST(Radar, MetaDataLetExpectTheRadarOfTheirTowns) {
  const Date now = MakeDate(2003, 3, 7, 20, 8, 1);
  const auto after = RequestsAfter({"/forecast.asp", "t=xml&d=meta&pc=66044&pc=99999&pc=60601", now});
  ASSERT_EQ(after.size(), 2u);
  EXPECT_EQ(after[0].path, kKansas);
  EXPECT_EQ(after[1].path, "/radar/images/DS.p19r0/SI.klot/latest.gif");
  EXPECT_EQ(after[1].now, now);
  EXPECT_TRUE(RequestsAfter({"/forecast.asp", "t=xml&d=current&pc=66044", kNow}).empty());
  EXPECT_TRUE(RequestsAfter({"/bulletins.asp", "d=meta&pc=66044", kNow}).empty());
}

// One drawn ahead is kept under the name that a client asks by up to five minutes later.
TEST(Radar, PictureDrawnAheadIsTheOneAskedForLater) {
  PictureStore pictures;
  const World world{.pictures = &pictures};
  for (const Request& next :
       RequestsAfter({"/forecast.asp", "t=xml&d=meta&pc=66044", MakeDate(2003, 3, 7, 20, 5, 1)})) {
    Answer(next, world);
  }
  int drawn = 0;
  pictures.Find({kKansas, MakeDate(2003, 3, 7, 20, 5, 0), world.seed},
                [&] { return ++drawn, std::string(); });
  EXPECT_EQ(drawn, 0);
  EXPECT_EQ(Answer({kKansas, "", MakeDate(2003, 3, 7, 20, 9, 59)}, world).body,
            Answer({kKansas, "", MakeDate(2003, 3, 7, 20, 9, 59)}, {}).body);
}

}  // namespace
}  // namespace skyloft::feed
