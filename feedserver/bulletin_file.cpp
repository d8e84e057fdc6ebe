#include "feedserver/bulletin_file.h"

#include <fstream>
#include <iostream>
#include <iterator>

#include "base/guard.h"

namespace skyloft::feed {

std::optional<BulletinFile::State> BulletinFile::Look() const {
  std::error_code missing, unreadable;
  const State state{std::filesystem::last_write_time(name_, missing),
                    std::filesystem::file_size(name_, unreadable)};
  if (missing || unreadable) return std::nullopt;
  return state;
}

std::vector<Bulletin> BulletinFile::Read(Date now) {
  const std::lock_guard lock(mutex_);
  const auto state = Look();
  if (state == seen_) return bulletins_;
  seen_ = state;
  bulletins_.clear();
  if (!state) return bulletins_;
  std::ifstream file(name_, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  try {
    bulletins_ = ReadBulletins(text, now);
  } catch (const RuntimeError& error) {
    std::cerr << "skyloft-feed: " << name_ << ": " << error.what() << std::endl;
  }
  return bulletins_;
}

}  // namespace skyloft::feed
