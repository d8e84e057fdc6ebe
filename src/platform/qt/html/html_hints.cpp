#include "platform/qt/html/html_hints.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "base/values.h"
#include "platform/qt/html/html_table_hints.h"

namespace skyloft {
namespace {

using Element = litehtml::html_tag;

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
    {"body", "marginheight", "margin-top", PixelsHint},
    {"body", "marginwidth", "margin-left", PixelsHint},
    {"body", "topmargin", "margin-top", PixelsHint},
    {"body", "topmargin", "margin-bottom", PixelsHint},
    {"body", "leftmargin", "margin-left", PixelsHint},
    {"body", "leftmargin", "margin-right", PixelsHint},
    {"table hr td th", "width", "width", Length},
    {"table", "height", "height", TableHeight},
    {"tr", "height", "height", PixelLength},
    {"td th", "height", "min-height", PixelLength},
    {"table", "cellspacing", "border-spacing", PixelsHint},
    {"table", "align", "float", Float},
    {"div p h1 h2 h3 h4 h5 h6 tr td th tbody thead tfoot caption", "align", "text-align", HorizontalAlign},
    {"tr td th tbody thead tfoot", "valign", "vertical-align", VerticalAlign},
    {"font", "color", "color", Color},
    {"font", "face", "font-family", Family},
    {"font", "size", "font-size", FontSize},
    {"img", "align", "vertical-align", PictureAlign},
    {"img", "align", "float", Float},
    {"img", "hspace", "margin-left", PixelsHint},
    {"img", "hspace", "margin-right", PixelsHint},
    {"img", "vspace", "margin-top", PixelsHint},
    {"img", "vspace", "margin-bottom", PixelsHint},
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

}  // namespace

std::string AttributeOf(const litehtml::element& element, const char* name) {
  return std::string(TrimText(element.get_attr(name, "")));
}

std::string PixelsHint(const std::string& text) {
  return text.empty() ? "" : std::to_string(std::max(0, std::atoi(text.c_str()))) + "px";
}

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
