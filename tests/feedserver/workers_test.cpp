#include "feedserver/workers.h"

#include <gtest/gtest.h>

#include <semaphore>
#include <set>
#include <string>

namespace skyloft::feed {
namespace {

TEST(Workers, DoTheirJobsInTurn) {
  std::string done;
  std::binary_semaphore last{0};
  Workers one(1, 10);
  for (const char job : {'a', 'b', 'c'}) one.Do([&done, job] { done += job; });
  one.Do([&] { last.release(); });
  last.acquire();
  EXPECT_EQ(done, "abc");
}

TEST(Workers, DoAsManyJobsAtOnceAsTheyAre) {
  std::counting_semaphore<> begun{0}, go_on{0};
  {
    Workers three(3, 10);
    for (int i = 0; i < 3; ++i) {
      three.Do([&] {
        begun.release();
        go_on.acquire();
      });
    }
    for (int i = 0; i < 3; ++i) begun.acquire();  // none has ended yet
    go_on.release(3);
  }
}

TEST(Workers, PassOverWhatIsTooManyToWait) {
  std::binary_semaphore begun{0}, go_on{0}, last{0};
  std::set<int> done;
  Workers one(1, 2);
  one.Do([&] {
    begun.release();
    go_on.acquire();
  });
  begun.acquire();
  for (int job = 0; job < 5; ++job) {
    const bool is_taken = one.Do([&, job] {
      done.insert(job);
      if (job == 1) last.release();
    });
    EXPECT_EQ(is_taken, job < 2) << job;
  }
  go_on.release();
  last.acquire();
  EXPECT_EQ(done, (std::set<int>{0, 1}));
}

}  // namespace
}  // namespace skyloft::feed
