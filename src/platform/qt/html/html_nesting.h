// The account of a page's open tags, kept as the HTML parser keeps it, so that no page makes the parser nest
// deeper than HtmlLimits allows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace skyloft {

class HtmlNesting {
 public:
  // A tag that the display knows.
  static bool IsKnown(std::string_view tag);
  // A tag that is left out with what it holds, which is not markup for the engine.
  static bool IsRaw(std::string_view tag);

  // Takes a known start tag, written `text` and `span` columns wide, into the account; false when it is to be
  // left out.
  bool Opens(const std::string& tag, const std::string& text, int span);
  // The same for an end tag.
  bool Closes(const std::string& tag);

 private:
  struct Open {
    std::string name;
    std::string text;  // the whole tag, of a format
    int columns = 0;   // of a table's present row
    bool IsFormat() const { return !text.empty(); }
  };

  Open* InnermostTable();
  bool OpensTable(bool full);
  bool TakesTablePart(const std::string& tag, int span);
  void EndSameBlock(const std::string& tag);
  long CountOf(const std::string& text) const;

  std::vector<Open> open_;
  std::size_t start_cost_ = 0, end_tags_ = 0;
  int tables_ = 0, dropped_tables_ = 0;
};

}  // namespace skyloft
