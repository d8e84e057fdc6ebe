#include "platform/xml.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include <pugixml.hpp>

#include "base/guard.h"
#include "base/tables.h"
#include "base/text.h"
#include "base/values.h"

namespace skyloft {
namespace {

// The next node in document order; an empty node after the last.
pugi::xml_node NextNode(pugi::xml_node node, pugi::xml_node top) {
  if (node.first_child()) return node.first_child();
  while (node != top && !node.next_sibling()) node = node.parent();
  return node == top ? pugi::xml_node() : node.next_sibling();
}

// Whether a text is in windows-1252, which the library does not know: it says so, or it says nothing and is
// no UTF-8.
bool IsWindows1252(std::string_view text) {
  const size_t start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
  std::string declaration;
  if (text.substr(start).starts_with("<?xml"))
    declaration = LowerCase(text.substr(start, text.find("?>") - start));
  if (declaration.find("encoding") == std::string::npos) return !IsUtf8(text);
  return declaration.find("windows-1252") != std::string::npos;
}

bool IsText(const pugi::xml_node& node) {
  return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

}  // namespace

struct XmlDocument::Tree {
  pugi::xml_document document;
  // Made in one walk over the document; the names are the document's own.
  std::unordered_map<std::string_view, std::vector<pugi::xml_node>> elements;
};

XmlDocument::XmlDocument() : tree_(std::make_unique<Tree>()) {}

XmlDocument::~XmlDocument() = default;

XmlDocument::XmlDocument(std::string_view text) : XmlDocument() {
  constexpr unsigned kOptions = pugi::parse_default | pugi::parse_ws_pcdata;
  const std::string converted = IsWindows1252(text) ? ToUtf8(text) : std::string();
  const std::string_view source = converted.empty() ? text : converted;
  if (!tree_->document.load_buffer(source.data(), source.size(), kOptions)) {
    tree_ = std::make_unique<Tree>();  // the partial tree of a text that is not XML from end to end
    return;
  }
  for (pugi::xml_node node = tree_->document.first_child(); node; node = NextNode(node, tree_->document)) {
    if (node.type() == pugi::node_element) tree_->elements[node.name()].push_back(node);
  }
}

int XmlDocument::Count(std::string_view tag) const {
  const auto found = tree_->elements.find(tag);
  return found == tree_->elements.end() ? 0 : static_cast<int>(found->second.size());
}

std::string XmlDocument::Text(std::string_view tag, int index) const {
  const auto found = tree_->elements.find(tag);
  if (found == tree_->elements.end()) throw RuntimeError("no element " + std::string(tag));
  const pugi::xml_node element = found->second[CheckedIndex(index, found->second.size())];
  const pugi::xml_node first = element.first_child();
  if (IsText(first) && !first.next_sibling()) return FromUtf8(first.value());
  std::string text;
  for (pugi::xml_node node = first; node; node = NextNode(node, element)) {
    if (IsText(node)) text += node.value();
  }
  return FromUtf8(text);
}

}  // namespace skyloft
