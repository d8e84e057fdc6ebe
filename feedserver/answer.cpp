#include "feedserver/answer.h"

#include <array>
#include <string_view>

#include "feedserver/places.h"
#include "feedserver/query.h"
#include "feedserver/radar.h"
#include "feedserver/replies.h"
#include "feedserver/xml.h"

namespace skyloft::feed {
namespace {

constexpr std::array<std::string_view, 4> kRunHours = {"00", "06", "12", "18"};

Reply XmlReply(std::string body) { return {.body = std::move(body)}; }
Reply NotFound() { return {.status = 404, .type = "text/plain", .body = "not found\n"}; }

std::string EmptyXml(std::string_view root) { return XmlDocument(root).Finish(); }

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

Reply AnswerUpdate(const World& world) {
  if (world.update_file.empty()) return NotFound();
  return {.type = "application/octet-stream", .body = world.update_file};
}

Reply AnswerCatalogue(std::string_view path) {
  for (const std::string_view hour : kRunHours) {
    const std::string run = std::string(hour) + "z.sys";
    if (path == "/sectors." + run) return XmlReply(SectorsXml());
    if (path == "/products." + run + ".4") return XmlReply(ProductsXml(hour));
  }
  return NotFound();
}

}  // namespace

Reply Answer(const Request& request, const World& world) {
  const std::string_view path = request.path;
  if (path == "/forecast.asp") return AnswerForecast(request, world);
  if (path == "/location_setup.asp") return XmlReply(LocationXml(Query(request.query), request.now));
  if (path == "/skyloft/config/hosts.xml") return XmlReply(HostsXml(world));
  if (path == "/bulletins.asp") return XmlReply(EmptyXml("bulletins"));
  if (IsMessages(path)) return XmlReply(EmptyXml("messages"));
  if (path == "/skltupdate.exe") return AnswerUpdate(world);
  if (auto picture = PictureReply(path, request.now, world.seed)) return *std::move(picture);
  return AnswerCatalogue(path);
}

std::vector<Request> RequestsAfter(const Request& request) {
  std::vector<Request> requests;
  const Query query(request.query);
  if (request.path != "/forecast.asp" || query.First("d") != "meta") return requests;
  for (const std::string_view postal_code : query.All("pc")) {
    const Place* const place = FindPlace(postal_code);
    if (place) {
      requests.push_back(
          {RadarPath({RadarProduct::Reflectivity, &place->radar}), "", RadarTime(request.now)});
    }
  }
  return requests;
}

std::optional<Request> ExpectedForm(const Request& request) {
  const auto radar = ReadRadarPath(request.path);
  if (!radar) return {};
  return Request{request.path, "", RadarTime(request.now)};
}

}  // namespace skyloft::feed
