// The pictures of the feed, by their addresses.
#include "feedserver/encode.h"
#include "feedserver/radar.h"
#include "feedserver/replies.h"

namespace skyloft::feed {

std::optional<Reply> PictureReply(std::string_view path, Date now, std::uint64_t seed) {
  if (const auto radar = ReadRadarPath(path))
    return Reply{.type = "image/gif", .body = EncodeGif(DrawRadar(*radar, now, seed))};
  return {};
}

}  // namespace skyloft::feed
