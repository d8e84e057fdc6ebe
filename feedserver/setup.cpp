// What the program asks once: where its servers are, and all about a place.
#include <array>

#include "base/values.h"
#include "feedserver/places.h"
#include "feedserver/replies.h"
#include "feedserver/xml.h"

namespace skyloft::feed {
namespace {

constexpr std::string_view kRadarServer = "http://radar.skyloft.example";

struct Host {
  std::string_view tag, address;
};

constexpr std::array<Host, 10> kHosts = {{
    {"fileserver", "files.skyloft.example/"},
    {"productserver", "catalogue.skyloft.example/"},
    {"messageserver", "messages.skyloft.example/messages.xml"},
    {"messageinterval", "300"},  // seconds
    {"forecastserver", "forecast.skyloft.example/"},
    {"imageserver", "images.skyloft.example/"},
    {"updateserver", "updates.skyloft.example/skltupdate.exe"},
    {"helpserver", "www.skyloft.example/help/"},
    {"supportserver", "www.skyloft.example/support/"},
    {"shareserver", "www.skyloft.example/share/"},
}};

}  // namespace

std::string HostsXml(const World& world) {
  XmlDocument xml("hosts");
  xml.Add("version", world.offered_version);
  for (const Host& host : kHosts) xml.Add(host.tag, host.address);
  return std::move(xml).Finish();
}

std::string LocationXml(const Query& query, Date now) {
  XmlDocument xml("location");
  const std::optional<Place> place =
      query.Has("pc") ? FindPlace(query.First("pc")) : FindPlace(query.First("city"), query.First("state"));
  if (!place) return std::move(xml).Finish();
  xml.Add("postal_code", place->postal_code);
  xml.Add("city", place->city);
  xml.Add("state", place->state);
  xml.Add("county", place->county);
  xml.Add("area_code", place->area_code);
  xml.Add("gmt_offset", NumberText(place->gmt_offset));
  xml.Add("latitude", NumberText(place->point.latitude));
  xml.Add("longitude", NumberText(place->point.longitude));
  xml.Add("nws_office", place->office);
  xml.Add("radar_station_code", place->radar->code);
  xml.Add("radar_station_lat", NumberText(place->radar->point.latitude));
  xml.Add("radar_station_long", NumberText(place->radar->point.longitude));
  xml.Add("nws_radar_server", kRadarServer);
  xml.Add("state_long", place->state_name);
  xml.Add("dst_ind", IsDaylightTime(*place, now) ? "1" : "0");
  return std::move(xml).Finish();
}

}  // namespace skyloft::feed
