#include <gtest/gtest.h>

#include "html_testing.h"

namespace skyloft::testing {
namespace {

const QColor kHeading(0xff, 0xff, 0xcc), kBlue(0x00, 0x33, 0x99), kIcon(0xff, 0x00, 0xff);

// The first page of the program: a stray end tag and a cell whose start tag is left open.
const char kConditions[] =
    "<html>\r\n<head>\r\n<title>Current Conditions Reported At</title>\r\n<style> body { overflow:hidden; } "
    "TD { "
    "font-family: Tahoma; font-size: 11px; } P { font-family: Tahoma; font-size: 11px; } </style>\r\n<link "
    "rel='stylesheet' type='text/css' "
    "href='http://www.skyloft.example/skyloft/style.css'>\r\n</head>\r\n<body "
    "topmargin='0' leftmargin='0' bgcolor='#000000'>\r\n<div align='left'>\r\n  <table border='0' "
    "width='150' "
    "cellspacing='0' cellpadding='2'>\r\n<tr>\r\n          <TD vAlign=center align=middle "
    "bgColor=#ffffcc><B>Current\r\n            Conditions</B></BR></font></TD>\r\n</tr><tr>          <TD "
    "bgColor=#003399\r\n            <P align=center><FONT color=#ffffff><IMG height=30\r\n            "
    "src='file:C:\\program files\\skyloft\\icons\\sprtcloud.gif' width=40 align=absMiddle border=0>  "
    "<B>partly "
    "cloudy            <BR>Temperature</B>: 68 F<B><BR>Dewpoint</B>: 50 F<B><BR>Feels\r\n            "
    "Like</B>: 67 "
    "F<B><BR>Humidity</B>: 55 %<B><BR>Wind</B>: SSW 12 mph <BR><B>Pressure</B>: 29.92 "
    "in<BR><B>Visibility</B>: 10 mi       </FONT></P></TD>\r\n    </tr>\r\n  "
    "</table>\r\n</div>\r\n</body>\r\n</html>";

class HtmlConditions : public ::testing::Test {
 protected:
  HtmlConditions() {
    Application();
    drive_.Add("sprtcloud.gif.png", {40, 30}, kIcon);
    HtmlServices services = drive_.Services();
    services.local_path = [inner = services.local_path](const QString& path) {
      return path == "C:\\program files\\skyloft\\icons\\sprtcloud.gif" ? inner("C:\\sprtcloud.gif.png")
                                                                        : QString();
    };
    image_ = Show(kConditions, {150, 235}, services);
  }
  Drive drive_;
  QImage image_;
};

TEST_F(HtmlConditions, HeadingIsBlackInTheMiddleOfItsCell) {
  const QRect cell = Extent(image_, kHeading);
  EXPECT_EQ(cell.left(), 0);
  EXPECT_EQ(cell.right(), 149);
  EXPECT_EQ(cell.top(), 0);
  EXPECT_TRUE(cell.height() >= 13 && cell.height() <= 22)
      << cell.height();  // one line of 11 pixels, padding 2
  QRect letters;
  for (int y = 0; y < cell.height(); ++y) {
    for (int x = 0; x < 150; ++x) {
      if (image_.pixelColor(x, y) == QColor(Qt::black)) letters |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_NEAR(letters.center().x(), 74.5, 2);
  EXPECT_GT(letters.width(), 80);
}

TEST_F(HtmlConditions, CellLeftOpenIsBlueWithWhiteText) {
  const QRect cell = Extent(image_, kBlue);
  EXPECT_EQ(cell.left(), 0);
  EXPECT_EQ(cell.right(), 149);
  const QRect text = Extent(image_, Qt::white);
  EXPECT_TRUE(cell.contains(text));
  EXPECT_NEAR(text.center().x(), 74.5, 14);  // the icon's line is wider on its right
  EXPECT_GT(Count(image_, Qt::white), 500);  // eight lines of letters
  EXPECT_GE(text.height(), 7 * 11 + 10);     // seven of them below the icon's line
}

TEST_F(HtmlConditions, IconStandsLeftOfThePhrase) {
  const QRect icon = Extent(image_, kIcon);
  EXPECT_EQ(icon.size(), QSize(40, 30));
  EXPECT_EQ(Count(image_, kIcon), 40 * 30);
  EXPECT_EQ(Count(image_, Qt::white, {0, icon.top(), icon.left(), 30}), 0);
  EXPECT_GT(Count(image_, Qt::white, {icon.right(), icon.top(), 149 - icon.right(), 30}), 50);
}

TEST_F(HtmlConditions, BelowTheTableThePageIsBlackToTheEdge) {
  const int below = Extent(image_, kBlue).bottom() + 1;
  EXPECT_EQ(Count(image_, Qt::black, {0, below, 150, 235 - below}), 150 * (235 - below));
  EXPECT_EQ(Count(image_, Qt::black, {0, 230, 150, 5}), 750);
}

TEST(HtmlPages, BackgroundNeedsNoHashAndFillsTheView) {
  const QImage image = Show("<body bgcolor='336699'>", {40, 30});
  EXPECT_EQ(Count(image, QColor(0x33, 0x66, 0x99)), 40 * 30);
}

TEST(HtmlPages, MarginsOfTheBodyAreItsAttributes) {
  const QImage image = Show(
      "<body bgcolor=white topmargin=7 leftmargin=3><table bgcolor=red cellspacing=0><td width=20 "
      "height=10>&nbsp;</table>",
      {60, 60});
  EXPECT_EQ(Extent(image, Qt::red).topLeft(), QPoint(3, 7));
}

// Raised around the table, sunken around cells with content, no line around a cell without.
TEST(HtmlPages, BorderDrawsTheLinesOfTheGrid) {
  const QColor light(0xd4, 0xd0, 0xc8), dark(0x80, 0x80, 0x80), ground(0, 0, 0xff);
  const QImage image = Show(
      "<body bgcolor=#000000 topmargin=0 leftmargin=0><table border='1' cellspacing=0 cellpadding=0 "
      "width=102 bgcolor='#0000ff'><tr><td width=50 height=20>&nbsp;</td><td width=50></td></tr></table>",
      {150, 60});
  EXPECT_EQ(image.pixelColor(0, 10), light);     // table, left
  EXPECT_EQ(image.pixelColor(101, 10), dark);    // table, right
  EXPECT_EQ(image.pixelColor(1, 10), dark);      // full cell, left
  EXPECT_EQ(image.pixelColor(50, 10), light);    // full cell, right
  EXPECT_EQ(image.pixelColor(51, 10), ground);   // empty cell
  EXPECT_EQ(image.pixelColor(100, 10), ground);  // empty cell
  EXPECT_EQ(image.pixelColor(102, 10), QColor(Qt::black));
  EXPECT_EQ(Show("<table><td>x</table>", {60, 60}).pixelColor(8, 10),
            QColor(Qt::white));  // none without border
}

TEST(HtmlPages, BorderColorOfTheTableIsThatOfAllLines) {
  const QImage image = Show(
      "<body bgcolor=#000000 topmargin=0 leftmargin=0><table border=1 bordercolor=FF0000 cellspacing=0 "
      "width=50 height=20><td>&nbsp;</table>",
      {60, 40});
  EXPECT_EQ(image.pixelColor(0, 10), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(1, 10), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(49, 10), QColor(Qt::red));
}

// Thirteen columns as in the hourly planner: 5 and 12 times 8 percent are more than all, and 4 percent are
// less than the label of the row needs.
TEST(HtmlPages, TableKeepsItsWidthWhenItsCellsAskForMore) {
  for (const char* border : {"0", "1"}) {
    for (const char* share : {"4%", "5%", "30"}) {
      std::string page =
          "<style>td{font:11px Tahoma}</style><body bgcolor=#000000 topmargin=0 leftmargin=5><table "
          "width=540 "
          "cellspacing=0 cellpadding=0 bgcolor=#ffffff bordercolor=#ffffff border=" +
          std::string(border) + "><tr><td colspan=13>x</td></tr><tr><td width='" + share + "'>Fslk</td>";
      for (int i = 0; i < 12; ++i) page += "<td width='8%'><img src=x width=40 height=30></td>";
      const QRect table = Extent(Show(page + "</table>", {600, 100}), Qt::white);
      EXPECT_EQ(table.left(), 5);
      EXPECT_EQ(table.width(), 540) << border << " " << share;
    }
  }
}

TEST(HtmlPages, PixelWidthsAreKept) {
  const QImage image = Show(
      "<body topmargin=0 leftmargin=0><table width=200 cellspacing=0 cellpadding=0><td width=55 "
      "bgcolor=red>x</td><td bgcolor=blue>y</td></table>",
      {300, 60});
  EXPECT_EQ(Extent(image, Qt::red).width(), 55);
  EXPECT_EQ(Extent(image, Qt::blue).right(), 199);
}

TEST(HtmlPages, TablesAreCentredByWhatIsAroundThem) {
  for (const char* around : {"<center>", "<div align=center>", "<div align='middle'>"}) {
    const QImage image = Show("<body topmargin=0 leftmargin=0>" + std::string(around) +
                                  "<table width=100 bgcolor=red cellspacing=0><td height=20>&nbsp;</table>",
                              {300, 60});
    EXPECT_EQ(Extent(image, Qt::red).left(), 100) << around;
  }
}

TEST(HtmlPages, CellBackgroundTakesAPathWithParentheses) {
  Application();
  Drive drive;
  drive.Add("band (1).png", {10, 10}, kIcon);
  const QImage image = Show(
      "<body topmargin=0 leftmargin=0><table width=100 cellspacing=0><td height=20 "
      "background='C:\\pictures (x86)\\band (1).png'>&nbsp;</table>",
      {300, 60}, drive.Services());
  EXPECT_EQ(Extent(image, kIcon), QRect(0, 0, 100, Extent(image, kIcon).height()));
  EXPECT_GE(Extent(image, kIcon).height(), 20);
}

TEST(HtmlPages, PlainPathsAndFileAddressesAreTheSamePicture) {
  Application();
  Drive drive;
  drive.Add("x.png", {8, 6}, kIcon);
  for (const char* address : {"C:\\icons\\x.png", "file:C:\\icons\\x.png", "file:///C:/icons/x.png"}) {
    const QImage image = Show("<img border='0' src=\"" + std::string(address) + "\" width='40' height='30'>",
                              {100, 60}, drive.Services());
    EXPECT_EQ(Count(image, kIcon), 40 * 30) << address;
  }
}

TEST(HtmlPages, PictureAloneInItsCellLeavesNoGap) {
  Application();
  Drive drive;
  drive.Add("x.png", {40, 30}, kIcon);
  const QImage image = Show(
      "<body topmargin=0 leftmargin=0><table cellspacing=0 cellpadding=0 bgcolor=red><td><img "
      "src='C:\\x.png'></td></table>",
      {100, 60}, drive.Services());
  EXPECT_EQ(Extent(image, kIcon), QRect(0, 0, 40, 30));
  EXPECT_EQ(Count(image, Qt::red), 0);
}

// Eleven pixels of Tahoma or its stand-in: a capital letter is 8 pixels high, within one.
TEST(HtmlPages, ElevenPixelsAreElevenPixels) {
  for (const char* page : {"<style>td{font-family:Tahoma;font-size:11px}</style><table><td>HHH</table>",
                           "<font face='Tahoma, Arial' style='font-size: 11px'>HHH</font>"}) {
    EXPECT_NEAR(Extent(Show(page, {100, 60}), Qt::black).height(), 8, 1) << page;
  }
}

TEST(HtmlPages, FontSizesGrow) {
  int last = 0;
  for (const char* size : {"1", "3", "5", "7"}) {
    const int height =
        Extent(Show("<font face=Tahoma size=" + std::string(size) + ">H</font>", {200, 100}), Qt::black)
            .height();
    EXPECT_GT(height, last) << size;
    last = height;
  }
}

TEST(HtmlPages, BoldHasMoreInkAtEverySize) {
  for (int pixels = 9; pixels <= 24; ++pixels) {
    const std::string style = "<body style='font-family:Tahoma;font-size:" + std::to_string(pixels) + "px'>";
    const auto ink = [&](const std::string& text) {
      const QImage image = Show(style + text, {300, 60});
      long sum = 0;
      for (int i = 0; i < 300 * 60; ++i) sum += 255 - qGray(image.pixel(i % 300, i / 300));
      return sum;
    };
    EXPECT_GT(static_cast<double>(ink("<b>Route Report</b>")), 1.2 * static_cast<double>(ink("Route Report")))
        << pixels;
  }
}

// 146 and 150 are the windows-1252 places of an apostrophe and a dash, and in Unicode invisible controls.
TEST(HtmlPages, NumbersOfCharactersAreWindows1252) {
  const QSize size(100, 40);
  EXPECT_EQ(Show("I&#146;m &#150;", size), Show("I\x92m \x96", size));
  EXPECT_NE(Show("I&#146;m &#150;", size), Show("Im ", size));
}

}  // namespace
}  // namespace skyloft::testing
