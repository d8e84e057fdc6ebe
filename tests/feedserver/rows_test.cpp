#include "feedserver/rows.h"

#include <gtest/gtest.h>

#include <array>

#include "scan.h"

namespace skyloft::feed {
namespace {

std::string WindOf(double from, double speed) {
  Moment moment{{{}, *FindPlace("66044")}, MakeDate(2003, 3, 7), {}, 1};
  moment.weather.wind_from = from;
  moment.weather.wind_speed = speed;
  XmlDocument xml("row");
  AddRow(xml, moment, std::array<std::string_view, 1>{"Wd"});
  return First(Scan(std::move(xml).Finish()), "Wd");
}

TEST(Rows, NorthIs360AndNever0) {
  const struct {
    double from;
    const char* text;
  } cases[] = {{0, "360"}, {0.2, "360"},   {0.49, "360"},  {0.5, "1"},
               {90, "90"}, {359.4, "359"}, {359.6, "360"}, {360, "360"}};
  for (const auto& c : cases) EXPECT_EQ(WindOf(c.from, 5), c.text) << c.from;
}

TEST(Rows, ACalmHasNoDirection) {
  EXPECT_EQ(WindOf(90, 0), "0");
  EXPECT_EQ(WindOf(90, 0.49), "0");
  EXPECT_EQ(WindOf(90, 0.5), "90");
}

}  // namespace
}  // namespace skyloft::feed
