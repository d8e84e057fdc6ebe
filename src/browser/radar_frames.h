// The radar frames in the temp folder.
#pragma once

#include <string>

namespace skyloft {

// Lists the frames of a site in TimeSelection and shows the newest. Does nothing yet.
void NexradLoad(const std::string& prefix, const std::string& site);

}  // namespace skyloft
