#include "feedserver/sockets.h"

#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <memory>

#include "base/guard.h"

namespace skyloft::feed {
namespace {

constexpr int kBacklog = 1024;  // connections waiting to be taken

void KeepToOurselves(int descriptor) {
  fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
  fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

}  // namespace

Descriptor::~Descriptor() {
  if (IsOpen()) close(number_);
}

Descriptor Listen(const std::string& address, int port) {
  const auto failed = [&](const char* what) {
    return RuntimeError("cannot listen on " + address + " port " + std::to_string(port) + ": " + what);
  };
  addrinfo wanted{};
  wanted.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV | AI_PASSIVE;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (getaddrinfo(address.c_str(), std::to_string(port).c_str(), &wanted, &found) != 0) {
    throw failed("no numeric address");
  }
  const std::unique_ptr<addrinfo, void (*)(addrinfo*)> owner(found, freeaddrinfo);
  Descriptor listener(socket(found->ai_family, found->ai_socktype, found->ai_protocol));
  if (!listener.IsOpen()) throw failed("no socket");
  KeepToOurselves(listener.Number());
  const int on = 1;
  setsockopt(listener.Number(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  if (bind(listener.Number(), found->ai_addr, found->ai_addrlen) != 0 ||
      listen(listener.Number(), kBacklog) != 0) {
    throw failed("the port is taken or not allowed");
  }
  return listener;
}

int PortOf(const Descriptor& listener) {
  sockaddr_storage address{};
  socklen_t size = sizeof address;
  getsockname(listener.Number(), reinterpret_cast<sockaddr*>(&address), &size);
  return ntohs(address.ss_family == AF_INET6 ? reinterpret_cast<sockaddr_in6&>(address).sin6_port
                                             : reinterpret_cast<sockaddr_in&>(address).sin_port);
}

Descriptor Accept(const Descriptor& listener) {
  Descriptor connection(accept(listener.Number(), nullptr, nullptr));
  if (!connection.IsOpen()) return connection;
  KeepToOurselves(connection.Number());
  const int on = 1;
  setsockopt(connection.Number(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  return connection;
}

std::size_t DescriptorLimit() {
  rlimit limit{};
  if (getrlimit(RLIMIT_NOFILE, &limit) != 0) throw RuntimeError("no limit of open files");
  return static_cast<std::size_t>(limit.rlim_cur);
}

Pipe::Pipe() {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw RuntimeError("no pipe");
  for (const int end : ends) KeepToOurselves(end);
  out = Descriptor(ends[0]);
  in = Descriptor(ends[1]);
}

}  // namespace skyloft::feed
