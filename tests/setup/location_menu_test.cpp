#include "setup/location_menu.h"

#include "feed/observations.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/setup_wizard_form.h"
#include "settings/location_profiles.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "setup/wizard.h"
#include "station.h"
#include "store_changes.h"
#include "wizard_station.h"

namespace skyloft {
namespace {

class LocationMenu : public Station {
 protected:
  // Locations with their menus, stored; the tray shows `tray`, and `selected` is on show.
  static void Begin(int count, int tray = 0, int selected = 0) {
    SetUpLocations(count);
    for (int i = 0; i < count; ++i) ObservationRecord.Tf[i] = std::to_string(50 + i);
    Settings.TrayLocationIndex = std::to_string(tray);
    MainForm.LocationSelection.Select(selected);
    SaveSystem();
    Doubles.tray.clear();
  }
  static Changes Delete(int index) {
    Doubles.answers = {BoxAnswer::Yes};
    return StoreChanges([&] { MenuForm.DeleteLocationTitle[index].Press(); });
  }
  // The captions of the visible entries of a submenu; the one with a mark has a "*".
  static std::string Shown(const ControlArray<MenuItem, 10>& entries) {
    std::string text;
    for (int i = 0; i < 10; ++i) {
      if (!entries[i].Visible) continue;
      text += (text.empty() ? "" : ", ") + entries[i].Caption.Get() + (entries[i].Checked ? "*" : "");
    }
    return text;
  }
};

TEST_F(LocationMenu, AddOpensTheWizardForTheNextSlot) {
  Begin(4);
  EXPECT_EQ(StoreChanges([] { MenuForm.AddLocation.Press(); }), Changes{});
  EXPECT_TRUE(SetupWizardForm.Visible);
  EXPECT_EQ(Wizard.WizardMode, WizardKind::Add);
  EXPECT_TRUE(Doubles.boxes.empty());
}

TEST_F(LocationMenu, AddWithFiveLocationsShowsTheLimitAndNoWizard) {
  Begin(5);
  EXPECT_EQ(StoreChanges([] { MenuForm.AddLocation.Press(); }), Changes{});
  const std::pair<BoxKind, std::string> box(BoxKind::Error, "ERROR: The maximum number of locations is 5.");
  EXPECT_EQ(Doubles.boxes, (std::vector{box}));
  EXPECT_FALSE(SetupWizardForm.Visible);
}

TEST_F(LocationMenu, EditOpensTheWizardForItsSlot) {
  Begin(3);
  EXPECT_EQ(StoreChanges([] { MenuForm.EditLocationTitle[2].Press(); }), Changes{});
  EXPECT_TRUE(SetupWizardForm.Visible);
  EXPECT_EQ(Wizard.WizardMode, WizardKind::Edit);
  EXPECT_EQ(Wizard.EditIndex, 2);
}

TEST_F(LocationMenu, DeleteWithOneLocationShowsTheMinimumAndNoQuestion) {
  Begin(1);
  EXPECT_EQ(Delete(0), Changes{});
  const std::pair<BoxKind, std::string> box(BoxKind::Error, "ERROR: Skyloft requires at least 1 location!");
  EXPECT_EQ(Doubles.boxes, (std::vector{box}));
  EXPECT_EQ(MainForm.LocationSelection.Count(), 1);
}

TEST_F(LocationMenu, DeleteAsksByTheTitleAndAnythingButYesDoesNothing) {
  Begin(3);
  for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Cancel}) {
    Doubles.boxes.clear();
    Doubles.answers = {answer};
    EXPECT_EQ(StoreChanges([] { MenuForm.DeleteLocationTitle[1].Press(); }), Changes{});
    const std::pair<BoxKind, std::string> box(
        BoxKind::Question, "WARNING: This will delete Town 1 from your location profile! Are you sure?");
    EXPECT_EQ(Doubles.boxes, (std::vector{box}));
    EXPECT_EQ(Settings.LocationIndexMax, "2");
  }
}

