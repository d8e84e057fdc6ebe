#include "setup/menu.h"

#include "alerts/bulletins.h"
#include "feed/catalogues.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/location_profiles.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "station.h"
#include "store_changes.h"

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

// The entries of a menu in their order, those of a submenu in brackets; "-" is a separator.
std::string EntriesOf(const MenuItem& menu) {
  std::string text;
  for (Control* control : MenuForm.Controls()) {
    auto* entry = dynamic_cast<MenuItem*>(control);
    if (!entry || entry->Container() != &menu || control->Name().ends_with("]")) continue;
    const std::string inner = EntriesOf(*entry);
    text += (text.empty() ? "" : ", ") + entry->Caption.Get() + (inner.empty() ? "" : " [" + inner + "]");
  }
  return text;
}

TEST_F(Menu, TheThreeMenusHaveTheirEntriesInTheirOrder) {
  EXPECT_EQ(
      EntriesOf(MenuForm.Options),
      "Add Location, Delete Location, Edit Location, Set Tray Location, -, System Settings, Share Skyloft, "
      "Technical Support, Monthly Newsletter, -, Show Skyloft, Show Ticker, -, Exit Skyloft");
  EXPECT_EQ(EntriesOf(MenuForm.RouteScope), "Add Stop");
  EXPECT_EQ(EntriesOf(MenuForm.Ticker),
            "Show Skyloft, Hide Ticker, Top Screen Position, Always Foreground, Customize [Show Current "
            "Conditions, Show Hourly Forecast, Show 3-Day Forecast, Show Almanac]");
}

TEST_F(Menu, ThreeEntriesAreSeparatorsAndATownIsNoneWhateverItsTitle) {
  SetUpLocations(1);
  LocationProfile[ProfileRow::Title][0] = "-";
  ListTitles();
  std::vector<std::string> separators;
  for (Control* control : MenuForm.Controls()) {
    auto* entry = dynamic_cast<MenuItem*>(control);
    if (entry && entry->Separator()) separators.push_back(entry->Name());
  }
  EXPECT_EQ(separators, (std::vector<std::string>{"Line1", "Line2", "Line3"}));
}

TEST_F(Menu, TheThreeSponsorEntriesStandInNoMenuAndDoNothing) {
  const std::pair<MenuItem*, const char*> entries[] = {
      {&MenuForm.SponsorMessageNormal, "Sponsor Message Normal"},
      {&MenuForm.SponsorMessageAlert, "Sponsor Message Alert"},
      {&MenuForm.SponsorMessageUrgent, "Sponsor Message Urgent"},
  };
  for (const auto& [entry, caption] : entries) {
    EXPECT_EQ(entry->Caption.Get(), caption);
    EXPECT_EQ(entry->Container(), nullptr);
    EXPECT_FALSE(entry->Click);
  }
}

TEST_F(Menu, SystemSettingsOpensTheOptionsOnTheirFirstTab) {
  SystemOptionsForm.TabStripOptions.Select(3);
  EXPECT_EQ(StoreChanges([] { MenuForm.SystemSettings.Press(); }), Changes{});
  EXPECT_TRUE(SystemOptionsForm.Visible);
  EXPECT_EQ(SystemOptionsForm.TabStripOptions.Selected(), 1);
  EXPECT_TRUE(SystemOptionsForm.OptionsFrame[1].Visible);
}

TEST_F(Menu, TheLinksChooseTheirCategoryAndOpenNoAddress) {
  Catalogues.ShareCategoryIndex = 2;
  Catalogues.SupportCategoryIndex = 3;
  Catalogues.NewsletterCategoryIndex = 1;
  for (const char* category : {"a", "b", "c", "d"}) MainForm.CategorySelection.AddItem(category);
  int chosen = 0;
  MainForm.CategorySelection.Click = [&] { ++chosen; };
  const std::pair<MenuItem*, int> cases[] = {
      {&MenuForm.Share, 2}, {&MenuForm.TechnicalSupport, 3}, {&MenuForm.MonthlyNewsletter, 1}};
  for (const auto& [entry, category] : cases) {
    MainForm.Visible = false;
    chosen = 0;
    EXPECT_EQ(StoreChanges([&] { entry->Press(); }), Changes{});
    EXPECT_EQ(MainForm.CategorySelection.ListIndex(), category);
    EXPECT_EQ(chosen, 1) << "the page comes as any other product";
    EXPECT_TRUE(MainForm.Visible);
  }
  EXPECT_TRUE(Doubles.links.empty());
}

TEST_F(Menu, ExitProgramAsksFirst) {
  SetUpLocations(1);
  Doubles.answers = {BoxAnswer::No};
  EXPECT_EQ(StoreChanges([] { EXPECT_FALSE(EndsProcess(ExitProgram)); }), Changes{});
  const std::pair<BoxKind, std::string> box(BoxKind::Question,
                                            "WARNING: This will disable Skyloft! Are you sure?");
  EXPECT_EQ(Doubles.boxes, (std::vector{box}));
  for (int i = 0; i < 3; ++i) MainForm.SysTray[i].Added = true;
  Doubles.answers = {BoxAnswer::Yes};
  EXPECT_TRUE(EndsProcess(ExitProgram));
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "LocationIndexMax"), "0");
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(MainForm.SysTray[i].Added);
}

TEST_F(Menu, NothingCallsExitProgram) {
  SetUpLocations(1);
  MainForm.ExitButton.Press();
  Fire(MainForm.Unload);
  EXPECT_FALSE(MainForm.Visible);
  EXPECT_TRUE(EndsProcess([] { MenuForm.ExitSkyloft.Press(); }));
  EXPECT_TRUE(Doubles.boxes.empty()) << "it would have asked";
}

}  // namespace
}  // namespace skyloft
