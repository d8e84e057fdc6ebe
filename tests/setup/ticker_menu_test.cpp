#include "setup/ticker_menu.h"

#include "core/chrome.h"
#include "core/mainform.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/settings.h"
#include "station.h"
#include "store_changes.h"

namespace skyloft {
namespace {

SystemOptionsFormControls& options = SystemOptionsForm;

class TickerMenu : public Station {
 protected:
  TickerMenu() {
    Doubles.work_area = {450, 15000, 12000};
    Chrome.TickerWindow.SetClient(&TickerForm);
    TickerForm.Height = 525;
    LoadOptions();
    SaveOptions();
  }
  static void Open() { TickerForm.Press({5, 5, MouseButton::Right}); }
  // Opens the menu and chooses an entry; what that changes in the store.
  static Changes Choose(MenuItem& entry) {
    Open();
    return StoreChanges([&] { entry.Press(); });
  }
  static constexpr int kTop = 450, kBottom = 450 + 12000 - 525;
};

TEST_F(TickerMenu, IsBroughtUpToTheOptionsBeforeItOpens) {
  const std::pair<MenuItem*, CheckBox*> marks[] = {
      {&MenuForm.AlwaysOnTop, &options.AlwaysOnTop},
      {&MenuForm.ShowCurrentConditions, &options.ShowCurrentConditions},
      {&MenuForm.ShowHourlyForecast, &options.ShowHourlyForecast},
      {&MenuForm.Show3DayForecast, &options.Show3DayForecast},
      {&MenuForm.ShowAlmanac, &options.ShowAlmanac},
  };
  for (const bool on : {true, false}) {
    for (const auto& [entry, box] : marks) box->Checked = on;
    options.TopScreenPosition.Checked = on;
    MainForm.Visible = on;
    Open();
    for (const auto& [entry, box] : marks) EXPECT_EQ(entry->Checked.Get(), on) << entry->Name();
    EXPECT_EQ(MenuForm.ScreenPosition.Caption.Get(), on ? "Bottom Screen Position" : "Top Screen Position");
    EXPECT_EQ(MenuForm.ShowSkyloft2.Visible.Get(), !on);
  }
  EXPECT_EQ(Doubles.menus, (std::vector<std::string>{"Ticker", "Ticker"}));
}

TEST_F(TickerMenu, ShowSkyloftShowsTheMainWindow) {
  MainForm.Visible = false;
  EXPECT_EQ(Choose(MenuForm.ShowSkyloft2), Changes{});
  EXPECT_TRUE(MainForm.Visible);
}

TEST_F(TickerMenu, HideAndShowTickerSaveTheirOneValue) {
  TickerForm.Visible = true;
  options.ShowAlmanac.Checked = false;  // a change that waits for OK is not saved along
  EXPECT_EQ(Choose(MenuForm.HideTicker), (Changes{{"options/ShowTicker", "0"}}));
  EXPECT_FALSE(TickerForm.Visible);
  EXPECT_FALSE(options.ShowTicker.Checked);
  EXPECT_EQ(StoreChanges([] { MenuForm.ShowTicker.Press(); }), (Changes{{"options/ShowTicker", "1"}}));
  EXPECT_TRUE(TickerForm.Visible);
  EXPECT_TRUE(options.ShowTicker.Checked);
}

TEST_F(TickerMenu, ThePositionMovesToTheTopClearsTheForegroundAndComingBackDoesNotRestoreIt) {
  options.AlwaysOnTop.Check(true);
  Chrome.TickerWindow.SetTopMost(true);
  SaveOptions();
  TickerForm.Left = 300;
  EXPECT_EQ(Choose(MenuForm.ScreenPosition), (Changes{{"options/TopScreenPosition", "1"},
                                                      {"options/BottomScreenPosition", "0"},
                                                      {"options/AlwaysOnTop", "0"}}));
  EXPECT_EQ(TickerForm.Top.Get(), kTop);
  EXPECT_EQ(TickerForm.Left.Get(), 0);
  EXPECT_EQ(MenuForm.ScreenPosition.Caption.Get(), "Bottom Screen Position");
  EXPECT_FALSE(MenuForm.AlwaysOnTop.Checked);
  EXPECT_FALSE(TickerForm.TopMost());
  EXPECT_EQ(Start.WorkAreaTopSaved, 450);
  EXPECT_EQ(Start.WorkAreaHeightSaved, 12000);

  EXPECT_EQ(Choose(MenuForm.ScreenPosition),
            (Changes{{"options/TopScreenPosition", "0"}, {"options/BottomScreenPosition", "1"}}));
  EXPECT_EQ(TickerForm.Top.Get(), kBottom);
  EXPECT_EQ(MenuForm.ScreenPosition.Caption.Get(), "Top Screen Position");
  EXPECT_FALSE(options.AlwaysOnTop.Checked);
  EXPECT_FALSE(TickerForm.TopMost());
}

TEST_F(TickerMenu, AlwaysOnTopTogglesAtTheBottom) {
  for (const bool on : {true, false}) {
    EXPECT_EQ(Choose(MenuForm.AlwaysOnTop), (Changes{{"options/AlwaysOnTop", on ? "1" : "0"}}));
    EXPECT_EQ(options.AlwaysOnTop.Checked.Get(), on);
    EXPECT_EQ(MenuForm.AlwaysOnTop.Checked.Get(), on);
    EXPECT_EQ(TickerForm.TopMost(), on);
  }
}

TEST_F(TickerMenu, AlwaysOnTopAtTheTopDoesNothingButSaveThePresentValue) {
  options.TopScreenPosition.Check(true);
  SaveOptions();
  Doubles.Store(kOptionsKey, "AlwaysOnTop", "old");
  EXPECT_EQ(Choose(MenuForm.AlwaysOnTop), (Changes{{"options/AlwaysOnTop", "0"}}));
  EXPECT_FALSE(options.AlwaysOnTop.Checked);
  EXPECT_FALSE(MenuForm.AlwaysOnTop.Checked);
  EXPECT_TRUE(options.TopScreenPosition.Checked);
  EXPECT_FALSE(TickerForm.TopMost());
}

TEST_F(TickerMenu, EachPageIsToggledAndSavedByItself) {
  const struct {
    MenuItem& entry;
    CheckBox& box;
  } pages[] = {{MenuForm.ShowCurrentConditions, options.ShowCurrentConditions},
               {MenuForm.ShowHourlyForecast, options.ShowHourlyForecast},
               {MenuForm.Show3DayForecast, options.Show3DayForecast},
               {MenuForm.ShowAlmanac, options.ShowAlmanac}};
  for (const auto& page : pages) {
    for (const bool on : {false, true}) {
      EXPECT_EQ(Choose(page.entry), (Changes{{"options/" + page.entry.Name(), on ? "1" : "0"}}));
      EXPECT_EQ(page.box.Checked.Get(), on);
      EXPECT_EQ(page.entry.Checked.Get(), on);
    }
  }
}

}  // namespace
}  // namespace skyloft
