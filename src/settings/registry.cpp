#include "settings/registry.h"

#include "base/guard.h"
#include "base/values.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "platform/files.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"

namespace skyloft {
namespace {

constexpr std::uint32_t kNoRoot = 0;
constexpr std::uint32_t kProfileFile = 1;
constexpr size_t kProfileBuffer = 255;

constexpr struct {
  const char* name;
  std::uint32_t handle;
} kRoots[] = {
    {"HKCU", 0x80000001}, {"HKLM", 0x80000002}, {"HKU", 0x80000003},
    {"HKCC", 0x80000005}, {"HKDD", 0x80000006}, {"HKCR", 0x80000000},
};

int saves_together = 0;  // how many SavedTogether live

// The kind of value a type letter names, as an empty value of that kind; false for an unknown letter.
bool KindOf(const std::string& type, RegistryValue& kind) {
  const std::string letter = UpperCase(type);
  if (letter == "S") kind = std::string();
  if (letter == "B") kind = false;
  if (letter == "D") kind = std::int32_t{0};
  return letter == "S" || letter == "B" || letter == "D";
}

int GetFromProfile(const std::string& path, const std::string& key, const std::string& name,
                   const RegistryValue& kind, const RegistryValue& fallback, RegistryValue& result) {
  if (std::holds_alternative<std::string>(kind)) {
    const auto* text = std::get_if<std::string>(&fallback);
    result = ReadProfileText(path, key, name, text ? *text : "").substr(0, kProfileBuffer);
  }
  return 0;  // a number is read too, and not passed on
}

void ShowTitle(MenuItem& entry, int location) {
  const std::string& title = LocationProfile[ProfileRow::Title][location];
  entry.Caption = title;
  entry.Visible = !title.empty();
}

void ShowTitles(int location) {
  ShowTitle(MenuForm.DeleteLocationTitle[location], location);
  ShowTitle(MenuForm.EditLocationTitle[location], location);
  ShowTitle(MenuForm.TrayLocationTitle[location], location);
}

}  // namespace

std::uint32_t RegistryRoot(const std::string& root) {
  const std::string name = UpperCase(root);
  for (const auto& known : kRoots) {
    if (name == known.name) return known.handle;
  }
  bool exists = false;
  Guarded([&] { exists = FileExists(root); });
  return exists ? kProfileFile : kNoRoot;
}

int RegistryGet(const std::string& root, const std::string& key, const std::string& name,
                const std::string& type, const RegistryValue& fallback, RegistryValue& result) {
  int status = kNothingAttempted;
  result = fallback;
  Guarded([&] {
    const std::uint32_t handle = RegistryRoot(root);
    RegistryValue value;
    if (handle == kNoRoot || !KindOf(type, value)) return;
    if (handle == kProfileFile) {
      status = GetFromProfile(root, key, name, value, fallback, result);
      return;
    }
    StoreKey store_key = 0;
    status = OpenStoreKey(handle, key, store_key);
    if (status != 0) return;
    status = QueryStoreValue(store_key, name, value);
    if (status != 0) return;  // the key stays open
    result = value;
    status = CloseStoreKey(store_key);
  });
  return status;
}

int RegistryPut(const std::string& root, const std::string& key, const std::string& name,
                const std::string& type, const RegistryValue& value) {
  int status = kNothingAttempted;
  Guarded([&] {
    const std::uint32_t handle = RegistryRoot(root);
    RegistryValue kind;
    if (handle == kNoRoot || !KindOf(type, kind) || kind.index() != value.index()) return;
    if (handle == kProfileFile) {
      if (const auto* text = std::get_if<std::string>(&value)) {
        WriteProfileText(root, key, name, *text);
        status = 0;
      }
      return;
    }
    StoreKey store_key = 0;
    status = CreateStoreKey(handle, key, store_key);
    if (status != 0) return;
    status = SetStoreValue(store_key, name, value);
    if (status == 0) status = CloseStoreKey(store_key);
  });
  return status;
}

std::string ReadSetting(const std::string& key, const std::string& name, const std::string& fallback) {
  RegistryValue result;
  RegistryGet("HKCU", key, name, "S", fallback, result);
  return std::get<std::string>(result);
}

void WriteSetting(const std::string& key, const std::string& name, const std::string& text) {
  RegistryPut("HKCU", key, name, "S", text);
}

void SyncSaves() {
  if (saves_together == 0) SyncStore();
}

SavedTogether::SavedTogether() { ++saves_together; }

SavedTogether::~SavedTogether() {
  --saves_together;
  SyncSaves();
}

void SaveSystem() {
  Guarded([] {
    {
      const SavedTogether together;
      SaveSettings();
      SaveOptions();
      SaveLocationProfiles();
    }
    SaveLocationData();
    for (int i = 0; i < kLocationSlots; ++i) ShowTitles(i);
    CheckTrayLocation();
  });
}

void CheckTrayLocation() {
  const int chosen = WholeNumber(Settings.TrayLocationIndex);
  for (int i = 0; i < MenuForm.TrayLocationTitle.Size(); ++i) MenuForm.TrayLocationTitle[i].Checked = false;
  MenuForm.TrayLocationTitle[chosen].Checked = true;
}

void ListTitles() {
  MainForm.LocationSelection.Clear();
  for (int i = 0; i <= LastLocation(); ++i) {
    MainForm.LocationSelection.AddItem(LocationProfile[ProfileRow::Title][i]);
    ShowTitles(i);
    for (MenuItem* entry :
         {&MenuForm.DeleteLocationTitle[i], &MenuForm.EditLocationTitle[i], &MenuForm.TrayLocationTitle[i]}) {
      entry->Visible = true;
    }
  }
}

void LoadSystem() {
  Guarded([] {
    LoadSettings();
    LoadOptions();
    LoadLocationProfiles();
    LoadLocationData();
    ListTitles();
    CheckTrayLocation();
  });
}

}  // namespace skyloft
