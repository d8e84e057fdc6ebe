// The splash on a display while the first fetch of the start hangs.
#include <gtest/gtest.h>
#include <signal.h>

#include <memory>

#include "feedserver/running_server.h"
#include "program/program.h"
#include "program/watched_window.h"

namespace skyloft::program {
namespace {

class SplashOfAHangingStart : public testing::Test {
 protected:
  void SetUp() override {
    SetUpTowns(folder_);
    display_ = std::make_unique<XDisplay>();
    ASSERT_TRUE(display_->Up()) << "Xvfb must be installed";
    server_ = std::make_unique<feed::RunningServer>(std::vector<std::string>{
        "--port", "0", "--log", folder_.Path("log").toStdString(), "--fault", "/forecast.asp?d=meta=hang"});
    const QString hosts = "127.0.0.1:" + QString::number(server_->Port());
    run_ = std::make_unique<ProgramRun>(folder_, InRoot(folder_, {"--hosts", hosts}),
                                        QStringList{"QT_QPA_PLATFORM=xcb", "DISPLAY=" + display_->Name()});
    ASSERT_TRUE(AwaitRequest(folder_.Path("log"), "/forecast.asp", "d=meta"));
    ASSERT_TRUE(Await(5000, [&] { return display_->LargestWindow().place.width() > 100; }));
    splash_ = display_->LargestWindow();
  }

  WatchedWindow Watched() const { return {*display_, splash_}; }

  Folder folder_;
  std::unique_ptr<XDisplay> display_;
  std::unique_ptr<feed::RunningServer> server_;
  std::unique_ptr<ProgramRun> run_;
  XDisplay::Window splash_;
};

TEST_F(SplashOfAHangingStart, IsPaintedAgainAfterItWasCovered) {
  Watched().TimeToRepaint(Watched().AwaitPainted());
}

TEST_F(SplashOfAHangingStart, AnswersWithin100Milliseconds) {
  const WatchedWindow splash = Watched();
  const QByteArray painted = splash.AwaitPainted();
  // A busy machine may take the processor away once or twice.
  int in_time = 0;
  for (int i = 0; i < 10; ++i) in_time += splash.TimeToRepaint(painted) <= 100;
  EXPECT_GE(in_time, 8);
}

TEST_F(SplashOfAHangingStart, EndsWithinASecondOfASignal) {
  kill(run_->Process(), SIGTERM);
  EXPECT_FALSE(run_->Running(1000));
  EXPECT_EQ(run_->Wait().code, 0);
  EXPECT_EQ(folder_.Setting("Settings/LocationIndexMax"), "4");
}

}  // namespace
}  // namespace skyloft::program
