// Tidies a page before the HTML engine reads it: mends the tags that real pages leave broken, and bounds what
// a page can cost. Bytes in, bytes out; any superset of ASCII.
#pragma once

#include <string>
#include <string_view>

namespace skyloft {

// The bounds. What lies beyond them is left out: the rest of the page, or the tag (its content stays).
struct HtmlLimits {
  static constexpr std::size_t kBytes = 150'000;  // of a page, and of what is made of it
  static constexpr std::size_t kScrollText =
      100'000;  // bytes of a scroller's text, which may be longer than a page
  static constexpr std::size_t kStyle = 16'000;  // bytes of a page's style sheets
  static constexpr std::size_t kTags = 6'000;    // of a page; a tag inside n others counts as 1 + n * n / 128
  static constexpr int kDepth = 48;              // open tags inside each other
  static constexpr int kTables = 8;              // tables inside each other: layout time grows with 3^n
  static constexpr int kColumns = 128;           // of a table row, spans counted
  static constexpr int kSpan = 64;               // colspan and rowspan, at least 1
  static constexpr int kNumber = 10'000;         // any other number, in pixels or percent
};

// The page with each tag written `<name attribute="value" ...>` in lower case. An open tag ends at the next
// "<" before a letter, "/" or "!"; a quote counts only directly after "="; scripts, comments, titles and
// unknown tags are left out; "<" that opens nothing becomes "&lt;". The text of a scroller may hold quotes
// and tags of its own: it goes on to the last ">" before the next parameter, and its tags are left out. An
// empty page yields "".
std::string TidyHtml(std::string_view page);

}  // namespace skyloft
