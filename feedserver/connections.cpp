#include "feedserver/connections.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include "feedserver/sockets.h"
#include "feedserver/workers.h"

namespace skyloft::feed {
namespace {

using SteadyClock = std::chrono::steady_clock;
using Moment = SteadyClock::time_point;

constexpr auto kDripPause = std::chrono::milliseconds(100);
constexpr auto kClosePatience = std::chrono::seconds(1);  // for a client to close its side
constexpr std::size_t kOtherFiles = 16;                   // open beside the connections, at most
constexpr std::size_t kMostWaiting =
    40'000;  // requests; all but kMostConnections are of clients that have left
constexpr std::string_view kTooLong =
    "HTTP/1.1 431 Request Header Fields Too Large\r\nConnection: close\r\nContent-Length: 0\r\n\r\n";

enum class Stage {
  Reading,    // its request
  Asking,     // its request has come whole
  Answering,  // by a worker
  Sending,    // the reply
  Dripping,   // the reply, byte by byte
  Holding,    // saying nothing until the client goes
  Closing     // all is sent; what still comes is thrown away, since closing on it would lose the reply
};

// The empty line that ends a head, or nothing; `known` bytes were looked at before.
bool IsWhole(std::string_view head, std::size_t known) {
  const std::string_view fresh = head.substr(known < 3 ? 0 : known - 3);
  return fresh.find("\n\r\n") != fresh.npos || fresh.find("\n\n") != fresh.npos;
}

class Connection {
 public:
  Connection(Descriptor socket, Moment now) : socket_(std::move(socket)), due_(now + kHeadPatience) {}

  int Socket() const { return socket_.Number(); }
  Stage At() const { return stage_; }
  // Bytes of the reply, which is kept until the last of them is sent.
  std::size_t Held() const { return reply_.size(); }
  // When it is served even if the socket is silent.
  Moment Due() const { return due_; }

  short Events() const {
    if (stage_ == Stage::Sending) return POLLOUT;
    return stage_ == Stage::Answering || stage_ == Stage::Dripping ? short{0} : short{POLLIN};
  }

  // Each returns whether the connection goes on.
  bool Serve(short events, Moment now) {
    if (stage_ == Stage::Dripping && now >= due_) return SendSome(1, now);
    if (now >= due_) return false;
    if (events == 0) return true;
    if (stage_ == Stage::Sending) return SendSome(reply_.size(), now);
    if (stage_ == Stage::Answering || stage_ == Stage::Dripping) return false;  // the client is gone
    return Receive(now);
  }

  bool Reply(Outgoing reply, Moment now) {
    if (reply.pace == Pace::Never) return Enter(Stage::Holding, Moment::max());
    if (reply.bytes.empty()) return false;
    head_.reset();
    reply_ = std::move(reply.bytes);
    if (reply.pace == Pace::Drip) {
      stage_ = Stage::Dripping;
      return SendSome(1, now);
    }
    Enter(Stage::Sending, now + kReplyPatience);
    return SendSome(reply_.size(), now);
  }

  // The request that has come whole, to be answered. It is gone when the connection is, so that nobody works
  // for a client that has left.
  std::weak_ptr<const std::string> Ask() {
    stage_ = Stage::Answering;
    return head_;
  }

 private:
  bool Enter(Stage stage, Moment due) {
    stage_ = stage;
    due_ = due;
    return true;
  }

  bool Receive(Moment now) {
    std::array<char, 16384> buffer;
    const ssize_t count = recv(Socket(), buffer.data(), buffer.size(), 0);
    if (count < 0) return errno == EAGAIN || errno == EINTR;
    if (count == 0) return false;
    if (stage_ != Stage::Reading) return true;
    const std::size_t known = head_->size();
    head_->append(buffer.data(), static_cast<std::size_t>(count));
    if (IsWhole(std::string_view(*head_).substr(0, kLongestHead), known)) {
      return Enter(Stage::Asking, Moment::max());
    }
    if (head_->size() < kLongestHead) return true;
    return Reply({std::string(kTooLong)}, now);
  }

  bool SendSome(std::size_t most, Moment now) {
    const std::size_t left = std::min(most, reply_.size() - sent_);
    const ssize_t count = send(Socket(), reply_.data() + sent_, left, MSG_NOSIGNAL);
    if (count < 0 && errno != EAGAIN && errno != EINTR) return false;
    sent_ += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    if (stage_ == Stage::Dripping) due_ = now + kDripPause;
    if (sent_ < reply_.size()) return true;
    reply_ = {};
    shutdown(Socket(), SHUT_WR);
    return Enter(Stage::Closing, now + kClosePatience);
  }

  Descriptor socket_;
  Stage stage_ = Stage::Reading;
  Moment due_;
  std::shared_ptr<std::string> head_ = std::make_shared<std::string>();
  std::string reply_;
  std::size_t sent_ = 0;
};

}  // namespace

class Connections::Loop {
 public:
  Loop(const std::string& address, int port, int threads, Answer answer)
      : listener_(Listen(address, port)), answer_(std::move(answer)), workers_(threads, kMostWaiting) {}

