#include "settings/settings.h"

#include "feed/hosts.h"
#include "feed/transport.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "station.h"

namespace skyloft {
namespace {

class SettingsStore : public Station {
 protected:
  static void Store(const std::string& name, const std::string& text) {
    Doubles.Store(kSettingsKey, name, text);
  }
  static std::string Stored(const std::string& name) { return Doubles.Stored(kSettingsKey, name); }
};

// The screen of the doubles is 1280 by 1024, the window 800 by 590.
constexpr int kCentredTop = (1024 * 15) / 2 - (590 * 15) / 2;
constexpr int kCentredLeft = (1280 * 15) / 2 - (800 * 15) / 2;

TEST_F(SettingsStore, AFirstRunCentresTheWindowAndHasNoLocation) {
  LoadSettings();
  EXPECT_EQ(MainForm.Top, kCentredTop);
  EXPECT_EQ(MainForm.Left, kCentredLeft);
  EXPECT_EQ(Settings.LocationIndexMax, "");
  EXPECT_EQ(Settings.Location, "");
  EXPECT_EQ(Settings.TrayLocationIndex, "0");
  EXPECT_EQ(Settings.StartHourIndex, "0");
  EXPECT_EQ(Settings.StopHourIndex, "59");
  EXPECT_TRUE(Doubles.store.empty()) << "reading creates nothing";
}

TEST_F(SettingsStore, TheWindowGoesToItsStoredPlace) {
  Store("Top", "300");
  Store("Left", "450");
  LoadSettings();
  EXPECT_EQ(MainForm.Top, 300);
  EXPECT_EQ(MainForm.Left, 450);
}

TEST_F(SettingsStore, OneOfTopAndLeftEmptyCentresBoth) {
  Store("Top", "300");
  LoadSettings();
  EXPECT_EQ(MainForm.Top, kCentredTop);
  EXPECT_EQ(MainForm.Left, kCentredLeft);
}

TEST_F(SettingsStore, AnErrorStillConvertsTheTwoIndexesAndLeavesTheRest) {
  Store("Top", "not a number");
  Store("Left", "10");
  Store("Location", "3");
  Settings.Location = "02";
  Settings.LocationIndexMax = "4 ";
  Settings.StopHourIndex = "65";
  LoadSettings();
  EXPECT_EQ(Settings.Location, "2") << "the value held is converted, none is read";
  EXPECT_EQ(Settings.LocationIndexMax, "4");
  EXPECT_EQ(Settings.StopHourIndex, "65");
}

TEST_F(SettingsStore, TheDefaultOfTheStampsIsTheirCurrentValue) {
  Settings.GMTStartTime = "7";
  Settings.ModelLocal = "a";
  Settings.ModelServer = "b";
  LoadSettings();
  EXPECT_EQ(Settings.GMTStartTime, "7");
  EXPECT_EQ(Settings.ModelLocal, "a");
  EXPECT_EQ(Settings.ModelServer, "b");
}

TEST_F(SettingsStore, AnEmptyLocationIndexMaxIsSavedEmpty) {
  SaveSettings();
  EXPECT_EQ(Stored("LocationIndexMax"), "");
  EXPECT_EQ(Stored("TrayLocationIndex"), "0");
}

TEST_F(SettingsStore, TheWindowsPlaceIsSavedAlsoWhileItIsHidden) {
  MainForm.Top = 123;
  MainForm.Left = -45;
  MainForm.Visible = false;
  SaveSettings();
  EXPECT_EQ(Stored("Top"), "123");
  EXPECT_EQ(Stored("Left"), "-45");
}

TEST_F(SettingsStore, HostsIsSavedAndLoaded) {
  HostAddress.Hosts = "www.skyloft.example/skyloft/config/hosts.xml";
  SaveSettings();
  EXPECT_EQ(Stored("Hosts"), "www.skyloft.example/skyloft/config/hosts.xml");
  HostAddress.Hosts = "";
  LoadSettings();
  EXPECT_EQ(HostAddress.Hosts, "www.skyloft.example/skyloft/config/hosts.xml");
}

TEST_F(SettingsStore, AllElevenValuesSurviveSaveAndLoad) {
  SetUpLocations(3);
  Settings.Location = "2";
  Settings.TrayLocationIndex = "1";
  Settings.GMTStartTime = "13";
  Settings.ModelLocal = "Mar 07 2003 12:00PM";
  Settings.ModelServer = "Mar 07 2003 06:00PM";
  Settings.StartHourIndex = "6";
  Settings.StopHourIndex = "65";
  SaveSettings();
  const SettingsState saved = Settings;
  Settings = {};
  LoadSettings();
  EXPECT_EQ(Settings.Location, saved.Location);
  EXPECT_EQ(Settings.LocationIndexMax, saved.LocationIndexMax);
  EXPECT_EQ(Settings.TrayLocationIndex, saved.TrayLocationIndex);
  EXPECT_EQ(Settings.GMTStartTime, saved.GMTStartTime);
  EXPECT_EQ(Settings.ModelLocal, saved.ModelLocal);
  EXPECT_EQ(Settings.ModelServer, saved.ModelServer);
  EXPECT_EQ(Settings.StartHourIndex, saved.StartHourIndex);
  EXPECT_EQ(Settings.StopHourIndex, saved.StopHourIndex);
}

TEST_F(SettingsStore, AnIndexBeyondAllNumbersIsARunTimeErrorAndDoesNotWrap) {
  Settings.Location = "4294967296";
  EXPECT_THROW(SelectedLocation(), RuntimeError);
}

TEST_F(SettingsStore, AnEmptyIndexIsARunTimeErrorAndNotZero) {
  EXPECT_THROW(LastLocation(), RuntimeError);
  EXPECT_THROW(SelectedLocation(), RuntimeError);
  Settings.LocationIndexMax = "4";
  EXPECT_EQ(LastLocation(), 4);
}

class OptionsStore : public Station {
 protected:
  static void Store(const std::string& name, const std::string& text) {
    Doubles.Store(kOptionsKey, name, text);
  }
  static std::string Stored(const std::string& name) { return Doubles.Stored(kOptionsKey, name); }
};

TEST_F(OptionsStore, AFirstRunHasTheDefaults) {
  LoadOptions();
  const auto& form = SystemOptionsForm;
  EXPECT_EQ(form.Email1Value.Text.Get(), "");
  EXPECT_TRUE(form.EmailOptionValue.Checked);
  EXPECT_TRUE(form.ShowTicker.Checked);
  EXPECT_FALSE(form.TopScreenPosition.Checked);
  EXPECT_TRUE(form.BottomScreenPosition.Checked);
  EXPECT_FALSE(form.AlwaysOnTop.Checked);
  EXPECT_TRUE(form.ShowCurrentConditions.Checked);
  EXPECT_TRUE(form.ShowHourlyForecast.Checked);
  EXPECT_TRUE(form.Show3DayForecast.Checked);
  EXPECT_TRUE(form.ShowAlmanac.Checked);
  EXPECT_EQ(form.NWSIndexMax.Text(), "5");
  EXPECT_EQ(form.CurrentConditionsIndexMax.Text(), "15");
  EXPECT_EQ(form.ForecastIndexMax.Text(), "60");
  EXPECT_EQ(form.NexradIndexMax.Text(), "10");
  EXPECT_TRUE(form.AutoConnect.Checked);
  EXPECT_EQ(Transport.AutoConnect, "1");
  EXPECT_EQ(Settings.LegendFlag, 0);
}

TEST_F(OptionsStore, AStoredMinusOneIsRepairedToTenMinutesAlthoughTheDefaultIsFifteen) {
  for (const char* name : {"NWSUpdate", "CurrentConditionsUpdate", "ForecastUpdate", "NexradUpdate",
                           "AutoConnect", "LegendFlag"}) {
    Store(name, "-1");
  }
  LoadOptions();
  EXPECT_EQ(SystemOptionsForm.CurrentConditionsIndexMax.Text(), "10");
  EXPECT_EQ(SystemOptionsForm.NWSIndexMax.ListIndex(), 3);
  EXPECT_EQ(SystemOptionsForm.ForecastIndexMax.ListIndex(), 11);
  EXPECT_EQ(SystemOptionsForm.NexradIndexMax.ListIndex(), 0);
  EXPECT_EQ(Transport.AutoConnect, "1");
  EXPECT_TRUE(SystemOptionsForm.AutoConnect.Checked);
  EXPECT_EQ(Settings.LegendFlag, 0);
}

TEST_F(OptionsStore, AnUnselectedListIsSavedAsMinusOne) {
  SaveOptions();
  EXPECT_EQ(Stored("CurrentConditionsUpdate"), "-1");
}

TEST_F(OptionsStore, BothTextBoxesTakeTheAddressAndTheFirstIsSaved) {
  Store("EmailAddress", "someone@example.org");
  LoadOptions();
  EXPECT_EQ(SystemOptionsForm.Email1Value.Text.Get(), "someone@example.org");
  EXPECT_EQ(SystemOptionsForm.Email2Value.Text.Get(), "someone@example.org");
  SystemOptionsForm.Email1Value.Text = "first@example.org";
  SystemOptionsForm.Email2Value.Text = "second@example.org";
  SaveOptions();
  EXPECT_EQ(Stored("EmailAddress"), "first@example.org");
}

TEST_F(OptionsStore, TopAndBottomAreTwoValues) {
  LoadOptions();
  SystemOptionsForm.TopScreenPosition.Checked = true;
  SystemOptionsForm.BottomScreenPosition.Checked = true;
  SaveOptions();
  EXPECT_EQ(Stored("TopScreenPosition"), "1");
  EXPECT_EQ(Stored("BottomScreenPosition"), "1");
}

TEST_F(OptionsStore, AListIndexOutsideItsListEndsTheLoadAndKeepsWhatItDid) {
  Store("NWSUpdate", "2");
  Store("CurrentConditionsUpdate", "99");
  Store("ForecastUpdate", "1");
  Store("ShowTicker", "0");
  LoadOptions();
  EXPECT_FALSE(SystemOptionsForm.ShowTicker.Checked);
  EXPECT_EQ(SystemOptionsForm.NWSIndexMax.ListIndex(), 2);
  EXPECT_EQ(SystemOptionsForm.ForecastIndexMax.ListIndex(), -1);
}

TEST_F(OptionsStore, AllSixteenValuesSurviveSaveAndLoad) {
  LoadOptions();
  SystemOptionsForm.ShowAlmanac.Checked = false;
  SystemOptionsForm.AutoConnect.Checked = false;
  SystemOptionsForm.NexradIndexMax.Select(10);
  Settings.LegendFlag = 1;
  SaveOptions();
  SystemOptionsForm = {};
  Settings.LegendFlag = 0;
  LoadOptions();
  EXPECT_FALSE(SystemOptionsForm.ShowAlmanac.Checked);
  EXPECT_FALSE(SystemOptionsForm.AutoConnect.Checked);
  EXPECT_EQ(Transport.AutoConnect, "0");
  EXPECT_EQ(SystemOptionsForm.NexradIndexMax.Text(), "60");
  EXPECT_EQ(Settings.LegendFlag, 1);
  size_t options = 0;
  for (const auto& [cell, value] : Doubles.store) options += cell.first.ends_with("options") ? 1 : 0;
  EXPECT_EQ(options, 16u);
}

}  // namespace
}  // namespace skyloft
