// What the planner pages have in common: 540 pixels of tables, bands of a picture between them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace skyloft {

// From the first tag to the body's. `more_style` stands behind the rule for cells.
void AppendPlannerHead(std::string& page, std::string_view title,
                       std::initializer_list<std::string_view> more_style);
// The bands: above the first table, and above the second, each over a picture.
void AppendFirstBand(std::string& page, std::string_view picture);
void AppendSecondBand(std::string& page, std::string_view picture);

// A table of rows; `attributes` behind its border.
void OpenPlannerTable(std::string& page, std::string_view attributes);
void ClosePlannerTable(std::string& page);
void OpenRow(std::string& page);
void CloseRow(std::string& page);

// A row of twelve cells with a label before them: column c shows `cell(c)` between the row's opening and
// closing.
struct PlannerRow {
  std::string_view label, opening, closing;
};
template <class Cell>
void AppendPlannerRow(std::string& page, const PlannerRow& row, std::string_view label_opening, Cell cell) {
  OpenRow(page);
  page += label_opening;
  page += row.label;
  page += "</td>";
  for (int column = 0; column < 12; ++column) {
    page += row.opening;
    page += cell(column);
    page += row.closing;
  }
  CloseRow(page);
}

void AppendPlannerEnd(std::string& page);

}  // namespace skyloft