  int Port() const { return PortOf(listener_); }

  void Run() {
    for (;;) {
      Wait();
      const Moment now = SteadyClock::now();
      TakeReplies(now);
      ServeAll(now);
      AcceptAll(now);
    }
  }

 private:
  using Id = std::uint64_t;  // ascending in the order of arrival
  struct Answered {
    Id id;
    Outgoing reply;
  };

  void Wait() {
    polled_.assign(
        {{listener_.Number(), CanAccept() ? short{POLLIN} : short{0}, 0}, {wake_.out.Number(), POLLIN, 0}});
    Moment due = Moment::max();
    for (const auto& [id, connection] : connections_) {
      polled_.push_back({connection.Socket(), connection.Events(), 0});
      due = std::min(due, connection.Due());
    }
    poll(polled_.data(), polled_.size(), due == Moment::max() ? -1 : MillisecondsUntil(due));
  }

  static int MillisecondsUntil(Moment due) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(due - SteadyClock::now());
    return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
  }

  // In the order in which Wait listed them.
  void ServeAll(Moment now) {
    std::size_t place = 2;
    for (auto at = connections_.begin(); at != connections_.end() && place < polled_.size(); ++place) {
      auto& [id, connection] = *at;
      // A reply may have ended a connection since; its entry is passed over.
      if (connection.Socket() != polled_[place].fd) continue;
      const bool goes_on = connection.Serve(polled_[place].revents, now) &&
                           (connection.At() != Stage::Asking || HandOver(id, connection));
      at = goes_on ? std::next(at) : connections_.erase(at);
    }
  }

  bool HandOver(Id id, Connection& connection) {
    return workers_.Do([this, id, asked = connection.Ask()] {
      const auto head = asked.lock();
      if (!head) return;
      Outgoing reply = answer_(*head);
      {
        const std::lock_guard lock(mutex_);
        answered_.push_back({id, std::move(reply)});
      }
      [[maybe_unused]] const ssize_t written = write(wake_.in.Number(), "", 1);  // full: it wakes anyway
    });
  }

  void TakeReplies(Moment now) {
    if (polled_[1].revents == 0) return;
    std::array<char, 256> ignored;
    while (read(wake_.out.Number(), ignored.data(), ignored.size()) > 0) {
    }
    std::vector<Answered> answered;
    {
      const std::lock_guard lock(mutex_);
      answered.swap(answered_);
    }
    for (Answered& one : answered) {
      const auto found = connections_.find(one.id);
      if (found == connections_.end()) continue;
      MakeRoomFor(one.reply.bytes.size());
      if (!found->second.Reply(std::move(one.reply), now)) connections_.erase(found);
    }
  }

  // The oldest connections that hold a reply go first; one that has none yet stays.
  void MakeRoomFor(std::size_t bytes) {
    std::size_t held = bytes;
    for (const auto& [id, connection] : connections_) held += connection.Held();
    for (auto at = connections_.begin(); held > kMostHeld && at != connections_.end();) {
      held -= at->second.Held();
      at = at->second.Held() > 0 ? connections_.erase(at) : std::next(at);
    }
  }

  // The connection that is missed least when another wants its place.
  std::map<Id, Connection>::iterator Dispensable() {
    for (const Stage stage : {Stage::Closing, Stage::Reading, Stage::Sending}) {
      const auto found =
          std::ranges::find(connections_, stage, [](const auto& entry) { return entry.second.At(); });
      if (found != connections_.end()) return found;
    }
    return connections_.end();
  }
  bool CanAccept() { return connections_.size() < most_connections_ || Dispensable() != connections_.end(); }

  void AcceptAll(Moment now) {
    if (polled_[0].revents == 0) return;
    while (CanAccept()) {
      Descriptor socket = Accept(listener_);
      if (!socket.IsOpen()) return;
      if (connections_.size() >= most_connections_) connections_.erase(Dispensable());
      connections_.emplace(next_id_++, Connection(std::move(socket), now));
    }
  }

  const std::size_t most_connections_ =
      std::clamp(DescriptorLimit(), kOtherFiles + 1, kMostConnections + kOtherFiles) - kOtherFiles;
  Descriptor listener_;
  Pipe wake_;
  Answer answer_;
  std::map<Id, Connection> connections_;
  Id next_id_ = 0;
  std::vector<pollfd> polled_;
  std::mutex mutex_;
  std::vector<Answered> answered_;
  Workers workers_;  // the last: its threads end before what they use
};

Connections::Connections(const std::string& address, int port, int threads, Answer answer)
    : loop_(std::make_unique<Loop>(address, port, threads, std::move(answer))) {}
Connections::~Connections() = default;
int Connections::Port() const { return loop_->Port(); }
void Connections::Run() { loop_->Run(); }

}  // namespace skyloft::feed
