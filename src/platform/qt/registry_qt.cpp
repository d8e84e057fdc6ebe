#include "platform/qt/registry_qt.h"

#include <cstdio>
#include <map>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSettings>
#include <QStringList>

#include "platform/qt/drive.h"
#include "platform/qt/text_qt.h"
#include "platform/registry_store.h"

namespace skyloft {
namespace {

struct Store {
  QString file;                      // registry.ini
  QMap<QString, QVariant> values;    // by path, "HKCU/Software/.../Top"
  bool changed = false;              // since the last sync
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
  const auto next = TheStore().values.lowerBound(path);
  return next != TheStore().values.end() && next.key().startsWith(path);
}

// A value with a comma may read back as a list.
QString TextOf(const QVariant& value) {
  if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(", ");
  return value.toString();
}

bool IsWritable() {
  const QFileInfo file(TheStore().file);
  return file.exists() ? file.isWritable() : QFileInfo(file.path()).isWritable();
}

QMap<QString, QVariant> ReadValues(const QString& file) {
  const QSettings settings(file, QSettings::IniFormat);
  QMap<QString, QVariant> values;
  for (const QString& path : settings.allKeys()) values[path] = settings.value(path);
  return values;
}

// An empty file that nobody else can read: a value may be a password.
bool MakePrivate(const QString& name) {
  QFile::remove(name);
  QFile file(name);
  return file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

// Writes the values to a file of their own and reads them back, as a full disk may take a part of them only.
bool WriteValues(const QString& file) {
  if (!MakePrivate(file)) return false;
  {
    QSettings settings(file, QSettings::IniFormat);
    for (const auto& [path, value] : TheStore().values.asKeyValueRange()) settings.setValue(path, value);
  }
  const QMap<QString, QVariant> written = ReadValues(file);
  if (written.size() != TheStore().values.size()) return false;
  for (const auto& [path, value] : TheStore().values.asKeyValueRange()) {
    if (TextOf(written.value(path)) != TextOf(value)) return false;
  }
  return true;
}

}  // namespace

void SetUpStore(const QString& folder) {
  QDir().mkpath(folder);
  TheStore() = {};
  TheStore().file = folder + "/registry.ini";
  TheStore().values = ReadValues(TheStore().file);
}

int OpenStoreKey(std::uint32_t root, const std::string& key, StoreKey& handle) {
  const QString path = KeyPath(root, key);
  if (!Exists(path)) return kStoreMissing;
  handle = Open(path);
  return 0;
}

int CreateStoreKey(std::uint32_t root, const std::string& key, StoreKey& handle) {
  if (!IsWritable()) return kStoreRefused;
  handle = Open(KeyPath(root, key));
  return 0;
}

int QueryStoreValue(StoreKey handle, const std::string& name, RegistryValue& value) {
  const auto key = TheStore().open.find(handle);
  if (key == TheStore().open.end()) return kStoreMissing;
  const QString path = key->second + ToQt(name);
  if (!TheStore().values.contains(path)) return kStoreMissing;
  const QVariant stored = TheStore().values.value(path);
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
  QVariant& cell = TheStore().values[key->second + ToQt(name)];
  if (cell == stored && cell.typeId() == stored.typeId()) return 0;
  cell = stored;
  TheStore().changed = true;
  return 0;
}

int CloseStoreKey(StoreKey handle) { return TheStore().open.erase(handle) == 1 ? 0 : kStoreMissing; }

void SyncStore() {
  Store& store = TheStore();
  if (!store.changed) return;
  const QString whole = store.file + ".new";
  if (WriteValues(whole) && std::rename(QFile::encodeName(whole), QFile::encodeName(store.file)) == 0) {
    store.changed = false;
  } else {
    QFile::remove(whole);
  }
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
