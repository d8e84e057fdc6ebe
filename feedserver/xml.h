// Writes the flat XML of the feed: one root, one element a line. Tags are ours; values are escaped.
#pragma once

#include <string>
#include <string_view>

namespace skyloft::feed {

class XmlDocument {
 public:
  explicit XmlDocument(std::string_view root);
  void Add(std::string_view tag, std::string_view value);
  // The whole text; the document is at its end.
  std::string Finish() &&;

 private:
  std::string root_, text_;
};

}  // namespace skyloft::feed
