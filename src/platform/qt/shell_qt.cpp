#include "platform/qt/shell_qt.h"

#include <cstdio>

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "platform/qt/detached.h"
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

bool Run(const QString& path) {
  return QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOwner) &&
         StartDetached(path, {}, QFileInfo(path).path());
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
  if (is_signed && Run(*file)) return;
  std::fprintf(stderr, "skyloft: the update %s %s; it was not started\n", path.c_str(),
               is_signed ? "cannot be run" : "is not signed");
}

}  // namespace skyloft
