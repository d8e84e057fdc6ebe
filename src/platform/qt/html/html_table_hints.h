// What the attributes of a table mean for itself and for its cells: lines, padding, widths, its place.
#pragma once

#include "platform/qt/html/html_hints.h"

namespace skyloft {

void AddTableHints(std::vector<StyleHint>& hints, const litehtml::html_tag& table);
// By the attributes of the cell and of the table around it.
void AddCellHints(std::vector<StyleHint>& hints, const litehtml::html_tag& cell);

}  // namespace skyloft
