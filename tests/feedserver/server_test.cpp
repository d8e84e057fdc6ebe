#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "running_server.h"

namespace skyloft::feed {
namespace {

using std::chrono::milliseconds;

std::string FileOfTest(const char* name) {
  return (std::filesystem::temp_directory_path() / ("skyloft_" + std::to_string(getpid()) + name)).string();
}

std::string ReadWhole(const std::string& file_name) {
  std::ostringstream text;
  text << std::ifstream(file_name, std::ios::binary).rdbuf();
  return text.str();
}

TEST(Server, AnswersOverARealSocket) {
  RunningServer server({"--port", "0"});
  ASSERT_GT(server.Port(), 0);
  const std::string reply = Get(server.Port(), "/forecast.asp?t=xml&d=meta&pc=66044");
  EXPECT_EQ(reply.substr(0, 15), "HTTP/1.1 200 OK");
  EXPECT_NE(reply.find("Content-Length: " + std::to_string(BodyOf(reply).size())), reply.npos);
  EXPECT_NE(reply.find("<Model_TS_UTC>Mar 07 2003 12:00PM</Model_TS_UTC>"), reply.npos);
  EXPECT_EQ(Get(server.Port(), "/nothing").substr(0, 12), "HTTP/1.1 404");
}

constexpr const char* kEveryKind[] = {"/skyloft/config/hosts.xml",
                                      "/location_setup.asp?city=Saint+Louis&state=MO&t=xml",
                                      "/forecast.asp?t=xml&d=meta&pc=66044&pc=80202",
                                      "/forecast.asp?t=xml&d=current&pc=66044&pc=80202",
                                      "/forecast.asp?t=xml&d=currenthistorical&pc=66044",
                                      "/forecast.asp?st=1&et=2&t=xml&pc=66044&pc=80202",
                                      "/forecast.asp?t=xml&fcsttype=extended&pc=66044&pc=80202",
                                      "/bulletins.asp?pc=33131&t=xml",
                                      "/messages.xml.1",
                                      "/products.12z.sys.4",
                                      "/sectors.12z.sys",
                                      "/sfctemp.200.12z.006.gif",
                                      "/wind.200.12z.006.png",
                                      "/cloud.200.12z.006.jpg",
                                      "/legends/wind_legend.gif",
                                      "/radar/images/DS.p19r0/SI.ktwx/latest.gif",
                                      "/help/"};

// What the environment of a process tells, for as long as it lives.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) { setenv(name, value, 1); }
  ~Variable() { unsetenv(name_); }

