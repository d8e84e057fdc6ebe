#include "platform/qt/html/html_prepass.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <vector>

namespace skyloft {
namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f'; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool IsOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

bool IsVoid(std::string_view tag) {
  return IsOneOf(tag, {"area", "base", "basefont", "bgsound", "br", "col", "embed", "frame", "hr", "img",
                       "input", "link", "meta", "param", "source", "wbr"});
}

bool IsTablePart(std::string_view tag) {
  return IsOneOf(tag, {"tr", "td", "th", "tbody", "thead", "tfoot", "caption", "colgroup", "col"});
}

// Whether an open `inner` ends where `tag` starts, since its end tag may be left out.
bool EndsBefore(std::string_view tag, std::string_view inner) {
  if (tag == "td" || tag == "th") return inner == "td" || inner == "th";
  if (tag == "tr") return IsOneOf(inner, {"td", "th", "tr"});
  if (IsOneOf(tag, {"tbody", "thead", "tfoot"})) {
    return IsOneOf(inner, {"td", "th", "tr", "tbody", "thead", "tfoot"});
  }
  return tag == inner && IsOneOf(tag, {"p", "li", "option", "dt", "dd"});
}

struct Attribute {
  std::string name, value;
};

// The numbers that the engine computes with; other attributes are texts.
void BoundNumber(Attribute& attribute) {
  const bool span = IsOneOf(attribute.name, {"colspan", "rowspan"});
  if (!span &&
      !IsOneOf(attribute.name, {"width", "height", "border", "cellpadding", "cellspacing", "hspace", "vspace",
                                "topmargin", "leftmargin", "marginheight", "marginwidth"})) {
    return;
  }
  const long number = std::strtol(attribute.value.c_str(), nullptr, 10);
  if (span) {
    attribute.value = std::to_string(std::clamp(number, 1L, static_cast<long>(HtmlLimits::kSpan)));
  } else if (number > HtmlLimits::kNumber) {
    attribute.value = std::to_string(HtmlLimits::kNumber);
  }
}

class Tidier {
 public:
  explicit Tidier(std::string_view page) : page_(page.substr(0, HtmlLimits::kBytes)) {}

  std::string Run() {
    while (at_ < page_.size()) {
      if (page_[at_] == '<') {
        ReadMarkup();
      } else {
        CopyText(std::min(page_.find('<', at_), page_.size()));
      }
    }
    return std::move(out_);
  }

 private:
  struct Open {
    std::string name;
    int columns;  // of a table's present row
  };

  char Peek(std::size_t ahead = 0) const { return at_ + ahead < page_.size() ? page_[at_ + ahead] : '\0'; }
  bool AtMarkup() const { return Peek() == '<' && (IsLetter(Peek(1)) || Peek(1) == '/' || Peek(1) == '!'); }
  void SkipBlanks() {
    while (IsBlank(Peek())) ++at_;
  }

  // A zero byte would end the page for the engine.
  void CopyText(std::size_t end) {
    for (; at_ < end; ++at_) {
      if (page_[at_] != '\0') out_ += page_[at_];
    }
  }

  void SkipBeyond(std::string_view mark) {
    const std::size_t found = page_.find(mark, at_);
    at_ = found == page_.npos ? page_.size() : found + mark.size();
  }

  void ReadMarkup() {
    const char next = Peek(1);
    if (IsLetter(next)) {
      ReadStartTag();
    } else if (next == '/' && IsLetter(Peek(2))) {
      ReadEndTag();
    } else if (page_.substr(at_, 4) == "<!--") {
      SkipBeyond("-->");
    } else if (next == '!' || next == '?' || next == '/') {
      SkipBeyond(">");
    } else {
      out_ += "&lt;";
      ++at_;
    }
  }

  std::string ReadName() {
    std::string name;
    for (; IsLetter(Peek()) || IsDigit(Peek()); ++at_) name += Lower(Peek());
    return name;
  }

  std::string ReadValue() {
    const char quote = Peek();
    if (quote == '"' || quote == '\'') {
      const std::size_t close = at_ < no_quote_from_[quote == '"'] ? page_.find(quote, at_ + 1) : page_.npos;
      if (close != page_.npos) {
        const std::string_view value = page_.substr(at_ + 1, close - at_ - 1);
        at_ = close + 1;
        return std::string(value);
      }
      no_quote_from_[quote == '"'] = at_;  // none behind this place, so that no one searches again
      ++at_;
    }
    const std::size_t start = at_;
    while (at_ < page_.size() && !IsBlank(Peek()) && Peek() != '>' && !AtMarkup()) ++at_;
    return std::string(page_.substr(start, at_ - start));
  }

