#include "platform/qt/loopback_server.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace skyloft {

LoopbackServer::LoopbackServer(std::map<std::string, std::string> replies) : replies_(std::move(replies)) {
  listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof(address));
  listen(listener_, 64);
  socklen_t size = sizeof(address);
  getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this] { Serve(); });
}

LoopbackServer::~LoopbackServer() {
  shutdown(listener_, SHUT_RDWR);
  thread_.join();
  close(listener_);
  for (int client : waiting_) close(client);
}

std::vector<std::string> LoopbackServer::Requests() {
  const std::lock_guard lock(mutex_);
  return requests_;
}

void LoopbackServer::Serve() {
  while (true) {
    const int client = accept(listener_, nullptr, nullptr);
    if (client < 0) return;
    Answer(client);
  }
}

void LoopbackServer::Answer(int client) {
  std::string request;
  char buffer[4096];
  while (request.find("\r\n\r\n") == std::string::npos) {
    const auto count = read(client, buffer, sizeof(buffer));
    if (count <= 0) break;
    request.append(buffer, static_cast<size_t>(count));
  }
  const size_t start = request.find(' ') + 1;
  const std::string path = request.substr(start, request.find(' ', start) - start);
  {
    const std::lock_guard lock(mutex_);
    requests_.push_back(request);
  }
  const auto reply = replies_.find(path);
  if (reply == replies_.end()) {
    waiting_.push_back(client);
    return;
  }
  [[maybe_unused]] const auto sent = send(client, reply->second.data(), reply->second.size(), MSG_NOSIGNAL);
  close(client);
}

std::string OkReply(const std::string& body) {
  return "HTTP/1.0 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::string RedirectReply(const std::string& target) {
  return "HTTP/1.0 302 Found\r\nLocation: " + target + "\r\nContent-Length: 0\r\n\r\n";
}

}  // namespace skyloft
