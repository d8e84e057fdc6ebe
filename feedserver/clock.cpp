#include "feedserver/clock.h"

#include <ctime>

namespace skyloft::feed {

Date Clock::Now() const {
  const std::lock_guard lock(mutex_);
  if (stands_) return *stands_;
  return {MakeDate(1970, 1, 1).seconds + static_cast<std::int64_t>(std::time(nullptr))};
}

void Clock::Stand(Date moment) {
  const std::lock_guard lock(mutex_);
  stands_ = moment;
}

std::string Obey(const std::string& line, Clock& clock) {
  constexpr std::string_view order = "now ";
  Date moment;
  if (!line.starts_with(order) || !TryReadDate(std::string_view(line).substr(order.size()), moment))
    return "not understood";
  clock.Stand(moment);
  return line;
}

}  // namespace skyloft::feed
