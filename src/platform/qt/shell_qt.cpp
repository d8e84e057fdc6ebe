#include "platform/qt/shell_qt.h"

#include <cstdio>

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "platform/qt/drive.h"
#include "platform/qt/text_qt.h"
#include "platform/qt/update_signature.h"
#include "platform/shell.h"

namespace skyloft {
namespace {

bool IsSignedFile(const QString& path, const std::string& key_hex) {
  QFile file(path);
  if (key_hex.empty() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray bytes = file.readAll();
  return IsSigned({bytes.constData(), static_cast<size_t>(bytes.size())}, key_hex);
}

// A process on its own, which hears and says nothing and outlives this one.
bool StartDetached(const QString& path) {
  QProcess process;
  process.setProgram(path);
  process.setWorkingDirectory(QFileInfo(path).path());
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  return QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOwner) && process.startDetached();
}

}  // namespace

void OpenLink(const std::string& address) {
  const QUrl url(ToQt(address), QUrl::StrictMode);
  const QString scheme = url.scheme();
  if (scheme == "http" || scheme == "https" || scheme == "mailto") QDesktopServices::openUrl(url);
}

void StartUpdate(const std::string& path) { StartUpdateWithKey(path, SKYLOFT_UPDATE_KEY); }

void StartUpdateWithKey(const std::string& path, const std::string& key_hex) {
  const auto file = PathForReading(path);
  const bool is_signed = file && IsSignedFile(*file, key_hex);
  if (is_signed && StartDetached(*file)) return;
  std::fprintf(stderr, "skyloft: the update %s %s; it was not started\n", path.c_str(),
               is_signed ? "cannot be run" : "is not signed");
}

}  // namespace skyloft
