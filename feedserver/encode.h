// Turns a canvas into the bytes of a picture file.
#pragma once

#include <string>

#include "feedserver/canvas.h"

namespace skyloft::feed {

// A GIF keeps every colour of a canvas that has at most 256; of more, the 256 most frequent stay and stand in
// for the others. All raise when their library fails.
std::string EncodeGif(const Canvas& canvas);
std::string EncodePng(const Canvas& canvas);
std::string EncodeJpeg(const Canvas& canvas);

}  // namespace skyloft::feed
