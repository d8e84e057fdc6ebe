#include "feedserver/picture_store.h"

namespace skyloft::feed {

std::string PictureStore::Find(const PictureKey& key, const std::function<std::string()>& draw) {
  const std::shared_ptr<Picture> picture = Take(key);
  std::call_once(picture->drawn, [&] {
    picture->bytes = draw();
    Count(key, *picture);
  });
  return picture->bytes;
}

// The place of a picture, which comes first from now on.
std::shared_ptr<PictureStore::Picture> PictureStore::Take(const PictureKey& key) {
  const std::lock_guard lock(mutex_);
  const auto found = by_key_.find(key);
  if (found == by_key_.end()) {
    entries_.push_front({key, std::make_shared<Picture>()});
    by_key_[key] = entries_.begin();
  } else {
    entries_.splice(entries_.begin(), entries_, found->second);
  }
  return entries_.front().picture;
}

void PictureStore::Count(const PictureKey& key, const Picture& picture) {
  const std::lock_guard lock(mutex_);
  const auto found = by_key_.find(key);
  // Forgotten while it was drawn; perhaps somebody draws it again.
  if (found == by_key_.end() || found->second->picture.get() != &picture) return;
  bytes_ += found->second->size = picture.bytes.size();
  while (bytes_ > most_bytes_) {
    bytes_ -= entries_.back().size;
    by_key_.erase(entries_.back().key);
    entries_.pop_back();
  }
}

}  // namespace skyloft::feed
