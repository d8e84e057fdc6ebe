#include "platform/doubles.h"
#include "platform/files.h"
#include "platform/http.h"

namespace skyloft {
namespace {

bool Fetch(HttpControl& control, std::string& text) {
  const std::string url = control.Url;
  Doubles.requests.push_back(url);
  control.State = 1;
  if (Doubles.during_fetch) Doubles.during_fetch(url);
  control.State = 0;
  if (Doubles.http_failure.Due()) return false;
  for (const auto& [part, reply] : Doubles.replies) {
    if (url.find(part) == std::string::npos) continue;
    text = reply;
    if (control.Progress)
      control.Progress(static_cast<long long>(reply.size()), static_cast<long long>(reply.size()));
    return true;
  }
  return false;
}

}  // namespace

bool HttpGet(HttpControl& control, std::string& text) { return Fetch(control, text); }

bool HttpGetFile(HttpControl& control, const std::string& path) {
  std::string text;
  if (!Fetch(control, text)) return false;
  WriteFile(path, text);
  return true;
}

void DialInternet(int flags) { Doubles.dials.push_back(flags); }

}  // namespace skyloft
