// The fragments that pages are made of: they follow each other directly, and their leading blanks belong to
// them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace skyloft {

// Appends fragments to a page.
inline void Append(std::string& page, std::initializer_list<std::string_view> fragments) {
  for (const std::string_view fragment : fragments) page += fragment;
}

// The lines of a page that is written to a file.
inline std::string Lines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) {
    text += line;
    text += "\r\n";
  }
  return text;
}

}  // namespace skyloft
