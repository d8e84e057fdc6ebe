#include "feedserver/answer.h"

#include <gtest/gtest.h>

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

TEST(Answer, AllElseIsNotFound) {
  for (const char* path :
       {"/", "", "/forecast.asp", "/FORECAST.ASP", "/messages.xml", "/messages.xml.", "/messages.xml.x",
        "/messages.xml.10", "/sectors.03z.sys", "/sectors.00z.sys.4", "/products.", "/sectors.0", "/support",
        "/share/x", "/products.00z.sys", "/products.00z.sys.5"}) {
    EXPECT_EQ(Answer({path, "", kNow}, {}).status, 404) << path;
  }
  EXPECT_EQ(Answer({"/forecast.asp", "t=xml&d=tomorrow&pc=66044", kNow}, {}).status, 404);
}

TEST(Answer, PagesArePlainDocuments) {
  for (const char* path : {"/help/", "/support/", "/newsletter/", "/share/"}) {
    const Reply page = Answer({path, "", kNow}, {});
    EXPECT_EQ(page.status, 200) << path;
    EXPECT_EQ(page.type, "text/html") << path;
    EXPECT_TRUE(page.body.starts_with("<!DOCTYPE html>")) << path;
    EXPECT_TRUE(page.body.ends_with("</html>\n")) << path;
    for (const char* script : {"<script", "javascript:", "onclick", "onload", "<iframe", "<object"})
      EXPECT_EQ(page.body.find(script), std::string::npos) << path << ' ' << script;
  }
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
