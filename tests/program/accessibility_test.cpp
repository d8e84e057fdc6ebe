// The windows as a screen reader finds them, on a display and a bus of their own.
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <vector>

#include <QRegularExpression>

#include "program/accessibility_tree.h"
#include "program/program.h"
#include "x_display.h"

namespace skyloft::program {
namespace {

class Accessibility : public testing::Test {
 protected:
  void Start(const QByteArray& acts) {
    ASSERT_TRUE(display_.Up()) << "Xvfb must be installed";
    ASSERT_TRUE(desktop_.Up()) << "dbus and at-spi2-core must be installed";
    folder_.Write("script", acts + "snapshot " + folder_.Path("s").toUtf8() + "\nwait 60000\n");
    run_ =
        std::make_unique<ProgramRun>(folder_, InRoot(folder_, {"--demo", "--script", folder_.Path("script")}),
                                     desktop_.Environment() << "QT_QPA_PLATFORM=xcb"
                                                            << "DISPLAY=" + display_.Name());
    ASSERT_TRUE(Await(20000, [&] { return Snapshot(folder_.Path("s")).Saved(); }));
  }

  Folder folder_;
  XDisplay display_;
  AccessibleDesktop desktop_;
  std::unique_ptr<ProgramRun> run_;
};

// Lists are named by their labels; a label that says nothing is none.
QString NameOf(const Spoken& spoken) { return spoken.role == "combo box" ? spoken.label : spoken.name; }
bool SaysNothing(const Spoken& spoken) { return spoken.role == "label" && spoken.name.isEmpty(); }

struct View {
  const char* name;
  const char* acts;
  std::vector<const char*> spoken;  // some of what must be there, "role: name"
};

void PrintTo(const View& view, std::ostream* out) { *out << view.name; }

class AccessibleView : public Accessibility, public testing::WithParamInterface<View> {};

TEST_P(AccessibleView, NamesAllThatItShows) {
  Start(GetParam().acts);
  QStringList found;
  for (const Spoken& spoken : desktop_.Shown("skyloft")) {
    found << spoken.role + ": " + NameOf(spoken);
    EXPECT_TRUE(!NameOf(spoken).isEmpty() || SaysNothing(spoken))
        << spoken.role.toStdString() << " in " << spoken.within.toStdString();
    EXPECT_NE(spoken.role.toStdString(), "filler")
        << spoken.name.toStdString() << " in " << spoken.within.toStdString();
  }
  for (const char* wanted : GetParam().spoken) {
    EXPECT_TRUE(found.contains(wanted)) << wanted << " is not among " << found.join('\n').toStdString();
  }
}

#define NEXT "click SetupWizardForm.NextButton\n"
#define EDIT "menu EditLocationTitle 0\n"
INSTANTIATE_TEST_SUITE_P(
    Views, AccessibleView,
    testing::Values(
        View{"TheMainWindowAndTheBar",
             "",
             {"frame: Skyloft", "combo box: Location", "combo box: Time", "push button: Play",
              "web document: Weather page", "web document: Message strip", "frame: Skyloft Ticker"}},
        View{"AMap",
             "select MainForm.CategorySelection 1\nselect MainForm.ProductSelection \"011 Forecast Radar\"\n",
             {"graphic: Weather map", "graphic: Map mark", "progress bar: Place in the series"}},
        View{"TheOptionsEmail",
             "menu SystemSettings\n",
             {"frame: Skyloft System Options", "page tab: Ticker", "text: Re-Type Email Address"}},
        View{"TheOptionsUpdate",
             "menu SystemSettings\nselect SystemOptionsForm.TabStripOptions 2\n",
             {"combo box: NEXRAD Radar:"}},
        View{"TheWizardsBulletins",
             EDIT,
             {"frame: Skyloft Setup Wizard", "panel: Setup page", "check box: Tornado Watch",
              "graphic: Tornado Button"}},
        View{"TheWizardsThresholds",
             EDIT NEXT "check SetupWizardForm.SKLTPersonalAlert 1\n" NEXT,
             {"check box: Heat Index (F)", "combo box: above"}},
        View{"TheReportOfATrip",
             "select MainForm.CategorySelection \"Travel\"\nuntil idle 20000\n"
             "press MainForm.Display1 200 200 left\npress MainForm.Display1 300 220 double\nuntil idle "
             "20000\n",
             {"push button: Print", "push button: Done"}},
        View{"TheStopOfATrip",
             "select MainForm.CategorySelection \"Travel\"\nuntil idle 20000\n"
             "press MainForm.Display1 200 200 left\npress MainForm.ImagePoints[1] 3 3 right\n"
             "async menu AddStop\nwait 200\n",
             {"push button: OK"}},
        View{"TheWizardsTitle", EDIT NEXT NEXT, {"text: Location Title", "push button: Done"}}),
    [](const auto& test) { return test.param.name; });
#undef NEXT
#undef EDIT

TEST_F(Accessibility, APageTellsItsWords) {
  Start("");
  QString words;
  for (const Spoken& spoken : desktop_.Shown("skyloft")) {
    if (spoken.name == "Current conditions") words = spoken.description;
  }
  EXPECT_TRUE(words.contains(QRegularExpression("Temperature: -?[0-9]+ F"))) << words.toStdString();
}

}  // namespace
}  // namespace skyloft::program
