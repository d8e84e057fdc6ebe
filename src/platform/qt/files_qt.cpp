#include "platform/files.h"

#include <algorithm>
#include <cstdio>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

#include "base/guard.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/drive.h"
#include "platform/qt/files_qt.h"
#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

RuntimeError Failure(const char* what, const std::string& path) { return RuntimeError(what + (": " + path)); }

QString NameForWriting(const std::string& path) {
  const auto name = PathForWriting(path);
  if (!name) throw Failure("not a path of the program", path);
  return *name;
}

bool WriteAll(QFileDevice& file, const std::string& bytes) {
  const auto size = static_cast<qint64>(bytes.size());
  return file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.flush();
}

}  // namespace

void StampFile(const QString& file) {
  if (!ClockStands()) return;
  QFile stamped(file);
  if (stamped.open(QIODevice::ReadWrite))
    stamped.setFileTime(ToMoment(Now()), QFileDevice::FileModificationTime);
}

bool FileExists(const std::string& path) {
  const auto file = PathForReading(path);
  return file && QFileInfo(*file).isFile();
}

std::string ReadFile(const std::string& path) {
  const auto name = PathForReading(path);
  if (!name || !QFileInfo(*name).isFile()) throw Failure("no such file", path);
  QFile file(*name);
  if (!file.open(QIODevice::ReadOnly)) throw Failure("cannot read", path);
  return file.readAll().toStdString();
}

void WriteFile(const std::string& path, const std::string& bytes) {
  const QString name = NameForWriting(path);
  QSaveFile file(name);
  // A commit alone passes over what its own flush could not write.
  if (!WriteAll(file, bytes) || !file.commit()) throw Failure("cannot write", path);
  StampFile(name);
}

void WriteFileSoon(const std::string& path, const std::string& bytes) {
  const QString name = NameForWriting(path);
  QTemporaryFile file(name + ".XXXXXX");
  if (!WriteAll(file, bytes) ||
      std::rename(QFile::encodeName(file.fileName()), QFile::encodeName(name)) != 0) {
    throw Failure("cannot write", path);
  }
  file.setAutoRemove(false);
  StampFile(name);
}

void DeleteFile(const std::string& path) {
  const auto name = PathForWriting(path);
  if (!name || !QFile::remove(*name)) throw Failure("cannot delete", path);
}

Date FileTime(const std::string& path) {
  const auto name = PathForReading(path);
  if (!name || !QFileInfo(*name).isFile()) throw Failure("no such file", path);
  return ToLocal(QFileInfo(*name).lastModified());
}

std::vector<std::string> ListFiles(const std::string& folder) {
  std::vector<std::string> names;
  const auto path = PathForWriting(folder);
  if (!path) return names;
  for (const QString& name : QDir(*path).entryList(QDir::Files | QDir::Hidden, QDir::NoSort)) {
    names.push_back(FromQt(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace skyloft
