#include "platform/qt/html/html_hints.h"

#include <algorithm>
#include <cstdlib>

#include "base/values.h"

namespace skyloft {
namespace {

using Element = litehtml::html_tag;

std::string AttributeOf(const litehtml::element& element, const char* name) {
  return std::string(TrimText(element.get_attr(name, "")));
}

std::string Pixels(const std::string& text) {
  return text.empty() ? "" : std::to_string(std::max(0, std::atoi(text.c_str()))) + "px";
}

// "50%" stays, "540" and "540px" are pixels; zero and rubbish say nothing.
std::string Length(const std::string& text) {
  const int number = std::atoi(text.c_str());
  if (number <= 0) return "";
  return std::to_string(number) + (text.back() == '%' ? "%" : "px");
}

// A share of the height is one of the view, as for the table that fills a page.
std::string TableHeight(const std::string& text) {
  const std::string length = Length(text);
  return length.empty() || length.back() != '%' ? length : length.substr(0, length.size() - 1) + "vh";
}

std::string PixelLength(const std::string& text) {
  const std::string length = Length(text);
  return length.empty() || length.back() == '%' ? "" : length;
}

std::string HorizontalAlign(const std::string& text) {
  const std::string align = LowerCase(text);
  if (align == "middle") return "center";
  return align == "left" || align == "right" || align == "center" || align == "justify" ? align : "";
}

std::string VerticalAlign(const std::string& text) {
  const std::string align = LowerCase(text);
  if (align == "center") return "middle";
  return align == "top" || align == "middle" || align == "bottom" || align == "baseline" ? align : "";
}

std::string PictureAlign(const std::string& text) {
  const std::string align = LowerCase(text);
  if (align == "absmiddle" || align == "middle" || align == "center") return "middle";
  if (align == "top" || align == "texttop") return "top";
  return align == "bottom" || align == "absbottom" ? "bottom" : "";
}

std::string Float(const std::string& text) {
  const std::string align = LowerCase(text);
  return align == "left" || align == "right" ? align : "";
}

std::string Color(const std::string& text) { return ColorHint(text); }
std::string Family(const std::string& text) { return text; }
std::string FontSize(const std::string& text) {
  const int pixels = FontPixels(text);
  return pixels ? std::to_string(pixels) + "px" : "";
}

// An attribute of some tags and the property it sets, when its value says anything.
struct Rule {
  const char* tags;
  const char* attribute;
  const char* property;
  std::string (*convert)(const std::string& text);
};

const Rule kRules[] = {
    {"body table tr td th tbody thead tfoot", "bgcolor", "background-color", Color},
    {"body", "text", "color", Color},
    {"body", "marginheight", "margin-top", Pixels},
    {"body", "marginwidth", "margin-left", Pixels},
    {"body", "topmargin", "margin-top", Pixels},
    {"body", "topmargin", "margin-bottom", Pixels},
    {"body", "leftmargin", "margin-left", Pixels},
    {"body", "leftmargin", "margin-right", Pixels},
    {"table hr td th", "width", "width", Length},
    {"table", "height", "height", TableHeight},
    {"tr", "height", "height", PixelLength},
    {"td th", "height", "min-height", PixelLength},
    {"table", "cellspacing", "border-spacing", Pixels},
    {"table", "align", "float", Float},
    {"div p h1 h2 h3 h4 h5 h6 tr td th tbody thead tfoot caption", "align", "text-align", HorizontalAlign},
    {"tr td th tbody thead tfoot", "valign", "vertical-align", VerticalAlign},
    {"font", "color", "color", Color},
    {"font", "face", "font-family", Family},
    {"font", "size", "font-size", FontSize},
    {"img", "align", "vertical-align", PictureAlign},
    {"img", "align", "float", Float},
    {"img", "hspace", "margin-left", Pixels},
    {"img", "hspace", "margin-right", Pixels},
    {"img", "vspace", "margin-top", Pixels},
    {"img", "vspace", "margin-bottom", Pixels},
    {"hr", "color", "border-color", Color},
};

bool HasWord(std::string_view words, std::string_view word) {
  for (std::size_t at = words.find(word); at != words.npos; at = words.find(word, at + 1)) {
    const bool starts = at == 0 || words[at - 1] == ' ';
    const std::size_t end = at + word.size();
    if (starts && (end == words.size() || words[end] == ' ')) return true;
  }
  return false;
}

std::shared_ptr<litehtml::element> AncestorOf(const Element& element, const char* tag) {
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

bool IsEmpty(const Element& cell) {
  for (int i = 0; i < static_cast<int>(cell.get_children_count()); ++i) {
    if (!cell.get_child(i)->is_white_space()) return false;
  }
  return true;
}

bool IsLineEnd(const litehtml::element* sibling) { return !sibling || sibling->is_break(); }

// Whether an element of a cell has nothing beside it. Lines of pictures alone leave no room for descenders
// (the quirks of pages without a document type).
bool IsAloneInLine(const Element& element) {
  const auto parent = element.parent();
  if (!parent || std::string_view(parent->get_tagName()) != "td") return false;
  const litehtml::element* before = nullptr;
  bool found = false;
  for (int i = 0; i < static_cast<int>(parent->get_children_count()); ++i) {
    const auto child = parent->get_child(i);
    if (child->is_white_space()) continue;
    if (found) return IsLineEnd(child.get());
    found = child.get() == &element;
    if (found && !IsLineEnd(before)) return false;
    before = child.get();
  }
  return found;
}

// A table is centred by its own align or by the nearest block around it that centres its content.
bool IsCentered(const Element& table) {
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

void AddTableHints(std::vector<StyleHint>& hints, const Element& table) {
  if (const int border = BorderOf(table)) AddBorder(hints, table, border, true);
  if (IsCentered(table)) {
    hints.push_back({"margin-left", "auto"});
    hints.push_back({"margin-right", "auto"});
  }
}

// The pixels that a cell asks for in a table `inner` pixels wide; 0 for none.
int WishedPixels(const litehtml::element& cell, int inner) {
  const std::string width = AttributeOf(cell, "width");
  const int number = std::max(0, std::atoi(width.c_str()));
  return !width.empty() && width.back() == '%' ? inner * std::min(number, 100) / 100 : number;
}

// The width of a cell of a table whose width is known: what it asks for, less when its row asks for more than
// there is, so that the table keeps its width. 0 leaves it to the engine.
int CellPixels(const Element& cell, const litehtml::element& table) {
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

void AddCellHints(std::vector<StyleHint>& hints, const Element& cell) {
  if (cell.get_attr("nowrap")) hints.push_back({"white-space", "nowrap"});
  const auto table = AncestorOf(cell, "table");
  if (!table) return;
  if (BorderOf(*table) && !IsEmpty(cell)) AddBorder(hints, *table, 1, false);
  const std::string padding = Pixels(AttributeOf(*table, "cellpadding"));
  if (!padding.empty()) hints.push_back({"padding", padding});
  if (const int width = CellPixels(cell, *table)) hints.push_back({"width", std::to_string(width) + "px"});
}

}  // namespace

std::string ColorHint(std::string_view text) {
  const std::string_view color = TrimText(text);
  const bool hex = color.size() == 6 &&
                   std::all_of(color.begin(), color.end(), [](unsigned char c) { return std::isxdigit(c); });
  return (hex ? "#" : "") + std::string(color);
}

int FontPixels(std::string_view text) {
  constexpr int kPixels[] = {10, 13, 16, 18, 24, 32, 48};
  const std::string size(TrimText(text));
  if (size.empty()) return 0;
  const bool relative = size[0] == '+' || size[0] == '-';
  const int number = std::atoi(size.c_str());
  if (number == 0 && size.find('0') == size.npos) return 0;
  return kPixels[std::clamp(relative ? 3 + number : number, 1, 7) - 1];
}

std::vector<StyleHint> HintsOf(const Element& element) {
  const std::string_view tag = element.get_tagName();
  std::vector<StyleHint> hints;
  for (const Rule& rule : kRules) {
    if (!HasWord(rule.tags, tag)) continue;
    const std::string value = rule.convert(AttributeOf(element, rule.attribute));
    if (!value.empty()) hints.push_back({rule.property, value});
  }
  if (tag == "img" && hints.empty() && IsAloneInLine(element)) hints.push_back({"vertical-align", "bottom"});
  if (tag == "table") AddTableHints(hints, element);
  if (tag == "td" || tag == "th") AddCellHints(hints, element);
  return hints;
}

}  // namespace skyloft
