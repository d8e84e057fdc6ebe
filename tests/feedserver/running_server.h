// The built server as a child process, and a client of plain sockets.
#pragma once

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace skyloft::feed {

class RunningServer {
 public:
  explicit RunningServer(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"skyloft-feed", "--now", "2003-03-07T20:05:00"});
    int input[2], output[2];
    EXPECT_EQ(pipe2(input, O_CLOEXEC), 0);
    EXPECT_EQ(pipe2(output, O_CLOEXEC), 0);
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    // A sanitizer would keep freed memory aside, and the server would not look as small as it is.
    const char* const given = std::getenv("ASAN_OPTIONS");
    const std::string sanitizer = (given ? std::string(given) + ":" : "") + "quarantine_size_mb=1";
    process_ = fork();
    if (process_ == 0) {
      setenv("ASAN_OPTIONS", sanitizer.c_str(), 1);
      dup2(input[0], STDIN_FILENO);
      dup2(output[1], STDOUT_FILENO);
      execv(SKYLOFT_FEED, argv.data());
      _exit(127);
    }
    close(input[0]);
    close(output[1]);
    input_ = input[1];
    output_ = output[0];
    ReadPort();
  }

  ~RunningServer() {
    CloseInput();
    close(output_);
    if (process_ > 0) {
      kill(process_, SIGKILL);
      waitpid(process_, nullptr, 0);
    }
  }

  int Port() const { return port_; }

  void CloseInput() {
    if (input_ >= 0) close(input_);
    input_ = -1;
  }

  // Lets the server's clock stand at that time, in GMT.
  void MoveClock(const std::string& time) const {
    const std::string line = "now " + time;
    EXPECT_EQ(Tell(line), line);
  }

  // The server's answer to a line on its input.
  std::string Tell(const std::string& line) const {
    const std::string whole = line + "\n";
    EXPECT_EQ(write(input_, whole.data(), whole.size()), static_cast<ssize_t>(whole.size()));
    return ReadLine();
  }

  // Of its memory, kilobytes.
  long Resident() const {
    std::ifstream file("/proc/" + std::to_string(process_) + "/statm");
    long size = 0, resident = 0;
    file >> size >> resident;
    return resident * sysconf(_SC_PAGESIZE) / 1024;
  }

  // The exit status, or -1 when the process is still there after the patience.
  int ExitStatus(std::chrono::milliseconds patience) {
    const auto end = std::chrono::steady_clock::now() + patience;
    int status = 0;
    while (waitpid(process_, &status, WNOHANG) == 0) {
      if (std::chrono::steady_clock::now() > end) return -1;
      usleep(5000);
    }
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 256;
  }

 private:
  std::string ReadLine() const {
    std::string line;
    char c = 0;
    while (read(output_, &c, 1) == 1 && c != '\n') line += c;
    return line;
  }

  void ReadPort() {
    const std::string line = ReadLine();
    constexpr std::string_view start = "listening ";
    if (line.starts_with(start)) port_ = std::atoi(line.c_str() + start.size());
  }

  pid_t process_ = -1;
  int input_ = -1, output_ = -1, port_ = 0;
};

class Client {
 public:
  // Connects and says nothing yet.
  explicit Client(int port) { Connect(port, "127.0.0.1"); }
  // Connects and sends a request of HTTP/1.0.
  Client(int port, const std::string& target, const char* host = "127.0.0.1") {
    Connect(port, host);
    EXPECT_TRUE(Send("GET " + target + " HTTP/1.0\r\nUser-Agent: plain \"client\"\r\n\r\n"));
  }
  Client(const Client&) = delete;
  ~Client() { close(socket_); }

  // Whether the server's side took all of it.
  bool Send(std::string_view bytes) const {
    return send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
  }

  // Goes at once, without the usual farewell, which would keep its port for a minute.
  void Abort() const {
    const linger at_once{1, 0};
    setsockopt(socket_, SOL_SOCKET, SO_LINGER, &at_once, sizeof at_once);
  }

  // What comes until the server closes or the patience ends.
  std::string Receive(std::chrono::milliseconds patience = std::chrono::seconds(20)) {
    std::string reply;
    std::vector<char> buffer(1 << 16);
    const auto end = std::chrono::steady_clock::now() + patience;
    for (;;) {
      const auto left =
          std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
      pollfd wanted{socket_, POLLIN, 0};
      if (left.count() <= 0 || poll(&wanted, 1, static_cast<int>(left.count())) <= 0) return reply;
      const ssize_t count = recv(socket_, buffer.data(), buffer.size(), 0);
      if (count <= 0) {
        is_closed_ = true;
        return reply;
      }
      reply.append(buffer.data(), static_cast<std::size_t>(count));
    }
  }

  bool IsClosed() const { return is_closed_; }

 private:
  void Connect(int port, const char* host) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    EXPECT_EQ(inet_pton(AF_INET, host, &address.sin_addr), 1);
    EXPECT_EQ(connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  }

  int socket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  bool is_closed_ = false;
};

inline std::string Get(int port, const std::string& target, const char* host = "127.0.0.1") {
  return Client(port, target, host).Receive();
}
inline std::string BodyOf(const std::string& reply) {
  return reply.substr(std::min(reply.find("\r\n\r\n") + 4, reply.size()));
}

}  // namespace skyloft::feed
