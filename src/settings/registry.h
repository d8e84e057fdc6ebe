// The one access path to stored values: one value at a time by root, key and name. A profile file stands in
// for the store where its path is given as the root. Also the procedures that run all the stores in their
// order.
#pragma once

#include <cstdint>
#include <string>

#include "platform/registry_store.h"

namespace skyloft {

// Status when nothing was attempted: an unknown root or type.
inline constexpr int kNothingAttempted = 99;

// 0x80000000 to 0x80000006 for "HKCU" and its like in any case, 1 for the path of an existing file, else 0.
std::uint32_t RegistryRoot(const std::string& root);

// Reads a value; type "S" a text, "B" a flag, "D" a whole number, in any case. `result` is the default on any
// failure; the status is 0, kNothingAttempted or the platform's. A value that exists as "" yields "". A
// failed query leaves the key open, which is meant. In a profile file only "S" reads, at most 255 characters;
// other types yield the default.
int RegistryGet(const std::string& root, const std::string& key, const std::string& name,
                const std::string& type, const RegistryValue& fallback, RegistryValue& result);

// Writes a value and makes its key. In a profile file only "S" writes.
int RegistryPut(const std::string& root, const std::string& key, const std::string& name,
                const std::string& type, const RegistryValue& value);

// A text of the user's branch; the default on any failure.
std::string ReadSetting(const std::string& key, const std::string& name, const std::string& fallback);
void WriteSetting(const std::string& key, const std::string& name, const std::string& text);

// Brings what was saved to the disk.
void SyncSaves();
// While one of these lives, saves reach the disk together at its end: a crash leaves all of them or none.
class SavedTogether {
 public:
  SavedTogether();
  ~SavedTogether();
  SavedTogether(const SavedTogether&) = delete;
  SavedTogether& operator=(const SavedTogether&) = delete;
};

// All stores: settings, options, profiles, location data; then the lists and menus that show the locations.
// SaveSystem sets all five menu entries by their title; LoadSystem only those in use.
void SaveSystem();
void LoadSystem();

// Makes the list and the menu entries of the locations anew from their titles; nothing is selected then.
void ListTitles();
// Puts the check mark of the tray's location, and takes it from all others. Raises when there is none.
void CheckTrayLocation();

}  // namespace skyloft
