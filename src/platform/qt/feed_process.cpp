#include "platform/qt/feed_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <vector>

#include "base/values.h"

extern char** environ;

namespace skyloft {
namespace {

// A pipe whose ends no other process inherits by chance.
bool MakePipe(int (&ends)[2]) { return pipe2(ends, O_CLOEXEC) == 0; }

// The first line that the feed writes: "listening PORT".
std::optional<std::string> ReadPort(int output) {
  std::string line;
  char c = 0;
  while (line.size() < 100 && read(output, &c, 1) == 1 && c != '\n') line += c;
  if (!line.starts_with("listening ")) return std::nullopt;
  return NumberText(LenientNumber(line.substr(10)));
}

}  // namespace

std::string ProgramFolder() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? "." : self.parent_path().string();
}

std::optional<std::string> StartFeed(const std::string& now) {
  int input[2];
  int output[2];
  if (!MakePipe(input) || !MakePipe(output)) return std::nullopt;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
  std::string program = ProgramFolder() + "/skyloft-feed";
  std::vector<std::string> words = {program, "--port", "0"};
  if (!now.empty()) words.insert(words.end(), {"--now", now});
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t child = 0;
  const bool started =
      posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&actions);
  close(input[0]);
  close(output[1]);
  // The feed's input stays open until this process is gone: its end is the feed's end.
  const auto port = started ? ReadPort(output[0]) : std::nullopt;
  close(output[0]);
  if (!port) {
    std::fprintf(stderr, "skyloft: the built-in weather server did not start (%s)\n", program.c_str());
    return std::nullopt;
  }
  return "127.0.0.1:" + *port;
}

}  // namespace skyloft
