// A real HTTP server on loopback for tests: answers each path with what it was given, word for word, and
// keeps the requests as they came.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace skyloft {

class LoopbackServer {
 public:
  // `replies`: path to raw reply, status line and all. A path without one is never answered.
  explicit LoopbackServer(std::map<std::string, std::string> replies);
  ~LoopbackServer();
  LoopbackServer(const LoopbackServer&) = delete;
  LoopbackServer& operator=(const LoopbackServer&) = delete;

  std::string Address() const { return "127.0.0.1:" + std::to_string(port_); }
  std::vector<std::string> Requests();

 private:
  void Serve();
  void Answer(int client);

  std::map<std::string, std::string> replies_;
  int listener_ = -1;
  int port_ = 0;
  std::mutex mutex_;
  std::vector<std::string> requests_;
  std::vector<int> waiting_;
  std::thread thread_;
};

// A whole reply of status 200.
std::string OkReply(const std::string& body);
// A redirect to `target`.
std::string RedirectReply(const std::string& target);

}  // namespace skyloft
