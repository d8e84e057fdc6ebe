#include "platform/qt/feed_process.h"

#include <spawn.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <vector>

#include "base/values.h"
#include "platform/qt/clock_qt.h"

extern char** environ;

namespace skyloft {
namespace {

// Our end of the feed's input and output, open until this process is gone: its end is the feed's end.
int feed_socket = -1;

std::string ReadLine(int socket) {
  std::string line;
  char c = 0;
  while (line.size() < 100 && read(socket, &c, 1) == 1 && c != '\n') line += c;
  return line;
}

// The first line that the feed writes: "listening PORT".
std::optional<std::string> ReadPort(int socket) {
  const std::string line = ReadLine(socket);
  if (!line.starts_with("listening ")) return std::nullopt;
  return NumberText(LenientNumber(line.substr(10)));
}

// The moment at which our clock stands, in GMT.
std::string StandingMoment() { return ToMoment(Now()).toUTC().toString("yyyy-MM-ddThh:mm:ss").toStdString(); }

}  // namespace

std::string ProgramFolder() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? "." : self.parent_path().string();
}

std::optional<std::string> StartFeed(const std::string& bulletins) {
  int ends[2];  // ours and the feed's; no other process inherits them by chance
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return std::nullopt;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  std::string program = ProgramFolder() + "/skyloft-feed";
  std::vector<std::string> words = {program, "--port", "0"};
  if (ClockStands()) words.insert(words.end(), {"--now", StandingMoment()});
  if (!bulletins.empty()) words.insert(words.end(), {"--bulletins", bulletins});
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t child = 0;
  const bool started =
      posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  const auto port = started ? ReadPort(ends[0]) : std::nullopt;
  if (!port) {
    std::fprintf(stderr, "skyloft: the built-in weather server did not start (%s)\n", program.c_str());
    close(ends[0]);
    return std::nullopt;
  }
  feed_socket = ends[0];
  return "127.0.0.1:" + *port;
}

void MoveFeedClock() {
  if (feed_socket < 0 || !ClockStands()) return;
  const std::string line = "now " + StandingMoment() + "\n";
  const auto size = static_cast<ssize_t>(line.size());
  if (send(feed_socket, line.data(), line.size(), MSG_NOSIGNAL) == size) ReadLine(feed_socket);
}

}  // namespace skyloft