TEST_F(LocationMenu, DeleteGoesToTheLocationBehindAndFromTheLastToTheOneBefore) {
  const struct {
    int count, selected, index;
    const char* on_show;
    const char* left;
  } cases[] = {{3, 2, 0, "Town 1", "Town 1, Town 2"},
               {3, 0, 1, "Town 2", "Town 0, Town 2"},
               {3, 0, 2, "Town 1", "Town 0, Town 1"},
               {2, 0, 1, "Town 0", "Town 0"},
               {5, 4, 4, "Town 3", "Town 0, Town 1, Town 2, Town 3"}};
  for (const auto& c : cases) {
    MainForm.LocationSelection.Clear();
    Doubles.store.clear();
    Begin(c.count, 0, c.selected);
    Settings.TrayLocationIndex = "0";
    Delete(c.index);
    EXPECT_EQ(MainForm.LocationSelection.Text(), c.on_show) << c.count << " " << c.index;
    EXPECT_EQ(Settings.Location, std::to_string(MainForm.LocationSelection.ListIndex()));
    EXPECT_EQ(MainForm.LocationLabel.Caption.Get(), c.on_show);
    EXPECT_EQ(Shown(MenuForm.DeleteLocationTitle), c.left);
    EXPECT_EQ(Shown(MenuForm.EditLocationTitle), c.left);
  }
}

TEST_F(LocationMenu, DeleteMovesTheTraysPlaceOnlyWhenItIsNotBeforeTheDeletedOne) {
  const struct {
    int tray, index;
    const char* after;
    const char* shown;
  } cases[] = {{2, 0, "1", "Town 1, Town 2*, Town 3"},
               {2, 2, "1", "Town 0, Town 1*, Town 3"},
               {1, 2, "1", "Town 0, Town 1*, Town 3"},
               {3, 3, "2", "Town 0, Town 1, Town 2*"}};
  for (const auto& c : cases) {
    MainForm.LocationSelection.Clear();
    Begin(4, c.tray);
    Delete(c.index);
    EXPECT_EQ(Settings.TrayLocationIndex, c.after) << c.tray << " " << c.index;
    EXPECT_EQ(Shown(MenuForm.TrayLocationTitle), c.shown);
    EXPECT_EQ(Doubles.Stored(kSettingsKey, "TrayLocationIndex"), c.after);
  }
}

TEST_F(LocationMenu, DeletingTheFirstWhileTheTrayShowsItLeavesTheTrayEmpty) {
  Begin(2, 0);
  Delete(0);
  EXPECT_EQ(Settings.TrayLocationIndex, "-1");
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(MainForm.SysTray[i].Added);
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "LocationIndexMax"), "0") << "all is saved nevertheless";
  MenuForm.TrayLocationTitle[0].Press();
  EXPECT_TRUE(MainForm.SysTray[1].Added);
}

TEST_F(LocationMenu, DeleteChangesInTheStoreWhatItMovesAndNothingElse) {
  Begin(3, 2, 0);
  EXPECT_EQ(Delete(1), (Changes{{"settings/LocationIndexMax", "1"},
                                {"settings/Location", "1"},
                                {"settings/TrayLocationIndex", "1"},
                                {"location1/ZipCode", "10002"},
                                {"location1/Title", "Town 2"},
                                {"location1/NEXRADLocation", "KTW2"}}));
  EXPECT_EQ(Doubles.Stored("Software\\Aerolume\\Skyloft\\Location2", "Title"), "Town 2")
      << "the slot behind the last keeps its old values";
}

