// smtp_sink FOLDER [BEHAVIOUR]: a mail server on loopback. Its first line of output is its port. The n-th
// message is the file FOLDER/n once it is whole; the clients' commands are the lines of FOLDER/commands. It
// ends with its standard input.
#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace {

std::string folder, behaviour;
std::mutex mutex;  // of the files and of `taken`
int taken = 0;

class Client {
 public:
  explicit Client(int socket) : socket_(socket) {}
  Client(const Client&) = delete;
  ~Client() { close(socket_); }

  void Serve() {
    if (behaviour == "hang") {
      ReadLine();
      return;
    }
    Say("220 sink");
    while (const auto line = ReadLine()) {
      Note(*line);
      if (!Obey(*line)) return;
    }
  }

 private:
  // False when the conversation is over.
  bool Obey(const std::string& line) {
    const std::string verb = line.substr(0, 4);
    if (verb == "QUIT") {
      if (behaviour == "hang-quit") ReadLine();
      Say("221 bye");
      return false;
    }
    if (verb == "EHLO") {
      Greet();
    } else if (verb == "RCPT" && behaviour == "refuse-recipient") {
      Say("550 nobody of that name");
    } else if (verb == "STAR") {
      Say("454 not today");
    } else if (verb == "AUTH") {
      Say("334 ");
      Note(ReadLine().value_or(""));
      Say("235 welcome");
    } else if (verb == "DATA") {
      Say("354 go on");
      if (!TakeMessage()) return false;
      Say("250 taken");
    } else {
      Say("250 fine");
    }
    return true;
  }

  void Greet() {
    if (behaviour == "starttls") Say("250-STARTTLS");
    if (behaviour == "auth") Say("250-AUTH PLAIN");
    Say("250 sink");
  }

  void Say(const std::string& line) const {
    const std::string bytes = line + "\r\n";
    if (behaviour != "drip") {
      [[maybe_unused]] const auto sent = send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      return;
    }
    for (const char& byte : bytes) {
      if (send(socket_, &byte, 1, MSG_NOSIGNAL) != 1) return;
      usleep(100'000);
    }
  }

  // Without its CRLF; nothing when the client is gone.
  std::optional<std::string> ReadLine() {
    size_t end = 0;
    while ((end = buffer_.find("\r\n")) == std::string::npos) {
      char bytes[4096];
      const ssize_t count = recv(socket_, bytes, sizeof bytes, 0);
      if (count <= 0) return std::nullopt;
      buffer_.append(bytes, static_cast<size_t>(count));
    }
    const std::string line = buffer_.substr(0, end);
    buffer_.erase(0, end + 2);
    return line;
  }

  bool TakeMessage() {
    std::string message;
    while (const auto line = ReadLine()) {
      if (*line == ".") {
        Keep(message);
        return true;
      }
      message += (line->starts_with('.') ? line->substr(1) : *line) + "\r\n";
    }
    return false;
  }

  static void Keep(const std::string& message) {
    const std::lock_guard lock(mutex);
    const std::string name = folder + '/' + std::to_string(++taken);
    std::ofstream(name + ".part", std::ios::binary) << message;
    std::filesystem::rename(name + ".part", name);
  }

  static void Note(const std::string& line) {
    const std::lock_guard lock(mutex);
    std::ofstream(folder + "/commands", std::ios::app) << line << '\n';
  }

  int socket_;
  std::string buffer_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  folder = argv[1];
  behaviour = argc > 2 ? argv[2] : "";
  const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  if (bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 || listen(listener, 16) != 0) return 1;
  getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
  std::thread([] {
    while (std::cin.get() != EOF) {
    }
    _exit(0);
  }).detach();
  std::cout << ntohs(address.sin_port) << std::endl;
  for (;;) {
    const int socket = accept(listener, nullptr, nullptr);
    if (socket >= 0) std::thread([socket] { Client(socket).Serve(); }).detach();
  }
}
