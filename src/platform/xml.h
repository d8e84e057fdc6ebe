// An XML document as a flat bag of elements by tag name.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace skyloft {

class XmlDocument {
 public:
  // An empty document.
  XmlDocument();
  // The document of a whole text; a text that is not XML from end to end gives an empty document.
  explicit XmlDocument(std::string text);
  ~XmlDocument();
  XmlDocument(const XmlDocument&) = delete;
  XmlDocument& operator=(const XmlDocument&) = delete;

  // How many elements have this tag, anywhere in the document. Case counts.
  int Count(std::string_view tag) const;
  // The text of element `index` in document order, 0 is the first: all text inside it, blanks kept, in
  // windows-1252; blanks alone next to an inner element are layout and no text. Raises when there is no such
  // element.
  std::string Text(std::string_view tag, int index) const;
  // The texts of all its elements.
  std::vector<std::string> Texts(std::string_view tag) const;

 private:
  struct Tree;
  std::unique_ptr<Tree> tree_;
};

}  // namespace skyloft
