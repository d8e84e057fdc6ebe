#include "platform/qt/html/html_table_hints.h"

#include <algorithm>
#include <cstdlib>

#include "base/values.h"

namespace skyloft {
namespace {

std::shared_ptr<litehtml::element> AncestorOf(const litehtml::html_tag& element, const char* tag) {
  auto above = element.parent();
  while (above && std::string_view(above->get_tagName()) != tag) above = above->parent();
  return above;
}

// The lines of a table with `border`: raised around the table, sunken around its cells, in one colour where
// the table names it.
void AddBorder(std::vector<StyleHint>& hints, const litehtml::element& table, int width, bool raised) {
  std::string light = "#d4d0c8", dark = "#808080";
  const std::string named = ColorHint(AttributeOf(table, "bordercolor"));
  if (!named.empty()) light = dark = named;
  hints.push_back({"border-width", std::to_string(width) + "px"});
  hints.push_back({"border-style", "solid"});
  hints.push_back({"border-top-color", raised ? light : dark});
  hints.push_back({"border-left-color", raised ? light : dark});
  hints.push_back({"border-bottom-color", raised ? dark : light});
  hints.push_back({"border-right-color", raised ? dark : light});
}

// `border` alone means 1.
int BorderOf(const litehtml::element& table) {
  const char* border = table.get_attr("border", nullptr);
  if (!border) return 0;
  return *border ? std::clamp(std::atoi(border), 0, 50) : 1;
}

bool IsEmpty(const litehtml::html_tag& cell) {
  for (int i = 0; i < static_cast<int>(cell.get_children_count()); ++i) {
    if (!cell.get_child(i)->is_white_space()) return false;
  }
  return true;
}

// A table is centred by its own align or by the nearest block around it that centres its content.
bool IsCentered(const litehtml::html_tag& table) {
  const std::string own = LowerCase(AttributeOf(table, "align"));
  if (!own.empty()) return own == "center" || own == "middle";
  for (auto above = table.parent(); above; above = above->parent()) {
    const std::string_view tag = above->get_tagName();
    if (tag == "center") return true;
    const std::string align = LowerCase(AttributeOf(*above, "align"));
    if (!align.empty()) return align == "center" || align == "middle";
    if (tag == "td" || tag == "th") return false;
  }
  return false;
}

// The pixels that a cell asks for in a table `inner` pixels wide; 0 for none.
int WishedPixels(const litehtml::element& cell, int inner) {
  const std::string width = AttributeOf(cell, "width");
  const int number = std::max(0, std::atoi(width.c_str()));
  return !width.empty() && width.back() == '%' ? inner * std::min(number, 100) / 100 : number;
}

// The width of a cell of a table whose width is known: what it asks for, less when its row asks for more than
// there is, so that the table keeps its width. 0 leaves it to the engine.
int CellPixels(const litehtml::html_tag& cell, const litehtml::element& table) {
  const std::string width = AttributeOf(table, "width");
  const auto row = cell.parent();
  if (!row || std::atoi(width.c_str()) <= 0 || width.back() == '%' || AttributeOf(cell, "width").empty())
    return 0;
  int columns = 0;
  for (int i = 0; i < static_cast<int>(row->get_children_count()); ++i) {
    if (row->get_child(i)->get_display() == litehtml::display_inline_text) continue;
    columns += std::max(1, std::atoi(row->get_child(i)->get_attr("colspan", "1")));
  }
  const int spacing = std::atoi(table.get_attr("cellspacing", "2"));
  const int inner = std::max(1, std::atoi(width.c_str()) - 2 * BorderOf(table) - (columns + 1) * spacing);
  int wished = 0, before = 0;  // by all cells of the row, and by those left of this one
  for (int i = 0; i < static_cast<int>(row->get_children_count()); ++i) {
    const auto sibling = row->get_child(i);
    if (sibling.get() == &cell) before = wished;
    wished += WishedPixels(*sibling, inner);
  }
  const int own = WishedPixels(cell, inner);
  if (wished <= inner) return own;
  const auto scaled = [&](int pixels) {
    return static_cast<int>(static_cast<long>(pixels) * inner / wished);
  };
  return scaled(before + own) - scaled(before);  // so that the rounded widths add up
}

}  // namespace

void AddTableHints(std::vector<StyleHint>& hints, const litehtml::html_tag& table) {
  if (const int border = BorderOf(table)) AddBorder(hints, table, border, true);
  if (IsCentered(table)) {
    hints.push_back({"margin-left", "auto"});
    hints.push_back({"margin-right", "auto"});
  }
}

void AddCellHints(std::vector<StyleHint>& hints, const litehtml::html_tag& cell) {
  if (cell.get_attr("nowrap")) hints.push_back({"white-space", "nowrap"});
  const auto table = AncestorOf(cell, "table");
  if (!table) return;
  if (BorderOf(*table) && !IsEmpty(cell)) AddBorder(hints, *table, 1, false);
  const std::string padding = PixelsHint(AttributeOf(*table, "cellpadding"));
  if (!padding.empty()) hints.push_back({"padding", padding});
  if (const int width = CellPixels(cell, *table)) hints.push_back({"width", std::to_string(width) + "px"});
}

}  // namespace skyloft
