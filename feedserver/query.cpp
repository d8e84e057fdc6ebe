#include "feedserver/query.h"

#include <algorithm>
#include <charconv>

namespace skyloft::feed {
namespace {

constexpr std::size_t kMostFields = 64;  // no client has more; a hostile one would keep the server busy

}  // namespace

Query::Query(std::string_view text) {
  while (!text.empty() && fields_.size() < kMostFields) {
    const std::string_view field = text.substr(0, text.find('&'));
    text.remove_prefix(std::min(field.size() + 1, text.size()));
    const std::size_t equals = std::min(field.find('='), field.size());
    const std::string_view value = field.substr(std::min(equals + 1, field.size()));
    fields_.emplace_back(ResolveEscapes(field.substr(0, equals)), ResolveEscapes(value));
  }
}

std::string_view Query::First(std::string_view name) const {
  const auto values = All(name);
  return values.empty() ? std::string_view() : values.front();
}

std::vector<std::string_view> Query::All(std::string_view name) const {
  std::vector<std::string_view> values;
  for (const auto& [key, value] : fields_) {
    if (key == name) values.push_back(value);
  }
  return values;
}

std::string ResolveEscapes(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned char byte = 0;
    const char* const digits = text.data() + i + 1;
    const bool is_escape = text[i] == '%' && i + 2 < text.size() &&
                           std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
    plain += is_escape ? static_cast<char>(byte) : text[i] == '+' ? ' ' : text[i];
    if (is_escape) i += 2;
  }
  return plain;
}

}  // namespace skyloft::feed
