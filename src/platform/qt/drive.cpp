#include "platform/qt/drive.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include "base/text.h"

namespace skyloft {
namespace {

struct Drive {
  QString root;
  QString share;
};
Drive& TheDrive() {
  static Drive drive;
  return drive;
}

const QStringList kInstallFolder = {"program files", "skyloft"};
const QStringList kSharedFolders = {"icons", "backgrounds", "legends", "wav"};
constexpr qsizetype kLongestName = 255;
constexpr qsizetype kLongestPath = 1000;

// The names of a path below its drive; nothing when the path is no plain path of drive C:.
std::optional<QStringList> NamesOf(const std::string& path) {
  QString text = QString::fromStdString(ToUtf8(path));
  text.replace('\\', '/');
  if (text.size() > kLongestPath || !text.startsWith("C:/", Qt::CaseInsensitive)) return std::nullopt;
  const bool control = std::any_of(text.begin(), text.end(), [](QChar c) { return c < QChar(' '); });
  if (control) return std::nullopt;
  const QStringList names = text.mid(3).split('/', Qt::SkipEmptyParts);
  for (const QString& name : names) {
    if (name == "." || name == ".." || name.contains(':') || name.size() > kLongestName) return std::nullopt;
  }
  return names;
}

// `folder`/`name`, or the entry there that differs in case only.
QString EntryOf(const QString& folder, const QString& name) {
  const QString exact = folder + '/' + name;
  if (QFileInfo::exists(exact)) return exact;
  const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  for (const QString& entry : entries) {
    if (entry.compare(name, Qt::CaseInsensitive) == 0) return folder + '/' + entry;
  }
  return exact;
}

// Walks `names` below `base`; nothing when a link on the way leads out of it.
std::optional<QString> Walk(const QString& base, const QStringList& names) {
  const QString inside = QFileInfo(base).canonicalFilePath() + '/';
  QString path = base;
  for (const QString& name : names) {
    path = EntryOf(path, name);
    const QFileInfo info(path);
    if (info.isSymLink() && !(info.canonicalFilePath() + '/').startsWith(inside)) return std::nullopt;
  }
  return path;
}

bool IsShared(const QStringList& names) {
  const qsizetype depth = kInstallFolder.size();
  if (names.size() <= depth) return false;
  for (qsizetype i = 0; i < depth; ++i) {
    if (names[i].compare(kInstallFolder[i], Qt::CaseInsensitive) != 0) return false;
  }
  return kSharedFolders.contains(names[depth], Qt::CaseInsensitive);
}

}  // namespace

bool SetUpDrive(const QString& root, const QString& share) {
  TheDrive() = {QDir(root).absolutePath(), share};
  if (!QDir().mkpath(TheDrive().root)) return false;
  for (const char* folder : {"temp", "legends"}) {
    const auto path = Walk(TheDrive().root, kInstallFolder + QStringList(folder));
    if (!path || !QDir().mkpath(*path)) return false;
  }
  return true;
}

const QString& DriveRoot() { return TheDrive().root; }

std::optional<QString> PathForWriting(const std::string& path) {
  const auto names = NamesOf(path);
  if (!names || names->isEmpty()) return std::nullopt;
  return Walk(TheDrive().root, *names);
}

std::optional<QString> PathForReading(const std::string& path) {
  const auto names = NamesOf(path);
  if (!names || names->isEmpty()) return std::nullopt;
  const auto own = Walk(TheDrive().root, *names);
  if (!IsShared(*names) || (own && QFileInfo::exists(*own))) return own;
  return Walk(TheDrive().share, names->mid(kInstallFolder.size()));
}

}  // namespace skyloft