 private:
  const char* name_;
};

TEST(Server, SeedAndClockGiveTheSameBytesOnEveryRunWhateverTheEnvironment) {
  const RunningServer one({"--port", "0", "--seed", "5", "--storms"});
  const Variable zone("TZ", "Asia/Tokyo"), language("LC_ALL", "de_DE.UTF-8");
  const RunningServer same({"--port", "0", "--seed", "5", "--storms", "--threads", "1"});
  for (const char* target : kEveryKind) {
    const std::string reply = Get(one.Port(), target);
    EXPECT_TRUE(reply.starts_with("HTTP/1.1 200")) << target;
    EXPECT_EQ(reply, Get(same.Port(), target)) << target;
    EXPECT_EQ(reply, Get(one.Port(), target)) << "asked again: " << target;
  }
}

TEST(Server, AnotherSeedIsAnotherWeather) {
  const RunningServer one({"--port", "0", "--seed", "5"}), other({"--port", "0", "--seed", "6"});
  for (const char* target : {"/forecast.asp?t=xml&fcsttype=extended&pc=66044", "/sfctemp.200.12z.006.gif"}) {
    EXPECT_NE(Get(one.Port(), target), Get(other.Port(), target));
  }
}

TEST(Server, ClockFollowsTheLinesOfItsInput) {
  const RunningServer server({"--port", "0"});
  const std::string target = "/forecast.asp?t=xml&d=meta&pc=66044";
  server.MoveClock("2003-03-07T20:59:59");
  EXPECT_NE(Get(server.Port(), target).find("<Model_TS_UTC>Mar 07 2003 12:00PM"), std::string::npos);
  server.MoveClock("2003-03-07T21:00:00");
  EXPECT_NE(Get(server.Port(), target).find("<Model_TS_UTC>Mar 07 2003 06:00PM"), std::string::npos);
  EXPECT_EQ(server.Tell("later"), "not understood");
  EXPECT_NE(Get(server.Port(), target).find("<Model_TS_UTC>Mar 07 2003 06:00PM"), std::string::npos);
}

TEST(Server, LogsALineForEveryRequest) {
  const std::string log = FileOfTest(".log");
  {
    RunningServer server({"--port", "0", "--log", log});
    const std::string body = BodyOf(Get(server.Port(), "/bulletins.asp?x=%22"));
    Get(server.Port(), "/nothing");
    std::istringstream lines(ReadWhole(log));
    std::string first, second, third;
    std::getline(lines, first);
    std::getline(lines, second);
    EXPECT_TRUE(first.starts_with("{\"time\":\"20")) << first;
    EXPECT_NE(
        first.find("\"method\":\"GET\",\"path\":\"/bulletins.asp\",\"query\":\"x=%22\",\"http\":\"HTTP/1.0\","
                   "\"agent\":\"plain \\\"client\\\"\",\"status\":200,\"bytes\":" +
                   std::to_string(body.size()) + "}"),
        first.npos)
        << first;
    EXPECT_NE(second.find("\"path\":\"/nothing\""), second.npos);
    EXPECT_NE(second.find("\"status\":404"), second.npos);
    EXPECT_FALSE(std::getline(lines, third));
  }
  std::filesystem::remove(log);
}

TEST(Server, EndsWithItsInput) {
  RunningServer server({"--port", "0"});
  ASSERT_GT(server.Port(), 0);
  EXPECT_EQ(server.ExitStatus(milliseconds(100)), -1);
  server.CloseInput();
  EXPECT_EQ(server.ExitStatus(milliseconds(5000)), 0);
}

TEST(Server, StaysWhenAskedTo) {
  RunningServer server({"--port", "0", "--stay"});
  server.CloseInput();
  EXPECT_EQ(server.ExitStatus(milliseconds(200)), -1);
  EXPECT_NE(Get(server.Port(), "/bulletins.asp"), "");
}

TEST(Server, ListensOnLoopbackOnly) {
  RunningServer server({"--port", "0"});
  std::array<char, 8> port;
  std::snprintf(port.data(), port.size(), "%04X", static_cast<unsigned>(server.Port()));
  int listeners = 0;
  for (const char* table : {"/proc/net/tcp", "/proc/net/tcp6"}) {
    std::ifstream lines(table);
    std::string line;
    while (std::getline(lines, line)) {
      std::istringstream fields(line);
      std::string number, local, remote, state;
      fields >> number >> local >> remote >> state;
      if (state != "0A" || !local.ends_with(std::string(":") + port.data())) continue;  // 0A is a listener
      ++listeners;
      EXPECT_EQ(local, std::string("0100007F:") + port.data());
    }
  }
  EXPECT_EQ(listeners, 1);
}

TEST(Server, PortInUseIsAnError) {
  RunningServer first({"--port", "0"});
  RunningServer second({"--port", std::to_string(first.Port())});
  EXPECT_EQ(second.Port(), 0);
  EXPECT_EQ(second.ExitStatus(milliseconds(5000)), 2);
}

TEST(Server, PortOfOneThatHasEndedIsFreeAtOnce) {
  int port = 0;
  {
    const RunningServer first({"--port", "0"});
    port = first.Port();
    EXPECT_NE(Get(port, "/bulletins.asp"), "");
  }
  EXPECT_EQ(RunningServer({"--port", std::to_string(port)}).Port(), port);
}

TEST(Server, OptionNotUnderstoodIsAnError) {
  RunningServer server({"--what"});
  EXPECT_EQ(server.ExitStatus(milliseconds(5000)), 2);
}

TEST(Server, ServesAnUpdate) {
  const std::string file = FileOfTest(".exe");
  const std::string content("MZ\0\xFF update", 11);
  std::ofstream(file, std::ios::binary) << content;
  RunningServer server({"--port", "0", "--update", file, "--offer-version", "1.21.00"});
  EXPECT_EQ(BodyOf(Get(server.Port(), "/skltupdate.exe")), content);
  EXPECT_NE(Get(server.Port(), "/skyloft/config/hosts.xml").find("<version>1.21.00</version>"),
            std::string::npos);
  std::filesystem::remove(file);
}

// The n-th change of a file of bulletins, which shows in its time even if the clock of the disk is coarse.
void WriteBulletins(const std::string& file, const std::string& text, int change) {
  std::ofstream(file, std::ios::binary) << text;
  std::filesystem::last_write_time(file,
                                   std::filesystem::file_time_type(std::chrono::hours(24 * 365 * change)));
}

TEST(Server, ReadsTheBulletinsAgainWhenTheirFileChanges) {
  const std::string file = FileOfTest(".bulletins");
  RunningServer server({"--port", "0", "--bulletins", file});
  const auto ask = [&] { return BodyOf(Get(server.Port(), "/bulletins.asp?pc=66044&t=xml")); };
  const auto has = [&](const char* text) { return ask().find(text) != std::string::npos; };
  EXPECT_FALSE(has("<Text>")) << "no file yet";
  WriteBulletins(file, "* | TOR | -5 | +45 | one\n", 1);
  EXPECT_TRUE(has("<Text>SIMULATED. one     </Text>"));
  WriteBulletins(file, "* | TOR | -5 | +45 | two\n", 2);
  EXPECT_TRUE(has("<Text>SIMULATED. two     </Text>")) << "of the same size, but newer";
  WriteBulletins(file, "* | TOR | -5 | +45 | two\n* | SVR | -5 | +45 | three\n", 2);
  EXPECT_TRUE(has("<Text>SIMULATED. three     </Text>")) << "of the same time, but longer";
  WriteBulletins(file, "* | TOR | -5 | +45 | two\nno bulletin\n", 3);
  EXPECT_FALSE(has("<Text>")) << "one bad line makes the whole file bad";
  WriteBulletins(file, "* | TOR | -5 | +45 | four\n", 4);
  EXPECT_TRUE(has("<Text>SIMULATED. four     </Text>"));
  std::filesystem::remove(file);
  EXPECT_FALSE(has("<Text>")) << "the file is gone";
}

TEST(Server, MinutesOfABulletinCountFromTheChangeOfItsFile) {
  const std::string file = FileOfTest(".bulletins");
  WriteBulletins(file, "* | TOR | -5 | +45 | x\n", 1);
  const RunningServer server({"--port", "0", "--bulletins", file, "--now", "2003-03-07T20:05:00"});
  const auto ask = [&] { return BodyOf(Get(server.Port(), "/bulletins.asp?pc=66044&t=xml")); };
  const std::string first = ask();
  EXPECT_NE(first.find("<ET>Mar 07 2003 08:50PM</ET>"), std::string::npos);
  server.MoveClock("2003-03-07T20:30:00");
  EXPECT_EQ(ask(), first);
  server.MoveClock("2003-03-07T20:51:00");
  EXPECT_EQ(ask().find("<ET>"), std::string::npos) << "it has expired";
  WriteBulletins(file, "* | TOR | -5 | +45 | x\n", 2);
  EXPECT_NE(ask().find("<ET>Mar 07 2003 09:36PM</ET>"), std::string::npos);
  std::filesystem::remove(file);
}

TEST(Server, BurstOfConnectionsIsAnswered) {
  RunningServer server({"--port", "0"});
  std::vector<std::unique_ptr<Client>> clients(200);
  for (auto& client : clients) client = std::make_unique<Client>(server.Port(), "/bulletins.asp");
  for (const auto& client : clients) EXPECT_TRUE(client->Receive().starts_with("HTTP/1.1 200"));
}

}  // namespace
}  // namespace skyloft::feed
