// A weather station on doubles: everything as the program starts, locations on demand.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/doubles.h"

namespace skyloft {

class Station : public ::testing::Test {
 protected:
  // Every table, form and double fresh, the controls attached, the host table read.
  Station();

  // `count` locations with the zip codes 10000, 10001, ..., the titles "Town 0", "Town 1", ... and the radar
  // sites KTW0, KTW1, ...; the first one selected.
  static void SetUpLocations(int count);

  // The same forecast for all of them: 66 hours from `first_gmt`, and 25 half days that end at 00 and 12 GMT,
  // the first about three days later; at `zone` hours from GMT. All is calm and "partly cloudy": Tf "40", At
  // "38", Df "30", Rh "60", Wd " NE", Ws "5"; Th "45", Tl "35", Wd "  S", Ws "9"; no rain, no snow.
  static void SetUpForecast(const std::string& first_gmt, int zone);
};

// "<r>" and the given elements and "</r>".
std::string Reply(const std::string& elements);
// One element.
std::string Element(const std::string& tag, const std::string& text);

// A meta reply: these stamps, then a model run.
std::string MetaReply(const std::vector<std::string>& stamps,
                      const std::string& model = "Mar 07 2003 12:00PM");
// The block of a current-conditions reply for a town; its temperature tells the blocks apart.
std::string CurrentBlock(const std::string& city, int temperature);

}  // namespace skyloft
