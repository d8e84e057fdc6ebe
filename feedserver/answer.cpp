#include "feedserver/answer.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "feedserver/places.h"
#include "feedserver/products.h"
#include "feedserver/query.h"
#include "feedserver/radar.h"
#include "feedserver/replies.h"
#include "feedserver/storms.h"

namespace skyloft::feed {
namespace {

Reply XmlReply(std::string body) { return {.body = std::move(body)}; }
Reply NotFound() { return {.status = 404, .type = "text/plain", .body = "not found\n"}; }

// "/messages.xml." and a digit
bool IsMessages(std::string_view path) {
  constexpr std::string_view start = "/messages.xml.";
  return path.size() == start.size() + 1 && path.starts_with(start) && path.back() >= '0' &&
         path.back() <= '9';
}

Reply AnswerForecast(const Request& request, const World& world) {
  auto body = ForecastXml(Query(request.query), request.now, world.seed);
  return body ? XmlReply(*std::move(body)) : NotFound();
}

// Those of its places that there are.
std::vector<Place> PlacesOf(const Query& query) {
  std::vector<Place> places;
  for (const std::string_view postal_code : query.All("pc")) {
    if (const std::optional<Place> place = FindPlace(postal_code)) places.push_back(*place);
  }
  return places;
}

Reply AnswerBulletins(const Request& request, const World& world) {
  const Query query(request.query);
  auto bulletins = world.bulletins ? world.bulletins(request.now) : std::vector<Bulletin>();
  if (world.storms) {
    std::ranges::move(StormBulletins(PlacesOf(query), request.now, world.seed),
                      std::back_inserter(bulletins));
  }
  return XmlReply(BulletinsXml(query, bulletins, request.now));
}

Reply AnswerUpdate(const World& world) {
  if (world.update_file.empty()) return NotFound();
  return {.type = "application/octet-stream", .body = world.update_file};
}

Reply AnswerCatalogue(std::string_view path) {
  constexpr std::string_view sectors = "/sectors.", products = "/products.";
  const bool is_products = path.starts_with(products);
  if (!is_products && !path.starts_with(sectors)) return NotFound();
  path.remove_prefix(is_products ? products.size() : sectors.size());
  const std::string_view hour = path.substr(0, 2);
  if (!IsRunHour(hour) || path.substr(2) != (is_products ? "z.sys.4" : "z.sys")) return NotFound();
  return XmlReply(is_products ? ProductsXml(hour) : SectorsXml());
}

}  // namespace

Reply Answer(const Request& request, const World& world) {
  const std::string_view path = request.path;
  if (path == "/forecast.asp") return AnswerForecast(request, world);
  if (path == "/location_setup.asp") return XmlReply(LocationXml(Query(request.query), request.now));
  if (path == "/skyloft/config/hosts.xml") return XmlReply(HostsXml(world));
  if (path == "/bulletins.asp") return AnswerBulletins(request, world);
  if (IsMessages(path)) return XmlReply(MessagesXml(request.now));
  if (path == "/skltupdate.exe") return AnswerUpdate(world);
  if (auto picture = PictureReply(path, request.now, world)) return *std::move(picture);
  if (auto page = PageReply(path)) return *std::move(page);
  return AnswerCatalogue(path);
}

std::vector<Request> RequestsAfter(const Request& request) {
  std::vector<Request> requests;
  const Query query(request.query);
  if (request.path != "/forecast.asp" || query.First("d") != "meta") return requests;
  for (const Place& place : PlacesOf(query))
    requests.push_back({RadarPath({RadarProduct::Reflectivity, place.radar}), "", request.now});
  return requests;
}

}  // namespace skyloft::feed
