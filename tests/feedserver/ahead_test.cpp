#include "feedserver/ahead.h"

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>

#include "base/guard.h"

namespace skyloft::feed {
namespace {

const Request kRequest{"/picture", "", MakeDate(2003, 3, 7, 20, 5, 0)};

TEST(Ahead, ReplyIsMadeOnceForAllWhoAsk) {
  std::atomic<int> made = 0;
  Ahead ahead([&](const Request& request) { return ++made, Reply{.body = request.path}; });
  ahead.Expect({kRequest, kRequest});
  EXPECT_EQ(ahead.Answer(kRequest).body, "/picture");
  EXPECT_EQ(ahead.Answer(kRequest).body, "/picture");
  EXPECT_EQ(made, 1);
  Request later = kRequest;
  later.now = MakeDate(2003, 3, 7, 20, 10, 0);
  ahead.Answer(later);
  EXPECT_EQ(made, 2);
}

TEST(Ahead, ExpectedReplyIsMadeBeforeItIsAskedFor) {
  std::binary_semaphore made{0};
  Ahead ahead([&](const Request&) { return made.release(), Reply{.body = "made"}; });
  ahead.Expect({kRequest});
  made.acquire();  // nobody has asked
  EXPECT_EQ(ahead.Answer(kRequest).body, "made");
}

TEST(Ahead, WhoAsksDuringTheMakingWaitsForItsEnd) {
  std::binary_semaphore begun{0}, go_on{0};
  Ahead ahead([&](const Request&) {
    begun.release();
    go_on.acquire();
    return Reply{.body = "made"};
  });
  ahead.Expect({kRequest});
  begun.acquire();
  std::string body;
  std::thread asker([&] { body = ahead.Answer(kRequest).body; });
  go_on.release();
  asker.join();
  EXPECT_EQ(body, "made");
}

TEST(Ahead, FailureIsThatOfWhoAsks) {
  Ahead ahead([](const Request&) -> Reply { throw RuntimeError("no picture"); });
  ahead.Expect({kRequest});
  EXPECT_THROW(ahead.Answer(kRequest), RuntimeError);
}

TEST(Ahead, ForgetsOldRepliesWhenThereAreMany) {
  int made = 0;
  Ahead ahead([&](const Request&) { return ++made, Reply{}; });
  for (int i = 0; i < 1000; ++i) ahead.Answer({"/" + std::to_string(i), "", kRequest.now});
  ahead.Answer({"/0", "", kRequest.now});
  EXPECT_EQ(made, 1001);
}

}  // namespace
}  // namespace skyloft::feed
