#include "feedserver/answer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "base/values.h"
#include "scan.h"

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);

Elements Ask(const std::string& path, const std::string& query = "", Date now = kNow,
             const World& world = {}) {
  const Reply reply = Answer({path, query, now}, world);
  EXPECT_EQ(reply.status, 200) << path;
  EXPECT_EQ(reply.type, "text/xml");
  return Scan(reply.body);
}

TEST(Answer, HostsAreAllInvented) {
  const Elements hosts = Ask("/skyloft/config/hosts.xml");
  EXPECT_EQ(First(hosts, "version"), "1.20.00");
  EXPECT_EQ(First(hosts, "messageinterval"), "300");
  EXPECT_EQ(First(hosts, "messageserver"), "messages.skyloft.example/messages.xml");
  int servers = 0;
  for (const auto& [tag, value] : hosts) {
    if (!tag.ends_with("server")) continue;
    ++servers;
    EXPECT_NE(value.find(".skyloft.example/"), value.npos) << tag;
    EXPECT_EQ(value.find(':'), value.npos) << tag;
  }
  EXPECT_EQ(servers, 9);
}

TEST(Answer, VersionOnOfferIsTheOneAskedFor) {
  EXPECT_EQ(First(Ask("/skyloft/config/hosts.xml", "", kNow, {.offered_version = "1.21<&>"}), "version"),
            "1.21<&>");
}

TEST(Answer, UpdateIsServedWhenThereIsOne) {
  EXPECT_EQ(Answer({"/skltupdate.exe", "", kNow}, {}).status, 404);
  const Reply reply = Answer({"/skltupdate.exe", "", kNow}, {.update_file = std::string("MZ\0x", 4)});
  EXPECT_EQ(reply.status, 200);
  EXPECT_EQ(reply.body, std::string("MZ\0x", 4));
}

TEST(Answer, LocationTellsAllAboutAPlace) {
  const Elements expected = {{"postal_code", "66044"},
                             {"city", "Lawrence"},
                             {"state", "KS"},
                             {"county", "Douglas"},
                             {"area_code", "785"},
                             {"gmt_offset", "-6"},
                             {"latitude", "38.9717"},
                             {"longitude", "-95.2353"},
                             {"nws_office", "TOP"},
                             {"radar_station_code", "KTWX"},
                             {"radar_station_lat", "38.997"},
                             {"radar_station_long", "-96.233"},
                             {"nws_radar_server", "http://radar.skyloft.example"},
                             {"state_long", "Kansas"},
                             {"dst_ind", "0"}};
  EXPECT_EQ(Ask("/location_setup.asp", "pc=66044&t=xml"), expected);
  EXPECT_EQ(Ask("/location_setup.asp", "city=+LAWRENCE&state=ks&t=xml"), expected);
}

TEST(Answer, DaylightTimeIsToldWhileItIsInForce) {
  const Date summer = MakeDate(2008, 7, 1);
  EXPECT_EQ(First(Ask("/location_setup.asp", "pc=66044&t=xml", summer), "dst_ind"), "1");
  EXPECT_EQ(First(Ask("/location_setup.asp", "pc=85003&t=xml", summer), "dst_ind"), "0");
}

TEST(Answer, UnknownPlaceHasNoTags) {
  for (const char* query : {"pc=99999&t=xml", "city=Nowhere&state=KS&t=xml", "t=xml", ""}) {
    EXPECT_TRUE(Ask("/location_setup.asp", query).empty()) << query;
  }
}

TEST(Answer, BulletinsAndMessagesAreEmptySets) {
  EXPECT_TRUE(Ask("/bulletins.asp").empty());
  for (const char* path : {"/messages.xml.0", "/messages.xml.9"}) EXPECT_TRUE(Ask(path).empty());
}

TEST(Answer, CataloguesAreThereForEveryModelRun) {
  for (const std::string hour : {"00", "06", "12", "18"}) {
    const Elements products = Ask("/products." + hour + "z.sys.4");
    EXPECT_EQ(First(products, "model"), hour + "z");
    EXPECT_EQ(First(products, "modelx"), hour < "12" ? "00z" : "12z");
    EXPECT_EQ(Values(products, "menu"),
              (std::vector<std::string>{"Planners", "Forecast Maps", "NEXRAD Radar", "Historical"}));
    const std::vector<std::string> names = Values(products, "product");
    EXPECT_EQ(names, (std::vector<std::string>{"Hourly Planner", "Weekly Planner", "Reflectivity",
                                               "1-Hour Precipitation", "Total Precipitation",
                                               "Historical Conditions"}));
    EXPECT_EQ(Values(products, "category"), (std::vector<std::string>{"0", "0", "2", "2", "2", "3"}));
    for (const char* tag : {"id", "code", "period", "file", "type"}) {
      EXPECT_EQ(Values(products, tag).size(), names.size()) << tag;
    }
    EXPECT_EQ(First(Ask("/sectors." + hour + "z.sys"), "sector"), "200");
  }
}

