#include "platform/qt/html/html_prepass.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

#include "base/values.h"
#include "platform/qt/html/html_nesting.h"
#include "platform/qt/html/html_scroll_text.h"

namespace skyloft {
namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f'; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

struct Attribute {
  std::string name, value;
  std::size_t at = 0;  // where its value stands in the page
};

// The numbers that the engine computes with; other attributes are texts.
void BoundNumber(Attribute& attribute) {
  static constexpr const char* kNumbers[] = {"width",       "height",       "border",     "cellpadding",
                                             "cellspacing", "hspace",       "vspace",     "topmargin",
                                             "leftmargin",  "marginheight", "marginwidth"};
  const bool span = attribute.name == "colspan" || attribute.name == "rowspan";
  if (!span && std::find(std::begin(kNumbers), std::end(kNumbers), attribute.name) == std::end(kNumbers))
    return;
  const long number = std::strtol(attribute.value.c_str(), nullptr, 10);
  if (span) {
    attribute.value = std::to_string(std::clamp(number, 1L, static_cast<long>(HtmlLimits::kSpan)));
  } else if (number > HtmlLimits::kNumber) {
    attribute.value = std::to_string(HtmlLimits::kNumber);
  }
}

int SpanOf(const std::vector<Attribute>& attributes) {
  for (const Attribute& attribute : attributes) {
    if (attribute.name == "colspan") return std::atoi(attribute.value.c_str());
  }
  return 1;
}

class Tidier {
 public:
  explicit Tidier(std::string_view page) : whole_(page), page_(page.substr(0, HtmlLimits::kBytes)) {}

  std::string Run() {
    while (at_ < page_.size() && out_.size() < HtmlLimits::kBytes) {
      if (page_[at_] == '<') {
        ReadMarkup();
      } else {
        CopyText(std::min(page_.find('<', at_), page_.size()));
      }
    }
    return std::move(out_);
  }

 private:
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
      attribute.at = at_;
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
    std::vector<Attribute> attributes = ReadAttributes();
    if (name == "param") ReadScrollText(attributes);
    if (HtmlNesting::IsRaw(name)) {
      at_ = FindRawEnd(name);
    } else if (name == "style") {
      CopyStyle();
    } else if (HtmlNesting::IsKnown(name)) {
      const std::string text = TagText(name, attributes);
      if (nesting_.Opens(name, text, SpanOf(attributes))) out_ += text;
    }
  }

  // Reads the value of the scroller's text anew, as far as it goes; what follows has its own length.
  void ReadScrollText(std::vector<Attribute>& attributes) {
    const auto has_name = [](const char* name) {
      return [name](const Attribute& attribute) { return attribute.name == name; };
    };
    const auto name = std::find_if(attributes.begin(), attributes.end(), has_name("name"));
    const auto value = std::find_if(attributes.begin(), attributes.end(), has_name("value"));
    if (name == attributes.end() || LowerCase(name->value) != "text") return;
    if (value == attributes.end() || value < name || std::exchange(has_scroll_text_, true)) return;
    const std::size_t next = std::min(FindTag("<param", value->at), FindTag("</applet", value->at));
    const std::size_t close = whole_.substr(0, next).rfind('>');
    if (close == whole_.npos || close < value->at) return;
    std::string_view text = TrimText(whole_.substr(value->at, close - value->at));
    const char quote = text.empty() ? '\0' : text.front();
    if (quote == '"' || quote == '\'') text.remove_prefix(1);
    if ((quote == '"' || quote == '\'') && text.ends_with(quote)) text.remove_suffix(1);
    value->value = WithoutTags(text.substr(0, HtmlLimits::kScrollText));
    attributes.erase(std::next(value), attributes.end());  // words of the text that looked like some
    at_ = close + 1;
    page_ = whole_.substr(0, at_ + HtmlLimits::kBytes);
    no_quote_from_[0] = no_quote_from_[1] = page_.npos;
  }

  // The next place where the whole page has this, in any case; its end if none.
  std::size_t FindTag(std::string_view start, std::size_t from) const {
    const auto* const found = std::search(whole_.begin() + from, whole_.end(), start.begin(), start.end(),
                                          [](char a, char b) { return Lower(a) == b; });
    return static_cast<std::size_t>(found - whole_.begin());
  }

  static std::string TagText(const std::string& name, const std::vector<Attribute>& attributes) {
    std::string text = '<' + name;
    for (const Attribute& attribute : attributes) {
      text += ' ' + attribute.name + "=\"";
      for (const char c : attribute.value) {
        if (c == '"') {
          text += "&quot;";
        } else if (c != '\0') {
          text += c;
        }
      }
      text += '"';
    }
    return text + '>';
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

  void CopyStyle() {
    const std::size_t end = FindRawEnd("style");
    style_left_ -= std::min(style_left_, end - at_);
    if (style_left_ > 0) {
      out_ += "<style>";
      CopyText(end);
      out_ += "</style>";
    }
    at_ = end;
  }

  void ReadEndTag() {
    at_ += 2;
    const std::string name = ReadName();
    ReadAttributes();
    if (nesting_.Closes(name)) out_ += "</" + name + '>';
  }

  const std::string_view whole_;
  std::string_view page_;  // what is read of it
  std::size_t at_ = 0;
  std::size_t no_quote_from_[2] = {std::string_view::npos, std::string_view::npos};  // ' and "
  std::string out_;
  HtmlNesting nesting_;
  bool has_scroll_text_ = false;
  std::size_t style_left_ = HtmlLimits::kStyle;
};

}  // namespace

std::string TidyHtml(std::string_view page) { return Tidier(page).Run(); }

}  // namespace skyloft
