#include "core/tray.h"

#include "core/chrome.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Tray : public Station {
 protected:
  Tray() {
    SetUpLocations(2);
    Settings.TrayLocationIndex = "1";
    ObservationRecord.Desc[1] = "Partly cloudy";
  }
  // The icons in the tray, by their files' names: "0:-.ico 1:-5.ico ".
  static std::string Shown() {
    std::string text;
    for (int i = 0; i < 3; ++i) {
      const TrayIcon& icon = MainForm.SysTray[i];
      const std::string path = icon.Icon;
      if (icon.Added) text += std::to_string(i) + ":" + path.substr(path.rfind('\\') + 1) + " ";
    }
    return text;
  }
  static std::string ShowTemperature(const std::string& text) {
    ObservationRecord.Tf[1] = text;
    SystemTray();
    return Shown();
  }
};

TEST_F(Tray, TheTemperatureIsSpelledByItsText) {
  const std::pair<const char*, const char*> cases[] = {
      {"72", "1:72.ico 2:F.ico "},
      {"0", "1:0.ico 2:F.ico "},
      {"00", "1:00.ico 2:F.ico "},  // named after whichever text the feed sent
      {"99", "1:99.ico 2:F.ico "},
      {"100", "0:1.ico 1:00.ico 2:F.ico "},
      {"117", "0:1.ico 1:17.ico 2:F.ico "},
      {"-5", "0:-.ico 1:-5.ico 2:F.ico "},
      {"99.5", "0:1.ico 1:.5.ico 2:F.ico "},
      {"1", "1:1.ico 2:F.ico "},  // the hundreds digit's file is the icon of one degree
  };
  for (const auto& [temperature, icons] : cases)
    EXPECT_EQ(ShowTemperature(temperature), icons) << temperature;
}

TEST_F(Tray, AMissingIconLeavesNoIconAtAllUntilTheNextReading) {
  const std::string folder = "C:\\program files\\skyloft\\icons\\";
  Doubles.missing_pictures = {folder + ".ico", folder + "131.ico", folder + "31.ico"};
  EXPECT_NE(ShowTemperature("72"), "");
  EXPECT_EQ(ShowTemperature(""), "") << "no reading";
  EXPECT_NE(ShowTemperature("72"), "");
  EXPECT_EQ(ShowTemperature("131"), "");
  EXPECT_NE(ShowTemperature("-72"), "");
}

TEST_F(Tray, EveryIconHasTheToolTipAlsoTheOneThatIsNotInTheTray) {
  ShowTemperature("72");
  EXPECT_FALSE(MainForm.SysTray[0].Added);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(MainForm.SysTray[i].ToolTip.Get(), "Town 1 72 F PARTLY CLOUDY") << i;
}

TEST_F(Tray, AnotherTrayLocationShowsAtOnce) {
  ObservationRecord.Tf[0] = "20";
  ShowTemperature("72");
  Settings.TrayLocationIndex = "0";
  SystemTray();
  EXPECT_EQ(Shown(), "1:20.ico 2:F.ico ");
  EXPECT_EQ(MainForm.SysTray[1].ToolTip.Get(), "Town 0 20 F ");
}

TEST_F(Tray, OnANewSystemTheIconsJoinFromTheLastToTheFirstElseTheOtherWayRound) {
  const struct {
    SystemVersion system;
    bool descending;
  } cases[] = {{{2, 6, 0}, true},     {{2, 5.1, 0}, true}, {{3, 10, 9}, true},
               {{2, 5, 2195}, false}, {{1, 6, 0}, false},  {{0, 0, 0}, false}};
  using Names = std::vector<std::string>;
  for (const auto& c : cases) {
    Doubles.system_version = c.system;
    Doubles.tray.clear();
    ShowTemperature("-5");
    EXPECT_EQ(Doubles.tray, c.descending ? (Names{"SysTray[2]", "SysTray[1]", "SysTray[0]"})
                                         : (Names{"SysTray[0]", "SysTray[1]", "SysTray[2]"}));
    Doubles.tray.clear();
    ShowTemperature("72");
    EXPECT_EQ(Doubles.tray,
              c.descending ? (Names{"SysTray[2]", "SysTray[1]"}) : (Names{"SysTray[1]", "SysTray[2]"}));
  }
}

TEST_F(Tray, APrimaryClickShowsTheWindowAboveTheOthersForAMoment) {
  Chrome.MainWindow.SetClient(&MainForm);
  Chrome.TickerWindow.SetClient(&TickerForm);
  for (int i = 0; i < 3; ++i) {
    MainForm.Visible = false;
    Doubles.activated.clear();
    MainForm.SysTray[i].Click();
    EXPECT_TRUE(MainForm.Visible);
    EXPECT_EQ(Doubles.activated, std::vector<std::string>{"MainForm"});
    EXPECT_TRUE(Doubles.activated_on_top);
    EXPECT_FALSE(MainForm.TopMost());
    EXPECT_FALSE(TickerForm.TopMost());
  }
}

TEST_F(Tray, AfterAPrimaryClickTheTickerIsOnTopAgainWhenItShallBe) {
  Chrome.MainWindow.SetClient(&MainForm);
  Chrome.TickerWindow.SetClient(&TickerForm);
  SystemOptionsForm.AlwaysOnTop.Checked = true;
  MainForm.SysTray[1].Click();
  EXPECT_TRUE(TickerForm.TopMost());
  EXPECT_FALSE(MainForm.TopMost());
}

TEST_F(Tray, ASecondaryClickOpensTheMenuWithAnEntryForEachHiddenWindow) {
  for (const bool main : {false, true}) {
    for (const bool ticker : {false, true}) {
      MainForm.Visible = main;
      TickerForm.Visible = ticker;
      Doubles.menus.clear();
      for (int i = 0; i < 3; ++i) MainForm.SysTray[i].SecondaryClick();
      EXPECT_EQ(Doubles.menus, (std::vector<std::string>(3, "Options")));
      EXPECT_EQ(MenuForm.ShowSkyloft.Visible, !main);
      EXPECT_EQ(MenuForm.ShowTicker.Visible, !ticker);
      EXPECT_EQ(MenuForm.Line3.Visible, !(main && ticker));
    }
  }
}

TEST_F(Tray, TheMenusEntryAndThePressOnTheBarShowTheWindowPlainly) {
  Chrome.MainWindow.SetClient(&MainForm);
  MenuForm.ShowSkyloft.Press();
  EXPECT_TRUE(MainForm.Visible);
  MainForm.Visible = false;
  TickerForm.Press({10, 10, MouseButton::Right});
  EXPECT_FALSE(MainForm.Visible);
  TickerForm.Press({10, 10, MouseButton::Left});
  EXPECT_TRUE(MainForm.Visible);
  EXPECT_FALSE(MainForm.TopMost());
  EXPECT_TRUE(Doubles.activated.empty());
}

}  // namespace
}  // namespace skyloft
