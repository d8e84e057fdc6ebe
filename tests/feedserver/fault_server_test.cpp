#include <gtest/gtest.h>

#include <memory>

#include "running_server.h"

namespace skyloft::feed {
namespace {

using std::chrono::milliseconds;

constexpr char kTarget[] = "/forecast.asp?t=xml&d=current&pc=66044";

std::vector<std::string> WithFault(const std::string& fault) { return {"--port", "0", "--fault", fault}; }

// The whole reply of a server without faults.
std::string HealthyReply() { return Get(RunningServer({"--port", "0"}).Port(), kTarget); }

TEST(FaultyServer, RefuseClosesWithoutAByte) {
  RunningServer server(WithFault("/forecast.asp=refuse"));
  Client client(server.Port(), kTarget);
  EXPECT_EQ(client.Receive(), "");
  EXPECT_TRUE(client.IsClosed());
  EXPECT_TRUE(Get(server.Port(), "/bulletins.asp").starts_with("HTTP/1.1 200"));
}

TEST(FaultyServer, CutSendsHalfOfTheBodyUnderItsFullLength) {
  RunningServer server(WithFault("/forecast.asp=cut"));
  const std::string healthy = HealthyReply();
  Client client(server.Port(), kTarget);
  const std::string cut = client.Receive();
  EXPECT_TRUE(client.IsClosed());
  EXPECT_TRUE(healthy.starts_with(cut));
  EXPECT_EQ(BodyOf(cut).size(), BodyOf(healthy).size() / 2);
  EXPECT_NE(cut.find("Content-Length: " + std::to_string(BodyOf(healthy).size())), cut.npos);
}

TEST(FaultyServer, StatusEmptyAndGarbage) {
  RunningServer server({"--port", "0", "--fault", "/a=500", "--fault", "/bulletins.asp=empty", "--fault",
                        "/messages.xml.1=garbage"});
  EXPECT_TRUE(Get(server.Port(), "/a").starts_with("HTTP/1.1 500"));
  const std::string empty = Get(server.Port(), "/bulletins.asp");
  EXPECT_TRUE(empty.starts_with("HTTP/1.1 200"));
  EXPECT_EQ(BodyOf(empty), "");
  const std::string garbage = Get(server.Port(), "/messages.xml.1");
  EXPECT_TRUE(garbage.starts_with("HTTP/1.1 200"));
  EXPECT_EQ(BodyOf(garbage).size(), 256u);
  EXPECT_EQ(BodyOf(garbage).find("<?xml"), std::string::npos);
}

TEST(FaultyServer, PicturesHaveFaultsToo) {
  const std::string radar = "/radar/images/DS.p19r0/SI.ktwx/latest.gif", map = "/sfctemp.200.12z.006.gif";
  const std::string wind = "/wind.200.12z.006.png", cloud = "/cloud.200.12z.006.jpg";
  RunningServer server({"--port", "0", "--fault", radar + "=cut", "--fault", map + "=garbage", "--fault",
                        wind + "=bomb", "--fault", cloud + "=refuse@2"});
  const std::string cut = Get(server.Port(), radar);
  EXPECT_TRUE(BodyOf(cut).starts_with("GIF8"));
  EXPECT_NE(cut.find("Content-Length: "), cut.npos);
  EXPECT_EQ(cut.find("Content-Length: " + std::to_string(BodyOf(cut).size()) + "\r"), cut.npos);
  EXPECT_EQ(BodyOf(Get(server.Port(), map)).size(), 256u);
  EXPECT_TRUE(BodyOf(Get(server.Port(), wind)).starts_with("GIF89a\x60\xEA\x60\xEA"));
  EXPECT_TRUE(BodyOf(Get(server.Port(), cloud)).starts_with("\xFF\xD8"));
  EXPECT_EQ(Get(server.Port(), cloud), "");
}

TEST(FaultyServer, HangKeepsNobodyElseWaiting) {
  RunningServer server(WithFault("/forecast.asp=hang"));
  std::vector<std::unique_ptr<Client>> hanging(40);
  for (auto& client : hanging) client = std::make_unique<Client>(server.Port(), kTarget);
  EXPECT_TRUE(Get(server.Port(), "/bulletins.asp").starts_with("HTTP/1.1 200"));
  EXPECT_EQ(hanging.front()->Receive(milliseconds(300)), "");
  EXPECT_FALSE(hanging.front()->IsClosed());
  EXPECT_EQ(hanging.back()->Receive(milliseconds(10)), "");
  EXPECT_FALSE(hanging.back()->IsClosed());
}

TEST(FaultyServer, HangEndsWithTheServer) {
  RunningServer server(WithFault("/forecast.asp=hang"));
  Client client(server.Port(), kTarget);
  EXPECT_EQ(client.Receive(milliseconds(50)), "");
  server.CloseInput();
  EXPECT_EQ(client.Receive(milliseconds(5000)), "");
  EXPECT_TRUE(client.IsClosed());
}

TEST(FaultyServer, DripSendsAByteAtATime) {
  RunningServer server(WithFault("/forecast.asp=drip"));
  const std::string healthy = HealthyReply();
  Client client(server.Port(), kTarget);
  const std::string drops = client.Receive(milliseconds(650));
  EXPECT_GE(drops.size(), 2u);
  EXPECT_LE(drops.size(), 8u);  // one at once, then ten a second
  EXPECT_TRUE(healthy.starts_with(drops));
  EXPECT_FALSE(client.IsClosed());
}

TEST(FaultyServer, HugeIsSixtyFourMegabytes) {
  RunningServer server(WithFault("/forecast.asp=huge"));
  const std::string body = BodyOf(Get(server.Port(), kTarget));
  EXPECT_GE(body.size(), 64u << 20);
  EXPECT_TRUE(body.starts_with("<?xml"));
  EXPECT_TRUE(body.ends_with("</current>\n"));
}

TEST(FaultyServer, WrongCountIsStillAReply) {
  RunningServer server(WithFault("/forecast.asp=wrong-count"));
  const std::string reply = Get(server.Port(), kTarget);
  EXPECT_TRUE(reply.starts_with("HTTP/1.1 200"));
  EXPECT_EQ(reply.find("<State>KS</State>\n<City>"), reply.npos);  // the first State is left out
  EXPECT_TRUE(reply.ends_with("</current>\n"));
}

TEST(FaultyServer, BeginsWithTheRequestItIsToldTo) {
  RunningServer server(WithFault("/forecast.asp?d=meta=500@3"));
  const std::string meta = "/forecast.asp?t=xml&d=meta&pc=66044";
  EXPECT_TRUE(Get(server.Port(), meta).starts_with("HTTP/1.1 200"));
  EXPECT_TRUE(Get(server.Port(), meta).starts_with("HTTP/1.1 200"));
  EXPECT_TRUE(Get(server.Port(), kTarget).starts_with("HTTP/1.1 200"));
  EXPECT_TRUE(Get(server.Port(), meta).starts_with("HTTP/1.1 500"));
  EXPECT_TRUE(Get(server.Port(), kTarget).starts_with("HTTP/1.1 200"));
}

}  // namespace
}  // namespace skyloft::feed
