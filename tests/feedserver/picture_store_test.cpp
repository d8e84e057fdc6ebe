#include "feedserver/picture_store.h"

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>
#include <thread>

#include "base/guard.h"
#include "feedserver/answer.h"

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);

// Counts how often it draws.
struct Painter {
  PictureStore& store;
  std::atomic<int> drawn = 0;

  std::string Ask(const std::string& path, Date shown = kNow, std::uint64_t seed = 1) {
    return store.Find({path, shown, seed},
                      [&] { return ++drawn, path + std::string(100 - path.size(), '.'); });
  }
};

TEST(PictureStore, SamePictureIsDrawnOnce) {
  PictureStore store;
  Painter painter{store};
  const std::string first = painter.Ask("/a");
  EXPECT_EQ(first.substr(0, 3), "/a.");
  EXPECT_EQ(painter.Ask("/a"), first);
  EXPECT_EQ(painter.drawn, 1);
}

TEST(PictureStore, AnotherPathMomentOrSeedIsAnotherPicture) {
  PictureStore store;
  Painter painter{store};
  painter.Ask("/a");
  painter.Ask("/b");
  painter.Ask("/a", MakeDate(2003, 3, 7, 20, 10, 0));
  painter.Ask("/a", kNow, 2);
  EXPECT_EQ(painter.drawn, 4);
}

TEST(PictureStore, KeepsNoMoreBytesThanItMayAndForgetsTheLastUsed) {
  PictureStore store(350);
  Painter painter{store};
  for (const char* path : {"/a", "/b", "/c", "/a", "/d"}) painter.Ask(path);  // three have room: b goes
  EXPECT_EQ(painter.drawn, 4);
  for (const char* path : {"/a", "/c", "/d"}) painter.Ask(path);
  EXPECT_EQ(painter.drawn, 4);
  painter.Ask("/b");
  EXPECT_EQ(painter.drawn, 5);
}

TEST(PictureStore, PictureThatIsTooLargeIsDrawnButNotKept) {
  PictureStore store(99);
  Painter painter{store};
  EXPECT_EQ(painter.Ask("/a").size(), 100u);
  EXPECT_EQ(painter.Ask("/a").size(), 100u);
  EXPECT_EQ(painter.drawn, 2);
}

TEST(PictureStore, WhoAsksDuringTheDrawingWaitsForItsEnd) {
  PictureStore store;
  std::binary_semaphore begun{0}, go_on{0};
  std::jthread first([&] {
    store.Find({"/a", kNow, 1}, [&] { return begun.release(), go_on.acquire(), std::string("drawn"); });
  });
  begun.acquire();
  std::string second;
  std::jthread asker([&] { second = store.Find({"/a", kNow, 1}, [] { return std::string("again"); }); });
  go_on.release();
  asker.join();
  EXPECT_EQ(second, "drawn");
}

// Every second one is forgotten while it is drawn, drawn again and counted once.
TEST(PictureStore, PictureForgottenWhileItIsDrawnIsNotCountedAsTheNextOfItsName) {
  PictureStore store(350);
  Painter painter{store};
  for (int i = 0; i < 10; ++i) {
    store.Find({"/a" + std::to_string(i), kNow, 1}, [&] {
      for (const char* path : {"/b", "/c", "/d", "/e"}) painter.Ask(path + std::to_string(i));
      return painter.Ask("/a" + std::to_string(i));
    });
  }
  for (const char* path : {"/x", "/y", "/z"}) painter.Ask(path);
  const int drawn = painter.drawn;
  for (const char* path : {"/x", "/y", "/z"}) painter.Ask(path);
  EXPECT_EQ(painter.drawn, drawn) << "three have room as before";
}

TEST(PictureStore, DrawingThatFailedIsTriedAgain) {
  PictureStore store;
  Painter painter{store};
  const PictureKey key{"/a", kNow, 1};
  EXPECT_THROW(store.Find(key, []() -> std::string { throw RuntimeError("no picture"); }), RuntimeError);
  painter.Ask("/a");
  EXPECT_EQ(painter.drawn, 1);
}

TEST(PictureStore, ManyThreadsMayAsk) {
  PictureStore store(1000);
  Painter painter{store};
  std::vector<std::jthread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([&painter, thread] {
      for (int i = 0; i < 2000; ++i) {
        const std::string path = "/" + std::to_string((i * 7 + thread) % 25);
        ASSERT_TRUE(painter.Ask(path).starts_with(path + "."));
      }
    });
  }
}

// What a server draws, told apart from what it kept by a mark put in its place.
TEST(PictureStore, ServerDrawsAnewWhatDependsOnTheClock) {
  const struct {
    const char* path;
    Date shown;     // at kNow
    int minutes;    // later the same picture
    bool is_other;  // whether five minutes past the hour after is another one
  } cases[] = {{"/radar/images/DS.p19r0/SI.ktwx/latest.gif", kNow, 4, true},
               {"/obstemp.104.gif", kNow, 4, true},
               {"/sfctemp.104.12z.010.gif", MakeDate(2003, 3, 7, 22), 59, false},
               {"/legends/sfctemp_legend.gif", {}, 59, false}};
  for (const auto& c : cases) {
    PictureStore store;
    const World world{.seed = 8, .pictures = &store};
    store.Find({c.path, c.shown, 8}, [] { return std::string("kept"); });
    const auto body = [&](int minutes) {
      return Answer({c.path, "", DateAdd(DateUnit::Minutes, minutes, kNow)}, world).body;
    };
    EXPECT_EQ(body(0), "kept") << c.path;
    EXPECT_EQ(body(c.minutes), "kept") << c.path;
    EXPECT_EQ(body(60) != "kept", c.is_other) << c.path;
    EXPECT_NE(Answer({c.path, "", kNow}, {.seed = 8}).body, "kept") << c.path << " without a store";
  }
  // The same hour of the next run of that name is another one.
  PictureStore store;
  const World world{.seed = 8, .pictures = &store};
  const auto body = [&](Date now) { return Answer({"/sfctemp.104.12z.010.gif", "", now}, world).body; };
  EXPECT_NE(body(kNow), body(DateAdd(DateUnit::Hours, 24, kNow)));
}

}  // namespace
}  // namespace skyloft::feed
