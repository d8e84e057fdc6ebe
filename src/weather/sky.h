// The vocabulary of sky and wind: the one table of sky code, phrase and icon, and the compass point of a
// wind.
#pragma once

#include <string>

namespace skyloft {

// Rows 0 to 20 are the day half, 21 to 40 the night half; within a half the code is a rising scale of
// severity. Row 24 reads "partly cloudy" like row 23, so that a search by phrase never finds it; row 0 has
// the sunny icon. Both are meant.
struct SkyRow {
  int code;
  const char* phrase;
  const char* icon;  // file under \icons\ of the install path
};
inline constexpr int kSkyRows = 41;
const SkyRow& GetSkyRow(int code);

// Searches rows first_row to last_row, rising, for the key of the mode: 0 `code`, 1 `phrase`, 2 `icon` (a
// whole path). Any other mode finds nothing. `found` becomes 1 and the row goes to the out arguments, or it
// becomes 0 and they keep their values. Comparison is exact. Raises for a row outside 0 to 40.
void SkyCondition(int mode, int first_row, int last_row, int code, const std::string& phrase,
                  const std::string& icon, int& out_code, std::string& out_phrase, std::string& out_icon,
                  int& found);

// Compass text of three characters for a wind from `degrees`; "VAR" for 0, for less and for above 360. There
// is no north: the first range asks for both its bounds at once and never holds. This is meant.
std::string GetWindDirection(double degrees);

}  // namespace skyloft
