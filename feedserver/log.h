// The log of requests: one JSON object a line, each written before its reply.
#pragma once

#include <fstream>
#include <mutex>
#include <string>
#include <string_view>

namespace skyloft::feed {

struct LogEntry {
  std::string method, path, query;
  std::string http;       // "HTTP/1.0"
  std::string agent;      // the client's name for itself
  int status = 0;         // 0 for what is not answered
  std::size_t bytes = 0;  // of the body that is to be sent
};

// The entry as JSON; `time` is GMT, "2003-03-07T14:05:00.123Z". Bytes beyond ASCII are taken as windows-1252.
std::string LogLine(const LogEntry& entry, std::string_view time);

class RequestLog {
 public:
  // Appends to a file; "" keeps no log. Raises when the file cannot be opened.
  explicit RequestLog(const std::string& file_name);
  void Write(const LogEntry& entry);

 private:
  std::mutex mutex_;
  std::ofstream file_;
};

}  // namespace skyloft::feed
