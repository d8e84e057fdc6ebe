#include "platform/qt/html/html_nesting.h"

#include <algorithm>
#include <initializer_list>

#include "platform/qt/html/html_prepass.h"

namespace skyloft {
namespace {

template <class List = std::initializer_list<std::string_view>>
bool IsOneOf(std::string_view word, const List& words) {
  return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

constexpr std::string_view kVoidTags[] = {"area", "base", "basefont", "bgsound", "br",    "col",
                                          "hr",   "img",  "link",     "meta",    "param", "wbr"};
constexpr std::string_view kTableTags[] = {"tr",    "td",      "th",       "tbody", "thead",
                                           "tfoot", "caption", "colgroup", "col"};
// These go on behind the end of a block that they were opened in.
constexpr std::string_view kFormatTags[] = {"a",    "b", "big",   "code",   "em",     "font", "i",
                                            "nobr", "s", "small", "strike", "strong", "tt",   "u"};
constexpr std::string_view kOtherTags[] = {
    "abbr", "address", "applet", "blockquote", "body",  "center", "cite", "dd",   "del", "dfn", "dir",
    "div",  "dl",      "dt",     "fieldset",   "form",  "h1",     "h2",   "h3",   "h4",  "h5",  "h6",
    "head", "html",    "ins",    "kbd",        "label", "li",     "map",  "menu", "ol",  "p",   "pre",
    "q",    "samp",    "span",   "sub",        "sup",   "table",  "ul",   "var"};
// Left out with what they hold, which is not markup for the engine.
constexpr std::string_view kRawTags[] = {"script",  "title",    "textarea", "iframe",
                                         "noembed", "noframes", "xmp"};

// Whether an open `inner` of the same table ends where the part `tag` of a table starts.
bool EndsBeforePart(std::string_view tag, std::string_view inner) {
  if (tag == "td" || tag == "th") return inner == "td" || inner == "th";
  if (tag == "tr") return IsOneOf(inner, {"td", "th", "tr", "caption"});
  return IsOneOf(tag, {"tbody", "thead", "tfoot"}) &&
         IsOneOf(inner, {"td", "th", "tr", "tbody", "thead", "tfoot", "caption"});
}

}  // namespace

bool HtmlNesting::IsKnown(std::string_view tag) {
  return IsOneOf(tag, kVoidTags) || IsOneOf(tag, kTableTags) || IsOneOf(tag, kFormatTags) ||
         IsOneOf(tag, kOtherTags);
}

bool HtmlNesting::IsRaw(std::string_view tag) { return IsOneOf(tag, kRawTags); }

HtmlNesting::Open* HtmlNesting::InnermostTable() {
  const auto table =
      std::find_if(open_.rbegin(), open_.rend(), [](const Open& o) { return o.name == "table"; });
  return table == open_.rend() ? nullptr : &*table;
}

bool HtmlNesting::Opens(const std::string& tag, const std::string& text, int span) {
  start_cost_ +=
      1 + open_.size() * open_.size() / 128;  // what it inherits is looked for in all tags around it
  if (start_cost_ > HtmlLimits::kTags) return false;
  const bool full = open_.size() >= HtmlLimits::kDepth;
  if (IsOneOf(tag, kTableTags)) {
    if (dropped_tables_ > 0 || !TakesTablePart(tag, span)) return false;
  } else if (tag == "table") {
    if (!OpensTable(full)) return false;
  } else {
    EndSameBlock(tag);
    if (full && !IsOneOf(tag, kVoidTags)) return false;
  }
  if (IsOneOf(tag, kVoidTags)) return true;
  const bool format = IsOneOf(tag, kFormatTags);
  if (format && CountOf(text) >= 3) return false;  // the parser forgets one of four
  open_.push_back({tag, format ? text : std::string()});
  return true;
}

bool HtmlNesting::OpensTable(bool full) {
  if (full || dropped_tables_ > 0 || tables_ == HtmlLimits::kTables) {
    ++dropped_tables_;
    return false;
  }
  ++tables_;
  return true;
}

long HtmlNesting::CountOf(const std::string& text) const {
  return std::count_if(open_.begin(), open_.end(), [&](const Open& o) { return o.text == text; });
}

bool HtmlNesting::TakesTablePart(const std::string& tag, int span) {
  Open* const table = InnermostTable();
  if (!table) return false;
  if (tag == "tr") table->columns = 0;
  if (tag == "td" || tag == "th") {
    if (table->columns + span > HtmlLimits::kColumns) return false;
    table->columns += span;
  }
  for (std::size_t i = open_.size(); open_[i - 1].name != "table"; --i) {
    if (EndsBeforePart(tag, open_[i - 1].name)) open_.resize(i - 1);
  }
  return true;
}

// A paragraph or list entry ends where the next one starts; formats go on.
void HtmlNesting::EndSameBlock(const std::string& tag) {
  if (!IsOneOf(tag, {"p", "li", "dt", "dd"})) return;
  const auto block = std::find_if(open_.rbegin(), open_.rend(), [](const Open& o) { return !o.IsFormat(); });
  if (block != open_.rend() && block->name == tag) open_.erase(std::next(block).base());
}

bool HtmlNesting::Closes(const std::string& tag) {
  const bool table_part = tag == "table" || IsOneOf(tag, kTableTags);
  if (dropped_tables_ > 0 && table_part) {
    if (tag == "table") --dropped_tables_;
    return false;
  }
  if (!IsKnown(tag) || ++end_tags_ > HtmlLimits::kTags) return false;
  for (std::size_t i = open_.size(); i > 0; --i) {
    const auto found = open_.begin() + static_cast<std::ptrdiff_t>(i - 1);
    if (found->name == tag) {
      if (found->IsFormat()) {
        open_.erase(found);
      } else if (table_part) {
        if (tag == "table") --tables_;
        open_.erase(found, open_.end());
      } else {
        open_.erase(std::remove_if(found, open_.end(), [](const Open& o) { return !o.IsFormat(); }),
                    open_.end());
      }
      break;
    }
    if (found->name == "table") break;
  }
  return true;
}

}  // namespace skyloft
