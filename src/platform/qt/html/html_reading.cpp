#include "platform/qt/html/html_reading.h"

#include <litehtml/litehtml.h>

#include <string_view>

namespace skyloft {
namespace {

bool IsBreak(const litehtml::element::ptr& element) {
  const litehtml::tchar_t* const tag = element->get_tagName();
  return tag && std::string_view(tag) == "br";
}

bool IsLeaf(const litehtml::element::ptr& element) { return element->get_children_count() == 0; }

QRect PlaceOf(const litehtml::element::ptr& element) {
  if (IsLeaf(element)) {
    const litehtml::position at = element->get_placement();
    return {at.x, at.y, at.width, at.height};
  }
  QRect place;
  for (size_t i = 0; i < element->get_children_count(); ++i) {
    place |= PlaceOf(element->get_child(static_cast<int>(i)));
  }
  return place;
}

void AppendWords(const litehtml::element::ptr& element, QString& words) {
  if (IsLeaf(element)) {
    litehtml::tstring text;
    element->get_text(text);
    words += IsBreak(element) ? QString(' ') : QString::fromUtf8(text.c_str());
    return;
  }
  for (size_t i = 0; i < element->get_children_count(); ++i) {
    AppendWords(element->get_child(static_cast<int>(i)), words);
  }
  if (element->get_display() != litehtml::display_inline) words += ' ';  // a cell or line of its own
}

}  // namespace

std::vector<HtmlLink> LinksOf(litehtml::document& document) {
  std::vector<HtmlLink> links;
  const auto root = document.root();
  for (const auto& element : root->select_all("a[href]")) {
    links.push_back({QString::fromUtf8(element->get_attr("href", "")).trimmed(), PlaceOf(element)});
  }
  return links;
}

QString WordsOf(litehtml::document& document) {
  QString words;
  const auto body = document.root()->select_one("body");
  if (body) AppendWords(body, words);
  return words.simplified();
}

}  // namespace skyloft
