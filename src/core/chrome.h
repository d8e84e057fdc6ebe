// The main window's outline and its image buttons.
#pragma once

#include <string>

#include "core/class1.h"
#include "forms/main_form.h"
#include "platform/window.h"

namespace skyloft {

// The outline of a window of `width` by `height` pixels. The top edge lies two pixels above the window, which
// is meant; the corners are ellipses 110 wide and 96 high.
RoundRegion CreateWindowRegion(int width, int height, double x_scale, double y_scale, int x_offset,
                               int y_offset);

// The style objects of the two windows that have one; attached at start-up.
struct ChromeState {
  Class1 MainWindow;
  Class1 TickerWindow;
};
extern ChromeState Chrome;

// One image button: the procedure that sets its state, and its pictures under \icons\ ("" where it has none).
// Calling it sets what is not empty: the flags by "True" or "False", the picture by the path of a file, which
// is read anew each time. A missing file is a run-time error of the caller.
struct ImageButtonState {
  ImageButton MainFormControls::*button;
  const char* normal;
  const char* pressed;
  const char* disabled;

  void operator()(const std::string& enabled, const std::string& visible, const std::string& picture) const;
};

inline constexpr ImageButtonState BackButtonState{&MainFormControls::BackButton, "back.gif", "backr.gif",
                                                  "backd.gif"};
inline constexpr ImageButtonState NextButtonState{&MainFormControls::NextButton, "next.gif", "nextr.gif",
                                                  "nextd.gif"};
inline constexpr ImageButtonState PlayButtonState{&MainFormControls::PlayButton, "play.gif", "playr.gif",
                                                  "playd.gif"};
inline constexpr ImageButtonState StopButtonState{&MainFormControls::StopButton, "stop.gif", "stopr.gif",
                                                  "stopd.gif"};
inline constexpr ImageButtonState ExitButtonState{&MainFormControls::ExitButton, "exit.gif", "exitr.gif", ""};
inline constexpr ImageButtonState HelpButtonState{&MainFormControls::HelpButton, "help.gif", "helpr.gif", ""};
inline constexpr ImageButtonState MenuButtonState{&MainFormControls::MenuButton, "menu.gif", "menur.gif", ""};
inline constexpr ImageButtonState LocalButtonState{&MainFormControls::LocalButton, "local.gif", "localr.gif",
                                                   "locald.gif"};
inline constexpr ImageButtonState NationalButtonState{&MainFormControls::NationalButton, "national.gif",
                                                      "nationalr.gif", "nationald.gif"};
inline constexpr ImageButtonState AreaZoomButtonState{&MainFormControls::AreaZoomButton, "zmarea.gif",
                                                      "zmarear.gif", "zmaread.gif"};
inline constexpr ImageButtonState ZoomInButtonState{&MainFormControls::ZoomInButton, "zoomin.gif",
                                                    "zoominr.gif", "zoomind.gif"};
inline constexpr ImageButtonState ZoomOutButtonState{&MainFormControls::ZoomOutButton, "zoomout.gif",
                                                     "zoomoutr.gif", "zoomoutd.gif"};
inline constexpr ImageButtonState ResetButtonState{&MainFormControls::ResetButton, "reset.gif", "resetr.gif",
                                                   "resetd.gif"};
inline constexpr ImageButtonState LegendButtonState{&MainFormControls::LegendButton, "legend.gif",
                                                    "legendr.gif", ""};
// The severe buttons have no pressed picture; the alerts light them.
inline constexpr ImageButtonState PersonalButtonState{&MainFormControls::PersonalAlertButton, "personal.gif",
                                                      "", "personald.gif"};
inline constexpr ImageButtonState TornadoButtonState{&MainFormControls::TornadoButton, "tornado.gif", "",
                                                     "tornadod.gif"};
inline constexpr ImageButtonState ThunderstormButtonState{&MainFormControls::ThunderstormButton, "tstorm.gif",
                                                          "", "tstormd.gif"};
inline constexpr ImageButtonState FloodButtonState{&MainFormControls::FloodButton, "flood.gif", "",
                                                   "floodd.gif"};

// Without a control and without a caller.
inline constexpr ImageButtonState MinimizeButtonState{nullptr, "minimize.gif", "minimizer.gif", ""};
inline constexpr ImageButtonState RouteScopeRoadButtonState{nullptr, "", "", ""};

// Brings the program back for a second start of it: the main window, or the wizard of a first run.
void ShowAgain();

// Makes the severe buttons and their labels visible.
void ShowSevereButtons();

// Gives the buttons their first pictures, their presses and the clicks that belong to the window itself, and
// the window its drag by any mouse button and its close request, which only hides it.
void ConnectChrome();

}  // namespace skyloft
