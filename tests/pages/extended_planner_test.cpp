#include "pages/extended_planner.h"

#include "feed/addresses.h"
#include "station.h"

namespace skyloft {
namespace {

const std::string kWhite = "      <td valign='middle' align='center' bgcolor='#FFFFFF'";

std::string Band(const std::string& cell) {
  return "<div align='left'>  <table border='0' width='540' cellspacing='0' cellpadding='0' "
         "bgcolor='#000000'>"
         "    <tr>" +
         cell + "'>&nbsp;</td>    </tr>  </table></div>";
}

// A row: a label, then twelve cells of a field's values, every `step`-th from `first` on.
std::string Row(const std::string& label, const std::string& opening, const std::string& field,
                const std::string& closing, int first, int step) {
  std::string row =
      "    <tr>      <td valign='middle' align='center' bgcolor='#99CCFF' width='40'>" + label + "</td>";
  for (int c = 0; c < 12; ++c) row += opening + field + std::to_string(first + step * c) + closing;
  return row + "    </tr>";
}

std::string DataTable(int half, const std::string& colour) {
  return "<div align='left'>  <table border='1' width='540' cellspacing='0' cellpadding='0'>" +
         Row("Date", "      <td valign='middle' align='center' bgcolor='#99CCFF'><b>", "date", "</b></td>", 0,
             1) +
         Row("Day", "      <td valign='middle' align='center' bgcolor='#FFFFCC'><b>", "day", "</b></td>",
             half, 2) +
         Row("Sky&nbsp;", "      <td bgcolor='#FFFFFF'><img border='0' src='file:", "icon", "'></td>", half,
             2) +
         Row("Sky", kWhite + ">", "sky", "</td>", half, 2) +
         Row("Temp", kWhite + "><font color='" + colour + "'><b>", "temp", "</b></font></td>", half, 2) +
         Row("Wind", kWhite + " class='tinytext'>", "wind", "</td>", half, 2) +
         Row("Rain", kWhite + "><font color='green'>", "rain", "</font></td>", half, 2) +
         Row("Snow", kWhite + "><font color='blue'>", "snow", "</font></td>", half, 2) + "  </table></div>";
}

TEST(ExtendedPlanner, ThePageIsMadeOfItsFragmentsDaysAboveNights) {
  ExtendedColumns columns;
  for (int i = 0; i < 25; ++i) {
    const std::string n = std::to_string(i);
    columns.Date[i] = "date" + n;
    columns.Day[i] = "day" + n;
    columns.Icon[i] = "icon" + n;
    columns.Sky[i] = "sky" + n;
    columns.Temperature[i] = "temp" + n;
    columns.Wind[i] = "wind" + n;
    columns.Rain[i] = "rain" + n;
    columns.Snow[i] = "snow" + n;
  }
  EXPECT_EQ(
      BuildExtendedPage("C:\\a.jpg", "C:\\b.jpg", columns),
      "<html><head><meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>"
      "<title>Weather Planner Extended</title>"
      "<style type='text/css'>TD{font-family: Tahoma;font-size: 11px;}"
      ".tinytext{font-family: Tahoma;font-size: 10px;}</style>"
      "<link rel='stylesheet' type='text/css' href='" +
          std::string(kStyleSheet) +
          "'></head>"
          "<body bgcolor='#000000' scroll='no' border='0' topmargin='10' leftmargin='6'>" +
          Band("      <td valign='middle' align='left' width='540' height='19' background='file:C:\\a.jpg") +
          DataTable(0, "#FF0000") +
          Band("      <td valign='middle' align='center' height='19' background='file:C:\\b.jpg") +
          DataTable(1, "blue") + "</body></html>");
}

TEST(ExtendedPlanner, WhatWasNeverFilledPrintsNothing) {
  const std::string page = BuildExtendedPage("", "", {});
  EXPECT_NE(page.find("<td bgcolor='#FFFFFF'><img border='0' src='file:'></td>"), std::string::npos);
  EXPECT_NE(page.find(kWhite + "></td>"), std::string::npos);
}

}  // namespace
}  // namespace skyloft
