#include "browser/radar_frames.h"

namespace skyloft {

void NexradLoad(const std::string&, const std::string&) {}

}  // namespace skyloft
