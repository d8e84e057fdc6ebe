// Places that nobody chose, from the server's socket.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "base/dates.h"
#include "base/values.h"
#include "feedserver/places.h"
#include "running_server.h"
#include "scan.h"

namespace skyloft::feed {
namespace {

// The elements of a reply; all have a value.
Elements Whole(int port, const std::string& target) {
  const std::string reply = Get(port, target);
  EXPECT_EQ(reply.substr(0, 15), "HTTP/1.1 200 OK") << target;
  Elements elements = Scan(BodyOf(reply));
  for (const auto& [tag, value] : elements) EXPECT_FALSE(value.empty()) << target << ' ' << tag;
  return elements;
}

void ExpectWholeSetup(int port, const Place& place) {
  const Elements setup = Whole(port, "/location_setup.asp?pc=" + std::string(place.postal_code) + "&t=xml");
  std::vector<std::string> tags;
  for (const auto& [tag, value] : setup) tags.push_back(tag);
  const std::vector<std::string> expected = {"postal_code",
                                             "city",
                                             "state",
                                             "county",
                                             "area_code",
                                             "gmt_offset",
                                             "latitude",
                                             "longitude",
                                             "nws_office",
                                             "radar_station_code",
                                             "radar_station_lat",
                                             "radar_station_long",
                                             "nws_radar_server",
                                             "state_long",
                                             "dst_ind"};
  EXPECT_EQ(tags, expected);
  EXPECT_EQ(First(setup, "postal_code"), place.postal_code);
  EXPECT_EQ(First(setup, "city"), place.city);
  EXPECT_EQ(StrictNumber(First(setup, "latitude")), place.point.latitude);
  EXPECT_EQ(First(setup, "dst_ind"), "0");  // in March
}

void ExpectWholeWeather(int port, const Place& place) {
  const std::string zip(place.postal_code);
  const Elements meta = Whole(port, "/forecast.asp?t=xml&d=meta&pc=" + zip);
  EXPECT_EQ(Values(meta, "Obs_TS_UTC").size(), 1u);
  const Elements current = Whole(port, "/forecast.asp?t=xml&d=current&pc=" + zip);
  EXPECT_EQ(Values(current, "City"), (std::vector<std::string>{StationOf(place), std::string(place.city)}));
  EXPECT_EQ(Values(current, "State"), std::vector<std::string>(2, std::string(place.state)));
  EXPECT_EQ(ReadDate(First(current, "Lt")), LocalTime(place, ReadDate(First(meta, "Obs_TS_UTC"))));
  const Elements hourly = Whole(port, "/forecast.asp?st=1%2F1%2F2000&et=1%2F1%2F2099&t=xml&pc=" + zip);
  for (const char* tag : {"Ut", "Lt", "Desc", "Ic", "Tf", "Df", "Rh", "At", "Wd", "Ws", "Rn", "Sn"})
    EXPECT_EQ(Values(hourly, tag).size(), 66u) << tag;
  const Elements extended = Whole(port, "/forecast.asp?t=xml&fcsttype=extended&pc=" + zip);
  for (const char* tag : {"Ut", "Desc", "Ic", "Th", "Tl", "Rn", "Sn", "Wd", "Ws"})
    EXPECT_EQ(Values(extended, tag).size(), 25u) << tag;
}

TEST(PlacesOfTheServer, FiftyAtRandomHaveAllThatAClientAsksFor) {
  const RunningServer server({"--port", "0"});
  std::mt19937 random(20030307);
  for (int i = 0; i < 50; ++i) {
    const Place place = PlaceAt(random() % PlaceCount());
    SCOPED_TRACE(place.postal_code);
    ExpectWholeSetup(server.Port(), place);
    ExpectWholeWeather(server.Port(), place);
  }
}

TEST(PlacesOfTheServer, UnknownOnesHaveNoPostalCode) {
  const RunningServer server({"--port", "0"});
  for (const char* query :
       {"pc=99999", "pc=", "pc=6604", "pc=Lawrence", "pc=09007", "pc=%00", "city=Lawrence&state=HI",
        "city=&state=", "city=Nowhere&state=KS", "city=Lawrence"}) {
    const std::string reply = Get(server.Port(), "/location_setup.asp?" + std::string(query) + "&t=xml");
    EXPECT_EQ(reply.substr(0, 15), "HTTP/1.1 200 OK") << query;
    EXPECT_TRUE(Scan(BodyOf(reply)).empty()) << query;
  }
}

}  // namespace
}  // namespace skyloft::feed
