// The pictures of the feed, by their addresses.
#include <algorithm>
#include <array>
#include <functional>

#include "feedserver/encode.h"
#include "feedserver/picture_store.h"
#include "feedserver/products.h"
#include "feedserver/radar.h"
#include "feedserver/replies.h"

namespace skyloft::feed {
namespace {

struct PictureFormat {
  std::string_view ending, type;
  std::string (*encode)(const Canvas&);
};
constexpr std::array<PictureFormat, 3> kPictureFormats = {
    {{".gif", "image/gif", EncodeGif}, {".png", "image/png", EncodePng}, {".jpg", "image/jpeg", EncodeJpeg}}};

const PictureFormat& FormatOf(std::string_view path) {
  return *std::ranges::find_if(kPictureFormats,
                               [&](const PictureFormat& format) { return path.ends_with(format.ending); });
}

// A picture that is not drawn yet.
struct Plan {
  Date shown;  // the moment that it depends on; empty for one that does not
  std::function<Canvas()> draw;
};

std::optional<Plan> PlanOf(std::string_view path, Date now, std::uint64_t seed) {
  if (const auto radar = ReadRadarPath(path))
    return Plan{RadarTime(now), [=] { return DrawRadar(*radar, now, seed); }};
  if (const auto map = ReadMapPath(path, now)) return Plan{map->valid, [=] { return DrawMap(*map, seed); }};
  if (const Layer* const layer = ReadLegendPath(path)) return Plan{{}, [=] { return DrawLegend(*layer); }};
  return {};
}

}  // namespace

std::optional<Reply> PictureReply(std::string_view path, Date now, const World& world) {
  const auto plan = PlanOf(path, now, world.seed);
  if (!plan) return {};
  const PictureFormat& format = FormatOf(path);
  const auto draw = [&] { return format.encode(plan->draw()); };
  return Reply{.type = std::string(format.type),
               .body = world.pictures
                           ? world.pictures->Find({std::string(path), plan->shown, world.seed}, draw)
                           : draw()};
}

}  // namespace skyloft::feed
