// Programs that are started and left to themselves.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace skyloft {

// Starts a process on its own, which hears and says nothing and outlives this one. No shell reads its
// arguments. "" is the present working folder.
inline bool StartDetached(const QString& program, const QStringList& arguments = {},
                          const QString& folder = {}) {
  QProcess process;
  process.setProgram(program);
  process.setArguments(arguments);
  process.setWorkingDirectory(folder);
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  return process.startDetached();
}

}  // namespace skyloft
