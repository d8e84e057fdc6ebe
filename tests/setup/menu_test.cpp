#include "setup/menu.h"

#include "alerts/bulletins.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/ticker_form.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Menu : public Station {};

TEST_F(Menu, ExitSavesTakesTheTrayIconsOutAndEndsWithoutAsking) {
  SetUpLocations(1);
  for (int i = 0; i < 3; ++i) MainForm.SysTray[i].Added = true;
  EXPECT_TRUE(EndsProcess([] { MenuForm.ExitSkyloft.Press(); }));
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "LocationIndexMax"), "0");
  EXPECT_TRUE(Doubles.files.contains("c:\\program files\\skyloft\\sklt.dat"));
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(MainForm.SysTray[i].Added);
  EXPECT_TRUE(Doubles.boxes.empty());
}

TEST_F(Menu, ExitDuringAnAlertDoesNotWaitForItsEnd) {
  SetUpLocations(1);
  Bulletins.NWSAlertActive = 1;
  EXPECT_TRUE(EndsProcess([] { Raise([] { MenuForm.ExitSkyloft.Press(); }); }));
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "LocationIndexMax"), "0");
}

TEST_F(Menu, TheMainWindowsMenuOffersTheTickerOnlyWhileItIsHidden) {
  for (const bool ticker : {true, false}) {
    TickerForm.Visible = ticker;
    MainForm.MenuButton.Press();
    EXPECT_FALSE(MenuForm.ShowSkyloft.Visible);
    EXPECT_EQ(MenuForm.ShowTicker.Visible, !ticker);
    EXPECT_EQ(MenuForm.Line3.Visible, !ticker);
  }
  EXPECT_EQ(Doubles.menus, (std::vector<std::string>{"Options", "Options"}));
}

TEST_F(Menu, EveryEntryHasItsCaption) {
  EXPECT_EQ(MenuForm.AddLocation.Caption.Get(), "Add Location");
  EXPECT_EQ(MenuForm.SystemSettings.Caption.Get(), "System Settings");
  EXPECT_EQ(MenuForm.ExitSkyloft.Caption.Get(), "Exit Skyloft");
  EXPECT_EQ(MenuForm.ScreenPosition.Caption.Get(), "Top Screen Position");
  EXPECT_EQ(MenuForm.Show3DayForecast.Caption.Get(), "Show 3-Day Forecast");
  EXPECT_TRUE(MenuForm.Line1.Separator());
  EXPECT_FALSE(MenuForm.Share.Separator());
}

}  // namespace
}  // namespace skyloft
