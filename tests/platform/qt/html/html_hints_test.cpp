#include "platform/qt/html/html_hints.h"

#include <gtest/gtest.h>

namespace skyloft {
namespace {

TEST(HtmlHints, ColorsNeedNoHash) {
  EXPECT_EQ(ColorHint("000000"), "#000000");
  EXPECT_EQ(ColorHint("#FFffcc"), "#FFffcc");
  EXPECT_EQ(ColorHint(" 99CCFF "), "#99CCFF");
  EXPECT_EQ(ColorHint("yellow"), "yellow");
  EXPECT_EQ(ColorHint("12345"), "12345");
  EXPECT_EQ(ColorHint(""), "");
}

// Sizes 1 to 7 as browsers give them at the usual 16 pixels of text.
TEST(HtmlHints, FontSizesAreOneToSeven) {
  const std::pair<const char*, int> cases[] = {{"1", 10},  {"2", 13},   {"3", 16},  {"7", 48},
                                               {"9", 48},  {"0", 10},   {"-9", 10}, {"+1", 18},
                                               {"-1", 13}, {"+99", 48}, {"", 0},    {"big", 0}};
  for (const auto& [text, pixels] : cases) EXPECT_EQ(FontPixels(text), pixels) << text;
}

}  // namespace
}  // namespace skyloft