TEST_F(LocationMenu, AnEditFollowsItsLocationWhenAnotherIsDeletedAndEndsWithItsOwn) {
  const struct {
    int edited, index;
    bool goes_on;
    const char* titles;
  } cases[] = {{1, 0, true, "Home, Town 2"},
               {1, 2, true, "Town 0, Home"},
               {1, 1, false, "Town 0, Town 2"},
               {2, 2, false, "Town 0, Town 1"},
               {0, 0, false, "Town 1, Town 2"}};
  for (const auto& c : cases) {
    MainForm.LocationSelection.Clear();
    Begin(3);
    EditLocation(c.edited);
    Delete(c.index);
    EXPECT_EQ(SetupWizardForm.Visible.Get(), c.goes_on) << c.edited << " " << c.index;
    if (c.goes_on) {
      WalkTo(8);
      SetupWizardForm.TitleResult.Text = "Home";
      SetupWizardForm.NextButton.Press();
    }
    EXPECT_EQ(Shown(MenuForm.EditLocationTitle), c.titles) << c.edited << " " << c.index;
    EXPECT_EQ(LocationProfile[ProfileRow::Title][2], "") << "a slot that is no more";
  }
}

TEST_F(LocationMenu, ANewLocationTakesTheSlotThatIsFreeWhenItIsDone) {
  Begin(3);
  Doubles.Reply("location_setup.asp", LawrenceReply());
  AddLocation(3);
  SetupWizardForm.ZipCodeInput.Text = "66044";
  WalkTo(8);
  Delete(1);
  EXPECT_TRUE(SetupWizardForm.Visible);
  SetupWizardForm.TitleResult.Text = "Home";
  SetupWizardForm.NextButton.Press();
  EXPECT_EQ(Shown(MenuForm.EditLocationTitle), "Town 0, Town 2, Home");
  EXPECT_EQ(LocationProfile[ProfileRow::ZipCode][2], "66044");
}

TEST_F(LocationMenu, WhileTheWizardIsAtWorkItShowsItselfInsteadOfAllThree) {
  Begin(2);
  Doubles.Reply("location_setup.asp", LawrenceReply());
  MenuItem* const entries[] = {&MenuForm.AddLocation, &MenuForm.EditLocationTitle[0],
                               &MenuForm.DeleteLocationTitle[0]};
  for (MenuItem* entry : entries) {
    AddLocation(2);
    SetupWizardForm.ZipCodeInput.Text = "66044";
    Doubles.during_fetch = [&](const std::string&) {
      SetupWizardForm.CancelButton.Press();
      entry->Press();
      EXPECT_TRUE(SetupWizardForm.Visible) << entry->Name();
      EXPECT_EQ(Wizard.WizardMode, WizardKind::Add);
      EXPECT_EQ(Wizard.CurrentFrame, 2);
      EXPECT_EQ(SetupWizardForm.ZipCodeInput.Text.Get(), "66044");
      EXPECT_EQ(Settings.LocationIndexMax, "1");
    };
    SetupWizardForm.NextButton.Press();
    EXPECT_EQ(Wizard.CurrentFrame, 3) << "the place is found";
    Doubles.during_fetch = {};
    MenuForm.EditLocationTitle[0].Press();
    EXPECT_EQ(Wizard.WizardMode, WizardKind::Edit) << "later it may";
  }
  EXPECT_TRUE(Doubles.boxes.empty());
}

TEST_F(LocationMenu, DeleteReachesTheStoreInOneGo) {
  Begin(3);
  Doubles.store_syncs = 0;
  Delete(1);
  EXPECT_EQ(Doubles.store_syncs, 1);
}

TEST_F(LocationMenu, TheTraysLocationIsMarkedShownAtOnceAndSavedAlone) {
  Begin(3, 0);
  Settings.ModelLocal = "not to be saved along";
  EXPECT_EQ(StoreChanges([] { MenuForm.TrayLocationTitle[2].Press(); }),
            (Changes{{"settings/TrayLocationIndex", "2"}}));
  EXPECT_EQ(Shown(MenuForm.TrayLocationTitle), "Town 0, Town 1, Town 2*");
  EXPECT_EQ(MainForm.SysTray[1].ToolTip.Get(), "Town 2 52 F ");
}

}  // namespace
}  // namespace skyloft
