#include "feedserver/server.h"

#include <httplib.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <string_view>
#include <thread>

#include "base/guard.h"
#include "feedserver/ahead.h"

namespace skyloft::feed {
namespace {

constexpr char kAddress[] = "127.0.0.1";
constexpr int kBacklog = 1024;  // connections waiting to be taken
constexpr std::size_t kThreads = 8;
constexpr int kPatienceMs = 2000;  // with a client that does not send or take its bytes
constexpr auto kDripPause = std::chrono::milliseconds(100);

bool WaitFor(int socket, short event, int patience_ms) {
  pollfd wanted{socket, event, 0};
  return poll(&wanted, 1, patience_ms) > 0;
}

bool SendAll(int socket, std::string_view bytes) {
  while (!bytes.empty()) {
    if (!WaitFor(socket, POLLOUT, kPatienceMs)) return false;
    const ssize_t sent = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

void CloseSocket(int socket) {
  shutdown(socket, SHUT_RDWR);
  close(socket);
}

// Says nothing until the client goes.
void Hang(int socket) {
  std::array<char, 256> ignored;
  while (recv(socket, ignored.data(), ignored.size(), 0) > 0) {
  }
  CloseSocket(socket);
}

void Drip(int socket, const std::string& reply) {
  for (const char& byte : reply) {
    if (!SendAll(socket, {&byte, 1})) break;
    std::this_thread::sleep_for(kDripPause);
  }
  CloseSocket(socket);
}

// One client. Replies with a fault of the connection are held back, to be spoiled as a whole.
class Connection : public httplib::Stream {
 public:
  explicit Connection(int socket) : socket_(socket) {}

  void Befall(FaultKind fault) { fault_ = fault; }

  // Ends the connection, or hands it to a thread of its own so that no fault keeps others waiting.
  void Finish() {
    switch (fault_) {
      case FaultKind::Hang: std::thread(Hang, socket_).detach(); return;
      case FaultKind::Drip: std::thread(Drip, socket_, std::move(held_)).detach(); return;
      case FaultKind::Cut: SendAll(socket_, WithoutHalfOfBody(held_)); break;
      default: break;
    }
    CloseSocket(socket_);
  }

  bool is_readable() const override { return begin_ < end_ || WaitFor(socket_, POLLIN, kPatienceMs); }
  bool is_writable() const override { return WaitFor(socket_, POLLOUT, kPatienceMs); }

  // The library reads headers byte by byte, so these come out of a buffer.
  ssize_t read(char* bytes, std::size_t size) override {
    if (begin_ == end_ && !Fill()) return -1;
    const std::size_t count = std::min(size, end_ - begin_);
    std::copy_n(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_), count, bytes);
    begin_ += count;
    return static_cast<ssize_t>(count);
  }

  ssize_t write(const char* bytes, std::size_t size) override {
    if (HoldsBack()) {
      held_.append(bytes, size);
    } else if (!SendAll(socket_, {bytes, size})) {
      return -1;
    }
    return static_cast<ssize_t>(size);
  }

  void get_remote_ip_and_port(std::string& ip, int& port) const override { ip = kAddress, port = 0; }
  void get_local_ip_and_port(std::string& ip, int& port) const override { ip = kAddress, port = 0; }
  socket_t socket() const override { return socket_; }

 private:
  bool HoldsBack() const {
    return fault_ == FaultKind::Refuse || fault_ == FaultKind::Cut || fault_ == FaultKind::Hang ||
           fault_ == FaultKind::Drip;
  }

  static std::string_view WithoutHalfOfBody(std::string_view reply) {
    const std::size_t body_at = std::min(reply.find("\r\n\r\n") + 4, reply.size());
    return reply.substr(0, body_at + (reply.size() - body_at) / 2);
  }

  bool Fill() {
    if (!WaitFor(socket_, POLLIN, kPatienceMs)) return false;
    const ssize_t count = recv(socket_, buffer_.data(), buffer_.size(), 0);
    begin_ = 0;
    end_ = count > 0 ? static_cast<std::size_t>(count) : 0;
    return count > 0;
  }

  int socket_;
  FaultKind fault_ = FaultKind::None;
  std::string held_;
  std::array<char, 4096> buffer_;
  std::size_t begin_ = 0, end_ = 0;
};

// The library hands a request to its handler without the connection it came from; a thread has one at a time.
thread_local Connection* current_connection = nullptr;

}  // namespace

class Server::Http : public httplib::Server {
 public:
  explicit Http(Service service) : service_(std::move(service)) {
    new_task_queue = [] { return new httplib::ThreadPool(kThreads); };
    set_pre_routing_handler([this](const httplib::Request& request, httplib::Response& response) {
      Handle(request, response);
      return HandlerResponse::Handled;
    });
    // Not the library's options, which would let two servers share a port.
    set_socket_options([this](socket_t socket) {
      const int on = 1;
      setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
      setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
      listener_ = socket;
    });
  }

