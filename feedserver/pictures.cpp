// The pictures of the feed, by their addresses.
#include <algorithm>
#include <array>

#include "feedserver/encode.h"
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

// A picture in the format that its address ends with.
Reply PictureIn(std::string_view path, const Canvas& canvas) {
  const auto* format =
      std::ranges::find_if(kPictureFormats, [&](const PictureFormat& f) { return path.ends_with(f.ending); });
  return {.type = std::string(format->type), .body = format->encode(canvas)};
}

}  // namespace

std::optional<Reply> PictureReply(std::string_view path, Date now, std::uint64_t seed) {
  if (const auto radar = ReadRadarPath(path)) return PictureIn(path, DrawRadar(*radar, now, seed));
  if (const auto map = ReadMapPath(path, now)) return PictureIn(path, DrawMap(*map, seed));
  if (const Layer* const layer = ReadLegendPath(path)) return PictureIn(path, DrawLegend(*layer));
  return {};
}

}  // namespace skyloft::feed
