// A program under measurement: a process and those it starts.
#pragma once

#include <sys/types.h>

#include <QString>
#include <QStringList>
#include <chrono>
#include <vector>

namespace skyloft::bench {

class Child {
 public:
  // Starts `words` with `variables` ("NAME=value") added to the environment; what it prints is dropped.
  Child(const QStringList& words, const QStringList& variables);
  // Ends it, kindly at first.
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  bool Runs();
  // Milliseconds since just before the start.
  double Elapsed() const;

  // All for the process and its own children together; 0 for what is gone.
  double ProportionalMegabytes() const;  // each shared page in equal parts among those that share it
  double PeakMegabytes() const;          // resident, each process at its own highest
  double CpuSeconds() const;             // of every thread that still runs

 private:
  std::vector<pid_t> Family() const;

  const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  pid_t pid_ = -1;
};

}  // namespace skyloft::bench
