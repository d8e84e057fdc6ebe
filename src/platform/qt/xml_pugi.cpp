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
  if (const pugi::xml_node child = node.first_child()) return child;
  for (; node != top; node = node.parent()) {
    if (const pugi::xml_node sibling = node.next_sibling()) return sibling;
  }
  return {};
}

// The text of an element: all that is inside it.
std::string TextOf(const pugi::xml_node& element) {
  if (!element.first_child()) return FromUtf8(element.value());
  std::string text;
  for (pugi::xml_node node = element; node; node = NextNode(node, element)) text += node.value();
  return FromUtf8(text);
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

}  // namespace

struct XmlDocument::Tree {
  // The elements of one name, and those that followed the last of them.
  struct Elements {
    std::string_view name;
    std::vector<pugi::xml_node> nodes;
    Elements* followers = nullptr;
  };

  std::string text;  // which the document takes apart: its names and values lie in it
  pugi::xml_document document;
  std::unordered_map<std::string_view, Elements> elements;

  // One walk over the document. Replies repeat the same row of names, so the name that followed last time is
  // tried before the map.
  void FindElements() {
    Elements none;
    Elements* last = &none;
    for (pugi::xml_node node = document.first_child(); node; node = NextNode(node, document)) {
      const std::string_view name = node.name();
      if (name.empty()) continue;  // a text
      if (!last->followers || last->followers->name != name) {
        last->followers = &elements[name];
        last->followers->name = name;
      }
      last = last->followers;
      last->nodes.push_back(node);
    }
  }

  const std::vector<pugi::xml_node>& Named(std::string_view tag) const {
    static const std::vector<pugi::xml_node> none;
    const auto found = elements.find(tag);
    return found == elements.end() ? none : found->second.nodes;
  }
};

XmlDocument::XmlDocument() : tree_(std::make_unique<Tree>()) {}

XmlDocument::~XmlDocument() = default;

XmlDocument::XmlDocument(std::string text) : XmlDocument() {
  // Nodes are what reading a reply takes its time for: the text that an element begins with is the element's
  // own value, and the line ends between elements have no node.
  constexpr unsigned kOptions = pugi::parse_default | pugi::parse_ws_pcdata_single | pugi::parse_embed_pcdata;
  tree_->text = !IsAscii(text) && IsWindows1252(text) ? ToUtf8(text) : std::move(text);
  if (!tree_->document.load_buffer_inplace(tree_->text.data(), tree_->text.size(), kOptions)) {
    tree_ = std::make_unique<Tree>();  // the partial tree of a text that is not XML from end to end
    return;
  }
  tree_->FindElements();
}

int XmlDocument::Count(std::string_view tag) const { return static_cast<int>(tree_->Named(tag).size()); }

std::string XmlDocument::Text(std::string_view tag, int index) const {
  const auto& elements = tree_->Named(tag);
  return TextOf(elements[CheckedIndex(index, elements.size())]);
}

std::vector<std::string> XmlDocument::Texts(std::string_view tag) const {
  std::vector<std::string> texts;
  texts.reserve(tree_->Named(tag).size());
  for (const pugi::xml_node& element : tree_->Named(tag)) texts.push_back(TextOf(element));
  return texts;
}

}  // namespace skyloft
