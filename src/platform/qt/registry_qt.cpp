#include "platform/qt/registry_qt.h"

#include <map>
#include <memory>

#include <QDir>
#include <QSettings>
#include <QStringList>

#include "platform/qt/drive.h"
#include "platform/qt/text_qt.h"
#include "platform/registry_store.h"

namespace skyloft {
namespace {

struct Store {
  std::unique_ptr<QSettings> settings;
  std::map<StoreKey, QString> open;  // path of each open key, "HKCU/Software/.../"
  StoreKey last = 0;
};
Store& TheStore() {
  static Store store;
  return store;
}

QString RootName(std::uint32_t root) {
  switch (root) {
    case 0x80000000: return "HKCR";
    case 0x80000001: return "HKCU";
    case 0x80000002: return "HKLM";
    case 0x80000003: return "HKU";
    case 0x80000005: return "HKCC";
    default: return "HKDD";
  }
}

QString KeyPath(std::uint32_t root, const std::string& key) {
  return RootName(root) + '/' + ToQt(key).replace('\\', '/') + '/';
}

StoreKey Open(const QString& path) {
  TheStore().open[++TheStore().last] = path;
  return TheStore().last;
}

bool Exists(const QString& path) {
  QSettings& settings = *TheStore().settings;
  settings.beginGroup(path.chopped(1));
  const bool exists = !settings.allKeys().isEmpty();
  settings.endGroup();
  return exists;
}

// A value with a comma may read back as a list.
QString TextOf(const QVariant& value) {
  if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(", ");
  return value.toString();
}

}  // namespace

void SetUpStore(const QString& folder) {
  QDir().mkpath(folder);
  TheStore().settings = std::make_unique<QSettings>(folder + "/registry.ini", QSettings::IniFormat);
}

int OpenStoreKey(std::uint32_t root, const std::string& key, StoreKey& handle) {
  const QString path = KeyPath(root, key);
  if (!Exists(path)) return kStoreMissing;
  handle = Open(path);
  return 0;
}

int CreateStoreKey(std::uint32_t root, const std::string& key, StoreKey& handle) {
  if (!TheStore().settings->isWritable()) return kStoreRefused;
  handle = Open(KeyPath(root, key));
  return 0;
}

int QueryStoreValue(StoreKey handle, const std::string& name, RegistryValue& value) {
  const auto key = TheStore().open.find(handle);
  if (key == TheStore().open.end()) return kStoreMissing;
  const QString path = key->second + ToQt(name);
  if (!TheStore().settings->contains(path)) return kStoreMissing;
  const QVariant stored = TheStore().settings->value(path);
  if (std::holds_alternative<std::string>(value)) value = FromQt(TextOf(stored));
  if (std::holds_alternative<bool>(value)) value = stored.toBool();
  if (std::holds_alternative<std::int32_t>(value)) value = std::int32_t{stored.toInt()};
  return 0;
}

int SetStoreValue(StoreKey handle, const std::string& name, const RegistryValue& value) {
  const auto key = TheStore().open.find(handle);
  if (key == TheStore().open.end()) return kStoreMissing;
  QVariant stored;
  if (const auto* text = std::get_if<std::string>(&value)) stored = ToQt(*text);
  if (const auto* flag = std::get_if<bool>(&value)) stored = *flag;
  if (const auto* number = std::get_if<std::int32_t>(&value)) stored = *number;
  TheStore().settings->setValue(key->second + ToQt(name), stored);
  return 0;
}

int CloseStoreKey(StoreKey handle) { return TheStore().open.erase(handle) == 1 ? 0 : kStoreMissing; }

void SyncStore() {
  if (TheStore().settings) TheStore().settings->sync();
}

std::string ReadProfileText(const std::string& path, const std::string& section, const std::string& entry,
                            const std::string& fallback) {
  const auto file = PathForReading(path);
  if (!file) return fallback;
  const QSettings profile(*file, QSettings::IniFormat);
  return FromQt(TextOf(profile.value(ToQt(section) + '/' + ToQt(entry), ToQt(fallback))));
}

void WriteProfileText(const std::string& path, const std::string& section, const std::string& entry,
                      const std::string& text) {
  const auto file = PathForWriting(path);
  if (!file) return;
  QSettings profile(*file, QSettings::IniFormat);
  profile.setValue(ToQt(section) + '/' + ToQt(entry), ToQt(text));
}

}  // namespace skyloft
