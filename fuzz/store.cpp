// The store starts on a registry.ini of any bytes, is read and written.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/qt/registry_qt.h"
#include "platform/registry_store.h"
#include "require.h"

namespace skyloft {
namespace {

constexpr std::uint32_t kUser = 0x80000001;
const std::string kKey = "Software\\Aerolume\\Skyloft\\Settings";

void ReadAll() {
  StoreKey key = 0;
  if (OpenStoreKey(kUser, kKey, key) != 0) return;
  for (RegistryValue value : {RegistryValue(std::string()), RegistryValue(false), RegistryValue(0)}) {
    const std::size_t kind = value.index();
    for (const char* name : {"Top", "Left", "Location", ""}) QueryStoreValue(key, name, value);
    Require(value.index() == kind, "a value is read as the kind asked for");
  }
  Require(CloseStoreKey(key) == 0, "an open key closes");
}

void WriteAndReadBack() {
  StoreKey key = 0;
  if (CreateStoreKey(kUser, kKey, key) != 0) return;
  SetStoreValue(key, "Top", std::string("a, b"));
  RegistryValue text = std::string();
  Require(QueryStoreValue(key, "Top", text) == 0 && std::get<std::string>(text) == "a, b",
          "what is written is read back");
  CloseStoreKey(key);
  SyncStore();
}

// Each input in a folder of its own: the library remembers files by their names.
void StartOn(const QByteArray& bytes) {
  static const QTemporaryDir root;
  static int run = 0;
  QDir folder(root.filePath(QString::number(++run)));
  folder.mkpath(".");
  QFile file(folder.filePath("registry.ini"));
  Require(file.open(QIODevice::WriteOnly), "the temporary folder can be written");
  file.write(bytes);
  file.close();
  SetUpStore(folder.path());
  ReadAll();
  WriteAndReadBack();
  folder.removeRecursively();
}

}  // namespace
}  // namespace skyloft

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  skyloft::StartOn(QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
  return 0;
}
