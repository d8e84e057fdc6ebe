// Replies that are made before they are asked for. A reply is a function of its request alone, so that one
// made ahead is as good as one made on demand.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "feedserver/answer.h"

namespace skyloft::feed {

// Several threads may use it at once.
class Ahead {
 public:
  using Maker = std::function<Reply(const Request&)>;

  explicit Ahead(Maker make);
  ~Ahead();
  // The reply to a request that may have been expected: the one made ahead, or the one that is in the making,
  // or a new one. Raises what making it raised.
  Reply Answer(const Request& request);
  // Makes the replies one after the other in the background.
  void Expect(const std::vector<Request>& requests);

 private:
  using Key = std::pair<std::string, Date>;
  using Making = std::shared_future<Reply>;  // deferred: runs in the first thread that wants it

  Making Find(const Request& request);
  void Work(const std::stop_token& stop);

  Maker make_;
  std::mutex mutex_;
  std::condition_variable_any has_work_;
  std::map<Key, Making> replies_;
  std::deque<Making> work_;
  std::jthread worker_;
};

}  // namespace skyloft::feed