  std::optional<Attribute> ReadAttribute() {
    Attribute attribute;
    for (; at_ < page_.size() && !IsBlank(Peek()) && Peek() != '=' && Peek() != '>' && !AtMarkup(); ++at_) {
      const char c = Lower(Peek());
      if (IsLetter(c) || IsDigit(c) || c == '-') attribute.name += c;
    }
    SkipBlanks();
    if (Peek() == '=') {
      ++at_;
      SkipBlanks();
      attribute.value = ReadValue();
    }
    if (attribute.name.empty()) return std::nullopt;
    BoundNumber(attribute);
    return attribute;
  }

  std::vector<Attribute> ReadAttributes() {
    std::vector<Attribute> attributes;
    while (true) {
      SkipBlanks();
      if (at_ >= page_.size() || AtMarkup()) break;
      if (Peek() == '>') {
        ++at_;
        break;
      }
      auto attribute = ReadAttribute();
      if (attribute && attributes.size() < 64) attributes.push_back(std::move(*attribute));
    }
    return attributes;
  }

  void ReadStartTag() {
    ++at_;
    const std::string name = ReadName();
    const std::vector<Attribute> attributes = ReadAttributes();
    if (name == "script") {
      SkipRawText(name);
    } else if (Opens(name, attributes)) {
      WriteStartTag(name, attributes);
      if (name == "style") CopyRawText(name);
    }
  }

  void WriteStartTag(const std::string& name, const std::vector<Attribute>& attributes) {
    out_ += '<' + name;
    for (const Attribute& attribute : attributes) {
      out_ += ' ' + attribute.name + "=\"";
      for (const char c : attribute.value) {
        if (c == '"') {
          out_ += "&quot;";
        } else if (c != '\0') {
          out_ += c;
        }
      }
      out_ += '"';
    }
    out_ += '>';
  }

  std::size_t FindRawEnd(std::string_view name) const {
    for (std::size_t found = page_.find("</", at_); found != page_.npos;
         found = page_.find("</", found + 2)) {
      const std::string_view word = page_.substr(found + 2, name.size());
      if (std::equal(word.begin(), word.end(), name.begin(), name.end(),
                     [](char a, char b) { return Lower(a) == b; })) {
        return found;
      }
    }
    return page_.size();
  }
  void CopyRawText(std::string_view name) { CopyText(FindRawEnd(name)); }
  void SkipRawText(std::string_view name) {
    at_ = FindRawEnd(name);
    SkipBeyond(">");
  }

  Open* InnermostTable() {
    const auto table =
        std::find_if(open_.rbegin(), open_.rend(), [](const Open& o) { return o.name == "table"; });
    return table == open_.rend() ? nullptr : &*table;
  }

  // Takes the tag into the account; false when it goes beyond a bound.
  bool Opens(const std::string& name, const std::vector<Attribute>& attributes) {
    if (++tags_ > HtmlLimits::kTags) return false;
    if (name == "table" && (dropped_tables_ > 0 || tables_ == HtmlLimits::kTables)) {
      ++dropped_tables_;
      return false;
    }
    if (IsTablePart(name) && (dropped_tables_ > 0 || !TakesTablePart(name, attributes))) return false;
    for (std::size_t i = open_.size(); i > 0 && open_[i - 1].name != "table"; --i) {
      if (EndsBefore(name, open_[i - 1].name)) open_.resize(i - 1);
    }
    if (IsVoid(name)) return true;
    if (open_.size() >= HtmlLimits::kDepth && !IsTablePart(name)) {
      if (name == "table") ++dropped_tables_;
      return false;
    }
    if (name == "table") ++tables_;
    open_.push_back({name, 0});
    return true;
  }

  bool TakesTablePart(const std::string& name, const std::vector<Attribute>& attributes) {
    Open* const table = InnermostTable();
    if (!table) return true;
    if (name == "tr") table->columns = 0;
    if (name != "td" && name != "th") return true;
    int span = 1;
    for (const Attribute& attribute : attributes) {
      if (attribute.name == "colspan") span = std::atoi(attribute.value.c_str());
    }
    if (table->columns + span > HtmlLimits::kColumns) return false;
    table->columns += span;
    return true;
  }

  void ReadEndTag() {
    at_ += 2;
    const std::string name = ReadName();
    ReadAttributes();
    if (dropped_tables_ > 0 && (name == "table" || IsTablePart(name))) {
      if (name == "table") --dropped_tables_;
      return;
    }
    if (++tags_ > 2 * HtmlLimits::kTags) return;
    for (std::size_t i = open_.size(); i > 0; --i) {
      if (open_[i - 1].name == name) {
        if (name == "table") --tables_;
        open_.resize(i - 1, {});
        break;
      }
      if (open_[i - 1].name == "table") break;
    }
    out_ += "</" + name + '>';
  }

  const std::string_view page_;
  std::size_t at_ = 0;
  std::size_t no_quote_from_[2] = {std::string_view::npos, std::string_view::npos};  // ' and "
  std::string out_;
  std::vector<Open> open_;
  int tags_ = 0, tables_ = 0, dropped_tables_ = 0;
};

}  // namespace

std::string TidyHtml(std::string_view page) { return Tidier(page).Run(); }

}  // namespace skyloft
