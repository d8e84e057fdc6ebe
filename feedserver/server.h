// The server: requests of HTTP/1.0 and 1.1, one a connection, answered from the world.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "feedserver/answer.h"
#include "feedserver/faults.h"
#include "feedserver/log.h"

namespace skyloft::feed {

// What a server serves; all of it must outlive the server.
struct Service {
  const World& world;
  std::function<Date()> clock;  // GMT
  FaultBook& faults;
  RequestLog& log;
};

class Server {
 public:
  // Listens on a numeric address; port 0 is any free one. That many threads answer at once. Raises when the
  // port is taken.
  Server(Service service, const std::string& address, int port, int threads);
  ~Server();
  int Port() const;
  // Answers until the process ends.
  void Run();

 private:
  class Http;
  std::unique_ptr<Http> http_;
};

}  // namespace skyloft::feed
