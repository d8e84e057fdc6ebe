// What the attributes of old HTML say, in the words of style sheets.
#pragma once

#include <litehtml/litehtml.h>

#include <string>
#include <string_view>
#include <vector>

namespace skyloft {

struct StyleHint {
  const char* property;
  std::string value;
};

// The properties that the attributes of `element` (and, for cells, of its table) stand for. The children and
// the parents of the element must be known.
std::vector<StyleHint> HintsOf(const litehtml::html_tag& element);

// An attribute without the blanks around it; "" when there is none.
std::string AttributeOf(const litehtml::element& element, const char* name);

// A number of pixels as a style sheet writes it, never negative: "5" is "5px". "" for "".
std::string PixelsHint(const std::string& text);

// A colour attribute as a style sheet writes it: "000000" and "#000000" are black, names stay. "" for none.
std::string ColorHint(std::string_view text);

// The pixels of <font size>: 1 to 7, "+1" and "-1" from 3, all others clamped. 0 for what is no number.
int FontPixels(std::string_view text);

}  // namespace skyloft
