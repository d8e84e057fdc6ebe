#include "platform/http.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <functional>

#include "platform/qt/drive.h"
#include "platform/qt/http_qt.h"
#include "platform/qt/loopback_server.h"

namespace skyloft {
namespace {

class RealHttp : public ::testing::Test {
 protected:
  RealHttp() { SetUpDrive(folder.path(), folder.path() + "/share"); }

  // What a fetch of the path brings; "(failed)" for a failure.
  std::string Fetch(const std::string& url, int timeout = 5000) {
    HttpControl http(nullptr, "Http", timeout);
    http.Url = url;
    std::string text = "kept";
    const bool whole = HttpGet(http, text);
    EXPECT_TRUE(http.Idle());
    EXPECT_TRUE(whole || text == "kept") << "a failure never writes its output";
    return whole ? text : "(failed)";
  }
  bool FetchFile(const std::string& url, const std::string& path, int timeout = 5000) {
    HttpControl http(nullptr, "HttpData", timeout);
    http.Url = url;
    return HttpGetFile(http, path);
  }
  QString Local(const QString& name) const { return folder.path() + "/program files/skyloft/temp/" + name; }

  int argc = 0;
  QCoreApplication application{argc, nullptr};
  QTemporaryDir folder;
};

const std::string kTemp = "C:\\program files\\skyloft\\temp\\";

TEST_F(RealHttp, AnAddressWithoutASchemeIsFetchedAsHttp10WithTheToldAgent) {
  LoopbackServer server({{"/a.xml?x=1", OkReply("hello")}});
  EXPECT_EQ(Fetch(server.Address() + "/a.xml?x=1"), "hello");
  ASSERT_EQ(server.Requests().size(), 1u);
  const std::string request = server.Requests()[0];
  EXPECT_EQ(request.substr(0, request.find("\r\n")), "GET /a.xml?x=1 HTTP/1.0");
  EXPECT_NE(request.find("User-Agent: Dart Communications PowerTCP\r\n"), std::string::npos);
}

TEST_F(RealHttp, AnyFinalStatusButTwoHundredIsAFailure) {
  LoopbackServer server({{"/500", "HTTP/1.0 500 Oops\r\nContent-Length: 4\r\n\r\nbody"},
                         {"/404", "HTTP/1.0 404 No\r\nContent-Length: 4\r\n\r\nbody"},
                         {"/204", "HTTP/1.0 204 Nothing\r\n\r\n"},
                         {"/203", "HTTP/1.0 203 Other\r\nContent-Length: 4\r\n\r\nbody"}});
  for (const char* path : {"/500", "/404", "/204", "/203"})
    EXPECT_EQ(Fetch(server.Address() + path), "(failed)");
}

TEST_F(RealHttp, AReplyCutOffIsAFailureAndLeavesTheOldFile) {
  LoopbackServer server(
      {{"/cut", "HTTP/1.0 200 OK\r\nContent-Length: 100\r\n\r\nonly this"}, {"/whole", OkReply("whole")}});
  EXPECT_EQ(Fetch(server.Address() + "/cut"), "(failed)");
  EXPECT_TRUE(FetchFile(server.Address() + "/whole", kTemp + "a.gif"));
  EXPECT_FALSE(FetchFile(server.Address() + "/cut", kTemp + "a.gif"));
  QFile file(Local("a.gif"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "whole");
  EXPECT_FALSE(FetchFile(server.Address() + "/cut", kTemp + "b.gif"));
  EXPECT_FALSE(QFile::exists(Local("b.gif")));
}

TEST_F(RealHttp, AServerThatNeverAnswersEndsAtTheTimeOutWhileEventsGoOn) {
  LoopbackServer server({});
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
  timer.start(10);
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(Fetch(server.Address() + "/hang", 300), "(failed)");
  EXPECT_GE(clock.elapsed(), 290);
  EXPECT_GE(ticks, 5);
}

// The longest gap between the 10 ms ticks of a timer while a fetch hangs for a second.
qint64 LongestGapOf(const std::function<void()>& hang) {
  QElapsedTimer since_tick;
  qint64 longest = 0;
  const auto note = [&] { longest = std::max(longest, since_tick.restart()); };
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, note);
  timer.start(10);
  since_tick.start();
  hang();
  note();
  return longest;
}

TEST_F(RealHttp, EventsNeverWaitLongForAFetchThatHangs) {
  LoopbackServer server({});
  // A busy machine may take the processor away once; a loop that is blocked is late every time.
  qint64 best = 1000;
  for (int i = 0; i < 3 && best > 100; ++i) {
    best =
        std::min(best, LongestGapOf([&] { EXPECT_EQ(Fetch(server.Address() + "/hang", 1000), "(failed)"); }));
  }
  EXPECT_LE(best, 100);
}

TEST_F(RealHttp, ARefusedConnectionAndAnUnknownHostFail) {
  EXPECT_EQ(Fetch("127.0.0.1:1/x"), "(failed)");
  EXPECT_EQ(Fetch("no-such-host.invalid/x"), "(failed)");
}

TEST_F(RealHttp, UpToThreeRedirectsAreFollowed) {
  LoopbackServer server({{"/0", RedirectReply("/1")},
                         {"/1", RedirectReply("/2")},
                         {"/2", RedirectReply("/3")},
                         {"/3", OkReply("there")}});
  EXPECT_EQ(Fetch(server.Address() + "/1"), "there");
  EXPECT_EQ(Fetch(server.Address() + "/0"), "there");
  LoopbackServer loop({{"/", RedirectReply("/")}});
  EXPECT_EQ(Fetch(loop.Address() + "/"), "(failed)");
  EXPECT_EQ(loop.Requests().size(), 4u);
}

TEST_F(RealHttp, ARedirectToAnotherSchemeIsAFailure) {
  LoopbackServer server(
      {{"/file", RedirectReply("file:///etc/passwd")}, {"/ftp", RedirectReply("ftp://127.0.0.1/")}});
  EXPECT_EQ(Fetch(server.Address() + "/file"), "(failed)");
  EXPECT_EQ(Fetch(server.Address() + "/ftp"), "(failed)");
  EXPECT_TRUE(MayRedirect("http://a/", "https://b/"));
  EXPECT_TRUE(MayRedirect("https://a/", "https://b/"));
  EXPECT_FALSE(MayRedirect("https://a/", "http://b/"));
}

TEST_F(RealHttp, ASecondFetchOnAnotherControlRunsInsideTheFirst) {
  LoopbackServer server({{"/inner", OkReply("inner")}});
  std::string inner;
  QTimer::singleShot(20, [&] { inner = Fetch(server.Address() + "/inner"); });
  EXPECT_EQ(Fetch(server.Address() + "/hang", 400), "(failed)");
  EXPECT_EQ(inner, "inner");
}

TEST_F(RealHttp, AReplyBeyondTheLimitIsAFailure) {
  LoopbackServer server({{"/huge", OkReply(std::string(9 << 20, 'x'))}});
  EXPECT_EQ(Fetch(server.Address() + "/huge"), "(failed)");
}

TEST_F(RealHttp, NamesOfTheExampleDomainGoToTheServerGiven) {
  LoopbackServer server({{"/a", OkReply("here")}});
  SetExampleServer(server.Address());
  EXPECT_EQ(Fetch("forecast.skyloft.example/a"), "here");
  EXPECT_NE(server.Requests()[0].find("Host: forecast.skyloft.example\r\n"), std::string::npos);
  SetExampleServer("");
}

TEST_F(RealHttp, AFileOutsideTheDriveIsNeverWritten) {
  LoopbackServer server({{"/a", OkReply("bytes")}});
  for (const char* path : {"C:\\..\\out.gif", "D:\\out.gif", "/etc/skyloft-out", "out.gif", ""}) {
    EXPECT_FALSE(FetchFile(server.Address() + "/a", path)) << path;
  }
  EXPECT_TRUE(server.Requests().empty()) << "a refused path asks nothing";
}

TEST_F(RealHttp, ProgressIsToldFromTheLoopWithTheTotal) {
  LoopbackServer server({{"/a", OkReply(std::string(5000, 'x'))}});
  HttpControl http(nullptr, "HttpData", 5000);
  http.Url = server.Address() + "/a";
  long long bytes = 0;
  long long total = 0;
  http.Progress = [&](long long now, long long all) {
    bytes = now;
    total = all;
  };
  std::string text;
  EXPECT_TRUE(HttpGet(http, text));
  EXPECT_EQ(total, 5000);
  EXPECT_LE(bytes, 5000);
}

struct AddressCase {
  const char* url;
  const char* address;  // nullptr: refused
};

TEST(FetchAddress, IsTheToldAddressAndNothingElseIsEscaped) {
  const AddressCase cases[] = {
      {"host/path?q=1", "http://host/path?q=1"},
      {"http://host/a", "http://host/a"},
      {"https://host/a", "https://host/a"},
      {"host:81/legends\\x_legend.gif", "http://host:81/legends/x_legend.gif"},
      {"host/a?city=St. Paul &state=MN", "http://host/a?city=St.%20Paul%20&state=MN"},
      {"host/a?st=1%2F1%2F2000+0", "http://host/a?st=1%2F1%2F2000+0"},
      {"host/a?u=http://other/", "http://host/a?u=http://other/"},
      {"host/../a", "http://host/../a"},
      {"ftp://host/a", nullptr},
      {"file:///etc/passwd", nullptr},
      {"ho st/a", nullptr},
      {"host/a\r\nX: y", nullptr},
      {"host/a\x01", nullptr},
      {"/path", nullptr},
      {"", nullptr},
  };
  for (const auto& each : cases) {
    const auto address = FetchAddress(each.url);
    if (each.address) {
      EXPECT_EQ(address.value_or("(refused)"), each.address) << each.url;
    } else {
      EXPECT_FALSE(address.has_value()) << each.url;
    }
  }
}

}  // namespace
}  // namespace skyloft
