#include <algorithm>

#include "base/values.h"
#include "platform/qt/http_qt.h"

namespace skyloft {
namespace {

std::string SchemeOf(std::string_view url) {
  const size_t end = url.find("://");
  if (end == std::string_view::npos) return "";
  const std::string scheme = LowerCase(url.substr(0, end));
  const bool plain = std::all_of(scheme.begin(), scheme.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
  });
  return plain ? scheme : "";
}

}  // namespace

std::optional<std::string> FetchAddress(std::string_view url) {
  const bool control = std::any_of(url.begin(), url.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; });
  if (control) return std::nullopt;
  std::string address(url);
  std::replace(address.begin(), address.end(), '\\', '/');
  if (SchemeOf(address).empty()) address = "http://" + address;
  const std::string scheme = SchemeOf(address);
  if (scheme != "http" && scheme != "https") return std::nullopt;
  const size_t host = scheme.size() + 3;
  const size_t path = std::min(address.find_first_of("/?#", host), address.size());
  if (path == host || address.substr(host, path - host).find(' ') != std::string::npos) return std::nullopt;
  std::string escaped = address.substr(0, path);
  for (char c : address.substr(path)) {
    if (c == ' ') {
      escaped += "%20";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

bool MayRedirect(std::string_view from, std::string_view to) {
  return SchemeOf(to) == "https" || (SchemeOf(to) == "http" && SchemeOf(from) == "http");
}

}  // namespace skyloft
