// The socket of the server: HTTP on 127.0.0.1, a reply a connection.
#pragma once

#include <functional>
#include <memory>

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
  // Port 0 is any free one. Raises when the port is taken.
  Server(Service service, int port);
  ~Server();
  int Port() const;
  // Answers until the process ends.
  void Run();

 private:
  class Http;
  std::unique_ptr<Http> http_;
};

}  // namespace skyloft::feed
