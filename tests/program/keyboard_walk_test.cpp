// A walk through the whole program by real keys alone, on a display with a window manager.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "program/keyboard.h"
#include "program/program.h"
#include "x_display.h"

namespace skyloft::program {
namespace {

// Keys, and what shows that they did their work, as the line of a script that waits for it.
struct Step {
  const char* what;
  QStringList keys;
  const char* reached;
};

const std::vector<Step> kSteps = {
    {"another town", {"alt+l", "Down", "Return"}, "MainForm.LocationSelection index 1"},
    {"a category by its name",
     {"alt+c", "=For", "Return"},
     "MainForm.CategorySelection text \"Forecast Maps\""},
    {"a product", {"alt+p", "Down", "Return"}, "MainForm.ProductSelection index 1"},
    {"a time, without opening the list", {"alt+t", "Escape", "Down"}, "MainForm.TimeSelection index 1"},
    {"the next picture", {"Tab", "Tab", "Tab", "Tab", "Tab", "space"}, "MainForm.TimeSelection index 2"},
    {"play", {"Tab", "space"}, "MainForm.StopButton enabled 1"},
    {"stop", {"space"}, "MainForm.PlayButton enabled 1"},
    {"zoom in", {"plus"}, "MainForm.Display1 zoom 1.1"},
    {"back to full size", {"Home"}, "MainForm.Display1 zoom 1"},
    {"the map of a trip", {"alt+c", "=Tra", "Return"}, "MainForm.CategorySelection text Travel"},
    {"the first stop of the trip",
     QStringList{"alt+t", "Escape"} + QStringList(12, "Tab") + QStringList{"space"},
     "MainForm.ImagePoints[1] visible 1"},
    {"the last stop, and the report", QStringList(10, "Right") + QStringList{"Return"},
     "RouteScopeForm visible 1"},
    {"Done", {"alt+d"}, "RouteScopeForm visible 0"},
    {"the options by the menu",
     {"shift+F10", "Down", "Down", "Down", "Down", "Down", "Return"},
     "SystemOptionsForm visible 1"},
    {"the email twice, and the tabs",
     {"=me@home.example", "Tab", "=me@home.example", "shift+Tab", "shift+Tab", "Right", "Right", "Right"},
     "SystemOptionsForm.TabStripOptions text Connection"},
    {"a box on the second tab", {"Left", "Left", "alt+w"}, "SystemOptionsForm.ShowAlmanac checked 0"},
    {"OK", {"Return"}, "SystemOptionsForm visible 0"},
    {"a town's setup by the submenu",
     {"shift+F10", "Down", "Down", "Down", "Right", "Return"},
     "SetupWizardForm visible 1"},
    {"Esc leaves the setup", {"Escape"}, "SetupWizardForm visible 0"},
    {"help", {"F1"}, "MainForm.CategorySelection text \"Technical Support\""},
    {"Esc hides the window", {"Escape"}, "MainForm visible 0"},
};

QByteArray ScriptOf(const Folder& folder) {
  QByteArray script = "timers on\n";
  const auto add = [&](const char* reached) {
    script += QByteArray("until ") + reached + " 30000\nsnapshot " +
              folder.Path(QString::number(script.count('\n'))).toUtf8() + "\n";
  };
  add("MainForm visible 1");
  for (const Step& step : kSteps) add(step.reached);
  add("MainForm visible 1");
  return script;
}

TEST(KeyboardWalk, EverythingIsReachedWithoutAMouse) {
  const XDisplay display(XDisplay::Manager::Openbox);
  ASSERT_TRUE(display.Up()) << "Xvfb and openbox must be installed";
  const Keyboard keyboard(display);
  const Folder folder;
  SetUpTowns(folder);
  folder.Write("script", ScriptOf(folder));
  const QStringList on_display = {"QT_QPA_PLATFORM=xcb", "DISPLAY=" + display.Name()};
  ProgramRun run(folder, InRoot(folder, {"--script", folder.Path("script")}), on_display);
  int line = 1;
  const auto reached = [&] {
    const bool saved = Await(15000, [&] { return Snapshot(folder.Path(QString::number(line))).Saved(); });
    line += 2;
    return saved;
  };
  ASSERT_TRUE(reached()) << "the start";
  ASSERT_TRUE(keyboard.AwaitFocus("Skyloft"));
  for (const Step& step : kSteps) {
    keyboard.Press(step.keys);
    ASSERT_TRUE(reached()) << step.what;
  }
  EXPECT_EQ(ProgramRun(folder, InRoot(folder, {}), on_display).Wait().code, 0);
  ASSERT_TRUE(reached()) << "a second start brings it back";
  ASSERT_TRUE(keyboard.AwaitFocus("Skyloft"));
  keyboard.Press({"shift+F10", "Up", "Return"});
  const Ending ending = run.Wait();
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(folder.Setting("Options/EmailAddress"), "me@home.example");
  EXPECT_EQ(folder.Setting("Options/ShowAlmanac"), "0");
  EXPECT_EQ(folder.Setting("Settings/Location"), "1");
}

}  // namespace
}  // namespace skyloft::program
