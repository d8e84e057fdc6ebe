// Pages on a display of twice the pixels. Each test is a process of its own.
#include <gtest/gtest.h>

#include "platform/qt/html/html_testing.h"

namespace skyloft::testing {
namespace {

const QColor kPlain(10, 20, 30), kLarger(200, 100, 50);

// The page on a view of 60 by 40, 120 by 80 of the display's pixels.
class HtmlOnAScaledDisplay : public ::testing::Test {
 protected:
  HtmlOnAScaledDisplay() {
    qputenv("QT_SCALE_FACTOR", "2");
    drive_.Add("icon.png", {10, 8}, kPlain);
  }
  QImage Show(const std::string& body) const {
    const QImage shown = testing::Show("<body style='margin: 0'>" + body, {60, 40}, drive_.Services());
    EXPECT_EQ(shown.size(), QSize(120, 80));
    return shown;
  }

  Drive drive_;
};

TEST_F(HtmlOnAScaledDisplay, APictureIsShownByTheFileOfTheDisplaysScaleInItsPlainSize) {
  drive_.Add("icon@2x.png", {20, 16}, kLarger);
  for (const char* image : {"<img src='C:\\icon.png'>", "<img src='C:\\icon.png' width='10' height='8'>"}) {
    const QImage shown = Show(image);
    EXPECT_EQ(Extent(shown, kLarger).size(), QSize(20, 16)) << image;
    EXPECT_EQ(Count(shown, kPlain), 0) << image;
  }
}

TEST_F(HtmlOnAScaledDisplay, APictureWithoutALargerOneIsSpreadOverItsPlace) {
  EXPECT_EQ(Extent(Show("<img src='C:\\icon.png'>"), kPlain).size(), QSize(20, 16));
}

TEST_F(HtmlOnAScaledDisplay, ABackgroundIsRepeatedInItsPlainSize) {
  drive_.Add("icon@2x.png", {20, 16}, kLarger);
  const QImage shown = Show(
      "<table cellspacing='0' cellpadding='0'><tr><td width='30' height='20' "
      "background='file:C:\\icon.png'></td></tr></table>");
  EXPECT_EQ(Extent(shown, kLarger), QRect(0, 0, 60, 40));
  EXPECT_EQ(Count(shown, kLarger), 60 * 40);
}

TEST_F(HtmlOnAScaledDisplay, EveryPixelOfTheLargerPictureIsAPixelOfTheDisplay) {
  drive_.AddPixels("icon@2x.png", {20, 16});
  const QImage shown = Show("<img src='C:\\icon.png' style='display: block'>");
  for (int y = 0; y < 16; ++y) {
    for (int x = 0; x < 20; ++x) ASSERT_EQ(shown.pixelColor(x, y), Drive::PixelAt(x, y)) << x << " " << y;
  }
}

TEST_F(HtmlOnAScaledDisplay, ABrokenLargerPictureLeavesThePlainOne) {
  drive_.AddBytes("icon@2x.png", "no picture");
  EXPECT_EQ(Extent(Show("<img src='C:\\icon.png'>"), kPlain).size(), QSize(20, 16));
}

}  // namespace
}  // namespace skyloft::testing
