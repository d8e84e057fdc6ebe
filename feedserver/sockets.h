// Sockets and pipes of the operating system, owned.
#pragma once

#include <cstddef>
#include <string>
#include <utility>

namespace skyloft::feed {

// An open file of the operating system; closed at the end.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor();
  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

// A listening socket that never blocks. Raises when the address is not a numeric one or the port is taken.
Descriptor Listen(const std::string& address, int port);
// The port that a socket listens on.
int PortOf(const Descriptor& listener);
// The next connection, never blocking; not open when none waits.
Descriptor Accept(const Descriptor& listener);

// How many files, sockets and pipes the process may have open at once.
std::size_t DescriptorLimit();

// Two ends of a pipe that never blocks.
struct Pipe {
  Pipe();
  Descriptor out, in;
};

}  // namespace skyloft::feed
