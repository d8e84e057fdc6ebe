// Where the main window comes up on a display of 1024 by 768 pixels.
#include <gtest/gtest.h>
#include <signal.h>

#include "program/program.h"
#include "x_display.h"

namespace skyloft::program {
namespace {

TEST(StoredPlace, OutsideEveryScreenTheWindowComesBackAndItsNewPlaceIsStored) {
  const struct {
    const char *left, *top;
    QPoint shown;
    const char *stored_left, *stored_top;
  } cases[] = {{"60000", "45000", {224, 178}, "3360", "2670"},  // a screen that is gone
               {"-600", "1207", {-40, 80}, "-600", "1207"}};    // in sight: to the twip
  const XDisplay display(XDisplay::Manager::Openbox);
  ASSERT_TRUE(display.Up()) << "Xvfb and openbox must be installed";
  const Folder folder;
  SetUpTowns(folder);
  for (const auto& c : cases) {
    folder.SetSetting("Settings/Left", c.left);
    folder.SetSetting("Settings/Top", c.top);
    ProgramRun run(folder, InRoot(folder, {}), {"QT_QPA_PLATFORM=xcb", "DISPLAY=" + display.Name()});
    EXPECT_TRUE(Await(20000, [&] {
      const QRect place = display.LargestWindow().place;
      return place.topLeft() == c.shown && place.width() == 800;
    })) << c.left;
    kill(run.Process(), SIGTERM);
    EXPECT_EQ(run.Wait().code, 0);
    EXPECT_EQ(folder.Setting("Settings/Left"), c.stored_left);
    EXPECT_EQ(folder.Setting("Settings/Top"), c.stored_top);
  }
}

}  // namespace
}  // namespace skyloft::program
