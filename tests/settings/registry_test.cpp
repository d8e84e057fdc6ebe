#include "settings/registry.h"

#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Registry : public Station {};

constexpr const char* kKey = "Software\\Aerolume\\Skyloft\\Test";

std::string GetText(const std::string& root, const std::string& name, const std::string& fallback,
                    int& status) {
  RegistryValue value;
  status = RegistryGet(root, kKey, name, "S", fallback, value);
  return std::get<std::string>(value);
}

TEST_F(Registry, EveryRootNameHasItsHandleInAnyCase) {
  const std::pair<const char*, std::uint32_t> roots[] = {
      {"HKCU", 0x80000001}, {"HKLM", 0x80000002}, {"HKU", 0x80000003},  {"HKCC", 0x80000005},
      {"HKDD", 0x80000006}, {"HKCR", 0x80000000}, {"hkcu", 0x80000001}, {"Hklm", 0x80000002},
  };
  for (const auto& [name, handle] : roots) EXPECT_EQ(RegistryRoot(name), handle) << name;
}

TEST_F(Registry, AnExistingFileIsAProfileAndAnythingElseIsUnknown) {
  Doubles.files["c:\\some.ini"] = "";
  EXPECT_EQ(RegistryRoot("C:\\some.ini"), 1u);
  EXPECT_EQ(RegistryRoot("C:\\none.ini"), 0u);
  EXPECT_EQ(RegistryRoot(""), 0u);
}

TEST_F(Registry, AMissingKeyYieldsTheDefaultAndThePlatformsStatusAndCreatesNothing) {
  int status = 0;
  EXPECT_EQ(GetText("HKCU", "Value", "default", status), "default");
  EXPECT_EQ(status, kStoreMissing);
  EXPECT_TRUE(Doubles.store.empty());
}

TEST_F(Registry, AnEmptyValueYieldsTheEmptyTextAndNotTheDefault) {
  Doubles.Store(kKey, "Value", "");
  int status = -1;
  EXPECT_EQ(GetText("HKCU", "Value", "default", status), "");
  EXPECT_EQ(status, 0);
}

TEST_F(Registry, ARootInLowerCaseWorks) {
  EXPECT_EQ(RegistryPut("hkcu", kKey, "Value", "s", std::string("text")), 0);
  int status = -1;
  EXPECT_EQ(GetText("hkcu", "Value", "default", status), "text");
}

TEST_F(Registry, ARootThatNamesAMissingFileYields99AndTheDefault) {
  int status = 0;
  EXPECT_EQ(GetText("C:\\none.ini", "Value", "default", status), "default");
  EXPECT_EQ(status, 99);
  EXPECT_EQ(RegistryPut("C:\\none.ini", kKey, "Value", "S", std::string("x")), 99);
}

TEST_F(Registry, AnUnknownTypeYields99AndTheDefault) {
  Doubles.Store(kKey, "Value", "text");
  RegistryValue value;
  EXPECT_EQ(RegistryGet("HKCU", kKey, "Value", "X", std::string("default"), value), 99);
  EXPECT_EQ(std::get<std::string>(value), "default");
  EXPECT_EQ(RegistryPut("HKCU", kKey, "Value", "X", std::string("y")), 99);
}

TEST_F(Registry, FlagsAndNumbersComeBackAsTheyWent) {
  EXPECT_EQ(RegistryPut("HKCU", kKey, "Flag", "B", true), 0);
  EXPECT_EQ(RegistryPut("HKCU", kKey, "Number", "D", std::int32_t{-7}), 0);
  RegistryValue value;
  EXPECT_EQ(RegistryGet("HKCU", kKey, "Flag", "b", false, value), 0);
  EXPECT_TRUE(std::get<bool>(value));
  EXPECT_EQ(RegistryGet("HKCU", kKey, "Number", "D", std::int32_t{0}, value), 0);
  EXPECT_EQ(std::get<std::int32_t>(value), -7);
}

TEST_F(Registry, AFailureOfAnyKindYieldsTheDefault) {
  Doubles.Store(kKey, "Value", "text");
  Doubles.store_refused = true;
  int status = 0;
  EXPECT_EQ(GetText("HKCU", "Value", "default", status), "default");
  EXPECT_EQ(status, kStoreRefused);
  EXPECT_EQ(RegistryPut("HKCU", kKey, "Value", "S", std::string("new")), kStoreRefused);
}

TEST_F(Registry, AFailedQueryLeavesTheKeyOpen) {
  Doubles.Store(kKey, "Other", "text");
  int status = 0;
  EXPECT_EQ(GetText("HKCU", "Value", "default", status), "default");
  EXPECT_EQ(status, kStoreMissing);
  EXPECT_EQ(Doubles.open_keys.size(), 1u);
  GetText("HKCU", "Other", "default", status);
  EXPECT_EQ(Doubles.open_keys.size(), 1u) << "a query that succeeds closes its key";
}

