// Clients that mean ill: whatever they do, others are answered and the server stays as small as it was.
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <memory>
#include <optional>
#include <random>

#include "feedserver/connections.h"
#include "running_server.h"

namespace skyloft::feed {
namespace {

constexpr char kTarget[] = "/forecast.asp?t=xml&d=current&pc=66044";
constexpr long kGrowth = 24 << 10;  // kilobytes that memory may be above the first reading

using Clients = std::vector<std::unique_ptr<Client>>;

Clients Connect(const RunningServer& server, int count) {
  Clients clients;
  for (int i = 0; i < count; ++i) clients.push_back(std::make_unique<Client>(server.Port()));
  return clients;
}

// The server's memory after it has done its usual work once.
long UsualMemory(const RunningServer& server) {
  for (const char* target : {kTarget, "/forecast.asp?t=xml&d=meta&pc=66044", "/sfctemp.200.12z.006.gif",
                             "/location_setup.asp?city=Springfield&t=xml", "/sectors.12z.sys"}) {
    Get(server.Port(), target);
  }
  return server.Resident();
}

void ExpectHealthy(const RunningServer& server, long usual) {
  EXPECT_TRUE(Get(server.Port(), kTarget).starts_with("HTTP/1.1 200"));
  EXPECT_LT(server.Resident(), usual + kGrowth);
}

// A request that is nearly right, or not at all.
std::string Mangled(std::mt19937& random) {
  static const std::string seeds[] = {
      "GET /forecast.asp?t=xml&d=meta&pc=66044&pc=80202 HTTP/1.0\r\nUser-Agent: x\r\n\r\n",
      "GET /forecast.asp?t=xml&fcsttype=extended&pc=66044 HTTP/1.1\r\nHost: a\r\n\r\n",
      "GET /location_setup.asp?city=St.+Louis&state=MO&t=xml HTTP/1.0\r\n\r\n",
      "GET /location_setup.asp?pc=59801&t=xml HTTP/1.0\r\n\r\n",
      "GET /bulletins.asp?pc=66044&t=xml HTTP/1.0\r\n\r\n",
      "GET /messages.xml.1 HTTP/1.0\r\n\r\n",
      "GET /sectors.12z.sys HTTP/1.0\r\n\r\n",
      "GET /products.12z.sys.4 HTTP/1.0\r\n\r\n",
      "GET /sfctemp.200.12z.006.gif HTTP/1.0\r\n\r\n",
      "GET /radar/images/DS.p19r0/SI.ktwx/latest.gif HTTP/1.0\r\n\r\n",
      "POST / HTTP/1.1\r\nHost: a\r\nTransfer-Encoding: chunked\r\n\r\nFFFFFFFFFFFFFFFF\r\n",
      "GET / HTTP/1.1\r\nHost: a\r\nContent-Length: -1\r\nRange: bytes=9-1,-,a\r\n\r\n",
      "GET / HTTP/1.1\r\nHost: a\r\nExpect: 100-continue\r\nAccept-Encoding: gzip\r\n\r\n"};
  static const std::string pieces[] = {"%",
                                       "%00",
                                       "%FF",
                                       "&",
                                       "=",
                                       "?",
                                       "/../",
                                       "\r\n",
                                       "\n",
                                       " ",
                                       "pc=",
                                       "99999",
                                       "-1",
                                       "HTTP/9.9",
                                       std::string(1, '\0'),
                                       std::string(3000, 'A'),
                                       ".gif",
                                       "18446744073709551616"};
  const auto below = [&](std::size_t bound) { return random() % bound; };
  std::string text = seeds[below(std::size(seeds))];
  for (std::size_t change = below(6); change > 0; --change) {
    const std::size_t at = below(text.size() + 1);
    switch (below(4)) {
      case 0: text.insert(at, pieces[below(std::size(pieces))]); break;
      case 1: text.erase(at, below(12)); break;
      case 2: text.insert(at, text.substr(below(text.size() + 1), below(40))); break;
      default:
        if (at < text.size()) text[at] = static_cast<char>(random());
    }
  }
  return text;
}

// The first half fills what the server keeps: places, pictures.
TEST(HostileClient, TwentyThousandMangledRequestsLeaveTheServerAsItWas) {
  const RunningServer server({"--port", "0"});
  std::mt19937 random(20030307);
  long usual = 0;
  for (int i = 0; i < 20000; ++i) {
    if (i == 10000) usual = UsualMemory(server);
    Client client(server.Port());
    client.Send(Mangled(random));
    // Most go without a word; some stay for what they may get.
    if (random() % 8 == 0) client.Receive(std::chrono::milliseconds(5));
    client.Abort();
  }
  ExpectHealthy(server, usual);
}

TEST(HostileClient, SlowSendersKeepNobodyWaitingAndAreLeft) {
  const RunningServer server({"--port", "0", "--threads", "1"});
  const Clients slow = Connect(server, 100);
  const std::string request = "GET " + std::string(kTarget) + " HTTP/1.0\r\n\r\n";
  for (int step = 0; step < 24; ++step) {
    for (const auto& client : slow) client->Send(request.substr(static_cast<std::size_t>(step), 1));
    EXPECT_TRUE(Get(server.Port(), kTarget).starts_with("HTTP/1.1 200"));
    usleep(250'000);
  }
  for (const auto& client : slow) {
    EXPECT_EQ(client->Receive(std::chrono::seconds(2)), "");
    EXPECT_TRUE(client->IsClosed());
  }
}

// What is served as the update: so many bytes.
class LargeFile {
 public:
  explicit LargeFile(std::size_t size) { std::ofstream(name_) << std::string(size, 'x'); }
  ~LargeFile() { std::remove(name_.c_str()); }
  const std::string& Name() const { return name_; }

 private:
  std::string name_ = "/tmp/skyloft_large_" + std::to_string(getpid());
};

TEST(HostileClient, LargeRepliesThatNobodyTakesAreNotAllKept) {
  const LargeFile file(16 << 20);
  const RunningServer server({"--port", "0", "--threads", "1", "--update", file.Name()});
  const long usual = UsualMemory(server);
  Clients lazy;
  for (int i = 0; i < 30; ++i) lazy.push_back(std::make_unique<Client>(server.Port(), "/skltupdate.exe"));
  EXPECT_TRUE(Get(server.Port(), kTarget).starts_with("HTTP/1.1 200"));
  EXPECT_LT(server.Resident(), usual + (300 << 10)) << "of 480 MB that they asked for";
}

// The limit of open files that a process has and hands on, for as long as it lives.
class OpenFiles {
 public:
  explicit OpenFiles(rlim_t most) {
    getrlimit(RLIMIT_NOFILE, &before_);
    const rlimit limit{most, before_.rlim_max};
    setrlimit(RLIMIT_NOFILE, &limit);
  }
  ~OpenFiles() { setrlimit(RLIMIT_NOFILE, &before_); }

 private:
  rlimit before_{};
};

// Few connections, so that the server keeps all their replies, which the system alone would not.
TEST(HostileClient, ClientsThatTakeNothingKeepNobodyWaiting) {
  const LargeFile file(16 << 20);
  std::optional<OpenFiles> few(23);
  const RunningServer server({"--port", "0", "--threads", "1", "--update", file.Name()});
  few.reset();
  Clients lazy;
  for (int i = 0; i < 10; ++i) {
    lazy.push_back(std::make_unique<Client>(server.Port(), "/skltupdate.exe"));
    usleep(30'000);  // until its reply has begun
  }
  for (int i = 0; i < 10; ++i) EXPECT_TRUE(Get(server.Port(), kTarget).starts_with("HTTP/1.1 200"));
}

TEST(HostileClient, ClientsThatLeaveBeforeTheirReplyKeepNobodyWaiting) {
  const RunningServer server({"--port", "0", "--threads", "1"});
  for (int i = 0; i < 1500; ++i) {
    const std::string number = std::to_string(101 + i % 60);
    const Client client(server.Port(), "/sfctemp.101.12z.0" + number.substr(1) + ".gif");
    usleep(300);  // until the request is read
    client.Abort();
  }
  for (int i = 0; i < 5; ++i) {
    Client client(server.Port(), kTarget);
    EXPECT_TRUE(client.Receive(std::chrono::seconds(5)).starts_with("HTTP/1.1 200"));
  }
}

TEST(HostileClient, SilentOnesMakeRoomWhereFewFilesMayBeOpen) {
  std::optional<OpenFiles> few(64);
  const RunningServer server({"--port", "0"});
  few.reset();
  const Clients silent = Connect(server, 200);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_TRUE(Get(server.Port(), kTarget).starts_with("HTTP/1.1 200"));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, kHeadPatience) << "before the first of them is left";
}

TEST(HostileClient, EndlessLinesAreCutShort) {
  const RunningServer server({"--port", "0"});
  const long usual = UsualMemory(server);
  const std::string line(1 << 20, 'a');
  for (int i = 0; i < 100; ++i) {
    Client client(server.Port());
    client.Send(i % 2 == 0 ? line : "GET / HTTP/1.0\r\nX: " + line);
    EXPECT_TRUE(client.Receive().starts_with("HTTP/1.1 431"));
  }
  ExpectHealthy(server, usual);
}

TEST(HostileClient, HundredsOfSilentOnesAreAnsweredAroundAndLeft) {
  const RunningServer server({"--port", "0"});
  const long usual = UsualMemory(server);
  const Clients silent = Connect(server, 700);
  ExpectHealthy(server, usual);
  for (const auto& client : silent) {
    EXPECT_EQ(client->Receive(std::chrono::seconds(8)), "");
    EXPECT_TRUE(client->IsClosed());
  }
  ExpectHealthy(server, usual);
}

TEST(HostileClient, AQueryOfAThousandPlacesIsAnsweredInPart) {
  const RunningServer server({"--port", "0"});
  std::string target = "/forecast.asp?t=xml&d=current";
  for (int i = 0; i < 800; ++i) target += "&pc=66044";
  const std::string body = BodyOf(Get(server.Port(), target));
  std::size_t towns = 0;
  for (std::size_t at = 0; (at = body.find("<Tf>", at)) != body.npos; ++at) ++towns;
  EXPECT_EQ(towns, 62u) << "64 fields, two of them without a town";
}

}  // namespace
}  // namespace skyloft::feed