TEST(Answer, ProductsTellTheirMapsAndPicturesInFormsThatAreRead) {
  const Elements products = Ask("/products.06z.sys.4");
  const std::string family = First(Ask("/sectors.06z.sys"), "sector").substr(0, 1);
  for (const std::string& id : Values(products, "id")) EXPECT_EQ(id, family);
  for (const std::string& code : Values(products, "code")) {
    EXPECT_TRUE(code == "url" || (StrictNumber(code) >= 0 && StrictNumber(code) <= 11)) << code;
  }
  for (const std::string& frames : Values(products, "period")) EXPECT_GE(StrictNumber(frames), 1);
  for (const std::string& type : Values(products, "type")) EXPECT_EQ(type, "gif");
  const auto menus = static_cast<double>(Values(products, "menu").size());
  for (const std::string& category : Values(products, "category")) EXPECT_LT(StrictNumber(category), menus);
}

struct MapPoint {
  double x, y;
};

// Lambert azimuthal equal-area, centre 50 N 100 W, in metres (Snyder 1987, equations 22-4 and 24-2).
MapPoint Project(double latitude, double longitude) {
  constexpr double radian = std::numbers::pi / 180, radius = 6370997;
  const double phi = latitude * radian, centre = 50 * radian, lambda = (longitude + 100) * radian;
  const double cosine =
      std::sin(centre) * std::sin(phi) + std::cos(centre) * std::cos(phi) * std::cos(lambda);
  const double k = radius * std::sqrt(2 / (1 + cosine));
  return {k * std::cos(phi) * std::sin(lambda),
          k * (std::cos(centre) * std::sin(phi) - std::sin(centre) * std::cos(phi) * std::cos(lambda))};
}

TEST(Answer, NationalSectorHoldsTheLower48) {
  const Elements sector = Ask("/sectors.12z.sys");
  const auto edge = [&](const char* tag) { return StrictNumber(First(sector, tag)); };
  const double corners[][2] = {{48.16, -124.73}, {44.82, -66.95},  {24.54, -81.80},
                               {25.84, -97.40},  {32.53, -117.12}, {49.38, -95.15},
                               {47.46, -69.22},  {40.44, -124.41}, {38.95, -123.74}};
  for (const auto& [latitude, longitude] : corners) {
    const MapPoint point = Project(latitude, longitude);
    EXPECT_GT(point.x, edge("xmin") + 100e3) << latitude;
    EXPECT_LT(point.x, edge("xmax") - 100e3) << latitude;
    EXPECT_GT(point.y, edge("ymin") + 100e3) << latitude;
    EXPECT_LT(point.y, edge("ymax") - 100e3) << latitude;
  }
  // The map's pixels are square.
  const Elements products = Ask("/products.12z.sys.4");
  EXPECT_DOUBLE_EQ((edge("xmax") - edge("xmin")) / StrictNumber(First(products, "width")),
                   (edge("ymax") - edge("ymin")) / StrictNumber(First(products, "height")));
}

TEST(Answer, AllElseIsNotFound) {
  for (const char* path :
       {"/", "", "/forecast.asp", "/FORECAST.ASP", "/messages.xml", "/messages.xml.", "/messages.xml.x",
        "/messages.xml.10", "/sectors.03z.sys", "/products.00z.sys", "/products.00z.sys.5"}) {
    EXPECT_EQ(Answer({path, "", kNow}, {}).status, 404) << path;
  }
  EXPECT_EQ(Answer({"/forecast.asp", "t=xml&d=tomorrow&pc=66044", kNow}, {}).status, 404);
}

TEST(Answer, EveryReplySaysThatItIsSimulated) {
  for (const char* query :
       {"t=xml&d=current&pc=66044", "t=xml&d=meta&pc=66044", "t=xml&fcsttype=extended&pc=66044"}) {
    EXPECT_NE(Answer({"/forecast.asp", query, kNow}, {}).body.find("Simulated weather"), std::string::npos)
        << query;
  }
}

}  // namespace
}  // namespace skyloft::feed
