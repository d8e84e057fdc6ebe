#include "platform/qt/autostart.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include "platform/qt/feed_process.h"

namespace skyloft {
namespace {

// A path as an Exec line takes it: in quotes, with backslashes before what would mean something else. The
// line itself is a string in which a backslash is written twice.
QString Quoted(const QString& path) {
  QString quoted = "\"";
  for (const QChar c : path) {
    if (QStringLiteral("\"`$\\").contains(c)) quoted += '\\';
    quoted += c == '%' ? QStringLiteral("%%") : QString(c);
  }
  return quoted.append('"').replace('\\', QStringLiteral("\\\\"));
}

}  // namespace

bool StartWithSession(bool on) {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart");
  const QString name = folder.filePath("example.skyloft.Skyloft.desktop");
  if (!on) return !QFile::exists(name) || QFile::remove(name);
  const QString program = QString::fromLocal8Bit(ProgramFolder().c_str()) + "/skyloft";
  QSaveFile file(name);
  if (!folder.mkpath(".") || !file.open(QIODevice::WriteOnly)) return false;
  file.write(("[Desktop Entry]\nType=Application\nName=Skyloft\nComment=Desktop weather station\nExec=" +
              Quoted(program) + "\nIcon=example.skyloft.Skyloft\nTerminal=false\n")
                 .toUtf8());
  return file.commit();
}

}  // namespace skyloft