  void Bind(int port) {
    port_ = port == 0 ? bind_to_any_port(kAddress) : bind_to_port(kAddress, port) ? port : -1;
    // The library lets five connections wait; a burst needs more.
    if (port_ < 0 || ::listen(listener_, kBacklog) != 0) {
      throw RuntimeError("cannot listen on port " + std::to_string(port));
    }
  }

  int Port() const { return port_; }

 private:
  bool process_and_close_socket(socket_t socket) override {
    Connection connection(socket);
    current_connection = &connection;
    bool is_closed = false;
    const bool is_done = process_request(connection, true, is_closed, nullptr);
    current_connection = nullptr;
    connection.Finish();
    return is_done;
  }

  void Handle(const httplib::Request& request, httplib::Response& response) {
    const std::size_t question = std::min(request.target.find('?'), request.target.size());
    Request asked{request.path, request.target.substr(std::min(question + 1, request.target.size())),
                  service_.clock()};
    const FaultKind fault = service_.faults.Befall(asked.path, asked.query);
    Reply reply = AnswerOrFail(request, asked);
    reply = Spoil(fault, std::move(reply));
    current_connection->Befall(fault);
    WriteLog(request, asked, reply, fault);
    response.status = reply.status;
    response.body = std::move(reply.body);
    response.set_header("Content-Type", reply.type);
  }

  Reply AnswerOrFail(const httplib::Request& request, const Request& asked) {
    if (request.method != "GET" && request.method != "HEAD") {
      return {.status = 405, .type = "text/plain", .body = "only GET is answered\n"};
    }
    Reply reply;
    const auto answer = [&] {
      const auto expected = ExpectedForm(asked);
      reply = expected ? ahead_.Answer(*expected) : Answer(asked, service_.world);
      ahead_.Expect(RequestsAfter(asked));
    };
    if (Guarded(answer)) return reply;
    return {.status = 500, .type = "text/plain", .body = "server error\n"};
  }

  void WriteLog(const httplib::Request& request, const Request& asked, const Reply& reply, FaultKind fault) {
    const bool is_answered = fault != FaultKind::Refuse && fault != FaultKind::Hang;
    const std::size_t bytes = fault == FaultKind::Cut ? reply.body.size() / 2 : reply.body.size();
    service_.log.Write({.method = request.method,
                        .path = asked.path,
                        .query = asked.query,
                        .http = request.version,
                        .agent = request.get_header_value("User-Agent"),
                        .status = is_answered ? reply.status : 0,
                        .bytes = is_answered && request.method != "HEAD" ? bytes : 0});
  }

  Service service_;
  Ahead ahead_{[this](const Request& request) { return Answer(request, service_.world); }};
  socket_t listener_ = -1;
  int port_ = -1;
};

Server::Server(Service service, int port) : http_(std::make_unique<Http>(std::move(service))) {
  http_->Bind(port);
}
Server::~Server() = default;
int Server::Port() const { return http_->Port(); }
void Server::Run() { http_->listen_after_bind(); }

}  // namespace skyloft::feed
