// The connections of the server. One thread reads and writes them all, so that a client that is slow, silent
// or hostile costs little and keeps nobody waiting; requests that have come whole are answered by others.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace skyloft::feed {

// What a client may cost. A connection carries one request and its reply.
// At once; fewer where the system allows fewer open files. Then one goes that has its reply, that has been
// longest without a request or that takes longest to take a reply.
inline constexpr std::size_t kMostConnections = 400;
inline constexpr std::size_t kLongestHead = 16384;         // bytes of a request with its header
inline constexpr std::size_t kMostHeld = 128 << 20;        // bytes of replies that wait to be taken
inline constexpr std::chrono::seconds kHeadPatience{5};    // until the request has come whole
inline constexpr std::chrono::seconds kReplyPatience{60};  // until the reply has been taken

enum class Pace {
  AtOnce,
  Drip,  // a byte each 100 ms
  Never  // nothing is sent and the connection stays until the client goes
};

struct Outgoing {
  std::string bytes;  // "": the connection is closed without a byte
  Pace pace = Pace::AtOnce;
};

class Connections {
 public:
  // Answers a request, given from its first line to the empty one. Called from several threads at once.
  using Answer = std::function<Outgoing(const std::string& head)>;

  // Listens on a numeric address, "127.0.0.1" or "::1"; port 0 is any free one. `threads` answer. Raises when
  // the port is taken.
  Connections(const std::string& address, int port, int threads, Answer answer);
  ~Connections();
  int Port() const;
  // Serves until the process ends.
  void Run();

 private:
  class Loop;
  std::unique_ptr<Loop> loop_;
};

}  // namespace skyloft::feed
