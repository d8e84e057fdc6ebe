// Which pictures a catalogue product has, and how the picture server names them.
#pragma once

#include <optional>
#include <string>

#include "base/tables.h"

namespace skyloft {

// One picture: of a model run ("12z") and a forecast hour, or, without a run, the only one there is.
struct FrameFile {
  std::optional<std::string> run;
  int hour = 0;
};

// The pictures of a product, by place; only the places filled have one.
struct FrameSeries {
  Table<std::optional<FrameFile>, 67> frames;
  int chosen = 0;       // the place of the one to show
  bool single = false;  // whether there is but one, so that nothing can be stepped through
  bool kept = true;     // whether a file may be shown again without a fetch
};

// By the product's code (0 to 11) and its number of frames; for the selected time and the hour on show.
// Nothing for any other code. Raises for more frames than the table holds.
std::optional<FrameSeries> FramesOf(int code, int count);

// The name of a picture's file: "FILE.SECTOR.TYPE", or "FILE.SECTOR.12z.066.TYPE".
std::string FrameName(const std::string& file, const std::string& sector, const FrameFile& frame,
                      const std::string& type);
// The hour in a name, three digits and a point: "066.".
std::string HourText(int hour);

}  // namespace skyloft
