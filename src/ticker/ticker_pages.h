// The pages of the bar: whole HTML documents, 35 pixels high. A value that is missing leaves its cell empty.
#pragma once

#include <string>

namespace skyloft {

// What the bar shows before its first page.
std::string TickerBlankPage();

// The last reading at the location on show; its next five hours and next four periods, of those that the
// ticker's hour leaves up to hour 60; its normals, sun and moon.
std::string TickerCurrentPage();
std::string TickerHourlyPage();
std::string Ticker3DayPage();
std::string TickerAlmanacPage();

// A text that runs from right to left over the whole bar, and the sound that goes with it ("" for none).
// Colours are six hexadecimal digits, red first; links in the text have the background's colour. The text may
// hold HTML. `ignored` has no effect.
std::string TickerScrollPage(const std::string& text, const std::string& sound, const std::string& ignored,
                             const std::string& background, const std::string& font,
                             const std::string& font_size);
// The same in the strip of the main window, 740 by 15 pixels.
std::string MessageScrollPage(const std::string& text, const std::string& sound,
                              const std::string& background, const std::string& font,
                              const std::string& font_size);

}  // namespace skyloft
