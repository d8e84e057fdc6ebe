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

// The share of a cell in a table whose width is known; 0 leaves it to the engine, whose own percentages miss
// the width of the table by the borders. Where the cells ask for too much, the table takes it from them.
int SharePixels(const litehtml::html_tag& cell, const litehtml::element& table) {
  const std::string share = AttributeOf(cell, "width"), width = AttributeOf(table, "width");
  if (share.empty() || share.back() != '%' || width.empty() || width.back() == '%') return 0;
  const int inner = std::max(0, std::atoi(width.c_str()) - 2 * BorderOf(table));
  return inner * std::clamp(std::atoi(share.c_str()), 0, 100) / 100;
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
  if (const int width = SharePixels(cell, *table)) hints.push_back({"width", std::to_string(width) + "px"});
}

}  // namespace skyloft
