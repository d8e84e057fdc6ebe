// The part of an address behind its "?": names and values in their order, with their escapes resolved;
// the first 64 of them.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace skyloft::feed {

class Query {
 public:
  explicit Query(std::string_view text);
  // The first value of a name, "" when it is not there.
  std::string_view First(std::string_view name) const;
  std::vector<std::string_view> All(std::string_view name) const;
  bool Has(std::string_view name) const { return !All(name).empty(); }

 private:
  std::vector<std::pair<std::string, std::string>> fields_;
};

// "+" is a blank and "%41" an "A"; a "%" without two hexadecimal digits stays.
std::string ResolveEscapes(std::string_view text);

}  // namespace skyloft::feed
