// Pictures of files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls.h"

namespace skyloft {

// Reads the file from the disk and shows it in the control. Raises, and leaves the control, when it is
// missing or no picture.
void LoadPicture(Picture& control, const std::string& path);

struct PictureColor {
  std::uint8_t red, green, blue;
};
struct ColorReplacement {
  PictureColor from, to;
};
// Reads a picture, replaces exact colours, one replacement after the other, and writes it as a PNG file.
// Raises, and writes nothing, when it cannot be read.
void ConvertPicture(const std::string& source, const std::string& target,
                    const std::vector<ColorReplacement>& replacements);

}  // namespace skyloft
