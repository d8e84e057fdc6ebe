// Threads that do jobs, first come first served.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace skyloft::feed {

class Workers {
 public:
  using Job = std::function<void()>;

  // The jobs must not raise.
  explicit Workers(int threads, std::size_t most_waiting) : most_waiting_(most_waiting) {
    for (int i = 0; i < threads; ++i) {
      threads_.emplace_back([this](const std::stop_token& stop) { Work(stop); });
    }
  }

  // Whether the job will be done; it is passed over when `most_waiting` others wait already.
  bool Do(Job job) {
    {
      const std::lock_guard lock(mutex_);
      if (jobs_.size() >= most_waiting_) return false;
      jobs_.push_back(std::move(job));
    }
    has_job_.notify_one();
    return true;
  }

 private:
  void Work(const std::stop_token& stop) {
    for (;;) {
      Job job;
      {
        std::unique_lock lock(mutex_);
        if (!has_job_.wait(lock, stop, [this] { return !jobs_.empty(); })) return;
        job = std::move(jobs_.front());
        jobs_.pop_front();
      }
      job();
    }
  }

  const std::size_t most_waiting_;
  std::mutex mutex_;
  std::condition_variable_any has_job_;
  std::deque<Job> jobs_;
  std::vector<std::jthread> threads_;
};

}  // namespace skyloft::feed
