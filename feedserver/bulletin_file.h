// The file of the bulletins, read again whenever it has changed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "feedserver/bulletins.h"

namespace skyloft::feed {

// Several threads may ask at once.
class BulletinFile {
 public:
  // "" for none.
  explicit BulletinFile(std::string name) : name_(std::move(name)) {}

  // The bulletins that stand in it. Their minutes count from the `now` of the first call after a change of
  // the file's time or size. A missing file has none; neither has one that is not understood, and a line on
  // stderr says so once.
  std::vector<Bulletin> Read(Date now);

 private:
  struct State {
    std::filesystem::file_time_type time;
    std::uintmax_t size;
    bool operator==(const State&) const = default;
  };

  std::optional<State> Look() const;

  const std::string name_;
  std::mutex mutex_;
  std::optional<State> seen_;
  std::vector<Bulletin> bulletins_;
};

}  // namespace skyloft::feed
