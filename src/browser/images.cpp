#include "browser/images.h"

namespace skyloft {

void ThumbnailDisplay(const std::string&, const std::string&) {}

}  // namespace skyloft
