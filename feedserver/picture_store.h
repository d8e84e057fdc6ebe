// Pictures that were drawn, kept for whoever asks again.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "base/dates.h"

namespace skyloft::feed {

// All that a picture depends on.
struct PictureKey {
  std::string path;
  Date shown;  // the moment that it shows; the same for all where time does not matter
  std::uint64_t seed;
  auto operator<=>(const PictureKey&) const = default;
};

// Several threads may use it at once.
class PictureStore {
 public:
  explicit PictureStore(std::size_t most_bytes = 8'000'000) : most_bytes_(most_bytes) {}
  // The bytes of a picture: those kept, or what `draw` makes of it, once for all who ask meanwhile. When more
  // bytes are kept than may be, those longest not asked for are forgotten. Raises what drawing raised.
  std::string Find(const PictureKey& key, const std::function<std::string()>& draw);

 private:
  struct Picture {
    std::once_flag drawn;
    std::string bytes;
  };
  struct Entry {
    PictureKey key;
    std::shared_ptr<Picture> picture;
    std::size_t size = 0;  // bytes, 0 until it is drawn
  };
  std::shared_ptr<Picture> Take(const PictureKey& key);
  void Count(const PictureKey& key, const Picture& picture);

  std::size_t most_bytes_, bytes_ = 0;
  std::mutex mutex_;
  std::list<Entry> entries_;  // the last asked for first
  std::map<PictureKey, std::list<Entry>::iterator> by_key_;
};

}  // namespace skyloft::feed
