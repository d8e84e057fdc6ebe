// What the server understands of HTTP, and what its replies carry.
#include <gtest/gtest.h>

#include "running_server.h"

namespace skyloft::feed {
namespace {

constexpr char kEnd[] = "\r\n\r\n";

std::string Exchange(int port, const std::string& request) {
  Client client(port);
  EXPECT_TRUE(client.Send(request));
  std::string reply = client.Receive();
  EXPECT_TRUE(client.IsClosed());
  return reply;
}

TEST(Http, StatusOfEveryKindOfRequest) {
  const RunningServer server({"--port", "0"});
  const std::string target = "/bulletins.asp?pc=66044";
  const std::string long_target = "/" + std::string(9000, 'a'), long_field = "A: " + std::string(20000, 'a');
  const struct {
    std::string request, status;
  } cases[] = {
      {"GET " + target + " HTTP/1.0" + kEnd, "200"},
      {"GET " + target + " HTTP/1.1\r\nHost: a" + kEnd, "200"},
      {"GET http://a.example:80" + target + " HTTP/1.1\r\nHost: a.example" + kEnd, "200"},
      {"GET http:// HTTP/1.0" + std::string(kEnd), "404"},
      {"GET " + target + " HTTP/1.1" + kEnd, "400"},
      {"HEAD " + target + " HTTP/1.1\r\nHost: a" + kEnd, "200"},
      {"GET /nothing HTTP/1.0" + std::string(kEnd), "404"},
      {"POST " + target + " HTTP/1.0\r\nContent-Length: 5" + kEnd + "hello", "405"},
      {"DELETE " + target + " HTTP/1.0" + kEnd, "405"},
      {"NONSENSE " + target + " HTTP/1.0" + kEnd, "400"},
      {"GET " + target + " HTTP/2.0" + kEnd, "400"},
      {"GET " + target + kEnd, "400"},
      {"GET " + target + " HTTP/1.0\n\n", "400"},
      {kEnd, "400"},
      {std::string("\0\xFF\r\n\r\n", 6), "400"},
      {"GET " + long_target + " HTTP/1.0" + kEnd, "414"},
      {"GET / HTTP/1.0\r\n" + long_field + kEnd, "431"},
      {"GET /" + std::string(1 << 20, 'a'), "431"},
  };
  for (const auto& [request, status] : cases) {
    const std::string reply = Exchange(server.Port(), request);
    EXPECT_TRUE(reply.starts_with("HTTP/1.1 " + status + " ")) << request.substr(0, 60) << "\n" << reply;
    EXPECT_NE(reply.find("\r\nConnection: close\r\n"), reply.npos) << reply;
  }
}

TEST(Http, HeadIsTheSameWithoutTheBody) {
  const RunningServer server({"--port", "0"});
  const std::string rest = " /bulletins.asp HTTP/1.0" + std::string(kEnd);
  const std::string whole = Exchange(server.Port(), "GET" + rest);
  EXPECT_FALSE(BodyOf(whole).empty());
  EXPECT_EQ(Exchange(server.Port(), "HEAD" + rest), whole.substr(0, whole.size() - BodyOf(whole).size()));
}

TEST(Http, DateIsTheTimeOfTheServersClock) {
  const RunningServer server({"--port", "0"});
  EXPECT_NE(Get(server.Port(), "/bulletins.asp").find("\r\nDate: Fri, 07 Mar 2003 20:05:00 GMT\r\n"),
            std::string::npos);
}

TEST(Http, WhatIsNotAllowedTellsWhatIs) {
  const RunningServer server({"--port", "0"});
  EXPECT_NE(Exchange(server.Port(), "PUT / HTTP/1.0" + std::string(kEnd)).find("\r\nAllow: GET, HEAD\r\n"),
            std::string::npos);
}

TEST(Http, NeitherPartsNorPackedRepliesAreServed) {
  const RunningServer server({"--port", "0"});
  const std::string request = "GET /bulletins.asp HTTP/1.1\r\nHost: a";
  std::string ranges = "\r\nRange: bytes=0-1";
  for (int i = 0; i < 1000; ++i) ranges += ",0-1";
  for (const std::string& wish : {ranges, std::string("\r\nAccept-Encoding: gzip, br")}) {
    EXPECT_EQ(Exchange(server.Port(), request + wish + kEnd), Exchange(server.Port(), request + kEnd));
  }
}

TEST(Http, AConnectionCarriesOneRequest) {
  const RunningServer server({"--port", "0"});
  const std::string request = "GET /bulletins.asp HTTP/1.1\r\nHost: a" + std::string(kEnd);
  EXPECT_EQ(Exchange(server.Port(), request + request), Exchange(server.Port(), request));
}

TEST(Http, ARequestMayComeInPieces) {
  const RunningServer server({"--port", "0"});
  const std::string request = "GET /bulletins.asp HTTP/1.0" + std::string(kEnd);
  Client client(server.Port());
  for (const char& byte : request) {
    EXPECT_TRUE(client.Send({&byte, 1}));
    usleep(1000);
  }
  EXPECT_EQ(client.Receive(), Exchange(server.Port(), request));
}

TEST(Http, AnotherAddressIsListenedOnWhenAskedTo) {
  const RunningServer server({"--port", "0", "--address", "127.0.0.2"});
  ASSERT_GT(server.Port(), 0);
  EXPECT_TRUE(Get(server.Port(), "/bulletins.asp", "127.0.0.2").starts_with("HTTP/1.1 200"));
  RunningServer nowhere({"--port", "0", "--address", "feed.skyloft.example"});
  EXPECT_EQ(nowhere.ExitStatus(std::chrono::seconds(5)), 2);
}

TEST(Http, OneThreadAnswersEverybodyToo) {
  const RunningServer server({"--port", "0", "--threads", "1"});
  std::vector<std::unique_ptr<Client>> clients(20);
  for (auto& client : clients) client = std::make_unique<Client>(server.Port(), "/bulletins.asp");
  for (const auto& client : clients) EXPECT_TRUE(client->Receive().starts_with("HTTP/1.1 200"));
}

}  // namespace
}  // namespace skyloft::feed
