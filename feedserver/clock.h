// The server's clock: the computer's, until it is told to stand.
#pragma once

#include <mutex>
#include <optional>
#include <string>

#include "base/dates.h"

namespace skyloft::feed {

// Several threads may use it at once. All moments are GMT.
class Clock {
 public:
  explicit Clock(std::optional<Date> stands) : stands_(stands) {}
  Date Now() const;
  void Stand(Date moment);

 private:
  mutable std::mutex mutex_;
  std::optional<Date> stands_;
};

// Does what a line of the server's input asks: "now TIME" lets the clock stand there. Returns the line that
// answers it: the same when it was understood, otherwise "not understood".
std::string Obey(const std::string& line, Clock& clock);

}  // namespace skyloft::feed
