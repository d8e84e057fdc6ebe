// Reads the feed's flat XML for the tests.
#pragma once

#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <string>
#include <utility>
#include <vector>

namespace skyloft::feed {

using Elements = std::vector<std::pair<std::string, std::string>>;

// The elements under the one root, in their order; a document that is not well-formed fails the test.
inline Elements Scan(const std::string& body) {
  pugi::xml_document document;
  const auto result = document.load_string(body.c_str());
  EXPECT_TRUE(result) << result.description() << ": " << body.substr(0, 200);
  Elements elements;
  for (const pugi::xml_node node : document.document_element())
    elements.emplace_back(node.name(), node.text().get());
  return elements;
}

// The values of one tag, in their order.
inline std::vector<std::string> Values(const Elements& elements, const std::string& tag) {
  std::vector<std::string> values;
  for (const auto& [name, value] : elements) {
    if (name == tag) values.push_back(value);
  }
  return values;
}

inline std::string First(const Elements& elements, const std::string& tag) {
  const auto values = Values(elements, tag);
  EXPECT_FALSE(values.empty()) << tag;
  return values.empty() ? "" : values.front();
}

}  // namespace skyloft::feed