class ProfileFile : public Registry {
 protected:
  ProfileFile() { Doubles.files["c:\\some.ini"] = ""; }
  std::string root = "C:\\some.ini";
};

TEST_F(ProfileFile, TextsAreReadAndWrittenByTheKeyAsSection) {
  EXPECT_EQ(RegistryPut(root, "section", "entry", "S", std::string("text")), 0);
  EXPECT_EQ(Doubles.profile_entries.at("C:\\some.ini|section|entry"), "text");
  RegistryValue value;
  EXPECT_EQ(RegistryGet(root, "section", "entry", "S", std::string("default"), value), 0);
  EXPECT_EQ(std::get<std::string>(value), "text");
  RegistryGet(root, "section", "none", "S", std::string("default"), value);
  EXPECT_EQ(std::get<std::string>(value), "default");
}

TEST_F(ProfileFile, ATextIsReadToItsFirst255Characters) {
  Doubles.profile_entries["C:\\some.ini|section|entry"] = std::string(300, 'x');
  RegistryValue value;
  RegistryGet(root, "section", "entry", "S", std::string(), value);
  EXPECT_EQ(std::get<std::string>(value), std::string(255, 'x'));
}

TEST_F(ProfileFile, OtherTypesAreReadButKeepTheDefaultAndWriteNothing) {
  Doubles.profile_entries["C:\\some.ini|section|entry"] = "12";
  RegistryValue value;
  RegistryGet(root, "section", "entry", "D", std::int32_t{5}, value);
  EXPECT_EQ(std::get<std::int32_t>(value), 5);
  RegistryPut(root, "section", "number", "D", std::int32_t{5});
  EXPECT_EQ(Doubles.profile_entries.size(), 1u);
}

TEST_F(Registry, SaveSystemSetsAllFiveEntriesByTheirTitle) {
  SetUpLocations(5);
  SaveSystem();
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(MenuForm.EditLocationTitle[i].Visible);
  // The third of five locations goes.
  RemoveLocationEntry(2, 4);
  Settings.LocationIndexMax = "3";
  SaveSystem();
  EXPECT_EQ(MenuForm.DeleteLocationTitle[2].Caption.Get(), "Town 3");
  EXPECT_TRUE(MenuForm.DeleteLocationTitle[3].Visible);
  for (auto* menu :
       {&MenuForm.DeleteLocationTitle, &MenuForm.EditLocationTitle, &MenuForm.TrayLocationTitle}) {
    EXPECT_FALSE((*menu)[4].Visible) << "its title is now empty";
    EXPECT_EQ((*menu)[4].Caption.Get(), "");
  }
}

TEST_F(Registry, LoadSystemShowsOnlyTheLocationsInUse) {
  SetUpLocations(2);
  Settings.TrayLocationIndex = "1";
  SaveSystem();
  LocationProfile = {};
  MenuForm.EditLocationTitle[3].Caption = "left over";
  LoadSystem();
  EXPECT_EQ(MainForm.LocationSelection.Items(), (std::vector<std::string>{"Town 0", "Town 1"}));
  EXPECT_EQ(MenuForm.TrayLocationTitle[1].Caption.Get(), "Town 1");
  EXPECT_TRUE(MenuForm.TrayLocationTitle[1].Checked);
  EXPECT_FALSE(MenuForm.TrayLocationTitle[0].Checked);
  EXPECT_EQ(MenuForm.EditLocationTitle[3].Caption.Get(), "left over") << "entries not in use are not touched";
}

TEST_F(Registry, OnAFirstRunTheListsStayEmpty) {
  LoadSystem();
  EXPECT_EQ(MainForm.LocationSelection.Count(), 0);
  EXPECT_EQ(Settings.LocationIndexMax, "");
  for (int i = 0; i < 10; ++i) EXPECT_FALSE(MenuForm.TrayLocationTitle[i].Visible);
}

TEST_F(Registry, TheStoreReachesTheDiskAtTheEndOfEachSaveAndOnceForThoseOfTheWholeSystem) {
  SetUpLocations(1);
  int syncs = 0;
  for (const auto save : {SaveSettings, SaveOptions, SaveLocationProfiles}) {
    save();
    EXPECT_EQ(Doubles.store_syncs, ++syncs);
  }
  SaveSystem();
  EXPECT_EQ(Doubles.store_syncs, syncs + 1)
      << "a crash between them would store a location without a profile";
}

}  // namespace
}  // namespace skyloft
