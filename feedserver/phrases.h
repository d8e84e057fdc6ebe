// The words and pictures of the feed: a code for every state of the sky, by day 1 to 20, by night 21 to 40.
#pragma once

#include <string_view>

#include "feedserver/weather.h"

namespace skyloft::feed {

struct Phrase {
  std::string_view text;  // "mostly cloudy"
  std::string_view icon;  // a picture's file name
};

// The code of a weather; never 0 or 24.
int SkyCode(const Weather& weather, bool is_day);
// Raises for a code outside 0 to 40.
const Phrase& PhraseOf(int code);

}  // namespace skyloft::feed
