// The setup wizard of the whole program under real keys, on a display with a window manager.
#include <gtest/gtest.h>
#include <signal.h>

#include <memory>

#include "program/keyboard.h"
#include "program/program.h"
#include "x_display.h"

namespace skyloft::program {
namespace {

constexpr const char* kWizardTitle = "Skyloft Setup Wizard";

class WizardUnderKeys : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(display_.Up()) << "Xvfb and openbox must be installed"; }

  void Start(const QStringList& options = {}) {
    run_ = std::make_unique<ProgramRun>(folder_, InRoot(folder_, options),
                                        QStringList{"QT_QPA_PLATFORM=xcb", "DISPLAY=" + display_.Name()});
  }
  bool HasFocus(const char* title) const { return keyboard_.HasFocus(title); }
  bool AwaitFocus(const char* title) const { return keyboard_.AwaitFocus(title); }
  void Keys(const QStringList& keys) const { keyboard_.Press(keys); }
  // Ends the program as the desktop would, which saves.
  void End() {
    kill(run_->Process(), SIGTERM);
    const Ending ending = run_->Wait();
    EXPECT_EQ(ending.code, 0) << ending.errors;
  }
  std::string Stored(const QString& key) const { return folder_.Setting(key); }

  Folder folder_;
  XDisplay display_{XDisplay::Manager::Openbox};
  const Keyboard keyboard_{display_};
  std::unique_ptr<ProgramRun> run_;
};

TEST_F(WizardUnderKeys, AFirstRunByZipCode) {
  Start();
  ASSERT_TRUE(AwaitFocus(kWizardTitle));
  Keys({"Return", "=me@home.example", "Tab", "=me@home.example", "Return"});
  Keys({"=66044", "Return", "Return"});
  Keys({"alt+t", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "space", "Return"});  // a warning, scrolled
  Keys({"Return", "ctrl+a", "=My House", "Return"});
  ASSERT_TRUE(Await(20000, [&] { return !HasFocus(kWizardTitle); }));
  ASSERT_TRUE(Await(10000, [&] { return display_.LargestWindow().place.width() >= 800; }));
  End();
  EXPECT_EQ(Stored("Settings/LocationIndexMax"), "0");
  EXPECT_EQ(Stored("Location0/ZipCode"), "66044");
  EXPECT_EQ(Stored("Location0/Title"), "My House");
  EXPECT_EQ(Stored("Location0/TornadoWarning"), "1");
  EXPECT_EQ(Stored("Location0/TornadoWatch"), "0");
  EXPECT_EQ(Stored("Location0/NWSAlertMessage"), "1");
  EXPECT_EQ(Stored("Options/EmailAddress"), "me@home.example");
}

TEST_F(WizardUnderKeys, AFirstRunByCityAndStateWithThresholdsAndPrecipitation) {
  Start();
  ASSERT_TRUE(AwaitFocus(kWizardTitle));
  Keys({"Return", "=a@b.example", "Tab", "=a@b.example", "Return"});
  Keys({"alt+i", "Tab", "=Lawrence", "Tab", "=KS", "Return", "Return"});
  Keys({"Return", "alt+y", "Return"});           // personal alerts
  Keys({"alt+m", "Tab", "Up", "Up", "Return"});  // two below the default
  Keys({"alt+h", "Return", "Return"});           // heavy rain
  ASSERT_TRUE(Await(20000, [&] { return !HasFocus(kWizardTitle); }));
  End();
  EXPECT_EQ(Stored("Location0/City"), "Lawrence");
  EXPECT_EQ(Stored("Location0/Title"), "Lawrence, KS");
  EXPECT_EQ(Stored("Location0/SKLTPersonalAlert"), "1");
  EXPECT_EQ(Stored("Location0/MaximumTemperature"), "1");
  EXPECT_EQ(Stored("Location0/MaximumTemperatureThreshold"), "88 ");
  EXPECT_EQ(Stored("Location0/HeavyRain"), "1");
}

TEST_F(WizardUnderKeys, ARefusedPageTellsWhyAndGivesTheFocusBack) {
  Start();
  ASSERT_TRUE(AwaitFocus(kWizardTitle));
  Keys({"Return", "Return"});
  ASSERT_TRUE(AwaitFocus("Skyloft")) << "missing addresses";
  Keys({"Return"});
  ASSERT_TRUE(AwaitFocus(kWizardTitle));
  Keys({"=a@b.example", "Tab", "=a@b.exampl", "Return"});
  ASSERT_TRUE(AwaitFocus("Skyloft")) << "different addresses";
  Keys({"Escape"});
  ASSERT_TRUE(AwaitFocus(kWizardTitle));
  Keys({"=e", "Return", "=00000", "Return"});
  ASSERT_TRUE(AwaitFocus("Skyloft")) << "an unknown place";
  Keys({"space"});
  ASSERT_TRUE(AwaitFocus(kWizardTitle));
  Keys({"ctrl+a", "=66044", "Return", "Return", "Return", "Return", "Return"});
  ASSERT_TRUE(Await(20000, [&] { return !HasFocus(kWizardTitle); }));
  End();
  EXPECT_EQ(Stored("Location0/ZipCode"), "66044");
  EXPECT_EQ(Stored("Options/EmailAddress"), "a@b.example");
}

TEST_F(WizardUnderKeys, EscOnAFirstRunEndsTheProgramAndStoresNoTown) {
  Start();
  ASSERT_TRUE(AwaitFocus(kWizardTitle));
  Keys({"Return", "Escape"});
  EXPECT_EQ(run_->Wait().code, 0);
  EXPECT_EQ(Stored("Settings/LocationIndexMax"), "");
}

}  // namespace
}  // namespace skyloft::program
