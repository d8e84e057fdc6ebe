#include "base/values.h"
#include "platform/doubles.h"

namespace skyloft {
namespace {

std::string PathOf(std::uint32_t root, const std::string& key) {
  return LowerCase(std::to_string(root) + "\\" + key);
}

StoreKey Open(const std::string& path) {
  Doubles.open_keys[++Doubles.last_key] = path;
  return Doubles.last_key;
}

}  // namespace

int OpenStoreKey(std::uint32_t root, const std::string& key, StoreKey& handle) {
  if (Doubles.store_refused || Doubles.store_failure.Due()) return kStoreRefused;
  const std::string path = PathOf(root, key);
  for (const auto& [cell, value] : Doubles.store) {
    if (cell.first != path && !cell.first.starts_with(path + "\\")) continue;
    handle = Open(path);
    return 0;
  }
  return kStoreMissing;
}

int CreateStoreKey(std::uint32_t root, const std::string& key, StoreKey& handle) {
  if (Doubles.store_refused || Doubles.store_failure.Due()) return kStoreRefused;
  handle = Open(PathOf(root, key));
  return 0;
}

int QueryStoreValue(StoreKey handle, const std::string& name, RegistryValue& value) {
  const auto found = Doubles.store.find({Doubles.open_keys.at(handle), name});
  if (found == Doubles.store.end() || found->second.index() != value.index()) return kStoreMissing;
  value = found->second;
  return 0;
}

int SetStoreValue(StoreKey handle, const std::string& name, const RegistryValue& value) {
  Doubles.store[{Doubles.open_keys.at(handle), name}] = value;
  return 0;
}

int CloseStoreKey(StoreKey handle) { return Doubles.open_keys.erase(handle) == 1 ? 0 : kStoreMissing; }

void SyncStore() { ++Doubles.store_syncs; }

std::string ReadProfileText(const std::string& path, const std::string& section, const std::string& entry,
                            const std::string& fallback) {
  const auto found = Doubles.profile_entries.find(path + "|" + section + "|" + entry);
  return found == Doubles.profile_entries.end() ? fallback : found->second;
}

void WriteProfileText(const std::string& path, const std::string& section, const std::string& entry,
                      const std::string& text) {
  Doubles.profile_entries[path + "|" + section + "|" + entry] = text;
}

}  // namespace skyloft
