// Product pictures and the small radar picture.
#pragma once

#include <string>

namespace skyloft {

// Shows the newest radar picture of a site in Thumbnail. Does nothing yet.
void ThumbnailDisplay(const std::string& prefix, const std::string& site);

}  // namespace skyloft
