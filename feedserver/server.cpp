#include "feedserver/server.h"

#include <httplib.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "base/guard.h"
#include "feedserver/connections.h"
#include "feedserver/workers.h"

namespace skyloft::feed {
namespace {

// A request that has come and the reply to it, for a library that wants to read and write them.
class Exchange : public httplib::Stream {
 public:
  explicit Exchange(std::string_view request) : request_(request) {}

  void Befall(FaultKind fault) { fault_ = fault; }

  // What the client is to get under the fault.
  Outgoing Finish() {
    switch (fault_) {
      case FaultKind::Refuse: return {};
      case FaultKind::Hang: return {.bytes = {}, .pace = Pace::Never};
      case FaultKind::Drip: return {.bytes = std::move(reply_), .pace = Pace::Drip};
      case FaultKind::Cut: CutBody(); break;
      default: break;
    }
    return {.bytes = std::move(reply_)};
  }

  bool is_readable() const override { return !request_.empty(); }
  bool is_writable() const override { return true; }
  ssize_t read(char* bytes, std::size_t size) override {
    const std::size_t count = request_.copy(bytes, size);
    request_.remove_prefix(count);
    return static_cast<ssize_t>(count);
  }
  ssize_t write(const char* bytes, std::size_t size) override {
    reply_.reserve(reply_.size() + size);  // the body comes as one
    reply_.append(bytes, size);
    return static_cast<ssize_t>(size);
  }
  void get_remote_ip_and_port(std::string& ip, int& port) const override { ip.clear(), port = 0; }
  void get_local_ip_and_port(std::string& ip, int& port) const override { ip.clear(), port = 0; }
  socket_t socket() const override { return INVALID_SOCKET; }

 private:
  void CutBody() {
    const std::size_t body_at = std::min(reply_.find("\r\n\r\n") + 4, reply_.size());
    reply_.resize(body_at + (reply_.size() - body_at) / 2);
  }

  std::string_view request_;
  std::string reply_;
  FaultKind fault_ = FaultKind::None;
};

// The library hands a request to its handler without the stream it came from; a thread has one at a time.
thread_local Exchange* current_exchange = nullptr;

// A client of a proxy writes the whole address, "http://host/path".
std::string WithoutServer(std::string_view path) {
  constexpr std::string_view scheme = "http://";
  if (path.starts_with(scheme)) path.remove_prefix(std::min(path.find('/', scheme.size()), path.size()));
  return std::string(path);
}

// "Fri, 07 Mar 2003 20:05:00 GMT". Source: RFC 9110, section 5.6.7.
std::string HttpDate(Date gmt) { return Format(gmt, "ddd, dd mmm yyyy hh:nn:ss") + " GMT"; }

}  // namespace

// The library reads the request and writes the reply; the connections are our own.
class Server::Http : private httplib::Server {
 public:
  Http(Service service, const std::string& address, int port, int threads)
      : service_(std::move(service)),
        connections_(address, port, threads, [this](const std::string& head) { return Exchanged(head); }) {
    set_pre_routing_handler([this](const httplib::Request& request, httplib::Response& response) {
      Handle(request, response);
      return HandlerResponse::Handled;
    });
  }

  int Port() const { return connections_.Port(); }
  void Run() { connections_.Run(); }

 private:
  Outgoing Exchanged(const std::string& head) {
    Exchange exchange(head);
    current_exchange = &exchange;
    bool is_closed = false;
    if (!Guarded([&] { process_request(exchange, true, is_closed, nullptr); })) return {};
    return exchange.Finish();
  }

  void Handle(const httplib::Request& request, httplib::Response& response) {
    const std::size_t question = std::min(request.target.find('?'), request.target.size());
    Request asked{WithoutServer(request.path),
                  request.target.substr(std::min(question + 1, request.target.size())), service_.clock()};
    const FaultKind fault = service_.faults.Befall(asked.path, asked.query);
    Reply reply = Spoil(fault, AnswerOrFail(request, asked));
    current_exchange->Befall(fault);
    WriteLog(request, asked, reply, fault);
    AskForTheWholeAsItIs(const_cast<httplib::Request&>(request));
    response.status = reply.status;
    response.body = std::move(reply.body);
    response.set_header("Content-Type", reply.type);
    response.set_header("Accept-Ranges", "none");
    response.set_header("Date", HttpDate(asked.now));
    if (reply.status == kNotAllowed) response.set_header("Allow", "GET, HEAD");
  }

  // The protocol allows to pass over wishes for parts of a reply and for packing. A thousand parts of a
  // picture would be a thousand pictures.
  static void AskForTheWholeAsItIs(httplib::Request& request) {
    request.ranges.clear();
    request.headers.erase("Accept-Encoding");
  }

  static constexpr int kNotAllowed = 405;

  Reply AnswerOrFail(const httplib::Request& request, const Request& asked) {
    if (request.method != "GET" && request.method != "HEAD") {
      return {.status = kNotAllowed, .type = "text/plain", .body = "only GET is answered\n"};
    }
    if (request.version == "HTTP/1.1" && !request.has_header("Host")) {
      return {.status = 400, .type = "text/plain", .body = "a request of HTTP/1.1 names its host\n"};
    }
    Reply reply;
    if (Guarded([&] { reply = Answer(asked, service_.world); })) {
      DrawAhead(asked);
      return reply;
    }
    return {.status = 500, .type = "text/plain", .body = "server error\n"};
  }

  // The pictures that a client asks for next are drawn while it still reads, and kept for it.
  void DrawAhead(const Request& asked) {
    for (const Request& next : RequestsAfter(asked)) {
      ahead_.Do([this, next] { Guarded([&] { Answer(next, service_.world); }); });
    }
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
  Workers ahead_{1, 64};
  Connections connections_;  // the last: its threads end before what they use
};

Server::Server(Service service, const std::string& address, int port, int threads)
    : http_(std::make_unique<Http>(std::move(service), address, port, threads)) {}
Server::~Server() = default;
int Server::Port() const { return http_->Port(); }
void Server::Run() { http_->Run(); }

}  // namespace skyloft::feed
