// The store of keys and values under registry.ini, and profile files of sections and entries.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace skyloft {

// A string, a flag or a whole number.
using RegistryValue = std::variant<std::string, bool, std::int32_t>;

// Statuses of the platform; 0 is success.
inline constexpr int kStoreMissing = 2;
inline constexpr int kStoreRefused = 5;

// An open key; 0 is none.
using StoreKey = int;

// Opens an existing key for reading. `root` is one of 0x80000000 to 0x80000006.
int OpenStoreKey(std::uint32_t root, const std::string& key, StoreKey& handle);
// Opens a key for writing and makes every level that is missing.
int CreateStoreKey(std::uint32_t root, const std::string& key, StoreKey& handle);
// Reads a value as the kind that `value` holds on entry; untouched unless the status is 0.
int QueryStoreValue(StoreKey handle, const std::string& name, RegistryValue& value);
int SetStoreValue(StoreKey handle, const std::string& name, const RegistryValue& value);
int CloseStoreKey(StoreKey handle);

// Writes what has changed to the disk.
void SyncStore();

// A profile file: [section] and entry=value. The path is the program's own.
std::string ReadProfileText(const std::string& path, const std::string& section, const std::string& entry,
                            const std::string& fallback);
void WriteProfileText(const std::string& path, const std::string& section, const std::string& entry,
                      const std::string& text);

}  // namespace skyloft
