// The companion server under load: two hundred requests a second of every kind, from fifty clients, for half
// a minute. Prints how long the replies took, by kind. Each is timed from when it was due, so that a server
// that falls behind shows it.
//
// bench_load [SECONDS]
#include <arpa/inet.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace skyloft::bench {
namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr int kClients = 50, kRequestsASecond = 200;

struct Kind {
  const char* name;
  std::vector<std::string> targets;
};

const std::vector<Kind>& Kinds() {
  static const std::string towns = "&pc=66044&pc=80202&pc=33131&pc=59801&pc=96813";
  static const std::vector<Kind> kinds = {
      {"meta data", {"/forecast.asp?t=xml&d=meta" + towns}},
      {"current conditions", {"/forecast.asp?t=xml&d=current" + towns}},
      {"forecasts",
       {"/forecast.asp?st=1&et=2&t=xml" + towns, "/forecast.asp?t=xml&fcsttype=extended" + towns}},
      {"places",
       {"/location_setup.asp?pc=59801&t=xml", "/location_setup.asp?city=springfield&state=IL&t=xml"}},
      {"bulletins", {"/bulletins.asp?t=xml" + towns}},
      {"messages, catalogues",
       {"/messages.xml.1", "/sectors.12z.sys", "/products.12z.sys.4", "/skyloft/config/hosts.xml"}},
      {"radar",
       {"/radar/images/DS.p19r0/SI.ktwx/latest.gif", "/radar/images/DS.p19r0/SI.kftg/latest.gif",
        "/radar/images/DS.p19r0/SI.kamx/latest.gif", "/radar/images/DS.p19r0/SI.kmsx/latest.gif"}},
      {"maps",
       {"/sfctemp.200.12z.006.gif", "/sfctemp.200.12z.012.gif", "/wind.200.12z.006.png",
        "/cloud.200.12z.006.jpg"}},
  };
  return kinds;
}

// The server as a child process.
class Feed {
 public:
  Feed() {
    std::array<int, 2> input{}, output{};
    if (pipe(input.data()) != 0 || pipe(output.data()) != 0) return;
    process_ = fork();
    if (process_ == 0) {
      dup2(input[0], STDIN_FILENO);
      dup2(output[1], STDOUT_FILENO);
      close(input[1]);
      execl(SKYLOFT_FEED, "skyloft-feed", "--port", "0", "--storms", "--now", "2003-03-07T20:05:00", nullptr);
      _exit(127);
    }
    close(input[0]);
    close(output[1]);
    FILE* const lines = fdopen(output[0], "r");
    if (std::fscanf(lines, "listening %d", &port_) != 1) port_ = 0;
    std::fclose(lines);
  }
  ~Feed() {
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
  }
  int Port() const { return port_; }

 private:
  pid_t process_ = -1;
  int port_ = 0;
};

// Whether the whole reply came, with status 200.
bool Ask(int port, const std::string& target) {
  const int connection = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const std::string request = "GET " + target + " HTTP/1.0\r\n\r\n";
  std::string reply;
  if (connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
      send(connection, request.data(), request.size(), MSG_NOSIGNAL) ==
          static_cast<ssize_t>(request.size())) {
    std::array<char, 65536> buffer;
    for (ssize_t count = 0; (count = recv(connection, buffer.data(), buffer.size(), 0)) > 0;) {
      reply.append(buffer.data(), static_cast<std::size_t>(count));
    }
  }
  close(connection);
  const std::string length_field = "Content-Length: ";
  const std::size_t length_at = reply.find(length_field), body_at = reply.find("\r\n\r\n");
  return reply.starts_with("HTTP/1.1 200") && length_at < body_at && body_at != reply.npos &&
         std::strtoul(reply.c_str() + length_at + length_field.size(), nullptr, 10) ==
             reply.size() - body_at - 4;
}

class Figures {
 public:
  void Add(const std::string& name, double milliseconds, bool is_whole) {
    const std::lock_guard lock(mutex_);
    times_[name].push_back(milliseconds);
    errors_ += is_whole ? 0 : 1;
  }
  bool IsFirst(const std::string& target) {
    const std::lock_guard lock(mutex_);
    return seen_[target]++ == 0;
  }
  int Errors() const { return errors_; }

  void Print() {
    std::printf(
        "| kind | requests | median ms | 99 percent below ms | longest ms |\n|---|---|---|---|---|\n");
    for (auto& [name, times] : times_) {
      std::ranges::sort(times);
      const auto at = [&, &values = times](double share) {
        return values[std::min(values.size() - 1,
                               static_cast<std::size_t>(share * static_cast<double>(values.size())))];
      };
      std::printf("| %s | %zu | %.1f | %.1f | %.1f |\n", name.c_str(), times.size(), at(0.5), at(0.99),
                  times.back());
    }
    std::printf("\nErrors: %d\n", errors_);
  }

 private:
  std::mutex mutex_;
  std::map<std::string, std::vector<double>> times_;
  std::map<std::string, int> seen_;
  int errors_ = 0;
};

void Run(int port, int seconds, Figures& figures) {
  const auto start = SteadyClock::now();
  std::vector<std::jthread> clients;
  for (int client = 0; client < kClients; ++client) {
    clients.emplace_back([=, &figures] {
      for (int i = client; i < seconds * kRequestsASecond; i += kClients) {
        const auto due = start + std::chrono::microseconds(1'000'000LL * i / kRequestsASecond);
        const Kind& kind = Kinds()[static_cast<std::size_t>(i) % Kinds().size()];
        const auto& targets = kind.targets;
        const std::string& target = targets[static_cast<std::size_t>(i) / Kinds().size() % targets.size()];
        const bool is_picture = &kind >= &Kinds()[6];
        const bool is_first = is_picture && figures.IsFirst(target);
        std::this_thread::sleep_until(due);
        const bool is_whole = Ask(port, target);
        const std::chrono::duration<double, std::milli> taken = SteadyClock::now() - due;
        figures.Add(is_first ? "pictures first drawn" : kind.name, taken.count(), is_whole);
      }
    });
  }
}

}  // namespace
}  // namespace skyloft::bench

int main(int argc, char** argv) {
  using namespace skyloft::bench;
  const Feed feed;
  if (feed.Port() == 0) return 2;
  Figures figures;
  Run(feed.Port(), argc > 1 ? std::atoi(argv[1]) : 30, figures);
  figures.Print();
  return figures.Errors() == 0 ? 0 : 1;
}
