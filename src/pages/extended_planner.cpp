#include "pages/extended_planner.h"

#include "pages/fragments.h"
#include "pages/planner_parts.h"

namespace skyloft {
namespace {

constexpr std::string_view kLabel = "      <td valign='middle' align='center' bgcolor='#99CCFF' width='40'>";
constexpr std::string_view kPlain = "      <td valign='middle' align='center' bgcolor='#FFFFFF'>";
constexpr std::string_view kFontEnd = "</font></td>";

constexpr PlannerRow kDateRow = {"Date", "      <td valign='middle' align='center' bgcolor='#99CCFF'><b>",
                                 "</b></td>"};

constexpr struct ColumnRow : PlannerRow {
  ExtendedColumns::List ExtendedColumns::*list;
  std::string_view night_opening = {};  // where it differs
} kRows[] = {
    {{"Day", "      <td valign='middle' align='center' bgcolor='#FFFFCC'><b>", "</b></td>"},
     &ExtendedColumns::Day},
    // The picture has no size.
    {{"Sky&nbsp;", "      <td bgcolor='#FFFFFF'><img border='0' src='file:", "'></td>"},
     &ExtendedColumns::Icon},
    {{"Sky", kPlain, "</td>"}, &ExtendedColumns::Sky},
    {{"Temp", "      <td valign='middle' align='center' bgcolor='#FFFFFF'><font color='#FF0000'><b>",
      "</b></font></td>"},
     &ExtendedColumns::Temperature,
     "      <td valign='middle' align='center' bgcolor='#FFFFFF'><font color='blue'><b>"},
    {{"Wind", "      <td valign='middle' align='center' bgcolor='#FFFFFF' class='tinytext'>", "</td>"},
     &ExtendedColumns::Wind},
    {{"Rain", "      <td valign='middle' align='center' bgcolor='#FFFFFF'><font color='green'>", kFontEnd},
     &ExtendedColumns::Rain},
    {{"Snow", "      <td valign='middle' align='center' bgcolor='#FFFFFF'><font color='blue'>", kFontEnd},
     &ExtendedColumns::Snow},
};

// The table of the days (half 0) or of the nights (half 1).
void AppendHalf(std::string& page, const ExtendedColumns& columns, int half) {
  OpenPlannerTable(page, "cellspacing='0' cellpadding='0'");
  AppendPlannerRow(page, kDateRow, kLabel,
                   [&](int column) -> std::string_view { return columns.Date[column]; });
  for (const ColumnRow& row : kRows) {
    PlannerRow cells = row;
    if (half == 1 && !row.night_opening.empty()) cells.opening = row.night_opening;
    AppendPlannerRow(page, cells, kLabel, [&](int column) -> std::string_view {
      return (columns.*(row.list))[2 * column + half];
    });
  }
  ClosePlannerTable(page);
}

}  // namespace

std::string BuildExtendedPage(const std::string& day_band, const std::string& night_band,
                              const ExtendedColumns& columns) {
  std::string page;
  page.reserve(32768);
  AppendPlannerHead(page, "Weather Planner Extended",
                    {".tinytext", "{", "font-family: Tahoma;", "font-size: 10px;", "}"});
  AppendFirstBand(page, day_band);
  AppendHalf(page, columns, 0);
  AppendSecondBand(page, night_band);
  AppendHalf(page, columns, 1);
  AppendPlannerEnd(page);
  return page;
}

}  // namespace skyloft
