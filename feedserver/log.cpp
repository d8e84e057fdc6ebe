#include "feedserver/log.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>

#include "base/guard.h"
#include "base/text.h"

namespace skyloft::feed {
namespace {

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : ToUtf8(text)) {
    if (c == '"' || c == '\\') {
      quoted.append(1, '\\').append(1, c);
    } else if (static_cast<unsigned char>(c) < 0x20) {
      std::array<char, 8> escape;
      std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(c));
      quoted += escape.data();
    } else {
      quoted += c;
    }
  }
  return quoted += '"';
}

std::string TimeNow() {
  using namespace std::chrono;
  const auto now = floor<milliseconds>(system_clock::now());
  const std::time_t seconds = system_clock::to_time_t(now);
  std::tm fields{};
  gmtime_r(&seconds, &fields);
  std::array<char, 40> text;
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &fields);
  std::array<char, 8> rest;
  std::snprintf(rest.data(), rest.size(), ".%03dZ", static_cast<int>(now.time_since_epoch().count() % 1000));
  return std::string(text.data(), length) + rest.data();
}

}  // namespace

std::string LogLine(const LogEntry& entry, std::string_view time) {
  std::string line = "{\"time\":" + Quoted(time);
  line += ",\"method\":" + Quoted(entry.method) + ",\"path\":" + Quoted(entry.path);
  line += ",\"query\":" + Quoted(entry.query) + ",\"http\":" + Quoted(entry.http);
  line += ",\"agent\":" + Quoted(entry.agent) + ",\"status\":" + std::to_string(entry.status);
  return line + ",\"bytes\":" + std::to_string(entry.bytes) + "}";
}

RequestLog::RequestLog(const std::string& file_name) {
  if (file_name.empty()) return;
  file_.open(file_name, std::ios::app | std::ios::binary);
  if (!file_) throw RuntimeError("cannot write the log " + file_name);
}

void RequestLog::Write(const LogEntry& entry) {
  if (!file_.is_open()) return;
  const std::lock_guard lock(mutex_);
  file_ << LogLine(entry, TimeNow()) << '\n' << std::flush;
}

}  // namespace skyloft::feed
