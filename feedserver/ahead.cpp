#include "feedserver/ahead.h"

namespace skyloft::feed {
namespace {

constexpr std::size_t kMostReplies = 64;  // kept, then all are forgotten; and waiting to be made

}  // namespace

Ahead::Ahead(Maker make) : make_(std::move(make)) {
  worker_ = std::jthread([this](const std::stop_token& stop) { Work(stop); });
}

Ahead::~Ahead() = default;

Ahead::Making Ahead::Find(const Request& request) {
  const Key key(request.path, request.now);
  const auto found = replies_.find(key);
  if (found != replies_.end()) return found->second;
  if (replies_.size() >= kMostReplies) replies_.clear();
  Making making = std::async(std::launch::deferred, make_, request).share();
  return replies_.emplace(key, std::move(making)).first->second;
}

Reply Ahead::Answer(const Request& request) {
  Making making;
  {
    const std::lock_guard lock(mutex_);
    making = Find(request);
  }
  return making.get();
}

void Ahead::Expect(const std::vector<Request>& requests) {
  {
    const std::lock_guard lock(mutex_);
    for (const Request& request : requests) {
      if (work_.size() < kMostReplies) work_.push_back(Find(request));
    }
  }
  has_work_.notify_one();
}

void Ahead::Work(const std::stop_token& stop) {
  std::unique_lock lock(mutex_);
  while (has_work_.wait(lock, stop, [this] { return !work_.empty(); })) {
    const Making making = std::move(work_.front());
    work_.pop_front();
    lock.unlock();
    making.wait();
    lock.lock();
  }
}

}  // namespace skyloft::feed
