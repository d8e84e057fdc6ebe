#include "platform/qt/html/html_scroll_text.h"

#include <algorithm>

#include "base/values.h"

namespace skyloft {
namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// The length of the tag at the start of a text; 0 when none stands there.
std::size_t TagLength(std::string_view text) {
  const char next = text.size() > 1 ? text[1] : ' ';
  if (text[0] != '<' || !(IsLetter(next) || next == '/' || next == '!')) return 0;
  const std::size_t end = text.find_first_of("<>", 1);
  return end == text.npos || text[end] == '<' ? 0 : end + 1;
}

bool PartsText(std::string_view tag) {
  static constexpr std::string_view kParting[] = {"br", "div", "hr", "li", "p", "td", "tr"};
  tag.remove_prefix(tag[1] == '/' ? 2 : 1);
  const auto* const end = std::find_if_not(tag.begin(), tag.end(), IsLetter);
  const std::string name = LowerCase(tag.substr(0, static_cast<std::size_t>(end - tag.begin())));
  return std::find(std::begin(kParting), std::end(kParting), name) != std::end(kParting);
}

}  // namespace

std::string WithoutTags(std::string_view html) {
  std::string text;
  while (!html.empty()) {
    if (html.starts_with("\r\n")) html.remove_prefix(1);
    const std::size_t length = TagLength(html);
    if (length == 0) {
      text += static_cast<unsigned char>(html[0]) < ' ' ? ' ' : html[0];
    } else if (PartsText(html.substr(0, length))) {
      text += ' ';
    }
    html.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return text;
}

}  // namespace skyloft
